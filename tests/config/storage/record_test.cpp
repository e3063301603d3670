// "Record": per-channel recording plans, the device's mask bit order, the
// holiday row and the channel chosen by the response.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "kova/records/storage.h"
#include "test_util.h"

namespace kova_test {
namespace {

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
      {1, 4, 1},   {2, 1, 2},     {6, 3, 6}, {8, 0, 0},  // device bit 3 has no record bit
      {16, 8, 16}, {255, 15, 23},
  };
  for (const Case& c : kCases) {
    const std::string section = std::to_string(c.device) + " 01:02:03-04:05:06";
    const RecordConfig r = ParseOne(R"({"TimeSection":)" + Week(section, 8) + "}");
    EXPECT_EQ(c.record, r.sections[0][0].enable) << c.device;
    RecordConfig holiday = r;
    holiday.holidaySections[2] = r.sections[0][0];
    const std::string text = Pack("Record", holiday);
    EXPECT_NE(std::string::npos,
              text.find("[ \"" + std::to_string(c.packed) + " 01:02:03-04:05:06\", "))
        << c.device;
    EXPECT_NE(std::string::npos, text.find(", \"" + std::to_string(c.packed) +
                                           " 01:02:03-04:05:06\", \"0 00:00:00-00:00:00\", "
                                           "\"0 00:00:00-00:00:00\", \"0 00:00:00-00:00:00\" ] ]"))
        << c.device;
  }
  // Record bits above 3 are dropped on pack; a negative stream is not sent.
  RecordConfig r = {};
  r.sections[0][0].enable = 0x30 | 1;
  EXPECT_EQ(0u, Pack("Record", r)
                    .find(R"({ "PreRecord" : 0, "Redundancy" : false, )"
                          R"("Stream" : 0, "TimeSection" : [ [ "2 00:00:00-00:00:00", )"));
  r.stream = -1;
  EXPECT_EQ(0u,
            Pack("Record", r).find(R"({ "PreRecord" : 0, "Redundancy" : false, "TimeSection" : )"));
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
      {R"({"result":true,"channel":5,"params":{"table":{"PreRecord":3}}})", 1, 1, 5, 3},
      // One channel asked: an array table is that channel's (empty) object.
      {R"({"result":true,"channel":2,"params":{"table":[{"PreRecord":3}]}})", 1, 1, 2, 0},
      {R"({"result":true,"channel":-1,"params":{"table":[{"PreRecord":3},{},{},{}]}})", 1, 3, 0, 3},
      {R"({"result":true,"channel":-1,"params":{"table":{"PreRecord":3}}})", 0, 0, 0, 0},
      {R"({"result":true,"channel":-1,"params":{"table":null}})", 1, 0, 0, 0},
      {R"({"result":true,"channel":3})", 1, 0, 0, 0},
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

}  // namespace
}  // namespace kova_test
