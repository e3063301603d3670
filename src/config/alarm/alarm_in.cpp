// "Alarm": one local alarm input (contact type, detector kind, zone type,
// arming control and the linkage block).
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/alarm/alarm_enums.h"
#include "config/alarm/alarm_frame.h"
#include "config/alarm/translators.h"

namespace kova {

namespace {

const Field kFields[] = {
    KOVA_F(AlarmInRecord, enable, "Enable", kBool),
    KOVA_F(AlarmInRecord, name, "Name", kText),
    KOVA_F(AlarmInRecord, id, "ID", kText).Flag(KOVA_AT(AlarmInRecord, idPresent)),
    KOVA_ENUM(AlarmInRecord, enableControl, "EnableControl", kEnableControlNames),
    KOVA_F(AlarmInRecord, disableDelay, "DisableDelay", kInt),
    KOVA_ENUM(AlarmInRecord, senseMethod, "SenseMethod", kSenseMethodNames),
    KOVA_F(AlarmInRecord, enableDelay, "EnableDelay", kInt),
    KOVA_F(AlarmInRecord, level2, "Level2", kInt).Flag(KOVA_AT(AlarmInRecord, level2Present)),
};

// "Slot" and "Level1" have no presence flag: -1 stands for "not given" in
// both directions.
void ParseOptionalInt(const Json::Value& v, int32_t* field) {
  if (!v.isNull()) *field = ToInt32(v);
}
void PackOptionalInt(int32_t field, const char* key, Json::Value& table) {
  if (field != -1) SetMember(table, key) = field;
}

void Fill(const Json::Value& params, const Json::Value& table, AlarmInRecord* r) {
  r->channel = ToInt32(Member(params, "channel"));
  // Missing members that have a "not given" value read as it.
  r->senseMethod = KOVA_SENSE_UNKNOWN;
  r->slot = -1;
  r->level1 = -1;
  r->level2 = -1;
  ParseFields(table, r, kFields);
  ParseSensorType(Member(table, "SensorType"), &r->sensorType);
  ParseDefenceAreaType(Member(table, "DefenceAreaType"), &r->defenceAreaType);
  const Json::Value& pole = Member(table, "Pole");
  if (!pole.isNull()) r->pole = ToInt32(pole);  // parse only
  ParseOptionalInt(Member(table, "Slot"), &r->slot);
  ParseOptionalInt(Member(table, "Level1"), &r->level1);
  ParseLinkageWithWeek(table, &r->eventHandler, &r->week);
}

void Write(const AlarmInRecord& r, Json::Value& table) {
  PackFields(&r, table, kFields);
  SetMember(table, "SensorType") = SensorTypeName(r.sensorType);
  if (const char* zone = DefenceAreaTypeName(r.defenceAreaType)) {
    SetMember(table, "DefenceAreaType") = zone;
  }
  PackOptionalInt(r.slot, "Slot", table);
  PackOptionalInt(r.level1, "Level1", table);
  PackLinkage(r.eventHandler, &r.week, table);
}

}  // namespace

int ParseAlarm(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseAlarmRecord<AlarmInRecord>(jsonText, outBuf, outLen, retLen, TableRule::kReadNull,
                                         Fill);
}

int PackAlarm(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackAlarmRecord<AlarmInRecord>(inBuf, inLen, outJson, outLen, Write);
}

}  // namespace kova
