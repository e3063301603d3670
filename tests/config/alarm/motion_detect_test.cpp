// "MotionDetect": the two region bit orders and the window list that holds
// both kinds of window.
#include <gtest/gtest.h>

#include <string>

#include "kova/records/alarm.h"
#include "test_util.h"

namespace kova_test {
namespace {

TEST(MotionDetect, RegionBitOrdersDifferAndWindowsShareOneList) {
  std::string windows = R"({"Id":4,"Region":[1],"Sensitive":50,"Window":[0,0,8191,8191]})";
  for (int i = 1; i < 12; ++i) windows += R"(,{"Window":[0,0,1,1]})";
  int rc = 0;
  auto r = ParseAs<MotionDetectRecord>(
      "MotionDetect",
      Doc(R"({"Region":[1,2147483648],"Row":3,"MotionDetectWindow":[)" + windows + "]}"), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(3, r->rows);  // "Row" overrides the two rows read
  EXPECT_EQ(22, r->cols);
  EXPECT_EQ(1, r->region[0][0]);
  EXPECT_EQ(1, r->region[1][31]);
  EXPECT_EQ(0, r->detectWindows[0].region[0][0]);
  EXPECT_EQ(1, r->detectWindows[0].region[0][21]);
  EXPECT_EQ(10, r->windowCount);
  EXPECT_EQ(10, r->detectWindowCount);
  const std::string packed = Pack("MotionDetect", *r);
  EXPECT_NE(std::string::npos, packed.find(R"("Region" : [ 1, 2147483648, 0 ])"));
  EXPECT_NE(std::string::npos, packed.find(R"("Id" : 4, "Name" : "", "Region" : [ 1 ], )"
                                           R"("Sensitive" : 50, "Threshold" : 0, "Window")"));
}

}  // namespace
}  // namespace kova_test
