// The members of the linkage block that no field table can describe, as
// custom steps of its table (event_handler.cpp): "PtzLink" (entries of
// exactly five items, an uncut count on pack), the two title lists (pairs
// and colours of an exact length, sizes read as integers into floats),
// "AccessControls" (exact names, null for none, nothing for values without
// a name) and "PSTNAlarmServer"."Destination" on pack (an uncut count).
//
// Each `record` is an EventHandlerRecord. Parse steps run only for a member
// given as an array, set the field's flag, and cut the device's array to the
// record's capacity; pack steps run only for flagged members and read no
// further than the record, whatever its counts hold (a negative count packs
// nothing).
#ifndef KOVA_COMMON_EVENT_HANDLER_LISTS_H_
#define KOVA_COMMON_EVENT_HANDLER_LISTS_H_

#include <json/value.h>

#include <cstddef>
#include <cstdint>

#include "common/fields/field_table.h"
#include "kova/records/event_handler.h"

namespace kova {

void ParsePtzLinks(const Json::Value& obj, unsigned char* record, const Field& f);
void PackPtzLinks(const unsigned char* record, Json::Value& obj, const Field& f);

// The field's member is the TitleOverlay array, its count the entries.
void ParseTitles(const Json::Value& obj, unsigned char* record, const Field& f);
void PackTitles(const unsigned char* record, Json::Value& obj, const Field& f);

void ParseAccessControls(const Json::Value& obj, unsigned char* record, const Field& f);
void PackAccessControls(const unsigned char* record, Json::Value& obj, const Field& f);

void PackDestinations(const unsigned char* record, Json::Value& obj, const Field& f);

// How many entries of `entrySize` bytes fit between `offset` and the end of
// an EventHandlerRecord: the bound for the counts that packing leaves uncut.
uint32_t EntriesToRecordEnd(size_t offset, size_t entrySize);

}  // namespace kova

#endif  // KOVA_COMMON_EVENT_HANDLER_LISTS_H_
