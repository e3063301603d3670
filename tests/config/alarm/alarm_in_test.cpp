// "Alarm" end to end: the local alarm input with its enumerations, its "not
// given" values and the week grid beside the linkage block.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/alarm.h"

namespace {

using kova_test::Doc;
using kova_test::Pack;
using kova_test::ParseAs;

TEST(Alarm, ExactTextOfASmallInput) {
  int rc = 0;
  auto r = ParseAs<AlarmInRecord>(
      "alarm",
      Doc(std::string(R"({"Enable":false,"Name":"Cellar","SensorType":"nc","Level2":4,)"
                      R"("SenseMethod":"PASSIVEINFRARED","DefenceAreaType":"fulldayslient",)"
                      R"("EnableControl":"disableonce","EventHandler":)") +
              kova_test::kHandlerJson + "}",
          R"("channel":5,)"),
      &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(5, r->channel);
  EXPECT_EQ(-1, r->slot);
  EXPECT_EQ(R"({ "DefenceAreaType" : "FulldaySlient", "DisableDelay" : 0, "Enable" : false, )"
            R"("EnableControl" : "DisableOnce", "EnableDelay" : 0, )" +
                kova_test::HandlerText() +
                R"(, "Level2" : 4, "Name" : "Cellar", "SenseMethod" : "PassiveInfrared", )"
                R"("SensorType" : "NC" })"
                "\n",
            Pack("Alarm", *r));
}

TEST(Alarm, EnumerationTables) {
  struct Case {
    const char* member;
    int32_t AlarmInRecord::*field;
    int32_t value;
  } cases[] = {
      {R"("SenseMethod":"OtherSensor")", &AlarmInRecord::senseMethod, 20},
      {R"("SenseMethod":"Lava")", &AlarmInRecord::senseMethod, -1},
      {R"("SensorType":"whatever")", &AlarmInRecord::sensorType, 1},
      {R"("EnableControl":"Sometimes")", &AlarmInRecord::enableControl, 0},
      // The first six zone names are matched exactly, the others in any case.
      {R"("DefenceAreaType":"Panic")", &AlarmInRecord::defenceAreaType, 6},
      {R"("DefenceAreaType":"panic")", &AlarmInRecord::defenceAreaType, 0},
      {R"("DefenceAreaType":"peopledetect")", &AlarmInRecord::defenceAreaType, 14},
      {R"("DefenceAreaType":"FulldaySilent")", &AlarmInRecord::defenceAreaType, 0},
  };
  for (const Case& c : cases) {
    int rc = 0;
    auto r = ParseAs<AlarmInRecord>("Alarm", Doc(std::string("{") + c.member + "}"), &rc);
    ASSERT_EQ(1, rc);
    EXPECT_EQ(c.value, (*r).*c.field) << c.member;
  }
  // Values without a name (and the "not given" -1) are left out on pack.
  auto r = kova_test::NewRecord<AlarmInRecord>();
  r->senseMethod = 21;
  r->enableControl = 4;
  r->defenceAreaType = 15;
  r->slot = r->level1 = -1;
  r->level2 = 9;  // not flagged
  r->sensorType = 7;
  const std::string packed = Pack("Alarm", *r);
  for (const char* key :
       {"SenseMethod", "EnableControl", "DefenceAreaType", "Slot", "Level1", "Level2", "\"ID\""}) {
    EXPECT_EQ(std::string::npos, packed.find(key)) << key;
  }
  EXPECT_NE(std::string::npos, packed.find(R"("SensorType" : "NO")"));
}

TEST(Alarm, WeekGridWinsOverTheLinkageSchedule) {
  auto r = kova_test::NewRecord<AlarmInRecord>();
  r->eventHandler.schedule.holidayEnabled = 1;
  r->eventHandler.schedule.sections[0][0] = {1, 1, 0, 0, 2, 0, 0};
  r->eventHandler.schedule.sections[7][0] = {1, 3, 0, 0, 4, 0, 0};
  r->week.sections[0][0] = {1, 8, 30, 0, 17, 45, 0};
  const std::string packed = Pack("Alarm", *r);
  EXPECT_NE(std::string::npos, packed.find(R"("1 08:30:00-17:45:00")"));
  EXPECT_EQ(std::string::npos, packed.find(R"("1 01:00:00-02:00:00")"));
  // The holiday stays the linkage block's own.
  EXPECT_NE(std::string::npos, packed.find(R"("1 03:00:00-04:00:00")"));
}

}  // namespace
