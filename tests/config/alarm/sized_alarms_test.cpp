// "TemperatureAlarm" and "FanSpeedAlarm": lists of caller-sized records.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "kova/records/alarm.h"
#include "test_util.h"

namespace kova_test {
namespace {

// `count` records of `stride` bytes whose first size word is `stride`.
std::vector<unsigned char> Buffer(uint32_t stride, uint32_t count) {
  std::vector<unsigned char> b(static_cast<size_t>(stride) * count + 4, 0xEE);
  std::memcpy(b.data(), &stride, sizeof stride);
  b.resize(static_cast<size_t>(stride) * count);
  return b;
}

int Parse(const char* name, const std::string& json, std::vector<unsigned char>* b, uint32_t* ret) {
  return KOVA_ParseData(name, json.c_str(), b->data(), static_cast<uint32_t>(b->size()), ret);
}

TEST(SizedAlarms, CallerSizeAndTableShapes) {
  const uint32_t stride = sizeof(TemperatureAlarmRecord);
  std::vector<unsigned char> b = Buffer(stride, 3);
  uint32_t ret = 0;
  ASSERT_EQ(1, Parse("TemperatureAlarm", Fixture("TemperatureAlarm.json"), &b, &ret));
  EXPECT_EQ(2 * stride, ret);
  const auto* r = reinterpret_cast<const TemperatureAlarmRecord*>(b.data());
  EXPECT_EQ(24, r[1].week.sections[6][0].endHour);
  // The slot without an entry is cleared but keeps its size word.
  EXPECT_EQ(stride, r[2].size);
  EXPECT_EQ(0, r[2].enable);
  // A table that is no array: an object is record 0, a number is no record.
  std::vector<unsigned char> one = Buffer(stride, 2);
  ASSERT_EQ(1, Parse("TemperatureAlarm", Doc(R"({"Name":"Solo"})"), &one, &ret));
  EXPECT_EQ(stride, ret);
  EXPECT_STREQ("Solo", reinterpret_cast<const TemperatureAlarmRecord*>(one.data())->name);
  EXPECT_EQ(1, Parse("TemperatureAlarm", Doc("5"), &one, &ret));
  EXPECT_EQ(0u, ret);

  // A caller built with only the fields before the linkage block.
  const std::string json = Doc(R"([{"Enable":true,"Name":"A"},{"Enable":true,"Name":"B"}])");
  const uint32_t shortStride = offsetof(FanSpeedAlarmRecord, eventHandler);
  b = Buffer(shortStride, 2);
  ASSERT_EQ(1, Parse("FanSpeedAlarm", json, &b, &ret));
  EXPECT_EQ(2 * shortStride, ret);
  EXPECT_EQ('B', b[shortStride + offsetof(FanSpeedAlarmRecord, name)]);
  EXPECT_NE(std::string::npos,
            PackBytes("FanSpeedAlarm", b.data(), 2 * shortStride).find(R"("Name" : "B" } ])"));
  // A buffer of exactly the size word is a record, not a refusal.
  b = Buffer(4, 1);
  EXPECT_EQ(1, Parse("FanSpeedAlarm", json, &b, &ret));
  EXPECT_EQ(4u, ret);
}

}  // namespace
}  // namespace kova_test
