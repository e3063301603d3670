// "Encode": the fallbacks of values without a name, and the shape of a
// packed record.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kova/records/media.h"
#include "test_util.h"

namespace kova_test {
namespace {

constexpr uint32_t kRec = sizeof(EncodeConfig);

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
