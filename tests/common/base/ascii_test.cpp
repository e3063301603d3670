#include "common/base/ascii.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

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

// The order agrees with the equality, so that a sorted list finds by
// binary search what a walk finds: folded letters sort as lower case, bytes
// as unsigned values, and a text before the longer texts it begins.
TEST(Ascii, OrderAgreesWithEquality) {
  EXPECT_EQ(0, AsciiCompareNoCase("ENCODE", "encode"));
  EXPECT_LT(AsciiCompareNoCase("Encode", "EncodeX"), 0);
  EXPECT_GT(AsciiCompareNoCase("b", "A"), 0);
  EXPECT_GT(AsciiCompareNoCase("Z", "_"), 0);  // 'z' (0x7a) after '_' (0x5f) once folded
  EXPECT_LT(AsciiCompareNoCase("a", "\xc3"), 0);
  std::vector<std::string> names = {"b", "A", "a_", "\xc3\xa9", "B", "aB", ""};
  std::stable_sort(names.begin(), names.end(), [](const std::string& x, const std::string& y) {
    return AsciiCompareNoCase(x, y) < 0;
  });
  EXPECT_EQ((std::vector<std::string>{"", "A", "a_", "aB", "b", "B", "\xc3\xa9"}), names);
}

}  // namespace
}  // namespace kova
