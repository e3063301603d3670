// Argument checks of the four exported functions and the dispatch rules
// that hold for every name.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "api/dispatch.h"
#include "kova/kova.h"

namespace {

const char kLampJson[] = R"({"result":true,"params":{"table":{"Mode":1}}})";

int KOVA_CALL CountingCallback(uint32_t, const void*, uint32_t, const void*, uint32_t, void* user) {
  ++*static_cast<int*>(user);
  return 0;
}

TEST(Exports, ParseRefusesMissingArgumentsWithoutWriting) {
  unsigned char buf[8];
  std::memset(buf, 0xAB, sizeof buf);
  uint32_t ret = 7;
  EXPECT_EQ(0, KOVA_ParseData(nullptr, kLampJson, buf, sizeof buf, &ret));
  EXPECT_EQ(0, KOVA_ParseData("AlarmLamp", nullptr, buf, sizeof buf, &ret));
  EXPECT_EQ(0, KOVA_ParseData("AlarmLamp", kLampJson, nullptr, sizeof buf, &ret));
  EXPECT_EQ(0, KOVA_ParseData("AlarmLamp", kLampJson, buf, 0, &ret));
  EXPECT_EQ(0, KOVA_ParseData("NoSuchConfig", kLampJson, buf, sizeof buf, &ret));
  for (unsigned char b : buf) EXPECT_EQ(0xAB, b);
  EXPECT_EQ(7u, ret);
}

TEST(Exports, PackRefusesMissingArgumentsButLeavesInLenToThePacker) {
  const int32_t mode = 1;
  char out[32];
  std::memset(out, 'x', sizeof out);
  EXPECT_EQ(0, KOVA_PacketData(nullptr, &mode, sizeof mode, out, sizeof out));
  EXPECT_EQ(0, KOVA_PacketData("AlarmLamp", nullptr, sizeof mode, out, sizeof out));
  EXPECT_EQ(0, KOVA_PacketData("AlarmLamp", &mode, sizeof mode, nullptr, sizeof out));
  EXPECT_EQ(0, KOVA_PacketData("AlarmLamp", &mode, sizeof mode, out, 0));
  EXPECT_EQ(0, KOVA_PacketData("NoSuchConfig", &mode, sizeof mode, out, sizeof out));
  for (char c : out) EXPECT_EQ('x', c);
  // inLen 0 reaches the packer, which judges it (one record needed here).
  EXPECT_EQ(0, KOVA_PacketData("AlarmLamp", &mode, 0, out, sizeof out));
}

TEST(Exports, DirectionOnlyNamesAreRefusedTheOtherWay) {
  char out[64] = {};
  unsigned char rec[64] = {};
  EXPECT_EQ(0, KOVA_PacketData("devVideoAnalyse.getCaps", rec, sizeof rec, out, sizeof out));
  EXPECT_EQ(0, KOVA_ParseData("VideoDiagnosisRealProject", "{}", rec, sizeof rec, nullptr));
}

TEST(Exports, CallbackEntriesCheckBufferAndCallbackOnly) {
  int calls = 0;
  EXPECT_EQ(0, KOVA_ParseAnalyzerEventData(nullptr, 10, CountingCallback, &calls));
  EXPECT_EQ(0, KOVA_ParseAnalyzerEventData("{}", 2, nullptr, &calls));
  EXPECT_EQ(1, KOVA_ParseAnalyzerEventData("{}", 0, CountingCallback, &calls));
  EXPECT_EQ(1, KOVA_ParseAnalyzerEventData("not json", 8, CountingCallback, nullptr));
  EXPECT_EQ(0, KOVA_ParseDataByCallback(nullptr, 10, CountingCallback, &calls));
  EXPECT_EQ(0, KOVA_ParseDataByCallback("{}", 2, nullptr, &calls));
  EXPECT_NE(0, KOVA_ParseDataByCallback("{}", 0, CountingCallback, &calls));
  EXPECT_EQ(0, calls);
}

}  // namespace
