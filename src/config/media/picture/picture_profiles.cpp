// The picture settings kept per profile beside colour and exposure: white
// balance, backlight and wide dynamic range, sharpness, noise reduction,
// infrared exposure and the sub stream's colour.
#include "common/fields/field_table.h"
#include "config/media/video_in/profiles.h"
#include "drivers/response_frame.h"
#include "kova/records/picture.h"

namespace kova {

constexpr Field kWhiteBalanceProfileFields[] = {
    KOVA_F(VideoInWhiteBalanceProfile, mode, "Mode", kText),
    KOVA_F(VideoInWhiteBalanceProfile, colorTemperatureLevel, "ColorTemperatureLevel", kInt)
        .Flag(KOVA_AT(VideoInWhiteBalanceProfile, colorTemperatureLevelPresent)),
    KOVA_F(VideoInWhiteBalanceProfile, gainRed, "GainRed", kInt),
    KOVA_F(VideoInWhiteBalanceProfile, gainGreen, "GainGreen", kInt),
    KOVA_F(VideoInWhiteBalanceProfile, gainBlue, "GainBlue", kInt),
    KOVA_TUPLE(VideoInWhiteBalanceProfile, manualDatumRect, "ManualDatumRect", int32_t, 4)
        .Flag(KOVA_AT(VideoInWhiteBalanceProfile, manualDatumRectPresent)),
    KOVA_F(VideoInWhiteBalanceProfile, name, "Name", kText)
        .Flag(KOVA_AT(VideoInWhiteBalanceProfile, namePresent)),
};

KOVA_DESCRIBE(VideoInWhiteBalanceProfile, kova::kWhiteBalanceProfileFields)

constexpr Field kBacklightProfileFields[] = {
    KOVA_F(VideoInBacklightProfile, mode, "Mode", kText),
    KOVA_F(VideoInBacklightProfile, backlightMode, "BacklightMode", kText)
        .Flag(KOVA_AT(VideoInBacklightProfile, backlightModePresent)),
    KOVA_F(VideoInBacklightProfile, intensityMode, "IntensityMode", kText)
        .Flag(KOVA_AT(VideoInBacklightProfile, intensityModePresent)),
    KOVA_TUPLE(VideoInBacklightProfile, backlightRegion, "BacklightRegion", int32_t, 4)
        .Flag(KOVA_AT(VideoInBacklightProfile, backlightRegionPresent)),
    KOVA_F(VideoInBacklightProfile, glareInhibition, "GlareInhibition", kInt),
    KOVA_F(VideoInBacklightProfile, intensity, "Intensity", kInt)
        .Flag(KOVA_AT(VideoInBacklightProfile, intensityPresent)),
    KOVA_F(VideoInBacklightProfile, wideDynamicRange, "WideDynamicRange", kInt),
    KOVA_F(VideoInBacklightProfile, name, "Name", kText)
        .Flag(KOVA_AT(VideoInBacklightProfile, namePresent)),
};

KOVA_DESCRIBE(VideoInBacklightProfile, kova::kBacklightProfileFields)

constexpr Field kSharpnessProfileFields[] = {
    KOVA_F(VideoInSharpnessProfile, level, "Level", kInt),
    KOVA_F(VideoInSharpnessProfile, mode, "Mode", kInt),
    KOVA_F(VideoInSharpnessProfile, sharpness, "Sharpness", kInt),
    KOVA_F(VideoInSharpnessProfile, name, "Name", kText)
        .Flag(KOVA_AT(VideoInSharpnessProfile, namePresent)),
};

KOVA_DESCRIBE(VideoInSharpnessProfile, kova::kSharpnessProfileFields)

constexpr Field kAutoType3DFields[] = {
    KOVA_F(VideoInDenoiseProfile, autoLevel3D, "AutoLevel", kInt),
};
constexpr Field kManulType3DFields[] = {
    KOVA_F(VideoInDenoiseProfile, snfLevel3D, "SnfLevel", kInt),
    KOVA_F(VideoInDenoiseProfile, tnfLevel3D, "TnfLevel", kInt),
};
constexpr Field kAlgorithm1Fields[] = {
    KOVA_F(VideoInDenoiseProfile, algorithm1SnfLevel, "SnfLevel", kInt),
    KOVA_F(VideoInDenoiseProfile, algorithm1TnfLevel, "TnfLevel", kInt),
    KOVA_F(VideoInDenoiseProfile, algorithm1Type, "Type", kInt),
};
constexpr FieldTable kAutoType3D = KOVA_TABLE(kAutoType3DFields);
constexpr FieldTable kManulType3D = KOVA_TABLE(kManulType3DFields);
constexpr FieldTable kAlgorithm1 = KOVA_TABLE(kAlgorithm1Fields);

constexpr Field kDenoiseProfileFields[] = {
    KOVA_F(VideoInDenoiseProfile, enable2D, "2DEnable", kBool),
    KOVA_F(VideoInDenoiseProfile, level2D, "2DLevel", kInt),
    KOVA_F(VideoInDenoiseProfile, type3D, "3DType", kText),
    KOVA_GROUP(VideoInDenoiseProfile, "3DAutoType", kAutoType3D)
        .Flag(KOVA_AT(VideoInDenoiseProfile, autoType3DPresent)),
    KOVA_GROUP(VideoInDenoiseProfile, "3DManulType", kManulType3D)
        .Flag(KOVA_AT(VideoInDenoiseProfile, manulType3DPresent)),
    KOVA_GROUP(VideoInDenoiseProfile, "DenoiseAlgorithm1", kAlgorithm1)
        .Flag(KOVA_AT(VideoInDenoiseProfile, algorithm1Present)),
    KOVA_F(VideoInDenoiseProfile, name, "Name", kText)
        .Flag(KOVA_AT(VideoInDenoiseProfile, namePresent)),
};

KOVA_DESCRIBE(VideoInDenoiseProfile, kova::kDenoiseProfileFields)

constexpr Field kIRExposureProfileFields[] = {
    KOVA_F(VideoInIRExposureProfile, smartIRExposure, "SmartIRExposure", kBool),
    KOVA_F(VideoInIRExposureProfile, name, "Name", kText)
        .Flag(KOVA_AT(VideoInIRExposureProfile, namePresent)),
};

KOVA_DESCRIBE(VideoInIRExposureProfile, kova::kIRExposureProfileFields)

constexpr Field kSubColorProfileFields[] = {
    KOVA_F(VideoSubColorProfile, adapt, "Adapt", kText),
    KOVA_F(VideoSubColorProfile, name, "Name", kText)
        .Flag(KOVA_AT(VideoSubColorProfile, namePresent)),
};

KOVA_DESCRIBE(VideoSubColorProfile, kova::kSubColorProfileFields)

extern const ResponseFrame kVideoInWhiteBalanceFrame =
    ProfileRecord<VideoInWhiteBalanceConfig>::kFrame;
extern const ResponseFrame kVideoInBacklightFrame = ProfileRecord<VideoInBacklightConfig>::kFrame;
extern const ResponseFrame kVideoInSharpnessFrame = ProfileRecord<VideoInSharpnessConfig>::kFrame;
extern const ResponseFrame kVideoInDenoiseFrame = ProfileRecord<VideoInDenoiseConfig>::kFrame;
extern const ResponseFrame kVideoInIRExposureFrame = ProfileRecord<VideoInIRExposureConfig>::kFrame;
extern const ResponseFrame kVideoSubColorFrame = ProfileRecord<VideoSubColorConfig>::kFrame;

}  // namespace kova
