// Face rules ("FaceDetection", "FaceRecognition") and the audio rule
// ("AudioAbnormalDetection").
#include "common/blocks/analyse_blocks.h"
#include "config/analyse/rule_config.h"
#include "kova/records/analyse_rules.h"

namespace kova {

namespace {

constexpr Field kFaceDetectionConfig[] = {
    KOVA_POINT_LIST(FaceDetectionRule, detectRegion, "DetectRegion"),
    KOVA_SIZE_FILTER(FaceDetectionRule),
    KOVA_F(FaceDetectionRule, minDuration, "MinDuration", kInt),
    KOVA_F(FaceDetectionRule, sensitivity, "Sensitivity", kInt),
    KOVA_F(FaceDetectionRule, reportInterval, "ReportInterval", kInt),
};

inline constexpr const char* kFaceModeNames[] = {"Normal", "Area", "Auto"};
inline constexpr EnumNames kFaceModes = EnumNames::Of(kFaceModeNames);
// "Eyebrow " ends in a blank: the devices' own name.
inline constexpr const char* kFaceAreaNames[] = {"Eyebrow ", "Eye", "Nose", "Mouth", "Cheek"};
inline constexpr EnumNames kFaceAreas = EnumNames::Of(kFaceAreaNames);
inline constexpr Field kFaceAreaItem = KOVA_ITEM(uint8_t, kEnum).Names(kFaceAreas);

constexpr Field kFaceRecognitionConfig[] = {
    KOVA_ENUM(FaceRecognitionRule, mode, "Mode", kFaceModes),
    KOVA_NAME_LIST(FaceRecognitionRule, areas, areaCount, "Areas", kFaceAreaItem),
    KOVA_F(FaceRecognitionRule, accuracy, "Accuracy", kInt),
};

constexpr Field kAudioAbnormalConfig[] = {
    KOVA_F(AudioAbnormalRule, frequency, "Frequency", kInt),
    KOVA_F(AudioAbnormalRule, minDuration, "MinDuration", kInt),
};

}  // namespace

const RuleTypeFor<FaceDetectionRule> kFaceDetectionRuleType(kFaceDetectionConfig);
const RuleTypeFor<FaceRecognitionRule> kFaceRecognitionRuleType(kFaceRecognitionConfig);
const RuleTypeFor<AudioAbnormalRule> kAudioAbnormalRuleType(kAudioAbnormalConfig);

}  // namespace kova
