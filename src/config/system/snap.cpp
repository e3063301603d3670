// "Snap": the timed snapshot schedule of each channel.
#include "common/blocks/time_schedule.h"
#include "common/fields/field_table.h"
#include "common/fields/field_text.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/system.h"

namespace {

using kova::Field;

// The grid keeps the number of days the device sent, so a week-only answer
// is written back as a week.
void ParseSections(const Json::Value& obj, unsigned char* record, const Field&) {
  SnapConfig* r = reinterpret_cast<SnapConfig*>(record);
  int32_t days = 0;
  kova::ParseTimeSectionGrid(kova::Member(obj, "TimeSection"), &r->sections[0][0], 8, 6, &days);
  r->dayCount = days;
}

int32_t PackedDays(const SnapConfig& r) {
  return (r.dayCount < 1 || r.dayCount > 8) ? 8 : r.dayCount;
}

void PackSections(const unsigned char* record, Json::Value& obj, const Field&) {
  const SnapConfig* r = reinterpret_cast<const SnapConfig*>(record);
  kova::PackTimeSectionGrid(kova::SetKeptMember(obj, "TimeSection"), &r->sections[0][0],
                            PackedDays(*r), 6);
}

void WriteSections(const void* record, const Field*, kova::TextSink* out) {
  const SnapConfig* r = static_cast<const SnapConfig*>(record);
  kova::WriteTimeSectionGridText(&r->sections[0][0], PackedDays(*r), 6, out);
}

constexpr Field kSnapFields[] = {
    KOVA_F(SnapConfig, holidayEnable, "HolidayEnable", kBool),
    KOVA_CUSTOM(SnapConfig, sections, "TimeSection", ParseSections, PackSections)
        .PackText(WriteSections),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(SnapConfig, kSnapFields)

extern const ResponseFrame kSnapFrame = DescribedObject<SnapConfig>::kFrame;

}  // namespace kova
