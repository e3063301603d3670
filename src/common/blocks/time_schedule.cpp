#include "common/blocks/time_schedule.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "common/base/decimal.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"

namespace kova {

namespace {

constexpr int32_t kHolidayDays = 8;
constexpr int32_t kWeekDays = 7;
constexpr int32_t kHolidaySections = 6;
constexpr int kAnyWidth = 0;

bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// Reads one "%d" (or "%<width>d") the way scanf does: leading whitespace
// skipped, an optional sign, at least one digit, at most `width` characters
// when width is set. Out-of-range numbers are clamped to 64 bits and then
// cut to 32, as the C library does for "%d". Returns false on no digits.
bool ScanInt(const char** cursor, int width, int32_t* out) {
  const char* p = *cursor;
  while (IsSpace(*p)) ++p;
  int left = width == kAnyWidth ? -1 : width;
  bool negative = false;
  if ((*p == '+' || *p == '-') && left != 0) {
    negative = *p == '-';
    ++p;
    if (left > 0) --left;
  }
  uint64_t magnitude = 0;
  bool digits = false;
  while (*p >= '0' && *p <= '9' && left != 0) {
    if (magnitude <= (UINT64_MAX - 9) / 10)
      magnitude = magnitude * 10 + static_cast<uint64_t>(*p - '0');
    else
      magnitude = UINT64_MAX;
    digits = true;
    ++p;
    if (left > 0) --left;
  }
  if (!digits) return false;
  int64_t value;
  if (negative) {
    value =
        magnitude > static_cast<uint64_t>(INT64_MAX) ? INT64_MIN : -static_cast<int64_t>(magnitude);
  } else {
    value =
        magnitude > static_cast<uint64_t>(INT64_MAX) ? INT64_MAX : static_cast<int64_t>(magnitude);
  }
  *out = static_cast<int32_t>(static_cast<uint32_t>(static_cast<uint64_t>(value)));
  *cursor = p;
  return true;
}

// Matches the literal that follows field i of "%d %d:%d:%d-%d:%d:%d":
// the blank of the format accepts any run of whitespace (none included).
bool ScanSeparator(const char** cursor, int i) {
  static const char kSeparators[] = " ::-::";
  const char sep = kSeparators[i];
  if (sep == ' ') {
    while (IsSpace(**cursor)) ++*cursor;
    return true;
  }
  if (**cursor != sep) return false;
  ++*cursor;
  return true;
}

// Scans the section text into the seven fields of `fields` in record order,
// storing each number as it converts. `width` limits each time field (not
// the leading enable number) to that many characters. Returns the count of
// numbers converted.
// The form every device writes, "1 08:00:00-18:00:00" (one-digit enable,
// two-digit times, nothing numeric after), read at fixed places: the same
// numbers the general reader takes from it, several times faster. False
// (nothing stored) for any other text.
bool ScanCanonicalSection(const char* text, int32_t* fields[7]) {
  if (!IsDigit(text[0]) || text[1] != ' ' || !ReadFixedClockRange(text + 2, fields + 1)) {
    return false;
  }
  *fields[0] = text[0] - '0';
  return true;
}

int ScanSection(const char* text, int width, int32_t* fields[7]) {
  if (ScanCanonicalSection(text, fields)) return 7;
  const char* p = text;
  for (int i = 0; i < 7; ++i) {
    if (i > 0 && !ScanSeparator(&p, i - 1)) return i;
    int32_t value = 0;
    if (!ScanInt(&p, i == 0 ? kAnyWidth : width, &value)) return i;
    *fields[i] = value;
  }
  return 7;
}

int ScanRecord(const char* text, int width, TimeSectionRecord* r) {
  int32_t* fields[7] = {&r->enable,  &r->beginHour, &r->beginMinute, &r->beginSecond,
                        &r->endHour, &r->endMinute, &r->endSecond};
  return ScanSection(text, width, fields);
}

// The longest text of one section.
constexpr size_t kSectionText = kDecimalText + 1 + kClockRangeText;

// "%d %02d:%02d:%02d-%02d:%02d:%02d" at `p`; returns the end.
char* PutSection(char* p, int32_t enable, int32_t bh, int32_t bm, int32_t bs, int32_t eh,
                 int32_t em, int32_t es) {
  p = PutDecimal(p, enable);
  *p++ = ' ';
  return PutClockRange(p, bh, bm, bs, eh, em, es);
}

char* PutSection(char* p, const TimeSectionRecord& r) {
  return PutSection(p, r.enable, r.beginHour, r.beginMinute, r.beginSecond, r.endHour, r.endMinute,
                    r.endSecond);
}

void FormatSection(int32_t enable, int32_t bh, int32_t bm, int32_t bs, int32_t eh, int32_t em,
                   int32_t es, Json::Value& out) {
  char text[kSectionText];
  out = Json::Value(text, PutSection(text, enable, bh, bm, bs, eh, em, es));
}

void FormatRecord(const TimeSectionRecord& r, Json::Value& out) {
  char text[kSectionText];
  out = Json::Value(text, PutSection(text, r));
}

// The single-section read form takes at most two digits per time field.
constexpr int kSingleSectionWidth = 2;

}  // namespace

bool PackTimeSectionGrid(Json::Value& jsonOut, const TimeSectionRecord* sections, int32_t days,
                         int32_t sectionsPerDay) {
  if (sections == nullptr || days < 1 || sectionsPerDay < 1) return false;
  for (int32_t d = 0; d < days; ++d) {
    Json::Value& day = SetElement(jsonOut, static_cast<uint32_t>(d));
    for (int32_t s = 0; s < sectionsPerDay; ++s) {
      const size_t index = static_cast<size_t>(d) * static_cast<size_t>(sectionsPerDay) + s;
      FormatRecord(sections[index], SetElement(day, static_cast<uint32_t>(s)));
    }
  }
  return true;
}

namespace {

// One day's sections, "[ "...", ... ]".
void WriteSectionRow(const TimeSectionRecord* row, int32_t sectionsPerDay, TextSink* out) {
  out->Literal("[ ");
  for (int32_t s = 0; s < sectionsPerDay; ++s) {
    // The section's text needs no escapes: digits, signs, ' ', ':' and '-'.
    char text[2 + 2 + kSectionText];
    char* p = text;
    if (s != 0) {
      *p++ = ',';
      *p++ = ' ';
    }
    *p++ = '"';
    p = PutSection(p, row[s]);
    *p++ = '"';
    out->Put(text, static_cast<size_t>(p - text));
  }
  out->Literal(" ]");
}

// The days, "[ [ ... ], ... ]": day d's sections start at rowOf(d);
// "null" for a dimension below 1.
template <typename RowOf>
void WriteDays(int32_t days, int32_t sectionsPerDay, RowOf rowOf, TextSink* out) {
  if (days < 1 || sectionsPerDay < 1) {
    out->Literal("null");
    return;
  }
  out->Literal("[ ");
  for (int32_t d = 0; d < days; ++d) {
    if (d != 0) out->Literal(", ");
    WriteSectionRow(rowOf(d), sectionsPerDay, out);
  }
  out->Literal(" ]");
}

}  // namespace

void WriteSectionRowsText(const TimeSectionRecord* const* rows, int32_t days,
                          int32_t sectionsPerDay, TextSink* out) {
  if (rows == nullptr) days = 0;
  WriteDays(
      days, sectionsPerDay, [rows](int32_t d) { return rows[d]; }, out);
}

void WriteTimeSectionGridText(const TimeSectionRecord* sections, int32_t days,
                              int32_t sectionsPerDay, TextSink* out) {
  if (sections == nullptr) days = 0;
  WriteDays(
      days, sectionsPerDay,
      [&](int32_t d) { return sections + static_cast<size_t>(d) * sectionsPerDay; }, out);
}

namespace {

// One grid of a walk over a "TimeSection" array, and how its read went.
struct GridRead {
  SectionGrid grid;
  bool reading = false;  // still taking sections (set by ReadGrids)
  bool read = false;     // what ParseTimeSectionGrid returns for it
};

bool Covers(const GridRead& g, uint32_t d, uint32_t s) {
  return g.reading && d < static_cast<uint32_t>(g.grid.maxDays) &&
         s < static_cast<uint32_t>(g.grid.maxSectionsPerDay);
}

// Reads `jsonIn` into every grid of `grids` as ParseTimeSectionGrid reads
// one, in one walk: a section text that several grids take is scanned once.
// With `week`, each text of the first 7 days x 6 sections is also read into
// it as ParseTimeSection reads one (a failure ends no walk there); a text of
// the devices' fixed form is scanned once for all (the read forms agree on it).
void ReadGrids(const Json::Value& jsonIn, GridRead* grids, uint32_t count,
               WeekSchedule7x6* week = nullptr) {
  uint32_t maxDays = 0, maxSections = 0;
  for (uint32_t g = 0; g < count; ++g) {
    GridRead& r = grids[g];
    r.read = r.reading = r.grid.sections != nullptr && r.grid.maxDays >= 1 &&
                         r.grid.maxSectionsPerDay >= 1 && jsonIn.isArray() && Count(jsonIn) > 0;
    if (!r.reading) continue;
    const uint32_t days = std::min(Count(jsonIn), static_cast<uint32_t>(r.grid.maxDays));
    if (r.grid.daysOut != nullptr) *r.grid.daysOut = static_cast<int32_t>(days);
    maxDays = std::max(maxDays, static_cast<uint32_t>(r.grid.maxDays));
    maxSections = std::max(maxSections, static_cast<uint32_t>(r.grid.maxSectionsPerDay));
  }
  if (week != nullptr) {
    maxDays = std::max<uint32_t>(maxDays, KOVA_WEEK_DAYS);
    maxSections = std::max<uint32_t>(maxSections, KOVA_SECTIONS_PER_DAY);
  }
  auto anyReading = [&] {
    for (uint32_t g = 0; g < count; ++g) {
      if (grids[g].reading) return true;
    }
    return false;
  };
  auto inWeek = [week](uint32_t d, uint32_t s) {
    return week != nullptr && d < KOVA_WEEK_DAYS && s < KOVA_SECTIONS_PER_DAY;
  };
  // A day that is not an array is skipped, not an error: the device sends
  // null for days it has no schedule for.
  ForEachElement(jsonIn, maxDays, [&](uint32_t d, const Json::Value& day) {
    ForEachElement(day, maxSections, [&](uint32_t s, const Json::Value& text) {
      bool taken = false;
      for (uint32_t g = 0; g < count; ++g) taken = taken || Covers(grids[g], d, s);
      const bool weekCell = inWeek(d, s);
      if (!taken && !weekCell) return true;
      TimeSectionRecord scanned = {};
      const char* t = TextInPlace(text);
      int32_t* fixed[7] = {&scanned.enable,      &scanned.beginHour, &scanned.beginMinute,
                           &scanned.beginSecond, &scanned.endHour,   &scanned.endMinute,
                           &scanned.endSecond};
      const bool fixedForm = ScanCanonicalSection(t, fixed);
      if (weekCell) {
        if (fixedForm) {
          week->sections[d][s] = scanned;
        } else {
          ParseTimeSection(text, &week->sections[d][s]);
        }
      }
      if (!taken) return true;
      const int fields = fixedForm ? 7 : ScanRecord(t, kAnyWidth, &scanned);
      for (uint32_t g = 0; g < count; ++g) {
        if (!Covers(grids[g], d, s)) continue;
        // The numbers that converted, as a scan into the grid would store them.
        const size_t at = static_cast<size_t>(d) * grids[g].grid.maxSectionsPerDay + s;
        std::memcpy(&grids[g].grid.sections[at], &scanned, sizeof(int32_t) * fields);
        if (fields != 7) grids[g].reading = grids[g].read = false;
      }
      return anyReading() || inWeek(d, s + 1);
    });
    return anyReading() || inWeek(d + 1, 0);
  });
}

// The holiday schedule's ending of ParseHolidaySchedule, after its grid read.
bool FinishHoliday(bool read, int32_t days, HolidaySchedule* schedule) {
  // A schedule must name at least the seven week days.
  if (!read || days < kWeekDays) return false;
  schedule->holidayEnabled = days == kHolidayDays ? 1 : 0;
  return true;
}

}  // namespace

bool ParseTimeSectionGrid(const Json::Value& jsonIn, TimeSectionRecord* sections, int32_t maxDays,
                          int32_t maxSectionsPerDay, int32_t* daysOut) {
  GridRead r = {{sections, maxDays, maxSectionsPerDay, daysOut}};
  ReadGrids(jsonIn, &r, 1);
  return r.read;
}

bool PackTimeSection(Json::Value& jsonOut, const TimeSectionRecord& section) {
  FormatRecord(section, jsonOut);
  return true;
}

bool ParseTimeSection(const Json::Value& jsonIn, TimeSectionRecord* section) {
  if (section == nullptr) return false;
  const char* text = TextInPlace(jsonIn);
  if (*text == '\0') return false;
  return ScanRecord(text, kSingleSectionWidth, section) == 7;
}

bool PackSizedTimeSection(Json::Value& jsonOut, const SizedTimeSection& sized) {
  if (sized.size != sizeof(SizedTimeSection)) return false;
  FormatSection(sized.enable, sized.beginHour, sized.beginMinute, sized.beginSecond, sized.endHour,
                sized.endMinute, sized.endSecond, jsonOut);
  return true;
}

bool ParseSizedTimeSection(const Json::Value& jsonIn, SizedTimeSection* sized) {
  if (sized == nullptr) return false;
  const std::string text = ToText(jsonIn);
  if (text.empty()) return false;
  int32_t* fields[7] = {&sized->enable,      &sized->beginHour, &sized->beginMinute,
                        &sized->beginSecond, &sized->endHour,   &sized->endMinute,
                        &sized->endSecond};
  return ScanSection(text.c_str(), kSingleSectionWidth, fields) == 7;
}

bool PackHolidaySchedule(Json::Value& jsonOut, const HolidaySchedule& schedule) {
  const int32_t days = schedule.holidayEnabled != 0 ? kHolidayDays : kWeekDays;
  return PackTimeSectionGrid(jsonOut, &schedule.sections[0][0], days, kHolidaySections);
}

bool ParseHolidaySchedule(const Json::Value& jsonIn, HolidaySchedule* schedule) {
  return ParseHolidaySchedule(jsonIn, schedule, SchedulesBeside{{nullptr, 0, 0, nullptr}, nullptr});
}

bool ParseHolidaySchedule(const Json::Value& jsonIn, HolidaySchedule* schedule,
                          const SchedulesBeside& beside) {
  if (schedule == nullptr) return false;
  std::memset(schedule, 0, sizeof *schedule);
  int32_t days = 0;
  GridRead reads[2] = {
      {{&schedule->sections[0][0], kHolidayDays, kHolidaySections, &days}},
      {beside.grid},
  };
  ReadGrids(jsonIn, reads, beside.grid.sections != nullptr ? 2 : 1, beside.week);
  return FinishHoliday(reads[0].read, days, schedule);
}

bool ParseDaySections(const Json::Value& jsonIn, TimeSectionRecord* sections, int32_t maxSections) {
  if (sections == nullptr || maxSections < 1) return false;
  ForEachElement(jsonIn, static_cast<uint32_t>(maxSections),
                 [sections](uint32_t i, const Json::Value& item) {
                   // The converted count is deliberately not checked: a malformed
                   // string leaves a partly filled record and the day still reads as good.
                   ScanRecord(TextInPlace(item), kAnyWidth, &sections[i]);
                 });
  return true;
}

}  // namespace kova
