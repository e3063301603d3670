#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "kova/kova.h"
#include "kova/records/media.h"

namespace {

constexpr uint32_t kRec = sizeof(EncodeConfig);
constexpr unsigned char kSentinel = 0xA5;

// Packs `records` and returns the text ("" when the packer refuses).
std::string Pack(const void* records, uint32_t inLen) {
  std::vector<char> out(64 * 1024);
  if (KOVA_PacketData("Encode", records, inLen, out.data(), out.size()) == 0) return "";
  return out.data();
}

std::string OneChannel(const std::string& table) {
  return R"({"id":9,"result":true,"params":{"table":)" + table + "}}";
}

template <typename T>
T At(const std::vector<unsigned char>& buf, size_t offset) {
  T v;
  std::memcpy(&v, buf.data() + offset, sizeof v);
  return v;
}

TEST(Encode, ChannelModes) {
  std::vector<unsigned char> buf(kRec, 0);
  uint32_t ret = 0;
  // No "channel": one object for channel 0.
  ASSERT_EQ(1, KOVA_ParseData("encode", OneChannel("{}").c_str(), buf.data(), kRec, &ret));
  EXPECT_EQ(0, At<int32_t>(buf, offsetof(EncodeConfig, channel)));

  // "channel": -1 with five channels and room for three; the guard bytes
  // after the third record stay as they were.
  std::string five = R"({"result":1,"channel":-1,"params":{"table":[)";
  for (int i = 0; i < 5; ++i)
    five += std::string(i ? "," : "") + R"({"MainFormat":[{"VideoEnable":true}]})";
  five += "]}}";
  std::vector<unsigned char> three(3 * kRec + 64, kSentinel);
  ASSERT_EQ(1, KOVA_ParseData("ENCODE", five.c_str(), three.data(), 3 * kRec, &ret));
  EXPECT_EQ(3 * kRec, ret);
  for (uint32_t i = 0; i < 3; ++i) {
    EXPECT_EQ(static_cast<int32_t>(i),
              At<int32_t>(three, i * kRec + offsetof(EncodeConfig, channel)));
  }
  EXPECT_EQ(std::vector<unsigned char>(64, kSentinel),
            std::vector<unsigned char>(three.end() - 64, three.end()));
}

TEST(Encode, PackShapesAndFallbacks) {
  EncodeConfig r;
  std::memset(&r, 0, sizeof r);
  r.mainFormat[0].hasVideoEnable = true;
  r.mainFormat[0].videoEnable = 1;
  VideoFormat& v = r.mainFormat[0].video;
  v.hasProfile = v.hasCompression = v.hasPack = v.hasFrameRate = true;
  v.profile = 0;       // no name: "Baseline"
  v.compression = 10;  // no name: ""
  v.pack = 7;          // no name: the key is left out
  v.frameRate = 12.5f;
  r.extraFormat[2].hasAudioFormat = true;  // an empty "Audio" object
  r.extraFormat[2].audio.compression = 9;
  r.extraFormat[2].audio.hasCompression = true;  // no name: "G.711A"

  const std::string one =
      "{ \"ExtraFormat\" : [ null, null, { \"Audio\" : { \"Compression\" : \"G.711A\" } } ], "
      "\"MainFormat\" : [ { \"Video\" : { \"Compression\" : \"\", \"FPS\" : 12.50000000000000, "
      "\"Profile\" : \"Baseline\" }, \"VideoEnable\" : true }, null, null ], "
      "\"SnapFormat\" : [ null, null, null ] }\n";
  EXPECT_EQ(one, Pack(&r, kRec));

  // One record and a few bytes more: an array of one object.
  std::vector<unsigned char> more(kRec + 7, 0);
  std::memcpy(more.data(), &r, kRec);
  EXPECT_EQ("[ " + one.substr(0, one.size() - 1) + " ]\n", Pack(more.data(), more.size()));
}

}  // namespace
