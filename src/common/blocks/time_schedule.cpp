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
int ScanSection(const char* text, int width, int32_t* fields[7]) {
  const char* p = text;
  for (int i = 0; i < 7; ++i) {
    if (i > 0 && !ScanSeparator(&p, i - 1)) return i;
    int32_t value = 0;
    if (!ScanInt(&p, i == 0 ? kAnyWidth : width, &value)) return i;
    *fields[i] = value;
  }
  return 7;
}

int ScanRecord(const std::string& text, int width, TimeSectionRecord* r) {
  int32_t* fields[7] = {&r->enable,  &r->beginHour, &r->beginMinute, &r->beginSecond,
                        &r->endHour, &r->endMinute, &r->endSecond};
  return ScanSection(text.c_str(), width, fields);
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

bool ParseTimeSectionGrid(const Json::Value& jsonIn, TimeSectionRecord* sections, int32_t maxDays,
                          int32_t maxSectionsPerDay, int32_t* daysOut) {
  if (sections == nullptr || maxDays < 1 || maxSectionsPerDay < 1) return false;
  if (!jsonIn.isArray() || Count(jsonIn) == 0) return false;
  uint32_t days = Count(jsonIn);
  if (days > static_cast<uint32_t>(maxDays)) days = static_cast<uint32_t>(maxDays);
  if (daysOut != nullptr) *daysOut = static_cast<int32_t>(days);
  for (uint32_t d = 0; d < days; ++d) {
    const Json::Value& day = Element(jsonIn, d);
    // A day that is not an array is skipped, not an error: the device
    // sends null for days it has no schedule for.
    if (!day.isArray() || Count(day) == 0) continue;
    uint32_t n = Count(day);
    if (n > static_cast<uint32_t>(maxSectionsPerDay)) n = static_cast<uint32_t>(maxSectionsPerDay);
    for (uint32_t s = 0; s < n; ++s) {
      const size_t index = static_cast<size_t>(d) * static_cast<size_t>(maxSectionsPerDay) + s;
      if (ScanRecord(ToText(Element(day, s)), kAnyWidth, &sections[index]) != 7) return false;
    }
  }
  return true;
}

bool PackTimeSection(Json::Value& jsonOut, const TimeSectionRecord& section) {
  FormatRecord(section, jsonOut);
  return true;
}

bool ParseTimeSection(const Json::Value& jsonIn, TimeSectionRecord* section) {
  if (section == nullptr) return false;
  const std::string text = ToText(jsonIn);
  if (text.empty()) return false;
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
  if (schedule == nullptr) return false;
  std::memset(schedule, 0, sizeof *schedule);
  int32_t days = 0;
  if (!ParseTimeSectionGrid(jsonIn, &schedule->sections[0][0], kHolidayDays, kHolidaySections,
                            &days)) {
    return false;
  }
  // A schedule must name at least the seven week days.
  if (days < kWeekDays) return false;
  schedule->holidayEnabled = days == kHolidayDays ? 1 : 0;
  return true;
}

bool ParseDaySections(const Json::Value& jsonIn, TimeSectionRecord* sections, int32_t maxSections) {
  if (sections == nullptr || maxSections < 1) return false;
  uint32_t n = jsonIn.isArray() ? Count(jsonIn) : 0;
  if (n > static_cast<uint32_t>(maxSections)) n = static_cast<uint32_t>(maxSections);
  for (uint32_t i = 0; i < n; ++i) {
    // The converted count is deliberately not checked: a malformed string
    // leaves a partly filled record and the day still reads as good.
    ScanRecord(ToText(Element(jsonIn, i)), kAnyWidth, &sections[i]);
  }
  return true;
}

}  // namespace kova
