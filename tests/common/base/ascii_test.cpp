#include "common/base/ascii.h"

#include <gtest/gtest.h>

#include <string>

namespace kova {
namespace {

TEST(Ascii, FoldsOnlyTheLettersAToZ) {
  EXPECT_TRUE(AsciiEqualNoCase("vsp_gays", "VSP_GAYS"));
  EXPECT_TRUE(AsciiEqualNoCase("", ""));
  // '@' and '`' (and '[' and '{') differ by the case bit but are no letters;
  // nor is a byte above 127.
  EXPECT_FALSE(AsciiEqualNoCase("a@", "a`"));
  EXPECT_FALSE(AsciiEqualNoCase("[", "{"));
  EXPECT_FALSE(AsciiEqualNoCase("\xc3\x89", "\xc3\xa9"));
  // Whole texts: a prefix, a trailing blank or an embedded NUL is another text.
  EXPECT_FALSE(AsciiEqualNoCase("Encode", "EncodeX"));
  EXPECT_FALSE(AsciiEqualNoCase("Normal", "Normal "));
  EXPECT_FALSE(AsciiEqualNoCase("Normal", std::string("Normal\0x", 8)));
}

}  // namespace
}  // namespace kova
