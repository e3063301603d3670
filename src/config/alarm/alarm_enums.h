// The enumerations of the alarm inputs: sensor contact type, detector kind,
// arming control and zone type.
#ifndef KOVA_CONFIG_ALARM_ALARM_ENUMS_H_
#define KOVA_CONFIG_ALARM_ALARM_ENUMS_H_

#include <json/value.h>

#include "common/fields/field_table.h"

namespace kova {

// "SenseMethod": 21 detector names, index order; case-insensitive; an
// unknown name stores -1; values outside 0..20 are not written.
extern const EnumNames kSenseMethodNames;
// "EnableControl": "Normal", "EnableAlways", "DisableOnce",
// "DisableAlways"; case-insensitive; an unknown name stores 0; values
// outside 0..3 are not written.
extern const EnumNames kEnableControlNames;
// "SensorType": "NC" 0, "NO" 1, case-insensitive; any other value given
// reads as 1, and packs (with Unnamed::kUnknownName) as "NO".
extern const EnumNames kSensorTypeNames;

// Custom steps of "DefenceAreaType": the text, cut to 31 bytes, against
// the 14 zone names; the first six must match exactly, the rest without
// regard to case. An unknown name stores 0; a missing or null member leaves
// the field as it was. Pack writes the zone name of values 1..14, nothing
// for any other value.
void ParseDefenceAreaType(const Json::Value& obj, unsigned char* record, const Field& f);
void PackDefenceAreaType(const unsigned char* record, Json::Value& obj, const Field& f);

}  // namespace kova

#endif  // KOVA_CONFIG_ALARM_ALARM_ENUMS_H_
