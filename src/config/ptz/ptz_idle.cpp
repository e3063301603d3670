// "IdleMotion" and "PowerUp": what a channel's head does after a time
// without control, and when it powers up.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/ptz_motion.h"

namespace kova {

constexpr Field kIdleMotionFields[] = {
    KOVA_F(IdleMotionConfig, enable, "Enable", kBool),
    KOVA_F(IdleMotionConfig, function, "Function", kText),
    KOVA_F(IdleMotionConfig, presetId, "PresetId", kInt),
    KOVA_F(IdleMotionConfig, tourId, "TourId", kInt),
    KOVA_F(IdleMotionConfig, scanTourId, "ScanTourId", kInt)
        .Flag(KOVA_AT(IdleMotionConfig, scanTourIdPresent)),
    KOVA_F(IdleMotionConfig, scanId, "ScanId", kInt),
    KOVA_F(IdleMotionConfig, patternId, "PatternId", kInt),
    KOVA_F(IdleMotionConfig, timer, "Timer", kInt),
};
KOVA_DESCRIBE(IdleMotionConfig, kIdleMotionFields)

extern const ResponseFrame kIdleMotionFrame = DescribedObject<IdleMotionConfig>::kFrame;

namespace {

constexpr const char* kPowerUpFunctionNames[] = {"Auto",     "Preset", "Tour",
                                                 "ScanTour", "Scan",   "Pattern"};
// No room for text in the record: an unknown name is -1, left out on pack.
constexpr EnumNames kPowerUpFunctions =
    EnumNames::Of(kPowerUpFunctionNames).UnknownAs(-1).OmitUnnamed();

constexpr Field kPowerUpFields[] = {
    KOVA_F(PowerUpConfig, enable, "Enable", kBool),
    KOVA_ENUM(PowerUpConfig, function, "Function", kPowerUpFunctions).AlwaysRead(),
    KOVA_F(PowerUpConfig, presetId, "PresetId", kInt),
    KOVA_F(PowerUpConfig, tourId, "TourId", kInt),
    KOVA_F(PowerUpConfig, scanId, "ScanId", kInt),
    KOVA_F(PowerUpConfig, patternId, "PatternId", kInt),
};
constexpr FieldTable kPowerUp = KOVA_TABLE(kPowerUpFields);

}  // namespace

// A fixed 24-byte record served by the table drivers: an array of channels
// or one channel's object.
extern const ResponseFrame kPowerUpFrame =
    DriverFrame<PowerUpConfig>(ParseTableStep<kPowerUp>, TablePack<kPowerUp>(),
                               {0, true, true, true})
        .Describe(WholeTable<PowerUpConfig, kPowerUp>::kField);

}  // namespace kova
