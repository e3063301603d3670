// "SmartMotionDetect": motion detection that reports only the object types
// chosen (people, vehicles), per channel.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/picture.h"

namespace kova {

constexpr Field kObjectTypeFields[] = {
    KOVA_F(SmartMotionDetectConfig, human, "Human", kBool),
    KOVA_F(SmartMotionDetectConfig, vehicle, "Vehicle", kBool),
};
constexpr FieldTable kObjectTypes = KOVA_TABLE(kObjectTypeFields);

constexpr Field kSmartMotionDetectFields[] = {
    KOVA_F(SmartMotionDetectConfig, enable, "Enable", kBool),
    KOVA_GROUP(SmartMotionDetectConfig, "ObjectTypes", kObjectTypes),
    KOVA_F(SmartMotionDetectConfig, sensitivity, "Sensitivity", kText),
};

KOVA_DESCRIBE(SmartMotionDetectConfig, kova::kSmartMotionDetectFields)

extern const ResponseFrame kSmartMotionDetectFrame =
    DescribedObject<SmartMotionDetectConfig>::kFrame;

}  // namespace kova
