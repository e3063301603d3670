#include "config/alarm/alarm_enums.h"

#include "common/fields/fields.h"
#include "common/json/json.h"

namespace kova {

namespace {

constexpr const char* kSenseMethods[] = {
    "DoorMagnetism",  "PassiveInfrared",  "GasSensor",       "SmokingSensor", "WaterSensor",
    "ActiveInfrared", "GlassSensor",      "EmergencySwitch", "ShockSensor",   "DoubleMethod",
    "ThreeMethod",    "TempSensor",       "HumiditySensor",  "WindSensor",    "CallButton",
    "GasPressure",    "GasConcentration", "GasFlow",         "Oil",           "MileageSensor",
    "OtherSensor",
};

constexpr const char* kEnableControls[] = {"Normal", "EnableAlways", "DisableOnce",
                                           "DisableAlways"};

constexpr const char* kSensorTypes[] = {"NC", "NO"};

// Zone types: the device compares the first six names exactly and the rest
// without regard to case; the split is intended and kept.
constexpr const char* kExactZones[] = {"Intime", "Delay", "Fullday", "Follow", "Medical", "Panic"};
constexpr const char* kLooseZones[] = {"Fire",      "FulldaySound", "FulldaySlient",
                                       "Entrance1", "Entrance2",    "Inside",
                                       "Outside",   "PeopleDetect"};
constexpr EnumNames kExactZoneNames = EnumNames::Of(kExactZones).Exact().FirstValue(1);
constexpr EnumNames kLooseZoneNames = EnumNames::Of(kLooseZones).FirstValue(7);
constexpr int32_t kUnknownZone = 0;

}  // namespace

const EnumNames kSenseMethodNames = EnumNames::Of(kSenseMethods).UnknownAs(-1).OmitUnnamed();
const EnumNames kEnableControlNames = EnumNames::Of(kEnableControls).UnknownAs(0).OmitUnnamed();
const EnumNames kSensorTypeNames = EnumNames::Of(kSensorTypes).UnknownAs(1);

void ParseDefenceAreaType(const Json::Value& obj, unsigned char* record, const Field& f) {
  const Json::Value& v = Member(obj, f.key);
  if (v.isNull()) return;
  // The device's zone name is read into a 32-byte field before the lookup.
  char text[32];
  GetJsonString(v, text, sizeof text, 1);
  const Json::Value name(text);
  int32_t type = kUnknownZone;
  if (!EnumValue(kExactZoneNames, name, &type) && !EnumValue(kLooseZoneNames, name, &type)) {
    type = kUnknownZone;
  }
  StoreInt(record + f.offset, f.size, type);
}

void PackDefenceAreaType(const unsigned char* record, Json::Value& obj, const Field& f) {
  const int64_t type = LoadInt(record + f.offset, f.size, true);
  const char* name = EnumName(kExactZoneNames, type);
  if (name == nullptr) name = EnumName(kLooseZoneNames, type);
  if (name != nullptr) SetKeptMember(obj, f.key) = name;
}

}  // namespace kova
