#include "common/fields/fields.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "common/json/json.h"
#include "test_util.h"

namespace kova {
namespace {

// Utf8ToAnsi into a buffer of `cap` bytes followed by sentinels.
std::string ToLocal(const std::string& utf8, int32_t cap) {
  std::vector<char> buf(static_cast<size_t>(cap) + 4, '#');
  const int32_t n = Utf8ToAnsi(utf8.c_str(), static_cast<int32_t>(utf8.size()), buf.data(), cap);
  EXPECT_EQ(std::string(4, '#'), std::string(buf.data() + cap, 4)) << "written past capacity";
  return std::string(buf.data(), static_cast<size_t>(n));
}
std::string ToUtf8(const std::string& local, int32_t cap) {
  std::vector<char> buf(static_cast<size_t>(cap) + 4, '#');
  const int32_t n = AnsiToUtf8(local.data(), static_cast<int32_t>(local.size()), buf.data(), cap);
  EXPECT_EQ(std::string(4, '#'), std::string(buf.data() + cap, 4)) << "written past capacity";
  EXPECT_EQ('\0', buf[static_cast<size_t>(n)]);
  return std::string(buf.data(), static_cast<size_t>(n));
}

using kova_test::CodePage;

const std::string kZhongWen = "\xE4\xB8\xAD\xE6\x96\x87";  // two Chinese characters, UTF-8

TEST(GetJsonString, LongTextCutToCapacityMinusOne) {
  char dst[32];
  std::memset(dst, 'x', sizeof dst);
  EXPECT_TRUE(GetJsonString(Json::Value(std::string(40, 'a')), dst, sizeof dst, 1));
  EXPECT_EQ(std::string(31, 'a'), std::string(dst));
  EXPECT_EQ('\0', dst[31]);
}

TEST(CodePages, ChineseArrivesInGbkWhenConvertedAndUnchangedOtherwise) {
  CodePage use("GBK");
  char dst[16];
  ASSERT_TRUE(GetJsonString(Json::Value(kZhongWen), dst, sizeof dst, 1));
  EXPECT_EQ("\xD6\xD0\xCE\xC4", std::string(dst));
  ASSERT_TRUE(GetJsonString(Json::Value(kZhongWen), dst, sizeof dst, 0));
  EXPECT_EQ(kZhongWen, std::string(dst));
  // Unconverted text is cut by bytes: a character may be split.
  ASSERT_TRUE(GetJsonString(Json::Value(kZhongWen), dst, 5, 0));
  EXPECT_EQ(kZhongWen.substr(0, 4), std::string(dst));
}

TEST(CodePages, RoundTripsAndThreadCacheFollowsTheCodePage) {
  struct Case {
    const char* codePage;
    std::string utf8;
    std::string local;
  };
  const Case cases[] = {
      {"GBK", kZhongWen + "abc",
       "\xD6\xD0\xCE\xC4"
       "abc"},
      {"BIG5", kZhongWen, "\xA4\xA4\xA4\xE5"},
      {"ISO-8859-1", "caf\xC3\xA9", "caf\xE9"},
      {"CP936", kZhongWen, "\xD6\xD0\xCE\xC4"},
      {"UTF-8", kZhongWen, kZhongWen},
      {"UTF-8", "\xF0\x9F\x98\x80!", "\xF0\x9F\x98\x80!"},  // four bytes, beyond U+FFFF
  };
  // One thread, code page changed between conversions: each must be seen.
  for (const Case& c : cases) {
    CodePage use(c.codePage);
    EXPECT_EQ(c.local, ToLocal(c.utf8, 32)) << c.codePage;
    EXPECT_EQ(c.utf8, ToUtf8(c.local, 32)) << c.codePage;
    char dst[32];
    ASSERT_TRUE(GetJsonString(Json::Value(c.utf8), dst, sizeof dst, 1));
    EXPECT_EQ(c.local, std::string(dst)) << c.codePage;
    Json::Value v;
    ASSERT_TRUE(SetJsonString(v, c.local.c_str(), 1));
    EXPECT_EQ(c.utf8, ToText(v)) << c.codePage;
  }
}

TEST(CodePages, UnmappableCharactersBecomeQuestionMarks) {
  CodePage latin1("ISO-8859-1");
  EXPECT_EQ("a?b", ToLocal("a" + kZhongWen.substr(0, 3) + "b", 32));
  CodePage gbk("GBK");
  EXPECT_EQ("x?y", ToLocal("x\xF0\x9F\x98\x80y", 32));  // an emoji has no GBK form
}

TEST(CodePages, InvalidUtf8BecomesOneReplacementAndConversionGoesOn) {
  CodePage utf8("UTF-8");
  const std::string fffd = "\xEF\xBF\xBD";
  EXPECT_EQ("a" + fffd + "b", ToLocal("a\xFF"
                                      "b",
                                      32));
  // A truncated sequence followed by a whole character: one replacement.
  EXPECT_EQ(fffd + kZhongWen.substr(0, 3), ToLocal("\xE4\xB8" + kZhongWen.substr(0, 3), 32));
  EXPECT_EQ("a" + fffd, ToLocal("a\xE4\xB8", 32));
  EXPECT_EQ(fffd + fffd + "z", ToLocal("\xC0\xAF"
                                       "z",
                                       32));  // overlong '/': two bad bytes
  CodePage gbk("GBK");
  EXPECT_EQ("a?\xD6\xD0", ToLocal("a\xE4\xB8" + kZhongWen.substr(0, 3), 32));
  // A byte sequence that is not GBK becomes one U+FFFD on the way back.
  EXPECT_EQ("a" + fffd + "b", ToUtf8("a\xFF"
                                     "b",
                                     32));
}

TEST(CodePages, CutAtCapacityWithoutSplittingACharacter) {
  CodePage gbk("GBK");
  EXPECT_EQ("\xD6\xD0", ToLocal(kZhongWen, 3));
  EXPECT_EQ("\xD6\xD0\xCE\xC4", ToLocal(kZhongWen, 4));
  // AnsiToUtf8 keeps one byte of its capacity for the terminator.
  EXPECT_EQ(kZhongWen.substr(0, 3), ToUtf8("\xD6\xD0\xCE\xC4", 6));
  EXPECT_EQ(kZhongWen, ToUtf8("\xD6\xD0\xCE\xC4", 7));
  char field[6];
  ASSERT_TRUE(GetJsonString(Json::Value(kZhongWen + kZhongWen), field, sizeof field, 1));
  EXPECT_EQ(std::string("\xD6\xD0\xCE\xC4\0\0", 6), std::string(field, 6));
  CodePage utf8("UTF-8");
  EXPECT_EQ(kZhongWen.substr(0, 3), ToLocal(kZhongWen, 5));
}

TEST(CodePages, SetJsonStringCutsAtOneAndAHalfTimesTheLocalLength) {
  CodePage use("ISO-8859-1");
  Json::Value v;
  // Four Latin-1 bytes grow to eight UTF-8 bytes; the scratch holds 7 - 1.
  ASSERT_TRUE(SetJsonString(v, "\xE9\xE9\xE9\xE9", 1));
  EXPECT_EQ("\xC3\xA9\xC3\xA9\xC3\xA9", ToText(v));
  ASSERT_TRUE(SetJsonString(v, "", 1));
  EXPECT_EQ("", ToText(v));
  Json::Value untouched("old");
  EXPECT_FALSE(SetJsonString(untouched, nullptr, 1));
  EXPECT_EQ("old", ToText(untouched));
}

}  // namespace
}  // namespace kova
