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
#include <cstdint>
#include <type_traits>

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

// For the alarm configurations, whose records keep a 7 x 6 grid beside the
// linkage block: zeroes `record` and `week`, then reads the block as
// ParseEventHandler does and "TimeSection"[d][s] for d < 7, s < 6 into
// `week` with ParseTimeSection (failures ignored, a failing section keeps
// what converted). False only when `record` or `week` is null.
bool ParseEventHandlerWithWeek(const Json::Value& jsonEventHandler, EventHandlerRecord* record,
                               WeekSchedule7x6* week);

// Writes the flagged members of `record` into the object `jsonEventHandler`
// (made an object if it is not one). Counts are honoured only as far as the
// record's arrays extend, whatever they hold. Always succeeds.
void PackEventHandler(const EventHandlerRecord& record, Json::Value& jsonEventHandler);

// The step pair of every "EventHandler" field (see KOVA_LINKAGE). Parse
// reads the member when it is given, or always with .AlwaysRead() (a
// missing block still marks "RecordEnable" and "AlarmOutEnable" present),
// sets the field's flag when it has one and does not clear what it fills:
// the record is cleared before the walk. Pack writes the block, then the
// schedule kept beside it, then the extra table's members.
void ParseLinkageStep(const Json::Value& obj, unsigned char* record, const Field& f);
void PackLinkageStep(const unsigned char* record, Json::Value& obj, const Field& f);
// PackLinkageStep's member written straight as text.
void WriteLinkageText(const void* record, const Field* f, TextSink* out);

// A schedule grid of type Grid kept in the record beside a linkage block.
template <typename Grid>
struct ScheduleSlot {
  uint32_t offset;
};

// An "EventHandler" field, with the attributes only a linkage block takes
// (before the attributes of every field: .AlwaysRead(), .Flag(...)).
struct LinkageField : Field {
  // The alarm family's 7 x 6 week: parse reads the first 7 days x 6
  // sections of "TimeSection" into it one by one (a failing section keeps
  // what converted and stops nothing); pack writes it over those sections
  // of the block's own schedule: it is the copy callers edit.
  constexpr LinkageField Week(ScheduleSlot<WeekSchedule7x6> at) const {
    return Beside(at.offset, sizeof(WeekSchedule7x6));
  }
  // An analysis rule's 7 x 10 grid: parse reads "TimeSection" into it as a
  // grid (a section that does not read stops it, keeping what converted);
  // pack writes it in place of the block's own schedule.
  constexpr LinkageField Grid(ScheduleSlot<WeekSchedule7x10> at) const {
    return Beside(at.offset, sizeof(WeekSchedule7x10));
  }
  // Members of the "EventHandler" object that the record keeps outside the
  // block, described by `t` over the whole record; walked after the block.
  constexpr LinkageField Extra(const FieldTable& t) const {
    LinkageField l = *this;
    l.table = &t;
    return l;
  }

 private:
  // The step tells the week from the grid by its size.
  constexpr LinkageField Beside(uint32_t offset, uint32_t size) const {
    LinkageField l = *this;
    l.beside = Slot{offset, size};
    return l;
  }
};

template <typename T>
constexpr LinkageField MakeLinkage(size_t offset) {
  static_assert(std::is_same<T, EventHandlerRecord>::value,
                "an \"EventHandler\" field holds an EventHandlerRecord");
  return LinkageField{MakeCustom("EventHandler", offset, static_cast<uint32_t>(sizeof(T)),
                                 ParseLinkageStep, PackLinkageStep)
                          .PackText(WriteLinkageText)};
}

}  // namespace kova

// The "EventHandler" member of a record (an EventHandlerRecord):
//   KOVA_LINKAGE(Rec, eventHandler).Week(KOVA_SCHEDULE_AT(Rec, week)).AlwaysRead()
#define KOVA_LINKAGE(Rec, member) \
  ::kova::MakeLinkage<KOVA_MEMBER_T(Rec, member)>(offsetof(Rec, member))
// A schedule grid member, for .Week() and .Grid().
#define KOVA_SCHEDULE_AT(Rec, member) \
  ::kova::ScheduleSlot<KOVA_MEMBER_T(Rec, member)> { static_cast<uint32_t>(offsetof(Rec, member)) }

#endif  // KOVA_COMMON_EVENT_HANDLER_H_
