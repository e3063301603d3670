// "TemperatureAlarm" and "FanSpeedAlarm": one entry per sensor or fan, each
// with its normal range and its linkage block, in caller-sized records.
#include <cstddef>

#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "drivers/response_frame.h"
#include "kova/records/alarm.h"

namespace kova {

namespace {

// Every packed entry holds at least its 42 week sections
// ("0 00:00:00-00:00:00" and separators), so a list of n records needs more
// than n times this many bytes of text.
constexpr uint32_t kMinPackedEntryText = 42 * 21;

// "table" is an array with one entry per sensor (a device with a single
// sensor may answer with the object alone); the caller's buffer is a row of
// records whose stride is the size it wrote into the first record's leading
// uint32. A caller built against an older, shorter record gives a smaller
// size: each record is then filled (and read) only as far as it reaches.
template <typename Rec, const FieldTable& kTable>
constexpr ResponseFrame SizedListFrame() {
  return TableFrame<Rec, kTable>()
      .Walk(RecordWalk::kCallerSized)
      .NonArray(NonArrayTable::kObjectOnly)
      .PackArrayAlways()
      .MinTextPerRecord(kMinPackedEntryText)
      .Copy(CopyRule::kAtMost);
}

using T = TemperatureAlarmRecord;
static_assert(offsetof(T, upperLimit) == offsetof(T, lowerLimit) + sizeof(double),
              "the normal range is a pair");
constexpr Field kTemperatureFields[] = {
    KOVA_F(T, enable, "Enable", kBool),
    KOVA_F(T, name, "Name", kText),
    // [low, high]: any array counts, missing items read as 0.
    KOVA_TUPLE_OF(T, lowerLimit, "NormalTemperature", double, kReal, 2)
        .MinItems(0)
        .Flag(KOVA_AT(T, limitsPresent)),
    KOVA_LINKAGE(T, eventHandler).Week(KOVA_SCHEDULE_AT(T, week)).AlwaysRead(),
};
constexpr FieldTable kTemperatureTable = KOVA_TABLE(kTemperatureFields);

using F = FanSpeedAlarmRecord;
static_assert(offsetof(F, upperLimit) == offsetof(F, lowerLimit) + sizeof(int32_t),
              "the normal range is a pair");
constexpr Field kFanFields[] = {
    KOVA_F(F, enable, "Enable", kBool),
    KOVA_F(F, name, "Name", kText),
    KOVA_TUPLE(F, lowerLimit, "NormalSpeed", int32_t, 2)
        .MinItems(0)
        .Flag(KOVA_AT(F, limitsPresent)),
    KOVA_LINKAGE(F, eventHandler).Week(KOVA_SCHEDULE_AT(F, week)).AlwaysRead(),
};
constexpr FieldTable kFanTable = KOVA_TABLE(kFanFields);

}  // namespace

extern const ResponseFrame kTemperatureAlarmFrame = SizedListFrame<T, kTemperatureTable>();

extern const ResponseFrame kFanSpeedAlarmFrame = SizedListFrame<F, kFanTable>();

}  // namespace kova
