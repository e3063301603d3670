// "TemperatureAlarm" and "FanSpeedAlarm": lists of caller-sized records.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/alarm.h"

namespace {

using kova_test::Doc;
using kova_test::PackBytes;

// A buffer of `count` records of `stride` bytes whose first size word is
// `stride`. (The vector's storage is aligned for the records.)
std::vector<unsigned char> Buffer(uint32_t stride, uint32_t count) {
  std::vector<unsigned char> b(static_cast<size_t>(stride) * count + 4, 0xEE);
  std::memcpy(b.data(), &stride, sizeof stride);
  b.resize(static_cast<size_t>(stride) * count);
  return b;
}

int Parse(const char* name, const std::string& json, std::vector<unsigned char>* b, uint32_t* ret) {
  return KOVA_ParseData(name, json.c_str(), b->data(), static_cast<uint32_t>(b->size()), ret);
}

TEST(TemperatureAlarm, DeviceListReads) {
  const uint32_t stride = sizeof(TemperatureAlarmRecord);
  std::vector<unsigned char> b = Buffer(stride, 3);
  uint32_t ret = 0;
  ASSERT_EQ(1, Parse("TemperatureAlarm", kova_test::Fixture("TemperatureAlarm"), &b, &ret));
  EXPECT_EQ(2 * stride, ret);
  const auto* r = reinterpret_cast<const TemperatureAlarmRecord*>(b.data());
  EXPECT_STREQ("Board", r[0].name);
  EXPECT_EQ(50.5, r[1].upperLimit);
  EXPECT_EQ(24, r[1].week.sections[6][0].endHour);
  // The slot without an entry is cleared but keeps its size word.
  EXPECT_EQ(stride, r[2].size);
  EXPECT_EQ(0, r[2].enable);
  // A table that is no array: an object is record 0, a number is no record.
  std::vector<unsigned char> one = Buffer(stride, 2);
  ASSERT_EQ(1, Parse("TemperatureAlarm", Doc(R"({"Name":"Solo"})"), &one, &ret));
  EXPECT_EQ(stride, ret);
  EXPECT_STREQ("Solo", reinterpret_cast<const TemperatureAlarmRecord*>(one.data())->name);
  std::vector<unsigned char> none = Buffer(stride, 2);
  EXPECT_EQ(1, Parse("TemperatureAlarm", Doc("5"), &none, &ret));
  EXPECT_EQ(0u, ret);
}

TEST(FanSpeedAlarm, CallerSizeRules) {
  const std::string json = Doc(R"([{"Enable":true,"Name":"A"},{"Enable":true,"Name":"B"}])");
  uint32_t ret = 0;
  // A caller built with only the fields before the linkage block.
  const uint32_t shortStride = offsetof(FanSpeedAlarmRecord, eventHandler);
  std::vector<unsigned char> b = Buffer(shortStride, 2);
  ASSERT_EQ(1, Parse("FanSpeedAlarm", json, &b, &ret));
  EXPECT_EQ(2 * shortStride, ret);
  EXPECT_EQ('B', b[shortStride + offsetof(FanSpeedAlarmRecord, name)]);
  EXPECT_NE(std::string::npos,
            PackBytes("FanSpeedAlarm", b.data(), 2 * shortStride).find(R"("Name" : "B" } ])"));

  // More entries than slots: the slots are filled, the rest ignored.
  std::vector<unsigned char> one = Buffer(sizeof(FanSpeedAlarmRecord), 1);
  ASSERT_EQ(1, Parse("FanSpeedAlarm", json, &one, &ret));
  EXPECT_EQ(sizeof(FanSpeedAlarmRecord), ret);

  // A buffer of exactly the size word is a record, not a refusal.
  std::vector<unsigned char> word = Buffer(4, 1);
  EXPECT_EQ(1, Parse("FanSpeedAlarm", json, &word, &ret));
  EXPECT_EQ(4u, ret);
}

}  // namespace
