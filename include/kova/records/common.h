// Small records shared by several configurations.
#ifndef KOVA_RECORDS_COMMON_H_
#define KOVA_RECORDS_COMMON_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// A time of day range, "%d:%d:%d-%d:%d:%d" on the device side. The leading
// byte belongs to the caller and is never touched by the reader.
typedef struct TimeRange {
  uint8_t lead;
  uint8_t beginHour;
  uint8_t beginMinute;
  uint8_t beginSecond;
  uint8_t endHour;
  uint8_t endMinute;
  uint8_t endSecond;
} TimeRange;

// A user-rights item, "id:name:memo" on the device side. `name` and `memo`
// may be filled to all 32 bytes without a terminator.
typedef struct RightItem {
  uint32_t id;
  char name[32];
  char memo[32];
} RightItem;

#ifdef __cplusplus
}
static_assert(sizeof(TimeRange) == 7, "TimeRange layout");
static_assert(sizeof(RightItem) == 68, "RightItem layout");
static_assert(offsetof(RightItem, memo) == 36, "RightItem layout");
#endif

#endif  // KOVA_RECORDS_COMMON_H_
