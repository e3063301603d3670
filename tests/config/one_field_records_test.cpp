// "AlarmLamp": a null or missing mode, and modes outside 0..2.
#include <gtest/gtest.h>

#include "kova/records/alarm.h"
#include "test_util.h"

namespace kova_test {
namespace {

TEST(AlarmLamp, ModeValuesAndFallbacks) {
  const struct {
    const char* table;
    int32_t mode;
  } cases[] = {{R"({"Mode":0})", 0},    {R"({"Mode":3})", -1},  {R"({"Mode":-1})", 0},
               {R"({"Mode":null})", 0}, {R"({"Mode":1.9})", 1}, {R"({})", -1},
               {R"([{"Mode":1}])", -1}};
  for (const auto& c : cases) {
    AlarmLampRecord r{99};
    uint32_t ret = 0;
    ASSERT_EQ(1, KOVA_ParseData("AlarmLamp", Doc(c.table).c_str(), &r, sizeof r, &ret)) << c.table;
    EXPECT_EQ(c.mode, r.mode) << c.table;
    EXPECT_EQ(4u, ret);
  }
  AlarmLampRecord none{3};
  EXPECT_EQ("null\n", Pack("AlarmLamp", none));
}

}  // namespace
}  // namespace kova_test
