// "Alarm": one local alarm input (contact type, detector kind, zone type,
// arming control and the linkage block).
#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "config/alarm/alarm_enums.h"
#include "config/alarm/alarm_sources.h"
#include "drivers/response_frame.h"
#include "kova/records/alarm.h"

namespace kova {

namespace {

using R = AlarmInRecord;

constexpr Field kFields[] = {
    KOVA_F(R, enable, "Enable", kBool),
    KOVA_F(R, name, "Name", kText),
    KOVA_ENUM(R, sensorType, "SensorType", kSensorTypeNames).UnnamedAs(Unnamed::kUnknownName),
    KOVA_F(R, id, "ID", kText).Flag(KOVA_AT(R, idPresent)),
    KOVA_F(R, pole, "Pole", kInt).ParseOnly(),
    KOVA_ENUM(R, senseMethod, "SenseMethod", kSenseMethodNames).MissingAs(KOVA_SENSE_UNKNOWN),
    KOVA_ENUM(R, enableControl, "EnableControl", kEnableControlNames),
    KOVA_F(R, disableDelay, "DisableDelay", kInt),
    KOVA_CUSTOM(R, defenceAreaType, "DefenceAreaType", ParseDefenceAreaType, PackDefenceAreaType),
    KOVA_F(R, enableDelay, "EnableDelay", kInt),
    // "Slot" and "Level1" have no presence flag: -1 stands for "not given"
    // in both directions.
    KOVA_F(R, slot, "Slot", kInt).MissingAs(-1).Sentinel(-1),
    KOVA_F(R, level1, "Level1", kInt).MissingAs(-1).Sentinel(-1),
    KOVA_F(R, level2, "Level2", kInt).MissingAs(-1).Flag(KOVA_AT(R, level2Present)),
    KOVA_LINKAGE(R, eventHandler).Week(KOVA_SCHEDULE_AT(R, week)).AlwaysRead(),
};
constexpr FieldTable kTable = KOVA_TABLE(kFields);

// The input's index lives beside the table, in "params".
constexpr Field kParamsFields[] = {
    KOVA_F(R, channel, "channel", kInt).AlwaysRead(),
};

bool ParseInput(const Json::Value& table, const StepContext& ctx, unsigned char* record) {
  ParseFields(ctx.params, record, kParamsFields);
  return ParseTableStep<kTable>(table, ctx, record);
}

}  // namespace

extern const ResponseFrame kAlarmFrame =
    AlarmSourceFrame<R>(ParseInput, TablePack<kTable>()).Describe(WholeTable<R, kTable>::kField);

}  // namespace kova
