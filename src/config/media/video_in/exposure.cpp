// "VideoInExposure": exposure mode, gain, iris and shutter of each of a
// channel's profiles.
#include "common/fields/field_table.h"
#include "config/media/video_in/profiles.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {

constexpr Field kExposureProfileFields[] = {
    KOVA_F(VideoInExposureProfile, mode, "Mode", kInt),
    KOVA_F(VideoInExposureProfile, antiFlicker, "AntiFlicker", kInt),
    KOVA_F(VideoInExposureProfile, compensation, "Compensation", kInt),
    KOVA_F(VideoInExposureProfile, doubleExposure, "DoubleExposure", kInt)
        .Flag(KOVA_AT(VideoInExposureProfile, doubleExposurePresent)),
    KOVA_F(VideoInExposureProfile, gain, "Gain", kInt),
    KOVA_F(VideoInExposureProfile, gainMin, "GainMin", kInt)
        .Flag(KOVA_AT(VideoInExposureProfile, gainMinPresent)),
    KOVA_F(VideoInExposureProfile, gainMax, "GainMax", kInt)
        .Flag(KOVA_AT(VideoInExposureProfile, gainMaxPresent)),
    KOVA_F(VideoInExposureProfile, iris, "Iris", kInt),
    KOVA_F(VideoInExposureProfile, irisMin, "IrisMin", kInt)
        .Flag(KOVA_AT(VideoInExposureProfile, irisMinPresent)),
    KOVA_F(VideoInExposureProfile, irisMax, "IrisMax", kInt)
        .Flag(KOVA_AT(VideoInExposureProfile, irisMaxPresent)),
    KOVA_F(VideoInExposureProfile, recoveryTime, "RecoveryTime", kInt)
        .Flag(KOVA_AT(VideoInExposureProfile, recoveryTimePresent)),
    KOVA_F(VideoInExposureProfile, slowAutoExposure, "SlowAutoExposure", kInt)
        .Flag(KOVA_AT(VideoInExposureProfile, slowAutoExposurePresent)),
    KOVA_F(VideoInExposureProfile, slowSpeed, "SlowSpeed", kInt)
        .Flag(KOVA_AT(VideoInExposureProfile, slowSpeedPresent)),
    KOVA_F(VideoInExposureProfile, speed, "Speed", kInt)
        .Flag(KOVA_AT(VideoInExposureProfile, speedPresent)),
    KOVA_F(VideoInExposureProfile, irisAuto, "IrisAuto", kBool),
    KOVA_F(VideoInExposureProfile, slowShutter, "SlowShutter", kBool)
        .Flag(KOVA_AT(VideoInExposureProfile, slowShutterPresent)),
    KOVA_F(VideoInExposureProfile, value1, "Value1", kReal),
    KOVA_F(VideoInExposureProfile, value2, "Value2", kReal),
    KOVA_F(VideoInExposureProfile, name, "Name", kText)
        .Flag(KOVA_AT(VideoInExposureProfile, namePresent)),
};

KOVA_DESCRIBE(VideoInExposureProfile, kova::kExposureProfileFields)

extern const ResponseFrame kVideoInExposureFrame = ProfileRecord<VideoInExposureConfig>::kFrame;

}  // namespace kova
