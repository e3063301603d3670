// "Ptz" end to end: the serial line indices, the has-flags, homing, the
// control line that parse never reads, and the "result" rule.
#include "kova/records/ptz.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"

namespace {

using kova_test::Doc;
using kova_test::NewRecord;
using kova_test::Pack;
using kova_test::ParseAs;

const char kName[] = "Ptz";

std::unique_ptr<PtzConfig> ParseTable(const std::string& table) {
  int rc = 0;
  uint32_t ret = 0;
  std::unique_ptr<PtzConfig> r = ParseAs<PtzConfig>(kName, Doc(table), &rc, &ret);
  EXPECT_EQ(1, rc) << table;
  EXPECT_EQ(sizeof(PtzConfig), ret) << table;
  return r;
}

TEST(Ptz, SerialAttributeIndicesInTheRecordsOrder) {
  struct Case {
    const char* attribute;
    uint8_t baud, dataBits, parity, stopBits;
  } cases[] = {
      {R"([9600, 8, "None", "1"])", 5, 3, 0, 0},
      {R"([115200, 5, "Space", "2"])", 9, 0, 4, 2},
      {R"([9600, 8, "None"])", 0, 0, 0, 0},  // fewer than four: all 0
      {R"([14400, 8, "Odd", "1"])", 0, 3, 1, 0},
      {R"(["9600", 8.0, "none", 1.5])", 0, 3, 0, 0},  // texts exact, numbers as numbers
  };
  for (const Case& c : cases) {
    auto r = ParseTable(std::string(R"({"Attribute":)") + c.attribute + "}");
    EXPECT_EQ(c.baud, r->serial.baudRateIndex) << c.attribute;
    EXPECT_EQ(c.dataBits, r->serial.dataBitsIndex) << c.attribute;
    EXPECT_EQ(c.parity, r->serial.parityIndex) << c.attribute;
    EXPECT_EQ(c.stopBits, r->serial.stopBitsIndex) << c.attribute;
  }
}

TEST(Ptz, TypeHomingAndControlLine) {
  struct Case {
    const char* table;
    bool hasPtzType;
    int32_t ptzType;
    int32_t homing0, homing1;
  } cases[] = {
      {R"({"PTZType":3})", true, 1, -1, 0},
      {R"({"PTZType":-2,"Homing":null})", true, 0, -1, 0},
      {R"({"PTZType":null,"Homing":[7]})", false, 0, 7, 0},
      {R"({"Homing":[-1,-1,5]})", false, 0, -1, -1},
  };
  for (const Case& c : cases) {
    auto r = ParseTable(c.table);
    EXPECT_EQ(c.hasPtzType, r->hasPtzType) << c.table;
    EXPECT_EQ(c.ptzType, r->ptzType) << c.table;
    EXPECT_EQ(c.homing0, r->homing[0]) << c.table;
    EXPECT_EQ(c.homing1, r->homing[1]) << c.table;
  }
  EXPECT_EQ(0, ParseTable(R"({"ControlMode":"Coaxial"})")->controlMode);
  EXPECT_FALSE(ParseTable(R"({"NumberInMatrixs":null})")->hasNumberInMatrix);
}

TEST(Ptz, PackWritesFlaggedKeysAndRebuildsTheAttribute) {
  auto r = NewRecord<PtzConfig>();
  r->hasNumberInMatrix = true;
  r->numberInMatrix = 12;
  r->hasPtzType = true;
  r->ptzType = 1;
  r->controlMode = 1;
  r->serial = {2, 1, 3, 8};  // 7 data bits, 1.5 stop bits, mark parity, 57600 baud
  const std::string text = Pack(kName, *r);
  EXPECT_NE(std::string::npos, text.find(R"("Attribute" : [ 57600, 7, "Mark", "1.5" ])")) << text;
  EXPECT_NE(std::string::npos, text.find(R"("ControlMode" : "Coaxial")")) << text;
  EXPECT_NE(std::string::npos, text.find(R"("NumberInMatrixs" : 12, "PTZType" : 1)")) << text;
  // Indices beyond their tables write the first entries.
  r->serial = {4, 3, 5, 10};
  EXPECT_NE(std::string::npos, Pack(kName, *r).find(R"("Attribute" : [ 300, 5, "None", "1" ])"));
}

}  // namespace
