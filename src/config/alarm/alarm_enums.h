// The enumerations of the alarm inputs: sensor contact type, detector kind,
// arming control and zone type.
#ifndef KOVA_CONFIG_ALARM_ALARM_ENUMS_H_
#define KOVA_CONFIG_ALARM_ALARM_ENUMS_H_

#include <json/value.h>

#include <cstdint>

#include "common/fields/field_table.h"

namespace kova {

// "SenseMethod": 21 detector names, index order; case-insensitive; an
// unknown name stores -1; values outside 0..20 are not written.
extern const EnumNames kSenseMethodNames;
// "EnableControl": "Normal", "EnableAlways", "DisableOnce",
// "DisableAlways"; case-insensitive; an unknown name stores 0; values
// outside 0..3 are not written.
extern const EnumNames kEnableControlNames;

// "SensorType": 0 for "NC" in any letter case, 1 for anything else given.
// A null value leaves `*sensorType` as it was.
void ParseSensorType(const Json::Value& v, int32_t* sensorType);
// "NC" for 0, "NO" for any other value.
const char* SensorTypeName(int32_t sensorType);

// "DefenceAreaType": the text, cut to 31 bytes, against the 14 zone names;
// the first six must match exactly, the rest without regard to case. An
// unknown name stores 0; a null value leaves `*type` as it was.
void ParseDefenceAreaType(const Json::Value& v, int32_t* type);
// The zone name of values 1..14, null for any other.
const char* DefenceAreaTypeName(int32_t type);

}  // namespace kova

#endif  // KOVA_CONFIG_ALARM_ALARM_ENUMS_H_
