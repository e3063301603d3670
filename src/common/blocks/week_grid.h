// A weekly "TimeSection" (or "TimeSchedule") grid held in a record member
// of Days x Sections section records, as a custom step of a field table:
//
//   KOVA_CUSTOM(Rec, timeSection, "TimeSection", ParseWeekGrid<7, 6>, PackWeekGrid<7, 6>)
//       .Flag(KOVA_AT(Rec, timeSectionPresent))
//
// Parse reads the member when it is an array (days and sections beyond the
// grid are cut, a malformed text stops the reading with what was read
// kept) and marks the field present; pack writes the whole grid.
#ifndef KOVA_COMMON_WEEK_GRID_H_
#define KOVA_COMMON_WEEK_GRID_H_

#include <json/value.h>

#include <cstring>

#include "common/blocks/time_schedule.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"

namespace kova {

template <int kDays, int kSections>
void ParseWeekGrid(const Json::Value& obj, unsigned char* record, const Field& f) {
  static_assert(kDays > 0 && kSections > 0, "a grid has days and sections");
  const Json::Value& v = Member(obj, f.key);
  if (!v.isArray() || f.size != sizeof(TimeSectionRecord) * kDays * kSections) return;
  TimeSectionRecord grid[kDays][kSections];
  std::memcpy(grid, record + f.offset, sizeof grid);
  ParseTimeSectionGrid(v, &grid[0][0], kDays, kSections, nullptr);
  std::memcpy(record + f.offset, grid, sizeof grid);
  MarkPresent(record, f);
}

template <int kDays, int kSections>
void PackWeekGrid(const unsigned char* record, Json::Value& obj, const Field& f) {
  if (f.size != sizeof(TimeSectionRecord) * kDays * kSections) return;
  TimeSectionRecord grid[kDays][kSections];
  std::memcpy(grid, record + f.offset, sizeof grid);
  PackTimeSectionGrid(SetKeptMember(obj, f.key), &grid[0][0], kDays, kSections);
}

}  // namespace kova

#endif  // KOVA_COMMON_WEEK_GRID_H_
