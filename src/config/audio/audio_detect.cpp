// "AudioDetect": sound alarms of each channel (unusual sound, sudden change,
// level above a gate) with their linkage block and a warning light flashed
// with the alarm.
#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/audio.h"

namespace {

using kova::Field;

constexpr Field kLightingLinkFields[] = {
    KOVA_F(AudioLightingLink, enable, "Enable", kBool),
    KOVA_F(AudioLightingLink, filckerIntevalTime, "FilckerIntevalTime", kInt),
    KOVA_F(AudioLightingLink, filckerLightType, "FilckerLightType", kText),
    KOVA_F(AudioLightingLink, filckerTimes, "FilckerTimes", kInt),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(AudioLightingLink, kLightingLinkFields)
}  // namespace kova

namespace {

using kova::Field;

// The light sits inside "EventHandler" on the device, beside the members the
// linkage block reads; the record keeps it apart so the block's layout stays
// the one every alarm shares.
constexpr Field kInsideHandler[] = {
    KOVA_NESTED(AudioDetectConfig, lightingLink, "LightingLink")
        .Flag(KOVA_AT(AudioDetectConfig, lightingLinkPresent)),
};
constexpr kova::FieldTable kInsideHandlerTable = KOVA_TABLE(kInsideHandler);

constexpr Field kAudioDetectFields[] = {
    KOVA_F(AudioDetectConfig, enable, "Enable", kBool),
    KOVA_F(AudioDetectConfig, anomalyDetect, "AnomalyDetect", kBool),
    KOVA_F(AudioDetectConfig, anomalySensitive, "AnomalySensitive", kInt),
    KOVA_F(AudioDetectConfig, mutationDetect, "MutationDetect", kBool),
    KOVA_F(AudioDetectConfig, mutationThreold, "MutationThreold", kInt),
    KOVA_F(AudioDetectConfig, intensityDetect, "IntensityDetect", kBool),
    KOVA_F(AudioDetectConfig, intensityDecibelGate, "IntensityDecibelGate", kInt),
    KOVA_F(AudioDetectConfig, minVolume, "MinVolume", kInt),
    KOVA_F(AudioDetectConfig, maxVolume, "MaxVolume", kInt),
    KOVA_LINKAGE(AudioDetectConfig, eventHandler)
        .Week(KOVA_SCHEDULE_AT(AudioDetectConfig, week))
        .Extra(kInsideHandlerTable)
        .AlwaysRead(),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(AudioDetectConfig, kAudioDetectFields)

extern const ResponseFrame kAudioDetectFrame = DescribedObject<AudioDetectConfig>::kFrame;

}  // namespace kova
