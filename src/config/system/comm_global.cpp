// "CommGlobal" (the alarm hub's global settings) and "FlashLight" (the
// flash light of a channel).
#include "common/blocks/week_grid.h"
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/system.h"

namespace kova {

constexpr Field kCommGlobalFields[] = {
    KOVA_F(CommGlobalConfig, alarmEnable, "AlarmEnable", kBool),
    KOVA_F(CommGlobalConfig, currentProfile, "CurrentProfile", kText),
    KOVA_F(CommGlobalConfig, profileEnable, "ProfileEnable", kBool)
        .Flag(KOVA_AT(CommGlobalConfig, profileEnablePresent)),
};
KOVA_DESCRIBE(CommGlobalConfig, kCommGlobalFields)

extern const ResponseFrame kCommGlobalFrame =
    DescribedObject<CommGlobalConfig>::kFrame.Walk(RecordWalk::kOne);

constexpr Field kFlashLightFields[] = {
    KOVA_F(FlashLightConfig, enable, "Enable", kBool),
    KOVA_F(FlashLightConfig, brightness, "Brightness", kInt),
    KOVA_WEEK_GRID(FlashLightConfig, timeSection, "TimeSection", 7, 6)
        .Flag(KOVA_AT(FlashLightConfig, timeSectionPresent)),
};
KOVA_DESCRIBE(FlashLightConfig, kFlashLightFields)

extern const ResponseFrame kFlashLightFrame = DescribedObject<FlashLightConfig>::kFrame;

}  // namespace kova
