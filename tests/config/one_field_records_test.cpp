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

TEST(AlarmLamp, ModeValuesAndFallbacks) {
  struct Case {
    const char* table;
    int32_t mode;
  } cases[] = {{R"({"Mode":0})", 0},   {R"({"Mode":3})", -1},  {R"({"Mode":-1})", 0},
               {R"({"Mode":"1"})", 0}, {R"({"Mode":1.9})", 1}, {R"({})", -1},
               {R"([{"Mode":1}])", -1}};
  for (const Case& c : cases) {
    AlarmLampRecord r{99};
    uint32_t ret = 0;
    ASSERT_EQ(1, KOVA_ParseData("AlarmLamp", Doc(c.table).c_str(), &r, sizeof r, &ret)) << c.table;
    EXPECT_EQ(c.mode, r.mode) << c.table;
    EXPECT_EQ(4u, ret);
  }
}

}  // namespace
