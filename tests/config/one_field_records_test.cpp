// "AlarmLamp", "DefenceArmMode" and "G3G4AutoChange" end to end through the
// exported functions.
#include <gtest/gtest.h>

#include <string>

#include "kova/kova.h"
#include "kova/records/alarm.h"
#include "kova/records/network.h"

namespace {

std::string Doc(const std::string& table) {
  return R"({"id":12,"result":true,"params":{"table":)" + table + R"(},"session":991})";
}

template <typename Rec>
std::string PackOf(const char* name, const Rec& r, int* rc) {
  char out[128];
  *rc = KOVA_PacketData(name, &r, sizeof r, out, sizeof out);
  return *rc ? std::string(out) : std::string();
}

TEST(AlarmLamp, ModeValuesAndFallbacks) {
  struct Case {
    const char* table;
    int32_t mode;
  } cases[] = {{R"({"Mode":0})", 0},
               {R"({"Mode":2})", 2},
               {R"({"Mode":3})", -1},
               {R"({"Mode":-1})", 0},
               {R"({"Mode":null})", 0},
               {R"({"Mode":"1"})", 0},
               {R"({"Mode":1.9})", 1},
               {R"({"Mode":true})", 1},
               {R"({})", -1},
               {R"({"mode":1})", -1},
               {R"(7)", -1},
               {R"([{"Mode":1}])", -1}};
  for (const Case& c : cases) {
    AlarmLampRecord r{99};
    uint32_t ret = 0;
    ASSERT_EQ(1, KOVA_ParseData("AlarmLamp", Doc(c.table).c_str(), &r, sizeof r, &ret)) << c.table;
    EXPECT_EQ(c.mode, r.mode) << c.table;
    EXPECT_EQ(4u, ret);
  }
}

TEST(AlarmLamp, PackWritesOnlyKnownModes) {
  int rc = 0;
  EXPECT_EQ("{ \"Mode\" : 1 }\n", PackOf("AlarmLamp", AlarmLampRecord{1}, &rc));
  EXPECT_EQ("null\n", PackOf("AlarmLamp", AlarmLampRecord{-1}, &rc));
  EXPECT_EQ(1, rc);
  EXPECT_EQ("null\n", PackOf("AlarmLamp", AlarmLampRecord{3}, &rc));
}

TEST(OneFieldRecords, BooleanRecordsRoundTrip) {
  DefenceArmModeRecord d{7};
  ASSERT_EQ(1, KOVA_ParseData("DefenceArmMode", Doc(R"({"EnableDefenceArm":true})").c_str(), &d,
                              sizeof d, nullptr));
  EXPECT_EQ(1u, d.enableDefenceArm);
  int rc = 0;
  EXPECT_EQ("{ \"EnableDefenceArm\" : true }\n", PackOf("DefenceArmMode", d, &rc));
  d.enableDefenceArm = 0;
  EXPECT_EQ("{ \"EnableDefenceArm\" : false }\n", PackOf("DefenceArmMode", d, &rc));
  d.enableDefenceArm = 5;  // any non-zero value packs true
  EXPECT_EQ("{ \"EnableDefenceArm\" : true }\n", PackOf("DefenceArmMode", d, &rc));
  ASSERT_EQ(1, KOVA_ParseData("DefenceArmMode", Doc("{}").c_str(), &d, sizeof d, nullptr));
  EXPECT_EQ(0u, d.enableDefenceArm);

  G3G4AutoChangeRecord g{0};
  ASSERT_EQ(1, KOVA_ParseData("g3g4autochange", Doc(R"({"Enable":"yes"})").c_str(), &g, sizeof g,
                              nullptr));
  EXPECT_EQ(1u, g.enable);
  const std::string packed = PackOf("G3G4AutoChange", g, &rc);
  EXPECT_EQ("{ \"Enable\" : true }\n", packed);
  G3G4AutoChangeRecord again{9};
  ASSERT_EQ(1,
            KOVA_ParseData("G3G4AutoChange", Doc(packed).c_str(), &again, sizeof again, nullptr));
  EXPECT_EQ(g.enable, again.enable);
}

TEST(OneFieldRecords, ExtraRoomIsClearedAndSingleModeIgnoresArrays) {
  uint32_t buf[3] = {5, 5, 5};
  uint32_t ret = 0;
  ASSERT_EQ(1, KOVA_ParseData("DefenceArmMode", Doc(R"([{"EnableDefenceArm":1}])").c_str(), buf,
                              sizeof buf, &ret));
  EXPECT_EQ(0u, buf[0]);  // the array is taken as one record, which has no such member
  EXPECT_EQ(0u, buf[1]);  // zero-filled
  EXPECT_EQ(4u, ret);
}

}  // namespace
