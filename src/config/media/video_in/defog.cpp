// "VideoInDefog": optical and electronic defog of each of a channel's
// profiles.
#include "common/fields/field_table.h"
#include "config/media/translators.h"
#include "config/media/video_in/profiles.h"
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
};

}  // namespace kova

KOVA_DESCRIBE(VideoInDefogProfile, kova::kDefogProfileFields)

namespace kova {

int ParseVideoInDefog(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseWithFrame(ProfileRecord<VideoInDefogConfig>::kFrame, jsonText, outBuf, outLen,
                        retLen);
}

int PackVideoInDefog(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackWithFrame(ProfileRecord<VideoInDefogConfig>::kFrame, inBuf, inLen, outJson, outLen);
}

}  // namespace kova
