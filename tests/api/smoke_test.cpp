#include <gtest/gtest.h>

#include <cstring>

#include "kova/kova.h"
#include "kova/records/alarm.h"

TEST(Smoke, AlarmLampRoundTrip) {
  AlarmLampRecord r{};
  uint32_t ret = 0;
  ASSERT_EQ(1, KOVA_ParseData("alarmlamp", R"({"result":true,"params":{"table":{"Mode":2}}})", &r,
                              sizeof r, &ret));
  EXPECT_EQ(2, r.mode);
  EXPECT_EQ(4u, ret);
  char text[64];
  ASSERT_EQ(1, KOVA_PacketData("AlarmLamp", &r, sizeof r, text, sizeof text));
  EXPECT_STREQ("{ \"Mode\" : 2 }\n", text);
}
