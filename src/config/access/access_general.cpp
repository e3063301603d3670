// "AccessControlGeneral": the settings shared by all doors of an access
// controller (prompt sounds, unlock intervals, project password, door
// direction and the anti-passback door groups).
#include <cstdint>

#include "common/fields/field_table.h"
#include "drivers/response_frame.h"
#include "kova/records/access.h"

namespace kova {

namespace {

using R = AccessGeneralRecord;

constexpr const char* kAccessPropertyNames[] = {"bidirect", "unidirect"};
// An unknown direction reads as 0 and is then left out on pack.
constexpr EnumNames kAccessProperty =
    EnumNames::Of(kAccessPropertyNames).FirstValue(1).UnknownAs(0).OmitUnnamed();

// The members of "Sound", fields of the record itself.
constexpr Field kSoundFields[] = {
    KOVA_F(R, openDoorSound, "OpenDoor", kText),   KOVA_F(R, closeDoorSound, "CloseDoor", kText),
    KOVA_F(R, inUsedSound, "InUsed", kText),       KOVA_F(R, notInUsedSound, "NotInUsed", kText),
    KOVA_F(R, notClosedSound, "NotClosed", kText), KOVA_F(R, waitingSound, "Waiting", kText),
};
constexpr FieldTable kSound = KOVA_TABLE(kSoundFields);

// "ABLock"."Doors": up to 8 groups of up to 4 door numbers. A group that is
// not an array keeps what the record held; a door that is not a number
// reads as 0.
constexpr Field kDoor = KOVA_ITEM(int32_t, kInt).AlwaysRead();
constexpr Field kDoorGroup = KOVA_LIST(ABLockGroup, doors, nullptr, kDoor)
                                 .Count(KOVA_AT(ABLockGroup, doorCount), CountRule::kAll)
                                 .KeepSlots();
constexpr Field kABLockFields[] = {
    KOVA_F(R, abLockEnable, "Enable", kBool),
    KOVA_LIST(R, abLockGroups, "Doors", kDoorGroup)
        .Count(KOVA_AT(R, abLockGroupCount), CountRule::kAll)
        .KeepSlots(),
};
constexpr FieldTable kABLock = KOVA_TABLE(kABLockFields);

// The record is not cleared: members the device leaves out keep the
// caller's values, except the presence flags, written both ways.
constexpr Field kFields[] = {
    KOVA_GROUP(R, "Sound", kSound),
    KOVA_F(R, unlockReloadInterval, "UnlockReloadInterval", kInt),
    KOVA_F(R, unlockHoldInterval, "UnlockHoldInterval", kInt),
    KOVA_F(R, projectPassword, "ProjectPassword", kText)
        .Flag(KOVA_AT(R, projectPasswordPresent))
        .ClearsFlag(),
    KOVA_ENUM(R, accessProperty, "AccessProperty", kAccessProperty)
        .Flag(KOVA_AT(R, accessPropertyPresent))
        .ClearsFlag()
        .MissingAs(0),
    // Given with any type, it counts as given.
    KOVA_GROUP(R, "ABLock", kABLock).Flag(KOVA_AT(R, abLockPresent)).ClearsFlag().AnyType(),
};
constexpr FieldTable kTable = KOVA_TABLE(kFields);

// "result" must be true; a null table succeeds untouched with a length of
// 0; the packed text is copied only when its NUL fits too.

}  // namespace

extern const ResponseFrame kAccessControlGeneralFrame =
    TableFrame<R, kTable>().Clear(Clearing::kNone);

}  // namespace kova
