// "VideoInOptions": a channel's front-end settings (exposure, gain, iris,
// white balance, day/night, backlight, wide dynamic range, orientation,
// infrared, focus, signal), the same members again for the night, normal
// and dusk periods, and the flash lamp.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

// Every option member has a flag named after it: devices send different subsets.
#define KOVA_OPTION(member, key, KIND) \
  KOVA_F(VideoInOptionSet, member, key, KIND).Flag(KOVA_AT(VideoInOptionSet, member##Present))
#define KOVA_OPTION_RECT(member, key)                   \
  KOVA_TUPLE(VideoInOptionSet, member, key, int32_t, 4) \
      .Flag(KOVA_AT(VideoInOptionSet, member##Present))

// The same for the snapshot and temporary blocks.
#define KOVA_SNAPSHOT(member, key, KIND)            \
  KOVA_F(VideoInSnapshotOptions, member, key, KIND) \
      .Flag(KOVA_AT(VideoInSnapshotOptions, member##Present))
#define KOVA_TEMPORARY(member, key, KIND)            \
  KOVA_F(VideoInTemporaryOptions, member, key, KIND) \
      .Flag(KOVA_AT(VideoInTemporaryOptions, member##Present))

namespace kova {

constexpr Field kSnapshotOptionFields[] = {
    KOVA_SNAPSHOT(exposureSpeed, "ExposureSpeed", kInt),
    KOVA_SNAPSHOT(exposureValue1, "ExposureValue1", kReal),
    KOVA_SNAPSHOT(exposureValue2, "ExposureValue2", kReal),
    KOVA_SNAPSHOT(gain, "Gain", kInt),
    KOVA_SNAPSHOT(gainAuto, "GainAuto", kBool),
    KOVA_SNAPSHOT(gainRed, "GainRed", kInt),
    KOVA_SNAPSHOT(gainGreen, "GainGreen", kInt),
    KOVA_SNAPSHOT(gainBlue, "GainBlue", kInt),
    KOVA_SNAPSHOT(colorTemperatureLevel, "ColorTemperatureLevel", kInt),
    KOVA_SNAPSHOT(whiteBalance, "WhiteBalance", kText),
};

constexpr Field kTemporaryOptionFields[] = {
    KOVA_TEMPORARY(antiFlicker, "AntiFlicker", kInt),
    KOVA_TEMPORARY(exposureMode, "ExposureMode", kInt),
    KOVA_TEMPORARY(exposureValue1, "ExposureValue1", kReal),
    KOVA_TEMPORARY(exposureValue2, "ExposureValue2", kReal),
    KOVA_TEMPORARY(gainMin, "GainMin", kInt),
    KOVA_TEMPORARY(gainMax, "GainMax", kInt),
};

}  // namespace kova

#undef KOVA_SNAPSHOT
#undef KOVA_TEMPORARY

namespace kova {
KOVA_DESCRIBE(VideoInSnapshotOptions, kova::kSnapshotOptionFields)
KOVA_DESCRIBE(VideoInTemporaryOptions, kova::kTemporaryOptionFields)

constexpr Field kOptionSetFields[] = {
    KOVA_OPTION(brightness, "Brightness", kInt),
    KOVA_OPTION(contrast, "Contrast", kInt),
    KOVA_OPTION(saturation, "Saturation", kInt),
    KOVA_OPTION(hue, "Hue", kInt),
    KOVA_OPTION(gamma, "Gamma", kInt),
    KOVA_OPTION(exposureMode, "ExposureMode", kInt),
    KOVA_OPTION(exposureSpeed, "ExposureSpeed", kInt),
    KOVA_OPTION(exposureCompensation, "ExposureCompensation", kInt),
    KOVA_OPTION(exposureValue1, "ExposureValue1", kReal),
    KOVA_OPTION(exposureValue2, "ExposureValue2", kReal),
    KOVA_OPTION(exposureIris, "ExposureIris", kInt),
    KOVA_OPTION(gain, "Gain", kInt),
    KOVA_OPTION(gainAuto, "GainAuto", kBool),
    KOVA_OPTION(gainMin, "GainMin", kInt),
    KOVA_OPTION(gainMax, "GainMax", kInt),
    KOVA_OPTION(gainRed, "GainRed", kInt),
    KOVA_OPTION(gainGreen, "GainGreen", kInt),
    KOVA_OPTION(gainBlue, "GainBlue", kInt),
    KOVA_OPTION(irisAuto, "IrisAuto", kBool),
    KOVA_OPTION(irisAutoSensitivity, "IrisAutoSensitivity", kInt),
    KOVA_OPTION(whiteBalance, "WhiteBalance", kText),
    KOVA_OPTION_RECT(whiteBalanceDatumRect, "WhiteBalanceDatumRect"),
    KOVA_OPTION(colorTemperatureLevel, "ColorTemperatureLevel", kInt),
    KOVA_OPTION(dayNightColor, "DayNightColor", kInt),
    KOVA_OPTION(dayNightSensitivity, "DayNightSensitivity", kInt),
    KOVA_OPTION(dayNightSwitchDelay, "DayNightSwitchDelay", kInt),
    KOVA_OPTION(alarmDayNightColorMode, "AlarmDayNightColorMode", kInt),
    KOVA_OPTION(switchMode, "SwitchMode", kInt),
    KOVA_OPTION(sunriseHour, "SunriseHour", kInt),
    KOVA_OPTION(sunriseMinute, "SunriseMinute", kInt),
    KOVA_OPTION(sunriseSecond, "SunriseSecond", kInt),
    KOVA_OPTION(sunsetHour, "SunsetHour", kInt),
    KOVA_OPTION(sunsetMinute, "SunsetMinute", kInt),
    KOVA_OPTION(sunsetSecond, "SunsetSecond", kInt),
    KOVA_OPTION(backlight, "Backlight", kInt),
    KOVA_OPTION_RECT(backlightRegion, "BacklightRegion"),
    KOVA_OPTION(wideDynamicRange, "WideDynamicRange", kInt),
    KOVA_OPTION(wideDynamicRangeMode, "WideDynamicRangeMode", kInt),
    KOVA_OPTION(glareInhibition, "GlareInhibition", kInt),
    KOVA_OPTION(antiFlicker, "AntiFlicker", kInt),
    KOVA_OPTION(doubleExposure, "DoubleExposure", kInt),
    KOVA_OPTION(mirror, "Mirror", kBool),
    KOVA_OPTION(flip, "Flip", kBool),
    KOVA_OPTION(rotate90, "Rotate90", kInt),
    KOVA_OPTION(infraRed, "InfraRed", kBool),
    KOVA_OPTION(infraRedLevel, "InfraRedLevel", kInt),
    KOVA_OPTION(focusMode, "FocusMode", kInt),
    KOVA_OPTION_RECT(focusRect, "FocusRect"),
    KOVA_OPTION(signalFormat, "SignalFormat", kText),
    KOVA_OPTION(referenceLevel, "ReferenceLevel", kInt),
    KOVA_OPTION(referenceLevelEnable, "ReferenceLevelEnable", kBool),
    KOVA_OPTION(externalSync, "ExternalSync", kInt),
    KOVA_OPTION(externalSyncPhase, "ExternalSyncPhase", kInt),
    KOVA_OPTION(profile, "Profile", kInt),
    KOVA_OPTION(brightnessThreshold, "BrightnessThreshold", kInt),
    KOVA_NESTED(VideoInOptionSet, snapshot, "Snapshot")
        .Flag(KOVA_AT(VideoInOptionSet, snapshotPresent)),
    KOVA_NESTED(VideoInOptionSet, temporaryConfigs, "TemporaryConfigs")
        .Flag(KOVA_AT(VideoInOptionSet, temporaryConfigsPresent)),
};

constexpr Field kFlashControlFields[] = {
    KOVA_F(VideoInFlashControl, mode, "Mode", kInt),
    KOVA_F(VideoInFlashControl, pole, "Pole", kInt),
    KOVA_F(VideoInFlashControl, preValue, "PreValue", kInt),
    KOVA_F(VideoInFlashControl, value, "Value", kInt),
};

}  // namespace kova

#undef KOVA_OPTION
#undef KOVA_OPTION_RECT

namespace kova {
KOVA_DESCRIBE(VideoInOptionSet, kova::kOptionSetFields)
KOVA_DESCRIBE(VideoInFlashControl, kova::kFlashControlFields)

namespace {

// The channel's own option members sit in its object beside the nested
// period blocks, not under a key of their own: intended.
void ParseOwnOptions(const Json::Value& obj, unsigned char* record, const Field& f) {
  ParseFields(obj, record + f.offset, Description<VideoInOptionSet>::table);
}

void PackOwnOptions(const unsigned char* record, Json::Value& obj, const Field& f) {
  PackFields(record + f.offset, obj, Description<VideoInOptionSet>::table);
}

}  // namespace

constexpr Field kOptionsFields[] = {
    KOVA_CUSTOM(VideoInOptionsConfig, options, nullptr, ParseOwnOptions, PackOwnOptions),
    KOVA_NESTED(VideoInOptionsConfig, nightOptions, "NightOptions")
        .Flag(KOVA_AT(VideoInOptionsConfig, nightOptionsPresent)),
    KOVA_NESTED(VideoInOptionsConfig, normalOptions, "NormalOptions")
        .Flag(KOVA_AT(VideoInOptionsConfig, normalOptionsPresent)),
    KOVA_NESTED(VideoInOptionsConfig, duskOptions, "DuskOptions")
        .Flag(KOVA_AT(VideoInOptionsConfig, duskOptionsPresent)),
    KOVA_NESTED(VideoInOptionsConfig, flashControl, "FlashControl")
        .Flag(KOVA_AT(VideoInOptionsConfig, flashControlPresent)),
    KOVA_F(VideoInOptionsConfig, autoSyncPhase, "AutoSyncPhase", kBool)
        .Flag(KOVA_AT(VideoInOptionsConfig, autoSyncPhasePresent)),
};

KOVA_DESCRIBE(VideoInOptionsConfig, kova::kOptionsFields)

extern const ResponseFrame kVideoInOptionsFrame = DescribedObject<VideoInOptionsConfig>::kFrame;

}  // namespace kova
