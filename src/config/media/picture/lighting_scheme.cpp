// "LightingScheme": the light mode of each of a channel's profiles and the
// week of times at which each mode applies.
#include <cstdio>
#include <cstring>
#include <string>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/media/video_in/profiles.h"
#include "drivers/response_frame.h"
#include "kova/records/picture.h"

namespace kova {

namespace {

// One text "00:00:00-23:59:59 AIMode": the range first, then the mode's
// name, without the leading flag of the usual section form. The name is
// an identifier of the device and is kept as its bytes.
bool ReadSchemeSection(const Json::Value& v, LightingSchemeSection* s) {
  if (!v.isString()) return false;
  const std::string text = ToText(v);
  char mode[KOVA_VIDEO_IN_TEXT] = {};
  if (std::sscanf(text.c_str(), "%d:%d:%d-%d:%d:%d %31s", &s->beginHour, &s->beginMinute,
                  &s->beginSecond, &s->endHour, &s->endMinute, &s->endSecond, mode) != 7) {
    return false;
  }
  std::memcpy(s->mode, mode, sizeof mode);
  return true;
}

std::string WriteSchemeSection(const LightingSchemeSection& s) {
  const void* end = std::memchr(s.mode, '\0', sizeof s.mode);
  const int modeLength = end != nullptr ? static_cast<int>(static_cast<const char*>(end) - s.mode)
                                        : static_cast<int>(sizeof s.mode);
  char text[160];
  std::snprintf(text, sizeof text, "%02d:%02d:%02d-%02d:%02d:%02d %.*s", s.beginHour, s.beginMinute,
                s.beginSecond, s.endHour, s.endMinute, s.endSecond, modeLength, s.mode);
  return text;
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
  Json::Value& week = SetMember(obj, f.key);
  week = Json::Value(Json::arrayValue);
  const uint32_t days = CutCount(p->dayCount, KOVA_WEEK_DAYS);
  for (uint32_t d = 0; d < days; ++d) {
    Json::Value day(Json::arrayValue);
    const uint32_t n = CutCount(p->sectionCount[d], KOVA_SCHEME_SECTIONS_PER_DAY);
    for (uint32_t s = 0; s < n; ++s) day.append(WriteSchemeSection(p->sections[d][s]));
    week.append(std::move(day));
  }
}

}  // namespace

constexpr Field kSchemeScheduleFields[] = {
    KOVA_F(LightingSchemeProfile, scheduleEnable, "Enable", kBool),
    KOVA_CUSTOM(LightingSchemeProfile, sections, "TimeSectionByWeek", ParseWeek, PackWeek),
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
