// "TemperatureAlarm" and "FanSpeedAlarm": lists of caller-sized records.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/alarm.h"

namespace {

using kova_test::Doc;
using kova_test::HandlerText;
using kova_test::kHandlerJson;
using kova_test::PackBytes;

// A buffer of `count` records of `stride` bytes whose first size word is
// `stride`.
std::vector<unsigned char> Buffer(uint32_t stride, uint32_t count) {
  std::vector<unsigned char> b(static_cast<size_t>(stride) * count, 0xEE);
  std::memcpy(b.data(), &stride, sizeof stride);
  return b;
}

template <typename Rec>
Rec At(const std::vector<unsigned char>& b, uint32_t stride, uint32_t i) {
  Rec r;
  std::memset(&r, 0, sizeof r);
  std::memcpy(&r, b.data() + static_cast<size_t>(stride) * i, std::min<size_t>(stride, sizeof r));
  return r;
}

int Parse(const char* name, const std::string& json, std::vector<unsigned char>* b, uint32_t* ret) {
  *ret = 0;
  return KOVA_ParseData(name, json.c_str(), b->data(), static_cast<uint32_t>(b->size()), ret);
}

TEST(TemperatureAlarm, DeviceListReadsAndPacksBack) {
  const uint32_t stride = sizeof(TemperatureAlarmRecord);
  std::vector<unsigned char> b = Buffer(stride, 3);
  uint32_t ret = 0;
  ASSERT_EQ(1, Parse("TemperatureAlarm", kova_test::Fixture("TemperatureAlarm"), &b, &ret));
  EXPECT_EQ(2 * stride, ret);
  std::unique_ptr<TemperatureAlarmRecord> r0(
      new TemperatureAlarmRecord(At<TemperatureAlarmRecord>(b, stride, 0)));
  std::unique_ptr<TemperatureAlarmRecord> r1(
      new TemperatureAlarmRecord(At<TemperatureAlarmRecord>(b, stride, 1)));
  std::unique_ptr<TemperatureAlarmRecord> r2(
      new TemperatureAlarmRecord(At<TemperatureAlarmRecord>(b, stride, 2)));
  EXPECT_EQ(stride, r0->size);
  EXPECT_STREQ("Board", r0->name);
  EXPECT_EQ(1, r0->limitsPresent);
  EXPECT_EQ(65.0, r0->upperLimit);
  EXPECT_EQ(1, r0->eventHandler.beepEnable);
  EXPECT_EQ(0, r1->enable);
  EXPECT_EQ(50.5, r1->upperLimit);
  EXPECT_EQ(24, r1->week.sections[6][0].endHour);
  // The slot without an entry is cleared but keeps its size word.
  EXPECT_EQ(stride, r2->size);
  EXPECT_EQ(0, r2->enable);

  const std::string packed = PackBytes("TemperatureAlarm", b.data(), 2 * stride);
  EXPECT_EQ(0u, packed.find("[ { \"Enable\" : true, \"EventHandler\" : { "));
  EXPECT_NE(std::string::npos,
            packed.find(R"("Name" : "Disk bay", "NormalTemperature" : [ 5.000000000000000, )"
                        R"(50.50000000000000 ] } ])"));
  // From the second parse on, records and text stay the same.
  std::vector<unsigned char> second = Buffer(stride, 2);
  ASSERT_EQ(1, Parse("TemperatureAlarm", Doc(packed), &second, &ret));
  const std::string text2 = PackBytes("TemperatureAlarm", second.data(), 2 * stride);
  std::vector<unsigned char> third = Buffer(stride, 2);
  ASSERT_EQ(1, Parse("TemperatureAlarm", Doc(text2), &third, &ret));
  EXPECT_TRUE(second == third);
  EXPECT_EQ(text2, PackBytes("TemperatureAlarm", third.data(), 2 * stride));
}

TEST(FanSpeedAlarm, ExactTextOfOneFan) {
  const uint32_t stride = sizeof(FanSpeedAlarmRecord);
  std::vector<unsigned char> b = Buffer(stride, 1);
  uint32_t ret = 0;
  ASSERT_EQ(1,
            Parse("FanSpeedAlarm",
                  Doc(std::string(R"([{"Enable":true,"Name":"CPU fan","NormalSpeed":[1200,6000],)"
                                  R"("EventHandler":)") +
                      kHandlerJson + "}]"),
                  &b, &ret));
  EXPECT_EQ(stride, ret);
  EXPECT_EQ(std::string(R"([ { "Enable" : true, )") + HandlerText() +
                R"(, "Name" : "CPU fan", "NormalSpeed" : [ 1200, 6000 ] } ])"
                "\n",
            PackBytes("FanSpeedAlarm", b.data(), stride));
  // The fixture parses too.
  ASSERT_EQ(1, Parse("FanSpeedAlarm", kova_test::Fixture("FanSpeedAlarm"), &b, &ret));
  EXPECT_EQ(6000, reinterpret_cast<const FanSpeedAlarmRecord*>(b.data())->upperLimit);
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
  EXPECT_EQ(shortStride, *reinterpret_cast<uint32_t*>(&b[shortStride]));
  // Packed from short records, the missing fields read as zero.
  const std::string packed = PackBytes("FanSpeedAlarm", b.data(), 2 * shortStride);
  EXPECT_NE(std::string::npos, packed.find(R"("Name" : "B" } ])"));

  // More entries than slots: the slots are filled, the rest ignored.
  std::vector<unsigned char> one = Buffer(sizeof(FanSpeedAlarmRecord), 1);
  ASSERT_EQ(1, Parse("FanSpeedAlarm", json, &one, &ret));
  EXPECT_EQ(sizeof(FanSpeedAlarmRecord), ret);

  // Size 0, size beyond the buffer, a buffer without room for the size word.
  std::vector<unsigned char> zero(64, 0);
  EXPECT_EQ(0, Parse("FanSpeedAlarm", json, &zero, &ret));
  std::vector<unsigned char> big = Buffer(65, 1);
  big.resize(64);
  EXPECT_EQ(0, Parse("FanSpeedAlarm", json, &big, &ret));
  EXPECT_EQ("<failed>", PackBytes("FanSpeedAlarm", big.data(), 64));
  EXPECT_EQ("<failed>", PackBytes("FanSpeedAlarm", big.data(), 3));
  // "result" must be true.
  std::vector<unsigned char> c = Buffer(sizeof(FanSpeedAlarmRecord), 1);
  EXPECT_EQ(0, Parse("FanSpeedAlarm", R"({"result":false,"params":{"table":[{}]}})", &c, &ret));
}

TEST(FanSpeedAlarm, TinyStrideOverALargeBufferIsRefusedQuickly) {
  // One-byte records: thousands of entries whose text cannot fit the output.
  std::vector<unsigned char> b(sizeof(FanSpeedAlarmRecord), 0xFF);
  const uint32_t stride = 1;
  std::memcpy(b.data(), &stride, sizeof stride);
  EXPECT_EQ("<failed>", PackBytes("FanSpeedAlarm", b.data(), static_cast<uint32_t>(b.size())));
  std::vector<unsigned char> junk(sizeof(FanSpeedAlarmRecord), 0xFF);
  const uint32_t full = sizeof(FanSpeedAlarmRecord);
  std::memcpy(junk.data(), &full, sizeof full);
  PackBytes("FanSpeedAlarm", junk.data(), full, 64u << 20);
}

}  // namespace
