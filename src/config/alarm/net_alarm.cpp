// "NetAlarm": one network alarm input.
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/alarm/alarm_enums.h"
#include "config/alarm/alarm_frame.h"
#include "config/alarm/translators.h"

namespace kova {

namespace {

const Field kFields[] = {
    KOVA_F(NetAlarmRecord, enable, "Enable", kBool),
    KOVA_F(NetAlarmRecord, name, "Name", kText),
};

void Fill(const Json::Value& /*params*/, const Json::Value& table, NetAlarmRecord* r) {
  ParseFields(table, r, kFields);
  ParseSensorType(Member(table, "SensorType"), &r->sensorType);
  ParseLinkageWithWeek(table, &r->eventHandler, &r->week);
}

void Write(const NetAlarmRecord& r, Json::Value& table) {
  PackFields(&r, table, kFields);
  SetMember(table, "SensorType") = SensorTypeName(r.sensorType);
  PackLinkage(r.eventHandler, &r.week, table);
}

}  // namespace

int ParseNetAlarm(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  // Unlike the other alarm sources, a network input without a table fails.
  return ParseAlarmRecord<NetAlarmRecord>(jsonText, outBuf, outLen, retLen, TableRule::kFailOnNull,
                                          Fill);
}

int PackNetAlarm(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackAlarmRecord<NetAlarmRecord>(inBuf, inLen, outJson, outLen, Write);
}

}  // namespace kova
