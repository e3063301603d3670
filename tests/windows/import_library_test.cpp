// A client linked against kova.lib, as a Windows application built with
// kova.h links the library: its calls bind through the import library (on
// 32-bit, by the decorated __stdcall names _KOVA_ParseData@20, ...) to the
// plain names kova.dll exports, the same entry points GetProcAddress finds.
// Only the public headers are used.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>
#include <type_traits>

#include "kova/kova.h"

namespace {

// On 32-bit Windows the entry points and the callback are __stdcall, which
// is part of their types there: a header that lost KOVA_CALL fails here.
#if defined(_WIN32) && !defined(_WIN64)
static_assert(
    std::is_same<KOVA_AnalyzerEventCallback, int(__stdcall*)(uint32_t, const void*, uint32_t,
                                                             const void*, uint32_t, void*)>::value,
    "the event callback is __stdcall");
static_assert(
    std::is_same<decltype(&KOVA_ParseData),
                 int(__stdcall*)(const char*, const char*, void*, uint32_t, uint32_t*)>::value,
    "KOVA_ParseData is __stdcall");
static_assert(
    std::is_same<decltype(&KOVA_PacketData),
                 int(__stdcall*)(const char*, const void*, uint32_t, char*, uint32_t)>::value,
    "KOVA_PacketData is __stdcall");
static_assert(std::is_same<decltype(&KOVA_ParseAnalyzerEventData),
                           decltype(&KOVA_ParseDataByCallback)>::value,
              "the two callback entries have one type");
static_assert(
    std::is_same<decltype(&KOVA_ParseDataByCallback),
                 int(__stdcall*)(const char*, uint32_t, KOVA_AnalyzerEventCallback, void*)>::value,
    "KOVA_ParseDataByCallback is __stdcall");
#endif

TEST(KovaLib, ParsesAndPacksThroughTheImportLibrary) {
  int32_t mode = 0;
  uint32_t filled = 0;
  ASSERT_EQ(1,
            KOVA_ParseData("AlarmLamp", R"({"id":7,"result":true,"params":{"table":{"Mode":2}}})",
                           &mode, sizeof mode, &filled));
  EXPECT_EQ(2, mode);
  EXPECT_EQ(sizeof mode, filled);
  char text[64];
  std::memset(text, 'x', sizeof text);
  ASSERT_EQ(1, KOVA_PacketData("AlarmLamp", &mode, sizeof mode, text, sizeof text));
  EXPECT_STREQ("{ \"Mode\" : 2 }\n", text);
}

struct Seen {
  int calls = 0;
  int wrongCalls = 0;
};

int KOVA_CALL OnEvent(uint32_t code, const void* info, uint32_t infoSize, const void* reserved,
                      uint32_t reservedSize, void* user) {
  Seen* seen = static_cast<Seen*>(user);
  ++seen->calls;
  if (code != 2 || info == nullptr || infoSize == 0 || reserved != nullptr || reservedSize != 0) {
    ++seen->wrongCalls;
  }
  return 0;
}

// The library calls the client's KOVA_CALL function once per event, 128
// times in a row, each time with its six arguments in place.
TEST(KovaLib, CallsTheClientCallbackWithItsArguments) {
  std::string doc = R"({"Event":[)";
  for (int i = 0; i < 128; ++i) {
    doc += std::string(i == 0 ? "" : ",") +
           R"({"Code":"CrossLineDetection","Data":{"Name":"r","UTC":1716537610}})";
  }
  doc += "]}";
  Seen seen;
  EXPECT_EQ(1, KOVA_ParseAnalyzerEventData(doc.c_str(), static_cast<uint32_t>(doc.size()), OnEvent,
                                           &seen));
  EXPECT_EQ(128, seen.calls);
  Seen again;
  EXPECT_EQ(
      1, KOVA_ParseDataByCallback(doc.c_str(), static_cast<uint32_t>(doc.size()), OnEvent, &again));
  EXPECT_EQ(128, again.calls);
  EXPECT_EQ(0, seen.wrongCalls + again.wrongCalls);
}

}  // namespace
