// "LossDetect" and "BlindDetect": video loss and camera masking of one
// channel.
#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "config/alarm/alarm_sources.h"
#include "config/alarm/translators.h"

namespace kova {

namespace {

constexpr Field kLossFields[] = {
    KOVA_F(LossDetectRecord, enable, "Enable", kBool),
    KOVA_LINKAGE(LossDetectRecord, eventHandler)
        .Week(KOVA_SCHEDULE_AT(LossDetectRecord, week))
        .AlwaysRead(),
};
constexpr FieldTable kLossTable = KOVA_TABLE(kLossFields);
constexpr ResponseFrame kLossFrame = AlarmSourceFrame<LossDetectRecord, kLossTable>();

constexpr Field kBlindFields[] = {
    KOVA_F(BlindDetectRecord, enable, "Enable", kBool),
    KOVA_F(BlindDetectRecord, level, "Level", kInt),
    KOVA_LINKAGE(BlindDetectRecord, eventHandler)
        .Week(KOVA_SCHEDULE_AT(BlindDetectRecord, week))
        .AlwaysRead(),
};
constexpr FieldTable kBlindTable = KOVA_TABLE(kBlindFields);
constexpr ResponseFrame kBlindFrame = AlarmSourceFrame<BlindDetectRecord, kBlindTable>();

}  // namespace

KOVA_FRAME_TRANSLATORS(LossDetect, kLossFrame)

KOVA_FRAME_TRANSLATORS(BlindDetect, kBlindFrame)

}  // namespace kova
