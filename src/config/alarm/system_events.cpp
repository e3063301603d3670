// The system events with a linkage block: "StorageNotExist",
// "StorageFailure", "NetAbort", "IPConflict" (enable only) and
// "StorageLowSpace" (with its free-space limit). Their linkage block keeps
// its own schedule; there is no separate week grid.
#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/alarm/alarm_frame.h"
#include "config/alarm/translators.h"

namespace kova {

namespace {

const Field kEventFields[] = {
    KOVA_F(SystemEventRecord, enable, "Enable", kBool),
};

const Field kLowSpaceFields[] = {
    KOVA_F(StorageLowSpaceRecord, enable, "Enable", kBool),
    KOVA_F(StorageLowSpaceRecord, lowerLimit, "LowerLimit", kInt),
};

}  // namespace

int ParseSystemEvent(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseAlarmRecord<SystemEventRecord>(jsonText, outBuf, outLen, retLen, TableRule::kReadNull,
                                             FillFields<SystemEventRecord, 1, kEventFields>);
}

int PackSystemEvent(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackAlarmRecord<SystemEventRecord>(inBuf, inLen, outJson, outLen,
                                            WriteFields<SystemEventRecord, 1, kEventFields>);
}

int ParseStorageLowSpace(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseAlarmRecord<StorageLowSpaceRecord>(jsonText, outBuf, outLen, retLen,
                                                 TableRule::kReadNull,
                                                 FillFields<StorageLowSpaceRecord, 2, kLowSpaceFields>);
}

int PackStorageLowSpace(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackAlarmRecord<StorageLowSpaceRecord>(inBuf, inLen, outJson, outLen,
                                                WriteFields<StorageLowSpaceRecord, 2, kLowSpaceFields>);
}

}  // namespace kova
