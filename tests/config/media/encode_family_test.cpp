// "EncodePlan", "VideoEncodeROI", "DspEncodeCap", "EncodeAdapt" and
// "SmartEncode" through the exported functions, and every sample of the
// family parsed and packed back.
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "kova/kova.h"
#include "kova/records/media.h"

namespace {

constexpr unsigned char kSentinel = 0xA5;

std::string Envelope(const std::string& table, const char* result = "true") {
  return std::string(R"({"id":3,"result":)") + result + R"(,"params":{"table":)" + table + "}}";
}

std::string Pack(const char* name, const void* in, uint32_t inLen, uint32_t outLen = 65536) {
  std::vector<char> out(outLen);
  if (KOVA_PacketData(name, in, inLen, out.data(), outLen) == 0) return "";
  return std::string(out.data(), strnlen(out.data(), outLen));
}

TEST(EncodePlan, NullEntriesSwitchOffAndKeepTheRest) {
  // "result" is not consulted; the fourth element has no room.
  const std::string doc = Envelope(
      R"([{"ExpectTime":-5,"Resolution":"1280x960"},null,{"BitRate":900,"Resolution":7},{}])",
      "false");
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
            Pack("EncodePlan", &one, sizeof one));
}

TEST(SmartEncode, ObjectOrArrayAndReservedBytesUntouched) {
  std::vector<unsigned char> buf(2 * sizeof(SmartEncodeConfig), kSentinel);
  uint32_t ret = 0;
  ASSERT_EQ(1, KOVA_ParseData("SmartEncode", Envelope(R"({"Enable":true})").c_str(), buf.data(),
                              buf.size(), &ret));
  EXPECT_EQ(sizeof(SmartEncodeConfig), ret);
  SmartEncodeConfig r;
  std::memcpy(&r, buf.data(), sizeof r);
  EXPECT_EQ(1, r.enable);
  EXPECT_EQ(std::vector<unsigned char>(buf.begin() + 4, buf.end()),
            std::vector<unsigned char>(buf.size() - 4, kSentinel));
  EXPECT_EQ("{ \"Enable\" : true }\n", Pack("SmartEncode", buf.data(), sizeof r + 1));
}

}  // namespace
