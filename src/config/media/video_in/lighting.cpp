// "Lighting": the infrared and white-light illuminators of each of a
// channel's profiles, with the lamp groups of the near, middle and far
// beams.
#include "common/fields/field_table.h"
#include "config/media/video_in/lamp_group.h"
#include "config/media/video_in/profiles.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {

constexpr Field kLight = KOVA_ITEM_NESTED(LightingLight);

constexpr Field kLightingProfileFields[] = {
    KOVA_F(LightingProfile, mode, "Mode", kText),
    KOVA_F(LightingProfile, correction, "Correction", kInt),
    KOVA_F(LightingProfile, sensitive, "Sensitive", kInt),
    KOVA_LIST(LightingProfile, nearLight, "NearLight", kLight)
        .Count(KOVA_AT(LightingProfile, nearLightCount), CountRule::kTaken)
        .Flag(KOVA_AT(LightingProfile, nearLightPresent)),
    KOVA_LIST(LightingProfile, middleLight, "MiddleLight", kLight)
        .Count(KOVA_AT(LightingProfile, middleLightCount), CountRule::kTaken),
    KOVA_LIST(LightingProfile, farLight, "FarLight", kLight)
        .Count(KOVA_AT(LightingProfile, farLightCount), CountRule::kTaken)
        .Flag(KOVA_AT(LightingProfile, farLightPresent)),
    KOVA_F(LightingProfile, name, "Name", kText).Flag(KOVA_AT(LightingProfile, namePresent)),
};

KOVA_DESCRIBE(LightingProfile, kova::kLightingProfileFields)

extern const ResponseFrame kLightingFrame = ProfileRecord<LightingConfig>::kFrame;

}  // namespace kova
