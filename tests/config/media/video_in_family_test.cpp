// The picture settings through the exported functions, the same checks for
// every name: a one-channel answer fills one record.
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
  // A null first channel does not make the table one channel's: the first
  // non-null element decides, the null channel is an empty record.
  const Name& color = kNames[0];
  const Parsed all = Parse(color, kova_test::Sample(color.name), 8 * color.size);
  const std::string first = kova::WriteJson(kova::Element(SampleTable(color), 0));
  const Parsed two = Parse(color, Doc("[null," + first + "]"), 3 * color.size);
  ASSERT_EQ(1, two.rc);
  EXPECT_EQ(2 * color.size, two.ret);
  EXPECT_EQ(std::vector<unsigned char>(color.size, 0),
            std::vector<unsigned char>(two.bytes.begin(), two.bytes.begin() + color.size));
  EXPECT_TRUE(std::equal(all.bytes.begin(), all.bytes.begin() + color.size,
                         two.bytes.begin() + color.size));
}

}  // namespace
