// "TemperatureAlarm" and "FanSpeedAlarm": one entry per sensor or fan, each
// with its normal range and its linkage block.
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/alarm/alarm_frame.h"
#include "config/alarm/sized_alarm_list.h"
#include "config/alarm/translators.h"

namespace kova {

namespace {

const Field kTemperatureFields[] = {
    KOVA_F(TemperatureAlarmRecord, enable, "Enable", kBool),
    KOVA_F(TemperatureAlarmRecord, name, "Name", kText),
};

const Field kFanFields[] = {
    KOVA_F(FanSpeedAlarmRecord, enable, "Enable", kBool),
    KOVA_F(FanSpeedAlarmRecord, name, "Name", kText),
};

void FillTemperature(const Json::Value& entry, TemperatureAlarmRecord* r) {
  ParseFields(entry, r, kTemperatureFields);
  const Json::Value& limits = Member(entry, "NormalTemperature");
  if (limits.isArray()) {
    r->limitsPresent = 1;
    r->lowerLimit = ToDouble(Element(limits, 0));
    r->upperLimit = ToDouble(Element(limits, 1));
  }
  ParseLinkageWithWeek(entry, &r->eventHandler, &r->week);
}

void WriteTemperature(const TemperatureAlarmRecord& r, Json::Value& entry) {
  PackFields(&r, entry, kTemperatureFields);
  if (r.limitsPresent) {
    Json::Value& limits = SetMember(entry, "NormalTemperature");
    SetElement(limits, 0) = r.lowerLimit;
    SetElement(limits, 1) = r.upperLimit;
  }
  PackLinkage(r.eventHandler, &r.week, entry);
}

void FillFan(const Json::Value& entry, FanSpeedAlarmRecord* r) {
  ParseFields(entry, r, kFanFields);
  const Json::Value& limits = Member(entry, "NormalSpeed");
  if (limits.isArray()) {
    r->limitsPresent = 1;
    r->lowerLimit = ToInt32(Element(limits, 0));
    r->upperLimit = ToInt32(Element(limits, 1));
  }
  ParseLinkageWithWeek(entry, &r->eventHandler, &r->week);
}

void WriteFan(const FanSpeedAlarmRecord& r, Json::Value& entry) {
  PackFields(&r, entry, kFanFields);
  if (r.limitsPresent) {
    Json::Value& limits = SetMember(entry, "NormalSpeed");
    SetElement(limits, 0) = r.lowerLimit;
    SetElement(limits, 1) = r.upperLimit;
  }
  PackLinkage(r.eventHandler, &r.week, entry);
}

}  // namespace

int ParseTemperatureAlarm(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseSizedAlarmList<TemperatureAlarmRecord>(jsonText, outBuf, outLen, retLen,
                                                     FillTemperature);
}

int PackTemperatureAlarm(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackSizedAlarmList<TemperatureAlarmRecord>(inBuf, inLen, outJson, outLen,
                                                    WriteTemperature);
}

int ParseFanSpeedAlarm(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseSizedAlarmList<FanSpeedAlarmRecord>(jsonText, outBuf, outLen, retLen, FillFan);
}

int PackFanSpeedAlarm(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackSizedAlarmList<FanSpeedAlarmRecord>(inBuf, inLen, outJson, outLen, WriteFan);
}

}  // namespace kova
