#include "config/media/encode_tables.h"

#include <gtest/gtest.h>

namespace kova {
namespace {

TEST(EncodeTables, ExactNamesAliasesUnknownValuesAndFallbackTexts) {
  EXPECT_EQ(9, VideoCompressionIndex(Json::Value("SVAC")));
  EXPECT_EQ(2, AudioCompressionIndex(Json::Value("G.711Mu")));
  EXPECT_EQ(0, AudioCompressionIndex(Json::Value("g.711mu")));  // exact
  EXPECT_EQ(1, BitRateControlIndex(Json::Value("vBr")));        // any case
  EXPECT_EQ(0, PackFormatIndex(Json::Value("ps")));
  EXPECT_EQ(2, ProfileIndex(Json::Value("Main")));  // from 1
  EXPECT_EQ(1, ProfileIndex(Json::Value("MAIN")));
  EXPECT_EQ(2, ImageSizeIndex(Json::Value("2CIF")));
  EXPECT_EQ(27, ImageSizeIndex(Json::Value("2560x1920")));
  EXPECT_EQ(29, ImageSizeIndex(Json::Value("dv720p")));
  EXPECT_EQ(33, ImageSizeIndex(Json::Value(18)));
  // A value without a name: the first name, nothing, or left out.
  EXPECT_STREQ("G.711A", AudioCompressionText(5));
  EXPECT_STREQ("Baseline", ProfileText(0));
  EXPECT_STREQ(BitRateControlText(0), BitRateControlText(9));
  EXPECT_STREQ("", VideoCompressionText(99));
  EXPECT_STREQ("", ImageSizeText(33));
  EXPECT_EQ(nullptr, PackFormatText(2));
}

}  // namespace
}  // namespace kova
