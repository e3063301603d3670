// "NetAlarm": one network alarm input.
#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "config/alarm/alarm_enums.h"
#include "config/alarm/alarm_sources.h"
#include "drivers/response_frame.h"
#include "kova/records/alarm.h"

namespace kova {

namespace {

using R = NetAlarmRecord;

constexpr Field kFields[] = {
    KOVA_F(R, enable, "Enable", kBool),
    KOVA_F(R, name, "Name", kText),
    KOVA_ENUM(R, sensorType, "SensorType", kSensorTypeNames).UnnamedAs(Unnamed::kUnknownName),
    KOVA_LINKAGE(R, eventHandler).Week(KOVA_SCHEDULE_AT(R, week)).AlwaysRead(),
};
constexpr FieldTable kTable = KOVA_TABLE(kFields);

// Unlike the other alarm sources, a network input without a table fails.

}  // namespace

extern const ResponseFrame kNetAlarmFrame =
    AlarmSourceFrame<R, kTable>().OnNullTable(NullTable::kFail);

}  // namespace kova
