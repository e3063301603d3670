// "LightingScheme": the light mode of each of a channel's profiles and the
// week of times at which each mode applies.
#include <cctype>
#include <cstdio>
#include <cstring>
#include <string>

#include "common/base/decimal.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/media/video_in/profiles.h"
#include "drivers/response_frame.h"
#include "kova/records/picture.h"

namespace kova {

namespace {

// The form devices write, "08:00:00-18:00:00 AIMode" with one blank, read
// without scanf: the same range and name it takes from it. False for any
// other text.
bool ReadFixedScheme(const char* text, LightingSchemeSection* s, char (&mode)[KOVA_VIDEO_IN_TEXT]) {
  LightingSchemeSection r = *s;
  int32_t* fields[6] = {&r.beginHour, &r.beginMinute, &r.beginSecond,
                        &r.endHour,   &r.endMinute,   &r.endSecond};
  // The range is checked first: it stops at the text's end.
  if (!ReadFixedClockRange(text, fields) || text[17] != ' ') return false;
  const char* name = text + 18;
  const auto inName = [name](size_t i) {
    return name[i] != '\0' && !std::isspace(static_cast<unsigned char>(name[i]));
  };
  if (!inName(0)) return false;
  *s = r;
  for (size_t n = 0; n + 1 < sizeof mode && inName(n); ++n) mode[n] = name[n];  // "%31s"
  return true;
}

// One text "00:00:00-23:59:59 AIMode": the range first, then the mode's
// name, without the leading flag of the usual section form. The name is
// an identifier of the device and is kept as its bytes.
bool ReadSchemeSection(const Json::Value& v, LightingSchemeSection* s) {
  if (!v.isString()) return false;
  const char* text = TextInPlace(v);
  char mode[KOVA_VIDEO_IN_TEXT] = {};
  if (ReadFixedScheme(text, s, mode)) {
    std::memcpy(s->mode, mode, sizeof mode);
    return true;
  }
  if (std::sscanf(text, "%d:%d:%d-%d:%d:%d %31s", &s->beginHour, &s->beginMinute, &s->beginSecond,
                  &s->endHour, &s->endMinute, &s->endSecond, mode) != 7) {
    return false;
  }
  std::memcpy(s->mode, mode, sizeof mode);
  return true;
}

std::string WriteSchemeSection(const LightingSchemeSection& s) {
  const void* end = std::memchr(s.mode, '\0', sizeof s.mode);
  const int modeLength = end != nullptr ? static_cast<int>(static_cast<const char*>(end) - s.mode)
                                        : static_cast<int>(sizeof s.mode);
  char text[kClockRangeText + 1];  // the range and its blank
  char* p = PutClockRange(text, s.beginHour, s.beginMinute, s.beginSecond, s.endHour, s.endMinute,
                          s.endSecond);
  *p++ = ' ';
  std::string out(text, p);
  return out.append(s.mode, static_cast<size_t>(modeLength));
}

// "TimeSectionByWeek": days cut to 7 and sections to 6; a day keeps its
// well-formed texts in order and drops the rest (intended: a malformed text
// is a section the device could not have applied).
void ParseWeek(const Json::Value& obj, unsigned char* record, const Field& f) {
  LightingSchemeProfile* p = reinterpret_cast<LightingSchemeProfile*>(record);
  const Json::Value& week = Member(obj, f.key);
  if (!week.isArray()) return;
  uint32_t days = 0;
  ForEachElement(week, [&](uint32_t d, const Json::Value& day) {
    if (d >= KOVA_WEEK_DAYS) return false;
    days = d + 1;
    uint32_t kept = 0;
    ForEachElement(day, [&](uint32_t, const Json::Value& text) {
      if (kept >= KOVA_SCHEME_SECTIONS_PER_DAY) return false;
      LightingSchemeSection s{};
      if (ReadSchemeSection(text, &s)) p->sections[d][kept++] = s;
      return true;
    });
    p->sectionCount[d] = static_cast<int32_t>(kept);
    return true;
  });
  p->dayCount = static_cast<int32_t>(days);
}

void PackWeek(const unsigned char* record, Json::Value& obj, const Field& f) {
  const LightingSchemeProfile* p = reinterpret_cast<const LightingSchemeProfile*>(record);
  Json::Value& week = SetKeptMember(obj, f.key);
  week = Json::Value(Json::arrayValue);
  const uint32_t days = CutCount(p->dayCount, KOVA_WEEK_DAYS);
  for (uint32_t d = 0; d < days; ++d) {
    Json::Value day(Json::arrayValue);
    const uint32_t n = CutCount(p->sectionCount[d], KOVA_SCHEME_SECTIONS_PER_DAY);
    for (uint32_t s = 0; s < n; ++s) day.append(WriteSchemeSection(p->sections[d][s]));
    week.append(std::move(day));
  }
}

void WriteWeek(const void* record, const Field*, TextSink* out) {
  const LightingSchemeProfile* p = static_cast<const LightingSchemeProfile*>(record);
  out->Literal("[ ");
  const uint32_t days = CutCount(p->dayCount, KOVA_WEEK_DAYS);
  for (uint32_t d = 0; d < days; ++d) {
    if (d != 0) out->Literal(", ");
    out->Literal("[ ");
    const uint32_t n = CutCount(p->sectionCount[d], KOVA_SCHEME_SECTIONS_PER_DAY);
    for (uint32_t s = 0; s < n; ++s) {
      if (s != 0) out->Literal(", ");
      const std::string text = WriteSchemeSection(p->sections[d][s]);
      WriteJsonString(text.data(), text.data() + text.size(), out);
    }
    out->Literal(" ]");
  }
  out->Literal(" ]");
}

}  // namespace

constexpr Field kSchemeScheduleFields[] = {
    KOVA_F(LightingSchemeProfile, scheduleEnable, "Enable", kBool),
    KOVA_CUSTOM(LightingSchemeProfile, sections, "TimeSectionByWeek", ParseWeek, PackWeek)
        .PackText(WriteWeek),
};
constexpr FieldTable kSchemeSchedule = KOVA_TABLE(kSchemeScheduleFields);

constexpr Field kLightingSchemeProfileFields[] = {
    KOVA_F(LightingSchemeProfile, lightingMode, "LightingMode", kText),
    KOVA_GROUP(LightingSchemeProfile, "SchemeSchedule", kSchemeSchedule)
        .Flag(KOVA_AT(LightingSchemeProfile, schemeSchedulePresent)),
    KOVA_F(LightingSchemeProfile, name, "Name", kText)
        .Flag(KOVA_AT(LightingSchemeProfile, namePresent)),
};

KOVA_DESCRIBE(LightingSchemeProfile, kova::kLightingSchemeProfileFields)

extern const ResponseFrame kLightingSchemeFrame = ProfileRecord<LightingSchemeConfig>::kFrame;

}  // namespace kova
