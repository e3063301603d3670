// "MotionDetect": the two region bit orders, the detection windows and the
// envelope rules that only this member has.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/alarm.h"

namespace {

using kova_test::Doc;
using kova_test::HandlerText;
using kova_test::kHandlerJson;
using kova_test::Pack;
using kova_test::ParseAs;

TEST(MotionDetect, RegionBitOrdersDifferOnPurpose) {
  int rc = 0;
  const std::string table =
      std::string(R"({"Enable":true,"Region":[1],"MotionDetectWindow":[{"Id":4,"Name":"Door",)"
                  R"("Region":[1],"Threshold":2,"Sensitive":50}],"EventHandler":)") +
      kHandlerJson + "}";
  auto r = ParseAs<MotionDetectRecord>("MotionDetect", Doc(table), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(1, r->rows);
  EXPECT_EQ(22, r->cols);
  EXPECT_EQ(1, r->region[0][0]);
  EXPECT_EQ(0, r->detectWindows[0].region[0][0]);
  EXPECT_EQ(1, r->detectWindows[0].region[0][21]);
  EXPECT_EQ(std::string(R"({ "Enable" : true, )") + HandlerText() +
                R"(, "MotionDetectWindow" : [ { "Id" : 4, "Name" : "Door", "Region" : [ 1 ], )"
                R"("Sensitive" : 50, "Threshold" : 2 } ], "Region" : [ 1 ] })"
                "\n",
            Pack("MotionDetect", *r));
}

TEST(MotionDetect, RowColWindowsAndCuts) {
  std::string windows;
  for (int i = 0; i < 11; ++i) {
    windows += std::string(i ? "," : "") + R"({"Threshold":)" + std::to_string(i) +
               R"(,"Sensitive":9,"Window":[0,0,8191,8191]})";
  }
  std::string rows;
  for (int i = 0; i < 40; ++i) rows += std::string(i ? "," : "") + "4294967295";
  int rc = 0;
  auto r = ParseAs<MotionDetectRecord>("MotionDetect",
                                       Doc(R"({"Region":[)" + rows +
                                           R"(],"Row":18,"Col":22,"VolumeRatio":30,"SubRatio":-2,)"
                                           R"("MotionDetectWindow":[)" +
                                           windows + "]}"),
                                       &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(18, r->rows);  // "Row" overrides the 32 rows read
  EXPECT_EQ(1, r->region[31][31]);
  EXPECT_EQ(10, r->windowCount);
  EXPECT_EQ(0, r->detectWindowPresent);
  const std::string packed = Pack("MotionDetect", *r);
  EXPECT_NE(
      std::string::npos,
      packed.find(R"({ "Sensitive" : 9, "Threshold" : 9, "Window" : [ 0, 0, 8191, 8191 ] } ])"));
  EXPECT_NE(std::string::npos, packed.find(R"("SubRatio" : -2, "VolumeRatio" : 30 })"));
  EXPECT_EQ(std::string::npos, packed.find("\"Level\""));
}

}  // namespace
