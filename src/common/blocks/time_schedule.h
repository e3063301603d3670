// Weekly schedules between the device's "TimeSection" arrays and the
// section grids of kova/records/schedule.h.
//
// Text form of one section, as written: "%d %02d:%02d:%02d-%02d:%02d:%02d"
// (enable, begin time, end time), e.g. "1 00:00:00-24:00:00". Two read
// forms exist on purpose: the grid and one-day readers take any number of
// digits ("1 8:0:0-9:0:0"), the single-section readers at most two digits
// per time field. Nothing is range-checked either way. None of these
// functions clears the records it fills unless stated: callers zero them.
#ifndef KOVA_COMMON_TIME_SCHEDULE_H_
#define KOVA_COMMON_TIME_SCHEDULE_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/schedule.h"

namespace kova {

class TextSink;

// Writes the whole grid, empty sections included, as jsonOut[d][s]
// strings. `sections` holds days * sectionsPerDay records, day-major.
// False (nothing written) when `sections` is null or a dimension is < 1.
bool PackTimeSectionGrid(Json::Value& jsonOut, const TimeSectionRecord* sections, int32_t days,
                         int32_t sectionsPerDay);
// The text of that grid packed into a null value: `days` rows, row d the
// `sectionsPerDay` records from rows[d]; "null" when a dimension is < 1.
void WriteSectionRowsText(const TimeSectionRecord* const* rows, int32_t days,
                          int32_t sectionsPerDay, TextSink* out);
// The same for a day-major grid.
void WriteTimeSectionGridText(const TimeSectionRecord* sections, int32_t days,
                              int32_t sectionsPerDay, TextSink* out);

// Reads an array of days, each an array of section strings, into a grid of
// maxDays * maxSectionsPerDay records; day d's section s lands in record
// d * maxSectionsPerDay + s. Excess days and sections are ignored; a day
// that is not an array (or is empty) is skipped, its records untouched.
// `*daysOut` (may be null) receives the number of days taken. False when
// `sections` is null, a dimension is < 1, `jsonIn` is not a non-empty
// array, or a section string does not give all seven numbers: the parse
// stops there, earlier records keep what they read and the failing one
// keeps the numbers that did convert.
bool ParseTimeSectionGrid(const Json::Value& jsonIn, TimeSectionRecord* sections, int32_t maxDays,
                          int32_t maxSectionsPerDay, int32_t* daysOut);

// A grid for ParseTimeSectionGrid's reading: `daysOut` (may be null)
// receives the days taken.
struct SectionGrid {
  TimeSectionRecord* sections;
  int32_t maxDays;
  int32_t maxSectionsPerDay;
  int32_t* daysOut;
};

// One section as one JSON string. Always true.
bool PackTimeSection(Json::Value& jsonOut, const TimeSectionRecord& section);
// One section from one JSON string with the two-digit read form. False when
// the text is empty (a non-string reads as empty) or not all seven numbers
// convert; the fields that did convert are kept.
bool ParseTimeSection(const Json::Value& jsonIn, TimeSectionRecord* section);

// As PackTimeSection, but false (nothing written) unless `sized.size` is 32.
bool PackSizedTimeSection(Json::Value& jsonOut, const SizedTimeSection& sized);
// As ParseTimeSection; `size` is neither checked nor changed.
bool ParseSizedTimeSection(const Json::Value& jsonIn, SizedTimeSection* sized);

// Packs 8 days when `holidayEnabled` is non-zero, else 7; 6 sections each.
bool PackHolidaySchedule(Json::Value& jsonOut, const HolidaySchedule& schedule);
// Zeroes `schedule`, reads up to 8 days of 6 sections; false when the grid
// parse fails or fewer than 7 days were given. `holidayEnabled` is 1 when 8
// (or more) days were given.
bool ParseHolidaySchedule(const Json::Value& jsonIn, HolidaySchedule* schedule);
// What a linkage block's "TimeSection" is read into beside its holiday
// schedule, in the same walk over the texts (a text of the usual form is
// scanned once for all: the read forms agree on it). `grid` (sections null:
// none) is read as ParseTimeSectionGrid reads it, that result not returned;
// `week` (null: none; not cleared first) takes "TimeSection"[d][s] for d < 7,
// s < 6 as ParseTimeSection reads each, a failing section keeping what
// converted and the rest still read.
struct SchedulesBeside {
  SectionGrid grid;
  WeekSchedule7x6* week;
};

// ParseHolidaySchedule, and in the same walk the schedules of `beside`.
bool ParseHolidaySchedule(const Json::Value& jsonIn, HolidaySchedule* schedule,
                          const SchedulesBeside& beside);

// One day's flat array of section strings into records 0..maxSections-1
// (excess items ignored). Malformed text is deliberately not an error: it
// leaves a partly filled record and the result is still true. False only
// when `sections` is null or `maxSections` < 1.
bool ParseDaySections(const Json::Value& jsonIn, TimeSectionRecord* sections, int32_t maxSections);

}  // namespace kova

#endif  // KOVA_COMMON_TIME_SCHEDULE_H_
