// The event records of kova/records/events.h: which record each event code
// gets, how it is read from the event, and how it is released.
#ifndef KOVA_EVENTS_EVENT_RECORDS_H_
#define KOVA_EVENTS_EVENT_RECORDS_H_

#include <json/value.h>

#include <cstdint>

#include "common/fields/field_table.h"

namespace kova {

// The record an event of `code` is delivered with: its size and the table
// that reads it from "Data" (and releases it). Code 0 gets EventCommon
// alone, every other code the record of its family, as its rule type's row
// gives it (GeneralEventInfo for a code without a row).
struct EventRecordKind {
  uint32_t size;
  FieldTable table;
};
const EventRecordKind& EventRecordOf(uint32_t code);

// Builds the record of one event: `event` is the entry of the event list
// (its "Action" and "Index"), `data` its "Data". Returns null when the
// record cannot be allocated. The record holds allocated lists: give it back
// with ReleaseEventRecord and the same code.
void* BuildEventRecord(uint32_t code, uint32_t dictionaryCode, const Json::Value& event,
                       const Json::Value& data);
// Frees a record of BuildEventRecord and every list it holds; null is fine.
void ReleaseEventRecord(uint32_t code, void* record);

// The shared object record's description, for the readers that deliver
// objects alone.
extern const FieldTable kEventObjectTable;

}  // namespace kova

#endif  // KOVA_EVENTS_EVENT_RECORDS_H_
