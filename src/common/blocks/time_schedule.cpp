#include "common/blocks/time_schedule.h"

#include <cstdio>
#include <cstring>
#include <string>

#include "common/json/json.h"

namespace kova {

namespace {

constexpr int32_t kHolidayDays = 8;
constexpr int32_t kWeekDays = 7;
constexpr int32_t kHolidaySections = 6;
constexpr int kAnyWidth = 0;

bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// A section's text as the JSON value holds it, read up to its end or its
// first NUL (the C string the device's text would be).
struct Text {
  const char* p;
  const char* end;
  char Peek() const { return p != end ? *p : '\0'; }
};

// Reads one "%d" (or "%<width>d") the way scanf does: leading whitespace
// skipped, an optional sign, at least one digit, at most `width` characters
// when width is set. Out-of-range numbers are clamped to 64 bits and then
// cut to 32, as the C library does for "%d". Returns false on no digits.
bool ScanInt(Text* t, int width, int32_t* out) {
  Text c = *t;
  while (IsSpace(c.Peek())) ++c.p;
  int left = width == kAnyWidth ? -1 : width;
  bool negative = false;
  if ((c.Peek() == '+' || c.Peek() == '-') && left != 0) {
    negative = c.Peek() == '-';
    ++c.p;
    if (left > 0) --left;
  }
  uint64_t magnitude = 0;
  bool digits = false;
  while (c.Peek() >= '0' && c.Peek() <= '9' && left != 0) {
    if (magnitude <= (UINT64_MAX - 9) / 10)
      magnitude = magnitude * 10 + static_cast<uint64_t>(c.Peek() - '0');
    else
      magnitude = UINT64_MAX;
    digits = true;
    ++c.p;
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
  t->p = c.p;
  return true;
}

// Matches the literal that follows field i of "%d %d:%d:%d-%d:%d:%d":
// the blank of the format accepts any run of whitespace (none included).
bool ScanSeparator(Text* t, int i) {
  static const char kSeparators[] = " ::-::";
  const char sep = kSeparators[i];
  if (sep == ' ') {
    while (IsSpace(t->Peek())) ++t->p;
    return true;
  }
  if (t->Peek() != sep) return false;
  ++t->p;
  return true;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The form devices send, "1 08:00:00-17:30:00": an enable number of at most
// nine digits right at the start, one blank, two digits per time field and
// no digit after the last. Both read forms read it alike (the width of two
// never cuts a field), so it is read directly; false sends anything else to
// the general scan.
bool ScanUsualForm(const Text& t, int32_t* fields[7]) {
  const char* p = t.p;
  const char* const end = t.end;
  bool negative = false;
  if (p != end && (*p == '-' || *p == '+')) negative = *p++ == '-';
  int32_t enable = 0;
  int digits = 0;
  for (; p != end && IsDigit(*p) && digits < 9; ++p, ++digits) enable = enable * 10 + (*p - '0');
  if (digits == 0 || (p != end && IsDigit(*p))) return false;
  static const char kShape[] = " dd:dd:dd-dd:dd:dd";  // 'd': a digit
  constexpr int kShapeLength = sizeof kShape - 1;
  if (end - p < kShapeLength) return false;
  for (int i = 0; i < kShapeLength; ++i) {
    if (kShape[i] == 'd' ? !IsDigit(p[i]) : p[i] != kShape[i]) return false;
  }
  if (end - p > kShapeLength && IsDigit(p[kShapeLength])) return false;
  *fields[0] = negative ? -enable : enable;
  for (int i = 0; i < 6; ++i) *fields[i + 1] = (p[1 + 3 * i] - '0') * 10 + (p[2 + 3 * i] - '0');
  return true;
}

// Scans the section text of `v` (no text when it is not a string) into the
// seven fields of `fields` in record order, storing each number as it
// converts. `width` limits each time field (not the leading enable number)
// to that many characters. Returns the count of numbers converted.
int ScanSection(const Json::Value& v, int width, int32_t* fields[7]) {
  Text t{nullptr, nullptr};
  if (!v.isString() || !v.getString(&t.p, &t.end)) t = Text{nullptr, nullptr};
  if (ScanUsualForm(t, fields)) return 7;
  for (int i = 0; i < 7; ++i) {
    if (i > 0 && !ScanSeparator(&t, i - 1)) return i;
    int32_t value = 0;
    if (!ScanInt(&t, i == 0 ? kAnyWidth : width, &value)) return i;
    *fields[i] = value;
  }
  return 7;
}

// Whether `v` holds text that reads as a non-empty C string.
bool HasText(const Json::Value& v) {
  const char* begin = nullptr;
  const char* end = nullptr;
  return v.isString() && v.getString(&begin, &end) && begin != end && *begin != '\0';
}

int ScanRecord(const Json::Value& v, int width, TimeSectionRecord* r) {
  int32_t* fields[7] = {&r->enable,  &r->beginHour, &r->beginMinute, &r->beginSecond,
                        &r->endHour, &r->endMinute, &r->endSecond};
  return ScanSection(v, width, fields);
}

// A section text of the usual form, read into `r`; false for any other text.
bool ScanUsual(const Json::Value& v, TimeSectionRecord* r) {
  Text t{nullptr, nullptr};
  if (!v.isString() || !v.getString(&t.p, &t.end)) return false;
  int32_t* fields[7] = {&r->enable,  &r->beginHour, &r->beginMinute, &r->beginSecond,
                        &r->endHour, &r->endMinute, &r->endSecond};
  return ScanUsualForm(t, fields);
}

void FormatSection(int32_t enable, int32_t bh, int32_t bm, int32_t bs, int32_t eh, int32_t em,
                   int32_t es, Json::Value& out) {
  char text[128];
  std::memset(text, 0, sizeof text);
  std::snprintf(text, sizeof text, "%d %02d:%02d:%02d-%02d:%02d:%02d", enable, bh, bm, bs, eh, em,
                es);
  out = text;
}

void FormatRecord(const TimeSectionRecord& r, Json::Value& out) {
  FormatSection(r.enable, r.beginHour, r.beginMinute, r.beginSecond, r.endHour, r.endMinute,
                r.endSecond, out);
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

// ParseTimeSectionGrid's walk; with `week`, every text of the first 7 days x
// 6 sections is also read as ParseTimeSection reads it, whether the grid
// has failed by then or not.
bool ScanGrid(const Json::Value& jsonIn, TimeSectionRecord* sections, int32_t maxDays,
              int32_t maxSectionsPerDay, int32_t* daysOut, WeekSchedule7x6* week) {
  if (sections == nullptr || maxDays < 1 || maxSectionsPerDay < 1) return false;
  if (!jsonIn.isArray() || Count(jsonIn) == 0) return false;
  uint32_t days = Count(jsonIn);
  if (days > static_cast<uint32_t>(maxDays)) days = static_cast<uint32_t>(maxDays);
  if (daysOut != nullptr) *daysOut = static_cast<int32_t>(days);
  bool scanned = true;
  ForEachElement(jsonIn, days, [&](uint32_t d, const Json::Value& day) {
    // A day that is not an array is skipped, not an error: the device
    // sends null for days it has no schedule for.
    if (!day.isArray()) return true;
    const bool inWeek = week != nullptr && d < KOVA_WEEK_DAYS;
    ForEachElement(
        day, static_cast<uint32_t>(maxSectionsPerDay), [&](uint32_t s, const Json::Value& section) {
          TimeSectionRecord& cell = sections[static_cast<size_t>(d) * maxSectionsPerDay + s];
          TimeSectionRecord* weekCell =
              inWeek && s < KOVA_SECTIONS_PER_DAY ? &week->sections[d][s] : nullptr;
          TimeSectionRecord usual;
          if (ScanUsual(section, &usual)) {
            if (scanned) cell = usual;
            if (weekCell != nullptr) *weekCell = usual;
            return;
          }
          if (weekCell != nullptr) ParseTimeSection(section, weekCell);
          // The first section that does not read ends the grid.
          if (scanned) scanned = ScanRecord(section, kAnyWidth, &cell) == 7;
        });
    return scanned || week != nullptr;
  });
  return scanned;
}

}  // namespace

bool ParseTimeSectionGrid(const Json::Value& jsonIn, TimeSectionRecord* sections, int32_t maxDays,
                          int32_t maxSectionsPerDay, int32_t* daysOut) {
  return ScanGrid(jsonIn, sections, maxDays, maxSectionsPerDay, daysOut, nullptr);
}

bool PackTimeSection(Json::Value& jsonOut, const TimeSectionRecord& section) {
  FormatRecord(section, jsonOut);
  return true;
}

bool ParseTimeSection(const Json::Value& jsonIn, TimeSectionRecord* section) {
  if (section == nullptr || !HasText(jsonIn)) return false;
  return ScanRecord(jsonIn, kSingleSectionWidth, section) == 7;
}

bool PackSizedTimeSection(Json::Value& jsonOut, const SizedTimeSection& sized) {
  if (sized.size != sizeof(SizedTimeSection)) return false;
  FormatSection(sized.enable, sized.beginHour, sized.beginMinute, sized.beginSecond, sized.endHour,
                sized.endMinute, sized.endSecond, jsonOut);
  return true;
}

bool ParseSizedTimeSection(const Json::Value& jsonIn, SizedTimeSection* sized) {
  if (sized == nullptr || !HasText(jsonIn)) return false;
  int32_t* fields[7] = {&sized->enable,      &sized->beginHour, &sized->beginMinute,
                        &sized->beginSecond, &sized->endHour,   &sized->endMinute,
                        &sized->endSecond};
  return ScanSection(jsonIn, kSingleSectionWidth, fields) == 7;
}

bool PackHolidaySchedule(Json::Value& jsonOut, const HolidaySchedule& schedule) {
  const int32_t days = schedule.holidayEnabled != 0 ? kHolidayDays : kWeekDays;
  return PackTimeSectionGrid(jsonOut, &schedule.sections[0][0], days, kHolidaySections);
}

bool ParseHolidaySchedule(const Json::Value& jsonIn, HolidaySchedule* schedule) {
  return ParseHolidayScheduleWithWeek(jsonIn, schedule, nullptr);
}

bool ParseHolidayScheduleWithWeek(const Json::Value& jsonIn, HolidaySchedule* schedule,
                                  WeekSchedule7x6* week) {
  if (schedule == nullptr) return false;
  std::memset(schedule, 0, sizeof *schedule);
  int32_t days = 0;
  if (!ScanGrid(jsonIn, &schedule->sections[0][0], kHolidayDays, kHolidaySections, &days, week)) {
    return false;
  }
  // A schedule must name at least the seven week days.
  if (days < kWeekDays) return false;
  schedule->holidayEnabled = days == kHolidayDays ? 1 : 0;
  return true;
}

bool ParseDaySections(const Json::Value& jsonIn, TimeSectionRecord* sections, int32_t maxSections) {
  if (sections == nullptr || maxSections < 1) return false;
  // The converted count is deliberately not checked: a malformed string
  // leaves a partly filled record and the day still reads as good.
  ForEachElement(jsonIn, static_cast<uint32_t>(maxSections),
                 [&](uint32_t i, const Json::Value& section) {
                   ScanRecord(section, kAnyWidth, &sections[i]);
                 });
  return true;
}

}  // namespace kova
