// Weekly time schedules: the section record and the grids built from it.
//
// On the device a schedule is "TimeSection" (or "TimeSchedule"): an array of
// days, each day an array of section strings of the form
// "1 08:00:00-17:30:00" (enable, begin time, end time). Here a schedule is a
// day-major grid of seven-integer section records without count fields;
// section s of day d is element d * sectionsPerDay + s. Day 0 is the first
// entry of the device's array; day 7, where a grid has one, is the holiday.
#ifndef KOVA_RECORDS_SCHEDULE_H_
#define KOVA_RECORDS_SCHEDULE_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// One schedule section. No field is range-checked in either direction: the
// text 25:61:99 is stored as 25, 61, 99 and written back the same way.
typedef struct TimeSectionRecord {
  // The leading number of the text form, carried unchanged: 0 = section
  // off, non-zero = on (some configurations use it as a bit mask).
  int32_t enable;
  int32_t beginHour;
  int32_t beginMinute;
  int32_t beginSecond;
  int32_t endHour;
  int32_t endMinute;
  int32_t endSecond;
} TimeSectionRecord;

// Grid sizes in use.
enum {
  KOVA_WEEK_DAYS = 7,
  KOVA_HOLIDAY_DAYS = 8,  // the week plus the holiday (day index 7)
  KOVA_SECTIONS_PER_DAY = 6,
  KOVA_ANALYSE_SECTIONS_PER_DAY = 10,
};

// 7 days x 6 sections: the copy of "EventHandler"."TimeSection" that the
// alarm configurations keep directly after their linkage block.
typedef struct WeekSchedule7x6 {
  TimeSectionRecord sections[7][6];
} WeekSchedule7x6;

// 7 days x 10 sections: "EventHandler"."TimeSection" of the intelligent
// analysis rules.
typedef struct WeekSchedule7x10 {
  TimeSectionRecord sections[7][10];
} WeekSchedule7x10;

// 8 days x 6 sections: the week and the holiday ("TimeSchedule" of the
// enclosure entries).
typedef struct WeekSchedule8x6 {
  TimeSectionRecord sections[8][6];
} WeekSchedule8x6;

// The grid most configurations keep beside their linkage block.
typedef WeekSchedule7x6 WeekSchedule;

// A schedule that may carry the holiday as an 8th day ("TimeSection" held
// inside the linkage block).
typedef struct HolidaySchedule {
  // 1 when the device sent (at least) 8 days, 0 when it sent only the week.
  // On pack, non-zero writes 8 days, zero writes 7.
  int32_t holidayEnabled;
  // Days absent from the device's array read as zero.
  TimeSectionRecord sections[8][6];
} HolidaySchedule;

// One section preceded by the record's own size, set by the caller.
typedef struct SizedTimeSection {
  uint32_t size;  // must be sizeof(SizedTimeSection), 32, for the packer
  int32_t enable;
  int32_t beginHour;
  int32_t beginMinute;
  int32_t beginSecond;
  int32_t endHour;
  int32_t endMinute;
  int32_t endSecond;
} SizedTimeSection;

#ifdef __cplusplus
}
static_assert(sizeof(TimeSectionRecord) == 28, "TimeSectionRecord layout");
static_assert(sizeof(WeekSchedule7x6) == 7 * 6 * 28, "WeekSchedule7x6 layout");
static_assert(sizeof(WeekSchedule7x10) == 7 * 10 * 28, "WeekSchedule7x10 layout");
static_assert(sizeof(WeekSchedule8x6) == 8 * 6 * 28, "WeekSchedule8x6 layout");
static_assert(sizeof(HolidaySchedule) == 4 + 8 * 6 * 28, "HolidaySchedule layout");
static_assert(offsetof(HolidaySchedule, sections) == 4, "HolidaySchedule layout");
static_assert(sizeof(SizedTimeSection) == 32, "SizedTimeSection layout");
#endif

#endif  // KOVA_RECORDS_SCHEDULE_H_
