// "AlarmLamp" and "DefenceArmMode": one-field records served by the table
// drivers.
#include <cstring>

#include "common/json/json.h"
#include "config/alarm/translators.h"
#include "kova/records/alarm.h"

namespace kova {

int ParseAlarmLampRecord(const Json::Value& element, void* record) {
  int32_t mode = -1;
  // A "Mode" member that holds null still counts as given (and reads as 0).
  if (HasMember(element, "Mode")) {
    const uint32_t m = ToUInt32(Member(element, "Mode"));
    if (m <= 2) mode = static_cast<int32_t>(m);
  }
  std::memcpy(record, &mode, sizeof mode);
  return 1;
}

int PackAlarmLampRecord(const void* record, Json::Value& target) {
  AlarmLampRecord r;
  std::memcpy(&r, record, sizeof r);
  if (r.mode < 0 || r.mode > 2) return 0;  // nothing written: the text is "null"
  SetMember(target, "Mode") = r.mode;
  return 1;
}

int ParseDefenceArmModeRecord(const Json::Value& element, void* record) {
  const uint32_t enable = ToBool(Member(element, "EnableDefenceArm")) ? 1 : 0;
  std::memcpy(record, &enable, sizeof enable);
  return 1;
}

int PackDefenceArmModeRecord(const void* record, Json::Value& target) {
  DefenceArmModeRecord r;
  std::memcpy(&r, record, sizeof r);
  SetMember(target, "EnableDefenceArm") = r.enableDefenceArm != 0;
  return 1;
}

}  // namespace kova
