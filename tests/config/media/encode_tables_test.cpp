#include "config/media/encode_tables.h"

#include <gtest/gtest.h>

#include <string>

namespace kova {
namespace {

TEST(EncodeTables, FallbacksOfTheSmallTables) {
  // Audio: "G.711A" first, unknown 0, any index without a name packs as "G.711A".
  EXPECT_EQ(2, AudioCompressionIndex(Json::Value("G.711Mu")));
  EXPECT_EQ(0, AudioCompressionIndex(Json::Value("g.711mu")));
  EXPECT_STREQ("G.711A", AudioCompressionText(5));
  // Bit-rate control ignores letter case.
  EXPECT_EQ(1, BitRateControlIndex(Json::Value("vBr")));
  EXPECT_EQ(0, BitRateControlIndex(Json::Value("ABR")));
  // Pack format: only "PS" is 1; a value without a name is left out.
  EXPECT_EQ(1, PackFormatIndex(Json::Value("PS")));
  EXPECT_EQ(0, PackFormatIndex(Json::Value("ps")));
  EXPECT_EQ(nullptr, PackFormatText(2));
  // Profile starts at 1; unknown reads as 1, 0 packs as "Baseline".
  EXPECT_EQ(2, ProfileIndex(Json::Value("Main")));
  EXPECT_EQ(1, ProfileIndex(Json::Value("MAIN")));
  EXPECT_STREQ("Baseline", ProfileText(0));
}

TEST(EncodeTables, ImageSizeRowsAliasesAndUnknown) {
  for (int32_t i = 0; i < kImageSizeCount; ++i) {
    EXPECT_EQ(i, ImageSizeIndex(Json::Value(ImageSizeText(i)))) << i;
  }
  const struct {
    const char* alias;
    int32_t index;
  } aliases[] = {{"2CIF", 2}, {"1280x960", 19}, {"2560x1920", 27}};
  for (const auto& a : aliases) EXPECT_EQ(a.index, ImageSizeIndex(Json::Value(a.alias))) << a.alias;
  EXPECT_EQ(29, ImageSizeIndex(Json::Value("dv720p")));
  EXPECT_EQ(33, ImageSizeIndex(Json::Value("4K")));
  EXPECT_EQ(33, ImageSizeIndex(Json::Value(18)));
  EXPECT_STREQ("", ImageSizeText(33));
}

}  // namespace
}  // namespace kova
