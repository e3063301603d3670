// "VideoImageControl": flip, mirror, rotation, freeze and stabilisation of
// a channel's picture, and "LightGlobal", the illuminators' master switch:
// one object per channel each.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/picture.h"

namespace kova {

constexpr Field kVideoImageControlFields[] = {
    KOVA_F(VideoImageControlConfig, flip, "Flip", kBool),
    KOVA_F(VideoImageControlConfig, mirror, "Mirror", kBool),
    KOVA_F(VideoImageControlConfig, freeze, "Freeze", kBool)
        .Flag(KOVA_AT(VideoImageControlConfig, freezePresent)),
    KOVA_F(VideoImageControlConfig, rotate90, "Rotate90", kInt),
    KOVA_F(VideoImageControlConfig, stable, "Stable", kInt)
        .Flag(KOVA_AT(VideoImageControlConfig, stablePresent)),
    KOVA_F(VideoImageControlConfig, horizontalFlip, "HorizontalFlip", kBool)
        .Flag(KOVA_AT(VideoImageControlConfig, horizontalFlipPresent)),
    KOVA_F(VideoImageControlConfig, verticalFlip, "VerticalFlip", kBool)
        .Flag(KOVA_AT(VideoImageControlConfig, verticalFlipPresent)),
    KOVA_F(VideoImageControlConfig, flipMode, "FlipMode", kText)
        .Flag(KOVA_AT(VideoImageControlConfig, flipModePresent)),
};

KOVA_DESCRIBE(VideoImageControlConfig, kova::kVideoImageControlFields)

extern const ResponseFrame kVideoImageControlFrame =
    DescribedObject<VideoImageControlConfig>::kFrame;

constexpr Field kLightGlobalFields[] = {
    KOVA_F(LightGlobalConfig, enable, "Enable", kBool),
    KOVA_F(LightGlobalConfig, brightness, "Brightness", kInt),
};

KOVA_DESCRIBE(LightGlobalConfig, kova::kLightGlobalFields)

extern const ResponseFrame kLightGlobalFrame = DescribedObject<LightGlobalConfig>::kFrame;

}  // namespace kova
