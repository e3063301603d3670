#include "config/alarm/alarm_enums.h"

#include "common/fields/fields.h"
#include "common/json/json.h"

namespace kova {

namespace {

const char* const kSenseMethods[] = {
    "DoorMagnetism",  "PassiveInfrared",  "GasSensor",       "SmokingSensor", "WaterSensor",
    "ActiveInfrared", "GlassSensor",      "EmergencySwitch", "ShockSensor",   "DoubleMethod",
    "ThreeMethod",    "TempSensor",       "HumiditySensor",  "WindSensor",    "CallButton",
    "GasPressure",    "GasConcentration", "GasFlow",         "Oil",           "MileageSensor",
    "OtherSensor",
};

const char* const kEnableControls[] = {"Normal", "EnableAlways", "DisableOnce", "DisableAlways"};

// Zone types: the device compares the first six names exactly and the rest
// without regard to case; the split is intended and kept.
const char* const kExactZones[] = {"Intime", "Delay", "Fullday", "Follow", "Medical", "Panic"};
const char* const kLooseZones[] = {"Fire",      "FulldaySound", "FulldaySlient", "Entrance1",
                                   "Entrance2", "Inside",       "Outside",       "PeopleDetect"};
const EnumNames kExactZoneNames = {kExactZones, 6, true, 1, false, 0, true};
const EnumNames kLooseZoneNames = {kLooseZones, 8, false, 7, false, 0, true};

const char* const kSensorTypes[] = {"NC"};
const EnumNames kSensorTypeNames = {kSensorTypes, 1, false, 0, true, 1, true};

}  // namespace

const EnumNames kSenseMethodNames = {kSenseMethods, 21, false, 0, true, -1, true};
const EnumNames kEnableControlNames = {kEnableControls, 4, false, 0, true, 0, true};

void ParseSensorType(const Json::Value& v, int32_t* sensorType) {
  if (v.isNull()) return;
  if (!EnumValue(kSensorTypeNames, v, sensorType)) *sensorType = kSensorTypeNames.unknownValue;
}

const char* SensorTypeName(int32_t sensorType) { return sensorType == 0 ? "NC" : "NO"; }

void ParseDefenceAreaType(const Json::Value& v, int32_t* type) {
  if (v.isNull()) return;
  // The device's zone name is read into a 32-byte field before the lookup.
  char text[32];
  GetJsonString(v, text, sizeof text, 1);
  const Json::Value name(text);
  if (!EnumValue(kExactZoneNames, name, type) && !EnumValue(kLooseZoneNames, name, type)) {
    *type = 0;
  }
}

const char* DefenceAreaTypeName(int32_t type) {
  if (const char* name = EnumName(kExactZoneNames, type)) return name;
  return EnumName(kLooseZoneNames, type);
}

}  // namespace kova
