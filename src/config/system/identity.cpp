// "General" (the device's name and login policy) and "Language".
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/system.h"

namespace {

using kova::Field;

constexpr Field kGeneralFields[] = {
    KOVA_F(GeneralConfig, machineName, "MachineName", kText),
    KOVA_F(GeneralConfig, localNo, "LocalNo", kInt),
    KOVA_F(GeneralConfig, lockLoginEnable, "LockLoginEnable", kBool),
    KOVA_F(GeneralConfig, lockLoginTimes, "LockLoginTimes", kInt),
    KOVA_F(GeneralConfig, loginFailLockTime, "LoginFailLockTime", kInt),
    KOVA_F(GeneralConfig, maxOnlineTime, "MaxOnlineTime", kInt),
    KOVA_F(GeneralConfig, machineID, "MachineID", kText)
        .Flag(KOVA_AT(GeneralConfig, machineIDPresent)),
    KOVA_F(GeneralConfig, activationTime, "ActivationTime", kText)
        .Flag(KOVA_AT(GeneralConfig, activationTimePresent)),
    KOVA_F(GeneralConfig, checkDuration, "CheckDuration", kInt)
        .Flag(KOVA_AT(GeneralConfig, checkDurationPresent)),
};

// "table" is the language's name itself.
constexpr Field kLanguageText = KOVA_F(LanguageConfig, language, nullptr, kText);

}  // namespace

namespace kova {
KOVA_DESCRIBE(GeneralConfig, kGeneralFields)

extern const ResponseFrame kGeneralFrame =
    DescribedObject<GeneralConfig>::kFrame.Walk(RecordWalk::kOne);
extern const ResponseFrame kLanguageFrame =
    ResponseFrame::For<LanguageConfig>(ParseDescribed<kLanguageText>,
                                       DescribedPack<kLanguageText>())
        .Describe(kLanguageText);

}  // namespace kova
