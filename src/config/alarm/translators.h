// Translators of the alarm configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_ALARM_TRANSLATORS_H_
#define KOVA_CONFIG_ALARM_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/alarm.h"

namespace kova {

// Table-driver routines of "AlarmLamp" and "DefenceArmMode".
int ParseAlarmLampRecord(const Json::Value& element, void* record);
int PackAlarmLampRecord(const void* record, Json::Value& target);
int ParseDefenceArmModeRecord(const Json::Value& element, void* record);
int PackDefenceArmModeRecord(const void* record, Json::Value& target);

}  // namespace kova

#endif  // KOVA_CONFIG_ALARM_TRANSLATORS_H_
