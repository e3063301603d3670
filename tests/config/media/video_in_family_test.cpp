// The picture settings answered per channel: a one-channel answer fills one
// record, for every name of the family.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "api/dispatch.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "test_util.h"

namespace kova_test {
namespace {

struct Parsed {
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> bytes;  // the whole buffer
};

Parsed Parse(const char* name, const std::string& doc, uint32_t outLen) {
  Parsed p;
  p.bytes.assign(outLen, 0xA5);
  p.rc = KOVA_ParseData(name, doc.c_str(), p.bytes.data(), outLen, &p.ret);
  return p;
}

// The text of channel 0 of the sample's table.
std::string FirstChannel(const char* name) {
  Json::Value root;
  EXPECT_TRUE(kova::ReadJson(Sample(name).c_str(), &root)) << name;
  return kova::WriteJson(kova::Element(kova::Member(kova::Member(root, "params"), "table"), 0));
}

// A one-channel answer ("table" the channel's object, or its single array of
// profiles) fills record 0 exactly as channel 0 of the all-channel answer,
// clears the rest of the buffer, and packs back bare.
TEST(VideoInFamily, OneChannelAnswerFillsOneRecord) {
  for (const char* name :
       {"VideoColor",        "VideoInExposure", "VideoInFocus",        "VideoInZoom",
        "VideoInDefog",      "Lighting",        "VideoInDayNight",     "VideoInOptions",
        "ChannelTitle",      "VideoWidget",     "VideoInMode",         "SmartMotionDetect",
        "Lighting_V2",       "LightingScheme",  "VideoInWhiteBalance", "VideoInBacklight",
        "VideoInSharpness",  "VideoInDenoise",  "VideoInIRExposure",   "VideoSubColor",
        "VideoImageControl", "LightGlobal"}) {
    const uint32_t size = kova::ParseRecordSize(kova::FindParseName(name));
    const Parsed all = Parse(name, Sample(name), 8 * size);
    const std::string bare = FirstChannel(name);
    const Parsed one = Parse(name, Doc(bare), 3 * size);
    ASSERT_EQ(1, one.rc) << name;
    EXPECT_EQ(size, one.ret) << name;
    EXPECT_TRUE(std::equal(one.bytes.begin(), one.bytes.begin() + size, all.bytes.begin())) << name;
    EXPECT_EQ(std::vector<unsigned char>(2 * size, 0),
              std::vector<unsigned char>(one.bytes.begin() + size, one.bytes.end()))
        << name;
    EXPECT_EQ(bare, PackBytes(name, one.bytes.data(), size)) << name;
  }
  // A null first channel does not make the table one channel's: the first
  // non-null element decides, the null channel is an empty record.
  const uint32_t size = kova::ParseRecordSize(kova::FindParseName("VideoColor"));
  const Parsed all = Parse("VideoColor", Sample("VideoColor"), 8 * size);
  const Parsed two =
      Parse("VideoColor", Doc("[null," + FirstChannel("VideoColor") + "]"), 3 * size);
  ASSERT_EQ(1, two.rc);
  EXPECT_EQ(2 * size, two.ret);
  EXPECT_EQ(std::vector<unsigned char>(size, 0),
            std::vector<unsigned char>(two.bytes.begin(), two.bytes.begin() + size));
  EXPECT_TRUE(std::equal(all.bytes.begin(), all.bytes.begin() + size, two.bytes.begin() + size));
}

}  // namespace
}  // namespace kova_test
