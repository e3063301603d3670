// "VideoInDefog": optical and electronic defog of each of a channel's
// profiles.
#include "common/fields/field_table.h"
#include "config/media/video_in/profiles.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {

constexpr Field kDefogProfileFields[] = {
    KOVA_F(VideoInDefogProfile, camDefogEnable, "CamDefogEnable", kBool)
        .Flag(KOVA_AT(VideoInDefogProfile, camDefogEnablePresent)),
    KOVA_F(VideoInDefogProfile, intensity, "Intensity", kInt),
    KOVA_F(VideoInDefogProfile, lightIntensityLevel, "LightIntensityLevel", kInt)
        .Flag(KOVA_AT(VideoInDefogProfile, lightIntensityLevelPresent)),
    KOVA_F(VideoInDefogProfile, mode, "Mode", kText),
    KOVA_F(VideoInDefogProfile, lightIntensityMode, "LightIntensityMode", kText)
        .Flag(KOVA_AT(VideoInDefogProfile, lightIntensityModePresent)),
    KOVA_F(VideoInDefogProfile, name, "Name", kText)
        .Flag(KOVA_AT(VideoInDefogProfile, namePresent)),
};

KOVA_DESCRIBE(VideoInDefogProfile, kova::kDefogProfileFields)

extern const ResponseFrame kVideoInDefogFrame = ProfileRecord<VideoInDefogConfig>::kFrame;

}  // namespace kova
