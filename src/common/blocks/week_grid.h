// A weekly "TimeSection" (or "TimeSchedule") grid held in a record member
// of Days x Sections section records, as a custom step of a field table:
//
//   KOVA_WEEK_GRID(Rec, timeSection, "TimeSection", 7, 6)
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
#include "common/fields/field_text.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"

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

// PackWeekGrid's member as text (KOVA_WEEK_GRID holds the member's size to
// the grid's).
template <int kDays, int kSections>
void WriteWeekGrid(const void* record, const Field* f, TextSink* out) {
  TimeSectionRecord grid[kDays][kSections];
  std::memcpy(grid, static_cast<const unsigned char*>(record) + f->offset, sizeof grid);
  WriteTimeSectionGridText(&grid[0][0], kDays, kSections, out);
}

template <int kDays, int kSections, uint32_t kMemberSize>
constexpr MemberText WeekGridText() {
  static_assert(kMemberSize == sizeof(TimeSectionRecord) * kDays * kSections,
                "the member holds the grid");
  return WriteWeekGrid<kDays, kSections>;
}

}  // namespace kova

// A member of Days x Sections section records, as the custom field above.
#define KOVA_WEEK_GRID(Rec, member, key, days, sections) \
  KOVA_WEEK_GRID_READ_BY(Rec, member, key, days, sections, (::kova::ParseWeekGrid<days, sections>))
// The same grid read by a step of its own.
#define KOVA_WEEK_GRID_READ_BY(Rec, member, key, days, sections, parse)        \
  KOVA_CUSTOM(Rec, member, key, parse, (::kova::PackWeekGrid<days, sections>)) \
      .PackText(::kova::WeekGridText<days, sections, KOVA_MEMBER_SIZE(Rec, member)>())

#endif  // KOVA_COMMON_WEEK_GRID_H_
