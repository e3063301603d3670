// What every alarm source shares: each device response packs back to its
// expected text, records reach a fixed point, the per-member envelope
// rules, the pack copy rule and the memory rule.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/alarm.h"

namespace {

using kova_test::Doc;
using kova_test::PackBytes;

struct Member {
  const char* name;
  uint32_t size;
  bool sized;  // a caller-sized list: the response lives with the fixtures
};

const Member kMembers[] = {
    {"Alarm", sizeof(AlarmInRecord), false},
    {"NetAlarm", sizeof(NetAlarmRecord), false},
    {"MotionDetect", sizeof(MotionDetectRecord), false},
    {"LossDetect", sizeof(LossDetectRecord), false},
    {"BlindDetect", sizeof(BlindDetectRecord), false},
    {"StorageNotExist", sizeof(SystemEventRecord), false},
    {"StorageFailure", sizeof(SystemEventRecord), false},
    {"StorageLowSpace", sizeof(StorageLowSpaceRecord), false},
    {"NetAbort", sizeof(SystemEventRecord), false},
    {"IPConflict", sizeof(SystemEventRecord), false},
    {"TemperatureAlarm", sizeof(TemperatureAlarmRecord), true},
    {"FanSpeedAlarm", sizeof(FanSpeedAlarmRecord), true},
};

// Parses into a buffer of two records; `ret` receives the bytes filled.
std::vector<unsigned char> Parse(const Member& m, const std::string& json, int* rc, uint32_t* ret) {
  std::vector<unsigned char> r(2 * m.size);
  if (m.sized) std::memcpy(r.data(), &m.size, sizeof m.size);
  *ret = 0;
  *rc = KOVA_ParseData(m.name, json.c_str(), r.data(), static_cast<uint32_t>(r.size()), ret);
  return r;
}

// Device text -> record -> text (as expected) -> record -> ...: the second
// record is a fixed point. (The first pack may drop members on purpose: an
// empty alarm output set is written as null, which reads back as not given.)
TEST(AlarmFamily, ResponsesPackToTheExpectedTextAndReachAFixedPoint) {
  for (const Member& m : kMembers) {
    int rc = 0;
    uint32_t ret = 0;
    const std::string response = m.sized ? kova_test::Fixture(m.name) : kova_test::Sample(m.name);
    const std::vector<unsigned char> first = Parse(m, response, &rc, &ret);
    ASSERT_EQ(1, rc) << m.name;
    EXPECT_TRUE(ret == m.size || (m.sized && ret == 2 * m.size)) << m.name << " " << ret;
    const std::string text1 = PackBytes(m.name, first.data(), ret);
    EXPECT_EQ(kova_test::PackedText(m.name), text1) << m.name;
    const std::vector<unsigned char> second = Parse(m, Doc(text1), &rc, &ret);
    const std::string text2 = PackBytes(m.name, second.data(), ret);
    const std::vector<unsigned char> third = Parse(m, Doc(text2), &rc, &ret);
    EXPECT_TRUE(second == third) << m.name;
    EXPECT_EQ(text2, PackBytes(m.name, third.data(), ret)) << m.name;
  }
}

TEST(AlarmFamily, NullTableRules) {
  const std::string nullTable = R"({"result":true,"params":{"table":null}})";
  for (const Member& m : kMembers) {
    int rc = 0;
    uint32_t ret = 0;
    Parse(m, nullTable, &rc, &ret);
    // A network input without a table fails; the others read an empty one.
    EXPECT_EQ(std::string(m.name) == "NetAlarm" ? 0 : 1, rc) << m.name;
  }
}

// The packers copy the text when it fits, even without its NUL.
TEST(AlarmFamily, PackCopiesWhenTheTextFitsWithoutItsNul) {
  auto r = kova_test::NewRecord<LossDetectRecord>();
  const std::string text = PackBytes("LossDetect", r.get(), sizeof *r);
  std::vector<char> out(text.size() + 1, 'x');
  const uint32_t n = static_cast<uint32_t>(text.size());
  ASSERT_EQ(1, KOVA_PacketData("LossDetect", r.get(), sizeof *r, out.data(), n));
  EXPECT_EQ(text, std::string(out.data(), n));
  EXPECT_EQ('x', out[n]);  // nothing written past the output length
  EXPECT_EQ(0, KOVA_PacketData("LossDetect", r.get(), sizeof *r, out.data(), n - 1));
}

}  // namespace
