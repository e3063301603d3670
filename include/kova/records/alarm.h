// Records of the alarm configuration family.
#ifndef KOVA_RECORDS_ALARM_H_
#define KOVA_RECORDS_ALARM_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// "AlarmLamp": the alarm lamp's working mode.
// "Mode" 0, 1 or 2 is stored as is; any other value, and a document without
// "Mode", stores -1. On pack a mode outside 0..2 writes no member at all, so
// the packed text is "null".
typedef struct AlarmLampRecord {
  int32_t mode;
} AlarmLampRecord;

// "DefenceArmMode": "EnableDefenceArm" as 0 or 1 (absent reads as 0); packed
// as a JSON boolean, true for any non-zero value.
typedef struct DefenceArmModeRecord {
  uint32_t enableDefenceArm;
} DefenceArmModeRecord;

#ifdef __cplusplus
}
static_assert(sizeof(AlarmLampRecord) == 4, "AlarmLampRecord layout");
static_assert(sizeof(DefenceArmModeRecord) == 4, "DefenceArmModeRecord layout");
#endif

#endif  // KOVA_RECORDS_ALARM_H_
