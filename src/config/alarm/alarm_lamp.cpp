// "AlarmLamp" and "DefenceArmMode": one-field records with the table
// drivers' settings.
#include <cstring>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "drivers/response_frame.h"
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

// Hand-written on purpose: a "Mode" member that holds null still counts as
// given (and reads as 0), and a mode outside 0..2 reads and packs as none.
bool ParseAlarmLamp(const Json::Value& element, const StepContext& /*ctx*/, unsigned char* record) {
  int32_t mode = kNoMode;
  if (HasMember(element, "Mode")) {
    const uint32_t m = ToUInt32(Member(element, "Mode"));
    if (m <= kLastMode) mode = static_cast<int32_t>(m);
  }
  std::memcpy(record, &mode, sizeof mode);
  return true;
}

// A lamp without a mode packs as null: intended, nothing is refused.
bool PackAlarmLamp(const unsigned char* record, Json::Value& target) {
  AlarmLampRecord r;
  std::memcpy(&r, record, sizeof r);
  if (r.mode >= 0 && r.mode <= static_cast<int32_t>(kLastMode))
    SetKeptMember(target, "Mode") = r.mode;
  return true;
}

constexpr DriverSettings kOneRecord{0, false, true, false};

}  // namespace

extern const ResponseFrame kAlarmLampFrame =
    DriverFrame<AlarmLampRecord>(ParseAlarmLamp, PackAlarmLamp, kOneRecord);
extern const ResponseFrame kDefenceArmModeFrame =
    DriverFrame<DefenceArmModeRecord>(ParseTableStep<kDefenceArmMode>, TablePack<kDefenceArmMode>(),
                                      kOneRecord)
        .Describe(WholeTable<DefenceArmModeRecord, kDefenceArmMode>::kField);

}  // namespace kova
