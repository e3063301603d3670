#include "config/media/encode_tables.h"

#include <gtest/gtest.h>

namespace kova {
namespace {

int32_t Read(const EnumNames& e, const Json::Value& text) {
  int32_t value = e.unknownValue;
  EnumValue(e, text, &value);
  return value;
}

TEST(EncodeTables, ExactNamesAliasesAndUnknownValues) {
  EXPECT_EQ(9, Read(kVideoCompressionNames, "SVAC"));
  EXPECT_EQ(2, Read(kAudioCompressionNames, "G.711Mu"));
  EXPECT_EQ(0, Read(kAudioCompressionNames, "g.711mu"));  // exact
  EXPECT_EQ(1, Read(kBitRateControlNames, "vBr"));        // any case
  EXPECT_EQ(0, Read(kPackFormatNames, "ps"));
  EXPECT_EQ(2, Read(kProfileNames, "Main"));  // from 1
  EXPECT_EQ(1, Read(kProfileNames, "MAIN"));
  EXPECT_EQ(2, Read(kImageSizeNames, "2CIF"));
  EXPECT_EQ(27, Read(kImageSizeNames, "2560x1920"));
  EXPECT_EQ(29, Read(kImageSizeNames, "dv720p"));
  EXPECT_EQ(33, Read(kImageSizeNames, Json::Value(18)));
}

}  // namespace
}  // namespace kova
