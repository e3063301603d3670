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

#include "common/blocks/time_schedule.h"
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

}  // namespace kova

#endif  // KOVA_COMMON_EVENT_HANDLER_H_
