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
using kova_test::HandlerText;
using kova_test::kHandlerJson;
using kova_test::Pack;
using kova_test::ParseAs;

TEST(Alarm, DeviceResponseReadsAndPacksBack) {
  int rc = 0;
  uint32_t ret = 0;
  auto r = ParseAs<AlarmInRecord>("Alarm", kova_test::Sample("Alarm"), &rc, &ret);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(sizeof(AlarmInRecord), ret);
  EXPECT_EQ(0, r->channel);
  EXPECT_EQ(1, r->enable);
  EXPECT_STREQ("Front door", r->name);
  EXPECT_EQ(KOVA_SENSOR_NO, r->sensorType);
  EXPECT_EQ(KOVA_SENSE_DOOR_MAGNETISM, r->senseMethod);
  EXPECT_EQ(KOVA_DEFENCE_AREA_DELAY, r->defenceAreaType);
  EXPECT_EQ(KOVA_ENABLE_CONTROL_NORMAL, r->enableControl);
  EXPECT_EQ(30, r->enableDelay);
  EXPECT_EQ(1, r->idPresent);
  EXPECT_STREQ("Zone-01", r->id);
  EXPECT_EQ(0, r->slot);
  EXPECT_EQ(1, r->level1);
  EXPECT_EQ(0, r->level2Present);
  EXPECT_EQ(-1, r->level2);
  EXPECT_EQ(1, r->eventHandler.recordEnable);
  EXPECT_EQ(1u, r->eventHandler.alarmOutChannels[0]);
  EXPECT_EQ(24, r->week.sections[6][0].endHour);
  EXPECT_EQ(1, r->week.sections[6][0].enable);

  const std::string packed = Pack("Alarm", *r);
  // The input's index and "Pole" are never packed.
  EXPECT_EQ(std::string::npos, packed.find("channel"));
  EXPECT_EQ(std::string::npos, packed.find("Pole"));
  EXPECT_EQ(0u,
            packed.find(R"({ "DefenceAreaType" : "Delay", "DisableDelay" : 0, )"
                        R"("Enable" : true, "EnableControl" : "Normal", "EnableDelay" : 30, )"
                        R"("EventHandler" : { "AlarmBellEnable" : true, "AlarmBellLatch" : 30, )"));
  EXPECT_NE(std::string::npos,
            packed.find(R"( }, "ID" : "Zone-01", "Level1" : 1, "Name" : "Front door", )"
                        R"("SenseMethod" : "DoorMagnetism", "SensorType" : "NO", "Slot" : 0 })"
                        "\n"));

  // Parsed again, the record differs only where the device sent empty
  // channel sets that are not packed back (their presence flags).
  auto again = ParseAs<AlarmInRecord>("Alarm", Doc(packed, R"("channel":0,)"), &rc);
  ASSERT_EQ(1, rc);
  for (int flag : {KOVA_EH_EX_ALARM_OUT_CHANNELS, KOVA_EH_TOUR_CHANNELS, KOVA_EH_MATRIX_CHANNELS}) {
    EXPECT_EQ(1, r->eventHandler.present[flag]);
    EXPECT_EQ(0, again->eventHandler.present[flag]);
    r->eventHandler.present[flag] = 0;
  }
  EXPECT_EQ(0, std::memcmp(r.get(), again.get(), sizeof(AlarmInRecord)));
}

TEST(Alarm, ExactTextOfASmallInput) {
  int rc = 0;
  auto r = ParseAs<AlarmInRecord>(
      "alarm",
      Doc(std::string(R"({"Enable":false,"Name":"Cellar","SensorType":"nc","Level2":4,)"
                      R"("SenseMethod":"PASSIVEINFRARED","DefenceAreaType":"fulldayslient",)"
                      R"("EnableControl":"disableonce","EventHandler":)") +
              kHandlerJson + "}",
          R"("channel":5,)"),
      &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(5, r->channel);
  EXPECT_EQ(KOVA_SENSOR_NC, r->sensorType);
  EXPECT_EQ(KOVA_SENSE_PASSIVE_INFRARED, r->senseMethod);
  EXPECT_EQ(KOVA_DEFENCE_AREA_FULLDAY_SILENT, r->defenceAreaType);
  EXPECT_EQ(KOVA_ENABLE_CONTROL_DISABLE_ONCE, r->enableControl);
  EXPECT_EQ(-1, r->slot);
  EXPECT_EQ(-1, r->level1);
  EXPECT_EQ(1, r->level2Present);
  EXPECT_EQ(4, r->level2);
  EXPECT_EQ(0, r->idPresent);
  EXPECT_EQ(R"({ "DefenceAreaType" : "FulldaySlient", "DisableDelay" : 0, "Enable" : false, )"
            R"("EnableControl" : "DisableOnce", "EnableDelay" : 0, )" +
                HandlerText() +
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
      {R"("SenseMethod":3)", &AlarmInRecord::senseMethod, -1},
      {R"("SensorType":"NO")", &AlarmInRecord::sensorType, 1},
      {R"("SensorType":"whatever")", &AlarmInRecord::sensorType, 1},
      {R"("SensorType":"NC")", &AlarmInRecord::sensorType, 0},
      {R"("EnableControl":"DISABLEALWAYS")", &AlarmInRecord::enableControl, 3},
      {R"("EnableControl":"Sometimes")", &AlarmInRecord::enableControl, 0},
      // The first six zone names are matched exactly, the others in any case.
      {R"("DefenceAreaType":"Panic")", &AlarmInRecord::defenceAreaType, 6},
      {R"("DefenceAreaType":"panic")", &AlarmInRecord::defenceAreaType, 0},
      {R"("DefenceAreaType":"FIRE")", &AlarmInRecord::defenceAreaType, 7},
      {R"("DefenceAreaType":"peopledetect")", &AlarmInRecord::defenceAreaType, 14},
      {R"("DefenceAreaType":"FulldaySilent")", &AlarmInRecord::defenceAreaType, 0},
  };
  for (const Case& c : cases) {
    int rc = 0;
    auto r = ParseAs<AlarmInRecord>("Alarm", Doc(std::string("{") + c.member + "}"), &rc);
    ASSERT_EQ(1, rc);
    EXPECT_EQ(c.value, (*r).*c.field) << c.member;
  }
}

TEST(Alarm, ValuesWithoutNameAreLeftOut) {
  auto r = kova_test::NewRecord<AlarmInRecord>();
  r->senseMethod = 21;
  r->enableControl = 4;
  r->defenceAreaType = 15;
  r->slot = -1;
  r->level1 = -1;
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

TEST(Alarm, FrameFailures) {
  const std::string good = Doc(R"({"Enable":true})");
  auto r = kova_test::NewRecord<AlarmInRecord>();
  std::memset(r.get(), 0xAB, sizeof(AlarmInRecord));
  // Too small a buffer: untouched.
  EXPECT_EQ(0, KOVA_ParseData("Alarm", good.c_str(), r.get(), sizeof(AlarmInRecord) - 1, nullptr));
  EXPECT_EQ(0xAB, reinterpret_cast<unsigned char*>(r.get())[0]);
  // Not JSON: cleared.
  EXPECT_EQ(0, KOVA_ParseData("Alarm", "{\"params\":", r.get(), sizeof(AlarmInRecord), nullptr));
  EXPECT_EQ(0, r->enable);
  EXPECT_EQ(0, r->level1);
  // "result" is not looked at, and a null table reads as an empty one.
  int rc = 0;
  auto empty = ParseAs<AlarmInRecord>("Alarm", R"({"result":false,"params":{"table":null}})", &rc);
  EXPECT_EQ(1, rc);
  EXPECT_EQ(-1, empty->slot);
  EXPECT_EQ(-1, empty->senseMethod);
  EXPECT_EQ(1, empty->eventHandler.present[KOVA_EH_RECORD_ENABLE]);
}

}  // namespace
