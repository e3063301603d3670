// The system events with a linkage block: "StorageNotExist",
// "StorageFailure", "NetAbort", "IPConflict" (enable only) and
// "StorageLowSpace" (with its free-space limit). Their linkage block keeps
// its own schedule; there is no separate week grid.
#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "config/alarm/alarm_sources.h"
#include "drivers/response_frame.h"
#include "kova/records/alarm.h"

namespace kova {

namespace {

constexpr Field kEventFields[] = {
    KOVA_F(SystemEventRecord, enable, "Enable", kBool),
    KOVA_LINKAGE(SystemEventRecord, eventHandler).AlwaysRead(),
};
constexpr FieldTable kEventTable = KOVA_TABLE(kEventFields);

constexpr Field kLowSpaceFields[] = {
    KOVA_F(StorageLowSpaceRecord, enable, "Enable", kBool),
    KOVA_F(StorageLowSpaceRecord, lowerLimit, "LowerLimit", kInt),
    KOVA_LINKAGE(StorageLowSpaceRecord, eventHandler).AlwaysRead(),
};
constexpr FieldTable kLowSpaceTable = KOVA_TABLE(kLowSpaceFields);

}  // namespace

extern const ResponseFrame kSystemEventFrame = AlarmSourceFrame<SystemEventRecord, kEventTable>();

extern const ResponseFrame kStorageLowSpaceFrame =
    AlarmSourceFrame<StorageLowSpaceRecord, kLowSpaceTable>();

}  // namespace kova
