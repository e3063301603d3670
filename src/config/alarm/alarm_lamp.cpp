// "AlarmLamp" and "DefenceArmMode": one-field records served by the table
// drivers.
#include <cstring>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/alarm/translators.h"
#include "drivers/table_driver.h"
#include "kova/records/alarm.h"

namespace kova {

namespace {

// Absent reads as false.
constexpr Field kDefenceArmModeFields[] = {
    KOVA_F(DefenceArmModeRecord, enableDefenceArm, "EnableDefenceArm", kBool).AlwaysRead(),
};
constexpr FieldTable kDefenceArmMode = KOVA_TABLE(kDefenceArmModeFields);

constexpr int32_t kNoMode = -1;
constexpr uint32_t kLastMode = 2;

}  // namespace

// Hand-written on purpose: a "Mode" member that holds null still counts as
// given (and reads as 0), and a mode outside 0..2 reads and packs as none.
int ParseAlarmLampRecord(const Json::Value& element, void* record) {
  int32_t mode = kNoMode;
  if (HasMember(element, "Mode")) {
    const uint32_t m = ToUInt32(Member(element, "Mode"));
    if (m <= kLastMode) mode = static_cast<int32_t>(m);
  }
  std::memcpy(record, &mode, sizeof mode);
  return 1;
}

int PackAlarmLampRecord(const void* record, Json::Value& target) {
  AlarmLampRecord r;
  std::memcpy(&r, record, sizeof r);
  if (r.mode < 0 || r.mode > static_cast<int32_t>(kLastMode)) return 0;  // the text is "null"
  SetMember(target, "Mode") = r.mode;
  return 1;
}

int ParseDefenceArmModeRecord(const Json::Value& element, void* record) {
  return ParseTableRecord<kDefenceArmMode>(element, record);
}

int PackDefenceArmModeRecord(const void* record, Json::Value& target) {
  return PackTableRecord<kDefenceArmMode>(record, target);
}

}  // namespace kova
