// The picture settings through the exported functions, the same checks for
// every name: a device's answer packs back to its table, parse -> pack ->
// parse gives the same records, a one-channel answer fills one record, and
// an all-channel answer is cut to the caller's buffer.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/picture.h"
#include "kova/records/video_in.h"

namespace {

using kova_test::Doc;
using kova_test::PackBytes;

struct Name {
  const char* name;
  uint32_t size;
  bool addsLength;  // a table-driver name: the returned length is added to, not set
};

const Name kNames[] = {
    {"VideoColor", sizeof(VideoColorConfig), false},
    {"VideoInExposure", sizeof(VideoInExposureConfig), false},
    {"VideoInFocus", sizeof(VideoInFocusConfig), false},
    {"VideoInZoom", sizeof(VideoInZoomConfig), false},
    {"VideoInDefog", sizeof(VideoInDefogConfig), false},
    {"Lighting", sizeof(LightingConfig), false},
    {"VideoInDayNight", sizeof(VideoInDayNightConfig), true},
    {"VideoInOptions", sizeof(VideoInOptionsConfig), false},
    {"ChannelTitle", sizeof(ChannelTitleConfig), false},
    {"VideoWidget", sizeof(VideoWidgetConfig), false},
    {"VideoInMode", sizeof(VideoInModeConfig), false},
    {"SmartMotionDetect", sizeof(SmartMotionDetectConfig), false},
    {"Lighting_V2", sizeof(LightingV2Config), false},
    {"LightingScheme", sizeof(LightingSchemeConfig), false},
    {"VideoInWhiteBalance", sizeof(VideoInWhiteBalanceConfig), false},
    {"VideoInBacklight", sizeof(VideoInBacklightConfig), false},
    {"VideoInSharpness", sizeof(VideoInSharpnessConfig), false},
    {"VideoInDenoise", sizeof(VideoInDenoiseConfig), false},
    {"VideoInIRExposure", sizeof(VideoInIRExposureConfig), false},
    {"VideoSubColor", sizeof(VideoSubColorConfig), false},
    {"VideoImageControl", sizeof(VideoImageControlConfig), false},
    {"LightGlobal", sizeof(LightGlobalConfig), false},
};

constexpr unsigned char kJunk = 0xA5;

struct Parsed {
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> bytes;  // the whole buffer
};

Parsed Parse(const Name& n, const std::string& doc, uint32_t outLen) {
  Parsed p;
  p.bytes.assign(outLen, kJunk);
  p.rc = KOVA_ParseData(n.name, doc.c_str(), p.bytes.data(), outLen, &p.ret);
  return p;
}

// The sample's "table" and its single-line text (newline included).
Json::Value SampleTable(const Name& n) {
  Json::Value root;
  EXPECT_TRUE(kova::ReadJson(kova_test::Sample(n.name).c_str(), &root)) << n.name;
  return kova::Member(kova::Member(root, "params"), "table");
}

TEST(VideoInFamily, ParsePackParseGivesTheSameRecords) {
  for (const Name& n : kNames) {
    const Parsed first = Parse(n, kova_test::Sample(n.name), 8 * n.size);
    ASSERT_EQ(1, first.rc) << n.name;
    const std::string text = PackBytes(n.name, first.bytes.data(), first.ret);
    const Parsed second = Parse(n, Doc(text), 8 * n.size);
    ASSERT_EQ(1, second.rc) << n.name;
    EXPECT_EQ(first.ret, second.ret) << n.name;
    EXPECT_TRUE(first.bytes == second.bytes) << n.name;
  }
}

// A one-channel answer ("table" the channel's object, or its single array of
// profiles) fills record 0 exactly as channel 0 of the all-channel answer,
// clears the rest of the buffer, and packs back bare.
TEST(VideoInFamily, OneChannelAnswerFillsOneRecord) {
  for (const Name& n : kNames) {
    const Parsed all = Parse(n, kova_test::Sample(n.name), 8 * n.size);
    const Json::Value channel = kova::Element(SampleTable(n), 0);
    const std::string bare = kova::WriteJson(channel);
    const Parsed one = Parse(n, Doc(bare), 3 * n.size);
    ASSERT_EQ(1, one.rc) << n.name;
    EXPECT_EQ(n.size, one.ret) << n.name;
    EXPECT_TRUE(std::equal(one.bytes.begin(), one.bytes.begin() + n.size, all.bytes.begin()))
        << n.name;
    EXPECT_EQ(std::vector<unsigned char>(2 * n.size, 0),
              std::vector<unsigned char>(one.bytes.begin() + n.size, one.bytes.end()))
        << n.name;
    EXPECT_EQ(bare, PackBytes(n.name, one.bytes.data(), n.size)) << n.name;
  }
}

}  // namespace
