// The system events with a linkage block: "StorageNotExist",
// "StorageFailure", "NetAbort", "IPConflict" (enable only) and
// "StorageLowSpace" (with its free-space limit). Their linkage block keeps
// its own schedule; there is no separate week grid.
#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "config/alarm/alarm_sources.h"
#include "config/alarm/translators.h"

namespace kova {

namespace {

constexpr Field kEventFields[] = {
    KOVA_F(SystemEventRecord, enable, "Enable", kBool),
    KOVA_LINKAGE(SystemEventRecord, eventHandler).AlwaysRead(),
};
constexpr FieldTable kEventTable = KOVA_TABLE(kEventFields);
constexpr ResponseFrame kEventFrame = AlarmSourceFrame<SystemEventRecord, kEventTable>();

constexpr Field kLowSpaceFields[] = {
    KOVA_F(StorageLowSpaceRecord, enable, "Enable", kBool),
    KOVA_F(StorageLowSpaceRecord, lowerLimit, "LowerLimit", kInt),
    KOVA_LINKAGE(StorageLowSpaceRecord, eventHandler).AlwaysRead(),
};
constexpr FieldTable kLowSpaceTable = KOVA_TABLE(kLowSpaceFields);
constexpr ResponseFrame kLowSpaceFrame = AlarmSourceFrame<StorageLowSpaceRecord, kLowSpaceTable>();

}  // namespace

KOVA_FRAME_TRANSLATORS(SystemEvent, kEventFrame)

KOVA_FRAME_TRANSLATORS(StorageLowSpace, kLowSpaceFrame)

}  // namespace kova
