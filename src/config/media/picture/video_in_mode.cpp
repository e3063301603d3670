// "VideoInMode": which of a channel's day, night and normal profiles is in
// use, and by what: one profile, a schedule, the brightness, or by hand.
#include <cstring>

#include "common/blocks/time_schedule.h"
#include "common/blocks/week_grid.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/picture.h"

namespace kova {

namespace {

// "TimeSection" is a whole week of section texts: read into a grid of its
// own and kept only when every text is well formed (intended: a grid read
// halfway would be written back as a different schedule).
void ParseWeek(const Json::Value& obj, unsigned char* record, const Field& f) {
  WeekSchedule7x6 week{};
  if (!ParseTimeSectionGrid(Member(obj, f.key), &week.sections[0][0], KOVA_WEEK_DAYS,
                            KOVA_SECTIONS_PER_DAY, nullptr)) {
    return;
  }
  std::memcpy(record + f.offset, &week, sizeof week);
  MarkPresent(record, f);
}

constexpr Field kProfileIndex = KOVA_ITEM(int32_t, kInt);

}  // namespace

constexpr Field kVideoInModeFields[] = {
    KOVA_F(VideoInModeConfig, mode, "Mode", kInt),
    KOVA_LIST(VideoInModeConfig, config, "Config", kProfileIndex)
        .Count(KOVA_AT(VideoInModeConfig, configCount), CountRule::kTaken),
    KOVA_F(VideoInModeConfig, configEx, "ConfigEx", kText)
        .Flag(KOVA_AT(VideoInModeConfig, configExPresent)),
    KOVA_WEEK_GRID_READ_BY(VideoInModeConfig, timeSection, "TimeSection", KOVA_WEEK_DAYS,
                           KOVA_SECTIONS_PER_DAY, ParseWeek)
        .Flag(KOVA_AT(VideoInModeConfig, timeSectionPresent)),
};

KOVA_DESCRIBE(VideoInModeConfig, kova::kVideoInModeFields)

extern const ResponseFrame kVideoInModeFrame = DescribedObject<VideoInModeConfig>::kFrame;

}  // namespace kova
