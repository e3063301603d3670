// The alarm linkage block "EventHandler" between the device's JSON object
// and EventHandlerRecord (kova/records/event_handler.h).
//
// Parsing never fails on the JSON's content: wrong types and unknown names
// leave fields zero or unchanged, and arrays are cut to the record's
// capacities. It marks each member it met in the record's presence flags;
// packing writes back only flagged members, plus "TimeSection",
// "RecordEnable" and "AlarmOutEnable".
#ifndef KOVA_COMMON_EVENT_HANDLER_H_
#define KOVA_COMMON_EVENT_HANDLER_H_

#include <json/value.h>

#include <cstddef>

#include "common/blocks/time_schedule.h"
#include "common/fields/field_table.h"
#include "kova/records/event_handler.h"
#include "kova/records/schedule.h"

namespace kova {

// Reads the "EventHandler" object `jsonEventHandler` into `record`, which
// the caller has zeroed ("TimeSection" goes to record->schedule through
// ParseHolidaySchedule, whose result is ignored). False only when `record`
// is null.
bool ParseEventHandler(const Json::Value& jsonEventHandler, EventHandlerRecord* record);

// For the alarm configurations, whose records keep a 7 x 6 grid directly
// after the linkage block: zeroes `record` and `week`, reads
// "TimeSection"[d][s] for d < 7, s < 6 into `week` with ParseTimeSection
// (failures ignored, a failing section keeps what converted), then calls
// ParseEventHandler. False only when `record` or `week` is null.
bool ParseEventHandlerWithWeek(const Json::Value& jsonEventHandler, EventHandlerRecord* record,
                               WeekSchedule7x6* week);

// ParseEventHandler for records that keep a grid of "TimeSection" of their
// own beside the linkage block (the 7 x 10 grid of analysis rules): `grid`
// is read as ParseTimeSectionGrid reads it (result ignored), each section
// text scanned once for both schedules. False only when `record` is null.
bool ParseEventHandlerWithGrid(const Json::Value& jsonEventHandler, EventHandlerRecord* record,
                               const SectionGrid& grid);

// Writes the flagged members of `record` into the object `jsonEventHandler`
// (made an object if it is not one). Counts are honoured only as far as the
// record's arrays extend, whatever they hold. Always succeeds.
void PackEventHandler(const EventHandlerRecord& record, Json::Value& jsonEventHandler);

// The 7 x 6 grid written over the first seven days of a "TimeSection" value.
void PackWeekSections(const WeekSchedule7x6& week, Json::Value& timeSection);

// Custom steps of a field table for an "EventHandler" member, read whether
// the member is given or not (a missing block still marks "RecordEnable"
// and "AlarmOutEnable" present). The record must have been cleared before
// the walk. Use KOVA_EVENT_HANDLER / KOVA_EVENT_HANDLER_WITH_WEEK.
void ParseEventHandlerStep(const Json::Value& obj, unsigned char* record, const Field& f);
void PackEventHandlerStep(const unsigned char* record, Json::Value& obj, const Field& f);
// The same for a block followed directly by its 7 x 6 week grid: parse also
// reads the grid, pack writes it over the block's "TimeSection".
void ParseEventHandlerWithWeekStep(const Json::Value& obj, unsigned char* record, const Field& f);
void PackEventHandlerWithWeekStep(const unsigned char* record, Json::Value& obj, const Field& f);

template <size_t kHandler, size_t kWeek>
constexpr Field MakeEventHandlerWithWeek() {
  static_assert(kWeek == kHandler + sizeof(EventHandlerRecord),
                "the week grid follows the linkage block directly");
  return MakeCustom("EventHandler", kHandler, sizeof(EventHandlerRecord) + sizeof(WeekSchedule7x6),
                    ParseEventHandlerWithWeekStep, PackEventHandlerWithWeekStep);
}

}  // namespace kova

// The "EventHandler" member of a record (an EventHandlerRecord).
#define KOVA_EVENT_HANDLER(Rec, member)                                   \
  KOVA_CUSTOM(Rec, member, "EventHandler", ::kova::ParseEventHandlerStep, \
              ::kova::PackEventHandlerStep)
// The "EventHandler" member `eventHandler` with the 7 x 6 grid `week` after it.
#define KOVA_EVENT_HANDLER_WITH_WEEK(Rec) \
  ::kova::MakeEventHandlerWithWeek<offsetof(Rec, eventHandler), offsetof(Rec, week)>()

#endif  // KOVA_COMMON_EVENT_HANDLER_H_
