// "Encode": the channel the response names, and the fallbacks of values
// without a name.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "kova/records/media.h"
#include "test_util.h"

namespace kova_test {
namespace {

constexpr uint32_t kRec = sizeof(EncodeConfig);

int32_t ChannelOf(const std::vector<unsigned char>& buf, uint32_t record) {
  int32_t v;
  std::memcpy(&v, buf.data() + record * kRec + offsetof(EncodeConfig, channel), sizeof v);
  return v;
}

TEST(Encode, ChannelModes) {
  std::vector<unsigned char> buf(kRec, 0);
  uint32_t ret = 0;
  // No "channel": one object for channel 0.
  ASSERT_EQ(1, KOVA_ParseData("encode", Doc("{}").c_str(), buf.data(), kRec, &ret));
  EXPECT_EQ(0, ChannelOf(buf, 0));

  // "channel": -1 with five channels and room for three; the bytes after
  // the third record stay as they were.
  std::string five = R"({"result":1,"channel":-1,"params":{"table":[{})";
  for (int i = 1; i < 5; ++i) five += R"(,{"MainFormat":[{"VideoEnable":true}]})";
  five += "]}}";
  std::vector<unsigned char> three(3 * kRec + 64, 0xA5);
  ASSERT_EQ(1, KOVA_ParseData("ENCODE", five.c_str(), three.data(), 3 * kRec, &ret));
  EXPECT_EQ(3 * kRec, ret);
  for (uint32_t i = 0; i < 3; ++i) EXPECT_EQ(static_cast<int32_t>(i), ChannelOf(three, i));
  EXPECT_EQ(std::vector<unsigned char>(64, 0xA5),
            std::vector<unsigned char>(three.end() - 64, three.end()));
}

TEST(Encode, PackShapesAndFallbacks) {
  auto r = NewRecord<EncodeConfig>();
  r->mainFormat[0].hasVideoEnable = true;
  r->mainFormat[0].videoEnable = 1;
  VideoFormat& v = r->mainFormat[0].video;
  v.hasProfile = v.hasCompression = v.hasPack = v.hasFrameRate = true;
  v.profile = 0;       // no name: "Baseline"
  v.compression = 10;  // no name: ""
  v.pack = 7;          // no name: the key is left out
  v.frameRate = 12.5f;
  r->extraFormat[2].hasAudioFormat = true;
  r->extraFormat[2].audio.compression = 9;
  r->extraFormat[2].audio.hasCompression = true;  // no name: "G.711A"

  const std::string one =
      "{ \"ExtraFormat\" : [ null, null, { \"Audio\" : { \"Compression\" : \"G.711A\" } } ], "
      "\"MainFormat\" : [ { \"Video\" : { \"Compression\" : \"\", \"FPS\" : 12.50000000000000, "
      "\"Profile\" : \"Baseline\" }, \"VideoEnable\" : true }, null, null ], "
      "\"SnapFormat\" : [ null, null, null ] }\n";
  EXPECT_EQ(one, Pack("Encode", *r));

  // One record and a few bytes more: an array of one object.
  std::vector<unsigned char> more(kRec + 7, 0);
  std::memcpy(more.data(), r.get(), kRec);
  EXPECT_EQ("[ " + one.substr(0, one.size() - 1) + " ]\n",
            PackBytes("Encode", more.data(), static_cast<uint32_t>(more.size())));
}

}  // namespace
}  // namespace kova_test
