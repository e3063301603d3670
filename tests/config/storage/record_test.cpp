// "Record": per-channel recording plans, the device's mask bit order, the
// holiday row and the channel chosen by the response.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/storage.h"

namespace {

using kova_test::Doc;
using kova_test::PackBytes;

std::vector<RecordConfig> ParseRecords(const std::string& json, size_t slots, int* rc,
                                       uint32_t* retLen) {
  std::vector<RecordConfig> r(slots);
  std::memset(r.data(), 0xEE, r.size() * sizeof(RecordConfig));
  *rc = KOVA_ParseData("Record", json.c_str(), r.data(),
                       static_cast<uint32_t>(r.size() * sizeof(RecordConfig)), retLen);
  return r;
}

// One channel's answer ("channel" 0) whose table is `table`.
RecordConfig ParseOne(const std::string& table) {
  int rc = 0;
  uint32_t ret = 0;
  const std::vector<RecordConfig> r = ParseRecords(Doc(table), 1, &rc, &ret);
  EXPECT_EQ(1, rc) << table;
  return r[0];
}

size_t CountOf(const std::string& text, const std::string& needle) {
  size_t n = 0;
  for (size_t at = text.find(needle); at != std::string::npos; at = text.find(needle, at + 1)) ++n;
  return n;
}

std::string Week(const std::string& first, int rows) {
  std::string t = "[";
  for (int d = 0; d < rows; ++d) {
    t += d ? ",[" : "[";
    t += "\"" + (d == 0 ? first : std::string("0 00:00:00-24:00:00")) + "\"]";
  }
  return t + "]";
}

TEST(Record, MaskBitsTakeTheRecordsOrderBothWays) {
  struct Case {
    int device;
    int record;
    int packed;
  };
  const Case kCases[] = {
      {1, 4, 1},   {2, 1, 2},    {4, 2, 4},     {6, 3, 6},
      {7, 7, 7},   {8, 0, 0},  // device bit 3 has no record bit
      {16, 8, 16}, {31, 15, 23}, {255, 15, 23}, {0, 0, 0},
  };
  for (const Case& c : kCases) {
    const std::string section = std::to_string(c.device) + " 01:02:03-04:05:06";
    const RecordConfig r = ParseOne(R"({"TimeSection":)" + Week(section, 8) + "}");
    EXPECT_EQ(c.record, r.sections[0][0].enable) << c.device;
    RecordConfig holiday = r;
    holiday.holidaySections[2] = r.sections[0][0];
    const std::string text = kova_test::Pack("Record", holiday);
    EXPECT_NE(std::string::npos,
              text.find("[ \"" + std::to_string(c.packed) + " 01:02:03-04:05:06\", "))
        << c.device;
    EXPECT_NE(std::string::npos, text.find(", \"" + std::to_string(c.packed) +
                                           " 01:02:03-04:05:06\", \"0 00:00:00-00:00:00\", "
                                           "\"0 00:00:00-00:00:00\", \"0 00:00:00-00:00:00\" ] ]"))
        << c.device;
  }
  // Record bits above 3 are dropped on pack.
  RecordConfig r = {};
  r.sections[0][0].enable = 0x30 | 1;
  EXPECT_EQ(0u, kova_test::Pack("Record", r)
                    .find(R"({ "PreRecord" : 0, "Redundancy" : false, )"
                          R"("Stream" : 0, "TimeSection" : [ [ "2 00:00:00-00:00:00", )"));
}

TEST(Record, HolidayRowAndStreamFollowWhatTheDeviceSent) {
  // Six rows: no holiday, and none written back.
  RecordConfig week =
      ParseOne(R"({"HolidayEnable":true,"TimeSection":)" + Week("1 00:00:00-24:00:00", 6) + "}");
  EXPECT_EQ(0, week.holidayValid);
  EXPECT_EQ(0, week.holidayEnable);  // not read without row 7
  std::string text = kova_test::Pack("Record", week);
  EXPECT_EQ(std::string::npos, text.find("HolidayEnable"));
  EXPECT_EQ(7u, CountOf(text, "\" ]"));  // rows written

  // Nine rows: row 7 is the holiday, row 8 is ignored.
  RecordConfig nine = ParseOne(R"({"HolidayEnable":1,"TimeSection":[[],[],[],[],[],[],[],)"
                               R"(["2 10:00:00-11:00:00"],["4 00:00:00-24:00:00"]]})");
  EXPECT_EQ(1, nine.holidayValid);
  EXPECT_EQ(1, nine.holidayEnable);
  EXPECT_EQ(1, nine.holidaySections[0].enable);
  EXPECT_EQ(10, nine.holidaySections[0].beginHour);
  text = kova_test::Pack("Record", nine);
  EXPECT_NE(std::string::npos, text.find(R"("HolidayEnable" : true)"));
  EXPECT_EQ(8u, CountOf(text, "\" ]"));
  EXPECT_NE(std::string::npos, text.find(R"([ "2 10:00:00-11:00:00", "0 00:00:00-00:00:00")"));

  struct StreamCase {
    const char* json;
    int32_t stored;
    const char* packed;  // null: "Stream" left out
  };
  const StreamCase kStreams[] = {
      {"1", 1, R"("Stream" : 1)"},
      {"-1", 0, R"("Stream" : 0)"},  // read unsigned
      {"null", 0, R"("Stream" : 0)"},
      {"\"1\"", 0, R"("Stream" : 0)"},
  };
  for (const StreamCase& s : kStreams) {
    const RecordConfig r = ParseOne(std::string(R"({"Stream":)") + s.json + "}");
    EXPECT_EQ(s.stored, r.stream) << s.json;
    EXPECT_NE(std::string::npos, kova_test::Pack("Record", r).find(s.packed)) << s.json;
  }
  RecordConfig unset = {};
  unset.stream = -1;
  EXPECT_EQ(std::string::npos, kova_test::Pack("Record", unset).find("Stream"));
}

TEST(Record, SectionTextIsReadWithoutFieldWidthsAndMalformedTextKeepsWhatWasRead) {
  const RecordConfig r =
      ParseOne(R"({"TimeSection":[["2 8:0:0-9:30:0","4 07:15","x",5,"2 25:61:99-24:00:00"]]})");
  const TimeSectionRecord& a = r.sections[0][0];
  EXPECT_EQ(1, a.enable);
  EXPECT_EQ(8, a.beginHour);
  EXPECT_EQ(30, a.endMinute);
  const TimeSectionRecord& b = r.sections[0][1];  // stops after the minute
  EXPECT_EQ(2, b.enable);
  EXPECT_EQ(7, b.beginHour);
  EXPECT_EQ(15, b.beginMinute);
  EXPECT_EQ(0, b.endHour);
  EXPECT_EQ(0, std::memcmp(&r.sections[0][2], &r.sections[1][0], sizeof(TimeSectionRecord)));
  EXPECT_EQ(0, r.sections[0][3].enable);        // a number is not a section text
  EXPECT_EQ(99, r.sections[0][4].beginSecond);  // no range check
  EXPECT_NE(
      std::string::npos,
      kova_test::Pack("Record", r).find(R"([ "2 08:00:00-09:30:00", "4 07:15:00-00:00:00", )"));
}

TEST(Record, ResponseChannelChoosesOneRecordOrEveryElement) {
  struct Case {
    const char* json;
    int rc;
    uint32_t records;  // returned length in records
    int32_t channel0;  // channel of record 0 when filled
    int32_t preRecord0;
  };
  const Case kCases[] = {
      {R"({"result":true,"params":{"table":{"PreRecord":3}}})", 1, 1, 0, 3},
      {R"({"result":true,"channel":5,"params":{"table":{"PreRecord":3}}})", 1, 1, 5, 3},
      // One channel asked: an array table is that channel's (empty) object.
      {R"({"result":true,"channel":2,"params":{"table":[{"PreRecord":3}]}})", 1, 1, 2, 0},
      {R"({"result":true,"channel":-1,"params":{"table":[{"PreRecord":3},{},{},{}]}})", 1, 3, 0, 3},
      {R"({"result":true,"channel":-1,"params":{"table":{"PreRecord":3}}})", 0, 0, 0, 0},
      {R"({"result":true,"channel":-1,"params":{"table":null}})", 1, 0, 0, 0},
      {R"({"result":true,"channel":3})", 1, 0, 0, 0},
      {R"({"result":false,"params":{"table":{"PreRecord":3}}})", 0, 0, 0, 0},
      {R"({"params":{"table":{"PreRecord":3}}})", 0, 0, 0, 0},
      {R"({"result":true,"params":{"table":{"PreRecord":3}})", 0, 0, 0, 0},
  };
  for (const Case& c : kCases) {
    int rc = -1;
    uint32_t ret = 77;
    const std::vector<RecordConfig> r = ParseRecords(c.json, 3, &rc, &ret);
    EXPECT_EQ(c.rc, rc) << c.json;
    if (rc == 0) {
      EXPECT_EQ(77u, ret) << c.json;
      EXPECT_EQ(0, r[0].layoutVersion) << c.json;  // cleared, nothing filled
      continue;
    }
    EXPECT_EQ(c.records * sizeof(RecordConfig), ret) << c.json;
    EXPECT_EQ(c.channel0, r[0].channel) << c.json;
    EXPECT_EQ(c.preRecord0, r[0].preRecord) << c.json;
    if (c.records == 3) {
      EXPECT_EQ(2, r[2].channel);
    }
  }
}

TEST(Record, PackWritesAnObjectOnlyForExactlyOneRecord) {
  std::vector<RecordConfig> r(3);
  std::memset(r.data(), 0, r.size() * sizeof(RecordConfig));
  const std::string one = kova_test::Pack("Record", r[0]);
  ASSERT_EQ('{', one[0]);
  const std::string body = one.substr(0, one.size() - 1);
  struct Case {
    uint32_t inLen;
    std::string text;
  };
  const uint32_t size = sizeof(RecordConfig);
  const Case kCases[] = {
      {size, one},
      {size + size / 2, "[ " + body + " ]\n"},
      {2 * size, "[ " + body + ", " + body + " ]\n"},
      {size - 1, "null\n"},
      {0, "null\n"},
  };
  for (const Case& c : kCases) EXPECT_EQ(c.text, PackBytes("Record", r.data(), c.inLen)) << c.inLen;

  // The text is copied only when shorter than the buffer.
  EXPECT_EQ("<failed>", PackBytes("Record", r.data(), size, static_cast<uint32_t>(one.size())));
  EXPECT_EQ(one, PackBytes("Record", r.data(), size, static_cast<uint32_t>(one.size() + 1)));
  EXPECT_EQ("<failed>", PackBytes("Record", r.data(), 0, 5));
  EXPECT_EQ("null\n", PackBytes("Record", r.data(), 0, 6));
}

}  // namespace
