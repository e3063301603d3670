// "EncodePlan" and "SmartEncode": null plans, and a record that comes as
// one object or an array.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kova/records/media.h"
#include "test_util.h"

namespace kova_test {
namespace {

constexpr unsigned char kSentinel = 0xA5;

TEST(EncodePlan, NullEntriesSwitchOffAndKeepTheRest) {
  const std::string doc =
      Doc(R"([{"ExpectTime":-5,"Resolution":"1280x960"},null,{"BitRate":900,"Resolution":7}])");
  std::vector<EncodePlanEntry> e(3);
  std::memset(e.data(), kSentinel, e.size() * sizeof e[0]);
  const EncodePlanEntry untouched = e[0];
  uint32_t ret = 0;
  ASSERT_EQ(1, KOVA_ParseData("EncodePlan", doc.c_str(), e.data(), 3 * sizeof e[0], &ret));
  EXPECT_EQ(3 * sizeof e[0], ret);  // the null entry counts
  EXPECT_EQ(1, e[0].enable);
  EXPECT_EQ(0u, e[0].expectTime);
  EXPECT_EQ(19, e[0].resolution);
  EXPECT_EQ(untouched.bitRate, e[0].bitRate);
  EXPECT_EQ(0, e[1].enable);
  EXPECT_EQ(0, std::memcmp(&untouched.expectTime, &e[1].expectTime, 12));
  EXPECT_EQ(33, e[2].resolution);  // not a string

  // Pack is always an array; unknown sizes pack as "".
  EncodePlanEntry one = {1, 60, 33, 128};
  EXPECT_EQ("[ { \"BitRate\" : 128, \"ExpectTime\" : 60, \"Resolution\" : \"\" } ]\n",
            Pack("EncodePlan", one));
}

TEST(SmartEncode, ObjectOrArrayAndReservedBytesUntouched) {
  std::vector<unsigned char> buf(2 * sizeof(SmartEncodeConfig), kSentinel);
  uint32_t ret = 0;
  ASSERT_EQ(1, KOVA_ParseData("SmartEncode", Doc(R"({"Enable":true})").c_str(), buf.data(),
                              static_cast<uint32_t>(buf.size()), &ret));
  EXPECT_EQ(sizeof(SmartEncodeConfig), ret);
  EXPECT_EQ(1, buf[0]);
  EXPECT_EQ(std::vector<unsigned char>(buf.begin() + 4, buf.end()),
            std::vector<unsigned char>(buf.size() - 4, kSentinel));
  EXPECT_EQ("{ \"Enable\" : true }\n",
            PackBytes("SmartEncode", buf.data(), sizeof(SmartEncodeConfig) + 1));
}

}  // namespace
}  // namespace kova_test
