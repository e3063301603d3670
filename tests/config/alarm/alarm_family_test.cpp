// What every alarm source shares: the samples round-trip, the per-member
// envelope rules, the exact text of the small members, the pack copy rule
// and the memory rule.
#include <gtest/gtest.h>

#include <cstring>
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

struct Member {
  const char* name;
  uint32_t size;
};

const Member kMembers[] = {
    {"Alarm", sizeof(AlarmInRecord)},
    {"NetAlarm", sizeof(NetAlarmRecord)},
    {"MotionDetect", sizeof(MotionDetectRecord)},
    {"LossDetect", sizeof(LossDetectRecord)},
    {"BlindDetect", sizeof(BlindDetectRecord)},
    {"StorageNotExist", sizeof(SystemEventRecord)},
    {"StorageFailure", sizeof(SystemEventRecord)},
    {"StorageLowSpace", sizeof(StorageLowSpaceRecord)},
    {"NetAbort", sizeof(SystemEventRecord)},
    {"IPConflict", sizeof(SystemEventRecord)},
};

std::vector<unsigned char> Parse(const Member& m, const std::string& json, int* rc) {
  std::vector<unsigned char> r(m.size);
  uint32_t ret = 0;
  *rc = KOVA_ParseData(m.name, json.c_str(), r.data(), m.size, &ret);
  if (*rc) {
    EXPECT_EQ(m.size, ret) << m.name;
  }
  return r;
}

// Device text -> record -> text -> record -> ...: the second record is a
// fixed point. (The first pack may still drop members: an empty alarm
// output set is written as null, which reads back as not given.)
TEST(AlarmFamily, SamplesReachAFixedPoint) {
  for (const Member& m : kMembers) {
    int rc = 0;
    const std::vector<unsigned char> first = Parse(m, kova_test::Sample(m.name), &rc);
    ASSERT_EQ(1, rc) << m.name;
    const std::vector<unsigned char> second =
        Parse(m, Doc(PackBytes(m.name, first.data(), m.size)), &rc);
    ASSERT_EQ(1, rc) << m.name;
    const std::string text2 = PackBytes(m.name, second.data(), m.size);
    const std::vector<unsigned char> third = Parse(m, Doc(text2), &rc);
    ASSERT_EQ(1, rc) << m.name;
    EXPECT_TRUE(second == third) << m.name;
    EXPECT_EQ(text2, PackBytes(m.name, third.data(), m.size)) << m.name;
  }
}

TEST(AlarmFamily, SmallMembersExactText) {
  struct Case {
    const char* name;
    uint32_t size;
    std::string table;
    std::string packed;
  } cases[] = {
      {"LossDetect", sizeof(LossDetectRecord), R"({"Enable":true,"EventHandler":)",
       R"({ "Enable" : true, )"},
      {"BlindDetect", sizeof(BlindDetectRecord), R"({"Enable":false,"Level":6,"EventHandler":)",
       R"({ "Enable" : false, )"},
      {"NetAlarm", sizeof(NetAlarmRecord), R"({"Enable":true,"Name":"Gate","EventHandler":)",
       R"({ "Enable" : true, )"},
      {"NetAbort", sizeof(SystemEventRecord), R"({"Enable":true,"EventHandler":)",
       R"({ "Enable" : true, )"},
      {"StorageLowSpace", sizeof(StorageLowSpaceRecord),
       R"({"Enable":true,"LowerLimit":15,"EventHandler":)", R"({ "Enable" : true, )"},
  };
  const std::string tails[] = {" }\n",
                               R"(, "Level" : 6 })"
                               "\n",
                               R"(, "Name" : "Gate", "SensorType" : "NC" })"
                               "\n",
                               " }\n",
                               R"(, "LowerLimit" : 15 })"
                               "\n"};
  int i = 0;
  for (const Case& c : cases) {
    int rc = 0;
    const Member m{c.name, c.size};
    const std::vector<unsigned char> r = Parse(m, Doc(c.table + kHandlerJson + "}"), &rc);
    ASSERT_EQ(1, rc) << c.name;
    EXPECT_EQ(c.packed + HandlerText() + tails[i++], PackBytes(c.name, r.data(), c.size)) << c.name;
  }
}

TEST(AlarmFamily, NullTableRules) {
  const std::string nullTable = R"({"result":true,"params":{"table":null}})";
  for (const Member& m : kMembers) {
    int rc = 0;
    Parse(m, nullTable, &rc);
    // A network input without a table fails; the others read an empty one.
    EXPECT_EQ(std::string(m.name) == "NetAlarm" ? 0 : 1, rc) << m.name;
  }
}

// The packers copy the text when it fits without its NUL.
TEST(AlarmFamily, PackCopiesWhenTheTextFitsWithoutItsNul) {
  auto r = kova_test::NewRecord<LossDetectRecord>();
  const std::string text = PackBytes("LossDetect", r.get(), sizeof *r);
  ASSERT_NE("<failed>", text);
  std::vector<char> out(text.size() + 1, 'x');
  ASSERT_EQ(1, KOVA_PacketData("LossDetect", r.get(), sizeof *r, out.data(),
                               static_cast<uint32_t>(text.size())));
  EXPECT_EQ(text, std::string(out.data(), text.size()));
  EXPECT_EQ('x', out[text.size()]);  // nothing written past the output length
  EXPECT_EQ(0, KOVA_PacketData("LossDetect", r.get(), sizeof *r, out.data(),
                               static_cast<uint32_t>(text.size() - 1)));
}

// Records full of 0xFF: every count as large as it gets, no text field
// terminated. Packers must stay inside the record and the output.
TEST(AlarmFamily, MemoryRule) {
  for (const Member& m : kMembers) {
    std::vector<unsigned char> junk(m.size, 0xFF);
    EXPECT_EQ("<failed>", PackBytes(m.name, junk.data(), m.size - 1)) << m.name;
    PackBytes(m.name, junk.data(), m.size, 64u << 20);
    std::vector<unsigned char> big(m.size);
    for (size_t i = 0; i + 4 <= big.size(); i += 4) {
      const uint32_t v = 0x7FFFFFFF;
      std::memcpy(&big[i], &v, 4);
    }
    PackBytes(m.name, big.data(), m.size, 64u << 20);
    // A buffer one byte short is refused before anything is written.
    std::vector<unsigned char> out(m.size - 1, 0xCD);
    EXPECT_EQ(0, KOVA_ParseData(m.name, Doc("{}").c_str(), out.data(), m.size - 1, nullptr));
    EXPECT_EQ(0xCD, out[0]);
  }
}

}  // namespace
