// "Ptz": the serial line attribute kept in the record's order, homing, the
// head type told apart as positive or not, and the control line that parse
// never reads.
#include "kova/records/ptz.h"

#include <gtest/gtest.h>

#include <string>

#include "test_util.h"

namespace kova_test {
namespace {

TEST(Ptz, AttributeOrderHomingTypeAndControlLine) {
  const struct {
    const char* table;
    uint8_t baud, dataBits, parity, stopBits;
    int32_t ptzType, homing0, homing1;
  } cases[] = {
      {R"({"Attribute":[9600, 8, "None", "1"],"PTZType":3})", 5, 3, 0, 0, 1, -1, 0},
      {R"({"Attribute":[115200, 5, "Space", "2"],"PTZType":-2,"Homing":null})", 9, 0, 4, 2, 0, -1,
       0},
      {R"({"Attribute":[9600, 8, "None"],"Homing":[7]})", 0, 0, 0, 0, 0, 7, 0},
      {R"({"Attribute":[14400, 8, "Odd", "1"],"Homing":[-1,-1,5]})", 0, 3, 1, 0, 0, -1, -1},
      {R"({"Attribute":["9600", 8.0, "none", 1.5],"ControlMode":"Coaxial"})", 0, 3, 0, 0, 0, -1, 0},
  };
  for (const auto& c : cases) {
    int rc = 0;
    auto r = ParseAs<PtzConfig>("Ptz", Doc(c.table), &rc);
    ASSERT_EQ(1, rc) << c.table;
    EXPECT_EQ(c.baud, r->serial.baudRateIndex) << c.table;
    EXPECT_EQ(c.dataBits, r->serial.dataBitsIndex) << c.table;
    EXPECT_EQ(c.parity, r->serial.parityIndex) << c.table;
    EXPECT_EQ(c.stopBits, r->serial.stopBitsIndex) << c.table;
    EXPECT_EQ(c.ptzType, r->ptzType) << c.table;
    EXPECT_EQ(c.homing0, r->homing[0]) << c.table;
    EXPECT_EQ(c.homing1, r->homing[1]) << c.table;
    EXPECT_EQ(0, r->controlMode) << c.table;
  }
  auto r = NewRecord<PtzConfig>();
  r->controlMode = 1;
  r->serial = {2, 1, 3, 8};  // 7 data bits, 1.5 stop bits, mark parity, 57600 baud
  EXPECT_NE(std::string::npos,
            Pack("Ptz", *r).find(R"("Attribute" : [ 57600, 7, "Mark", "1.5" ])"));
  EXPECT_NE(std::string::npos, Pack("Ptz", *r).find(R"("ControlMode" : "Coaxial")"));
  // Indices beyond their tables write the first entries.
  r->serial = {4, 3, 5, 10};
  EXPECT_NE(std::string::npos, Pack("Ptz", *r).find(R"("Attribute" : [ 300, 5, "None", "1" ])"));
}

}  // namespace
}  // namespace kova_test
