// kova.dll as a Windows client SDK uses it: loaded at run time with
// LoadLibrary, its entry points found with GetProcAddress by their plain
// names, and called through the calling convention the header declares.
// Only the public headers are used. Text fields arrive in the process's ANSI
// code page, or in the one KOVA_CODEPAGE names, as a number or a name.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "kova/kova.h"
#include "kova/records/alarm.h"

namespace {

struct Kova {
  HMODULE module = nullptr;
  decltype(&KOVA_ParseData) parse = nullptr;
  decltype(&KOVA_PacketData) pack = nullptr;
};

template <typename F>
void Find(HMODULE module, const char* name, F* out) {
  *out = reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

const Kova& Library() {
  static const Kova kova = [] {
    Kova k;
    k.module = LoadLibraryA("kova.dll");
    if (k.module != nullptr) {
      Find(k.module, "KOVA_ParseData", &k.parse);
      Find(k.module, "KOVA_PacketData", &k.pack);
    }
    return k;
  }();
  return kova;
}

// Sets KOVA_CODEPAGE in the process environment for one test.
class CodePage {
 public:
  explicit CodePage(const char* value) { SetEnvironmentVariableA("KOVA_CODEPAGE", value); }
  ~CodePage() { SetEnvironmentVariableA("KOVA_CODEPAGE", nullptr); }
};

// "NetAlarm" read through the library; its "Name" in the local code page.
std::string ParsedName(const std::string& utf8Name) {
  const std::string json = R"({"id":3,"result":true,"params":{"table":{"Enable":true,"Name":")" +
                           utf8Name + R"(","SensorType":"NC"}}})";
  NetAlarmRecord rec;
  std::memset(&rec, 0xCD, sizeof rec);
  uint32_t filled = 0;
  EXPECT_NE(0, Library().parse("NetAlarm", json.c_str(), &rec, sizeof rec, &filled));
  EXPECT_EQ(sizeof rec, filled);
  EXPECT_EQ(1, rec.enable);
  return std::string(rec.name, strnlen(rec.name, sizeof rec.name));
}

const std::string kZhongWen = "\xE4\xB8\xAD\xE6\x96\x87";  // two Chinese characters, UTF-8
const std::string kCafe = "caf\xC3\xA9";                   // "cafe" with an acute e, UTF-8

TEST(KovaDll, ParsesAndPacksThroughThePointers) {
  const Kova& kova = Library();
  ASSERT_NE(nullptr, kova.module) << "LoadLibrary(kova.dll) failed: " << GetLastError();
  ASSERT_NE(nullptr, kova.parse);
  ASSERT_NE(nullptr, kova.pack);
  int32_t mode = 0;
  uint32_t filled = 0;
  EXPECT_EQ(1, kova.parse("alarmlamp", R"({"id":7,"result":true,"params":{"table":{"Mode":2}}})",
                          &mode, sizeof mode, &filled));
  EXPECT_EQ(2, mode);
  EXPECT_EQ(sizeof mode, filled);

  char text[64];
  std::memset(text, 'x', sizeof text);
  EXPECT_EQ(1, kova.pack("AlarmLamp", &mode, sizeof mode, text, sizeof text));
  EXPECT_STREQ("{ \"Mode\" : 2 }\n", text);
}

TEST(KovaDll, TextArrivesInTheProcessAnsiCodePage) {
  ASSERT_NE(nullptr, Library().parse);
  // The two Windows locales this test is run under (see CMakeLists.txt).
  switch (GetACP()) {
    case 1252:
      EXPECT_EQ("caf\xE9", ParsedName(kCafe));
      EXPECT_EQ("??", ParsedName(kZhongWen));
      break;
    case 936:
      EXPECT_EQ("\xD6\xD0\xCE\xC4", ParsedName(kZhongWen));
      break;
    default:
      GTEST_SKIP() << "no expectation for ANSI code page " << GetACP();
  }
}

TEST(KovaDll, KovaCodePageTakesANumberOrAName) {
  ASSERT_NE(nullptr, Library().parse);
  const struct {
    const char* codePage;
    std::string utf8;
    std::string local;
  } cases[] = {
      {"936", kZhongWen, "\xD6\xD0\xCE\xC4"},
      {"CP936", kZhongWen, "\xD6\xD0\xCE\xC4"},
      {"gbk", kZhongWen, "\xD6\xD0\xCE\xC4"},
      {"950", kZhongWen, "\xA4\xA4\xA4\xE5"},
      {"BIG5", kZhongWen, "\xA4\xA4\xA4\xE5"},
      {"windows-1252", kCafe, "caf\xE9"},
      {"ISO-8859-1", kCafe, "caf\xE9"},
      {"28591", kZhongWen, "??"},
      {"65001", kZhongWen, kZhongWen},
      {"UTF-8", kCafe, kCafe},
      {"936", "x\xF0\x9F\x98\x80y", "x?y"},        // an emoji: one "?", not one per UTF-16 unit
      {"NO-SUCH-CODEPAGE", kZhongWen, kZhongWen},  // unknown: UTF-8
  };
  for (const auto& c : cases) {
    CodePage use(c.codePage);
    EXPECT_EQ(c.local, ParsedName(c.utf8)) << c.codePage;
  }
}

TEST(KovaDll, LongTextIsCutBeforeACharacterThatDoesNotFitWhole) {
  ASSERT_NE(nullptr, Library().parse);
  CodePage use("GBK");
  std::string utf8;
  std::string local;
  for (int i = 0; i < 40; ++i) utf8 += kZhongWen.substr(0, 3);
  for (int i = 0; i < 31; ++i) local += "\xD6\xD0";
  // 63 bytes of room in "Name": 31 two-byte characters, never half of one.
  EXPECT_EQ(local, ParsedName(utf8));
}

TEST(KovaDll, PackedTextComesBackToUtf8FromTheCodePage) {
  ASSERT_NE(nullptr, Library().pack);
  CodePage use("936");
  NetAlarmRecord rec = {};
  std::memcpy(rec.name, "\xD6\xD0\xCE\xC4", 4);
  char text[4096];
  ASSERT_EQ(1, Library().pack("NetAlarm", &rec, sizeof rec, text, sizeof text));
  EXPECT_NE(nullptr, std::strstr(text, ("\"Name\" : \"" + kZhongWen + "\"").c_str())) << text;
}

}  // namespace
