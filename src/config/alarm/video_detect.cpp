// "LossDetect" and "BlindDetect": video loss and camera masking of one
// channel.
#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "config/alarm/alarm_sources.h"
#include "drivers/response_frame.h"
#include "kova/records/alarm.h"

namespace kova {

namespace {

constexpr Field kLossFields[] = {
    KOVA_F(LossDetectRecord, enable, "Enable", kBool),
    KOVA_LINKAGE(LossDetectRecord, eventHandler)
        .Week(KOVA_SCHEDULE_AT(LossDetectRecord, week))
        .AlwaysRead(),
};
constexpr FieldTable kLossTable = KOVA_TABLE(kLossFields);

constexpr Field kBlindFields[] = {
    KOVA_F(BlindDetectRecord, enable, "Enable", kBool),
    KOVA_F(BlindDetectRecord, level, "Level", kInt),
    KOVA_LINKAGE(BlindDetectRecord, eventHandler)
        .Week(KOVA_SCHEDULE_AT(BlindDetectRecord, week))
        .AlwaysRead(),
};
constexpr FieldTable kBlindTable = KOVA_TABLE(kBlindFields);

}  // namespace

extern const ResponseFrame kLossDetectFrame = AlarmSourceFrame<LossDetectRecord, kLossTable>();

extern const ResponseFrame kBlindDetectFrame = AlarmSourceFrame<BlindDetectRecord, kBlindTable>();

}  // namespace kova
