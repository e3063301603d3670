// "Lighting_V2": the lights of each of a channel's profiles (infrared,
// white, mixed), each with its mode, brightness and lamp groups. A camera
// answers [channel][profile][light]; a recorder answering for one channel
// sends [profile][light].
#include "common/fields/field_table.h"
#include "config/media/video_in/lamp_group.h"
#include "config/media/video_in/profiles.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/picture.h"

namespace kova {

constexpr Field kFilterType = KOVA_ITEM(char[KOVA_VIDEO_IN_TEXT], kText);
constexpr Field kLampGroup = KOVA_ITEM_NESTED(LightingLight);

constexpr Field kLightingV2LightFields[] = {
    KOVA_F(LightingV2Light, lightType, "LightType", kText)
        .Flag(KOVA_AT(LightingV2Light, lightTypePresent)),
    KOVA_F(LightingV2Light, mode, "Mode", kText).Flag(KOVA_AT(LightingV2Light, modePresent)),
    KOVA_F(LightingV2Light, state, "State", kText).Flag(KOVA_AT(LightingV2Light, statePresent)),
    KOVA_F(LightingV2Light, correction, "Correction", kInt)
        .Flag(KOVA_AT(LightingV2Light, correctionPresent)),
    KOVA_F(LightingV2Light, sensitive, "Sensitive", kInt)
        .Flag(KOVA_AT(LightingV2Light, sensitivePresent)),
    KOVA_F(LightingV2Light, percentOfMaxBrightness, "PercentOfMaxBrightness", kInt)
        .Flag(KOVA_AT(LightingV2Light, percentOfMaxBrightnessPresent)),
    KOVA_F(LightingV2Light, light, "Light", kInt).Flag(KOVA_AT(LightingV2Light, lightPresent)),
    KOVA_F(LightingV2Light, lightSwitchDelay, "LightSwitchDelay", kInt)
        .Flag(KOVA_AT(LightingV2Light, lightSwitchDelayPresent)),
    KOVA_F(LightingV2Light, aiMixLightSwitchDelay, "AIMixLightSwitchDelay", kInt)
        .Flag(KOVA_AT(LightingV2Light, aiMixLightSwitchDelayPresent)),
    KOVA_LIST(LightingV2Light, aiMixLightObjFilterTypes, "AIMixLightObjFilterTypes", kFilterType)
        .Count(KOVA_AT(LightingV2Light, aiMixLightObjFilterTypeCount), CountRule::kTaken)
        .Flag(KOVA_AT(LightingV2Light, aiMixLightObjFilterTypesPresent)),
    KOVA_LIST(LightingV2Light, nearLight, "NearLight", kLampGroup)
        .Count(KOVA_AT(LightingV2Light, nearLightCount), CountRule::kTaken)
        .Flag(KOVA_AT(LightingV2Light, nearLightPresent)),
    KOVA_LIST(LightingV2Light, middleLight, "MiddleLight", kLampGroup)
        .Count(KOVA_AT(LightingV2Light, middleLightCount), CountRule::kTaken)
        .Flag(KOVA_AT(LightingV2Light, middleLightPresent)),
    KOVA_LIST(LightingV2Light, farLight, "FarLight", kLampGroup)
        .Count(KOVA_AT(LightingV2Light, farLightCount), CountRule::kTaken)
        .Flag(KOVA_AT(LightingV2Light, farLightPresent)),
};

KOVA_DESCRIBE(LightingV2Light, kova::kLightingV2LightFields)

constexpr Field kLightingV2LightItem = KOVA_ITEM_NESTED(LightingV2Light);

// A profile is the array of its lights: a list entry that is itself a list.
constexpr Field kLightingV2Profile =
    KOVA_LIST(LightingV2Profile, lights, nullptr, kLightingV2LightItem)
        .Count(KOVA_AT(LightingV2Profile, lightCount), CountRule::kTaken);

constexpr Field kLightingV2Whole =
    KOVA_LIST(LightingV2Config, profiles, nullptr, kLightingV2Profile)
        .KeepSlots()
        .Count(KOVA_AT(LightingV2Config, profileCount), CountRule::kAll);

// The table lists channels only when a channel's profiles are themselves
// arrays: a recorder's one-channel answer is the profile list alone.
extern const ResponseFrame kLightingV2Frame =
    DescribedFrame<LightingV2Config, kLightingV2Whole>().NestedArrayRecords();

}  // namespace kova
