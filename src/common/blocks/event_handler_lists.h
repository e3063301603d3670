// The list members of the linkage block ("PtzLink", "SnapshotTitle",
// "VideoTitle", "MonitorTour", "DB", "AccessControls"): parse and pack of
// each, for event_handler.cpp.
//
// Parsers run only for a member given as an array (a non-null "DB" that is
// not an array is flagged with no strings); each sets its presence flag and
// count, cutting the device's array to the record's capacity. Packers run
// only for flagged members and read no further than the record's arrays,
// whatever the counts hold (a negative count packs nothing).
#ifndef KOVA_COMMON_EVENT_HANDLER_LISTS_H_
#define KOVA_COMMON_EVENT_HANDLER_LISTS_H_

#include <json/value.h>

#include "kova/records/event_handler.h"

namespace kova {

void ParsePtzLinks(const Json::Value& links, EventHandlerRecord* r);
void PackPtzLinks(const EventHandlerRecord& r, Json::Value& obj);

// `titles` points at snapshotTitles or videoTitles, `count` at its count.
void ParseTitles(const Json::Value& list, TitleOverlay* titles, int32_t* count);
Json::Value PackTitles(const TitleOverlay* titles, int32_t count);

void ParseMonitorTours(const Json::Value& tours, EventHandlerRecord* r);
Json::Value PackMonitorTours(const EventHandlerRecord& r);

void ParseDb(const Json::Value& db, EventHandlerRecord* r);
Json::Value PackDb(const EventHandlerRecord& r);

void ParseAccessControls(const Json::Value& list, EventHandlerRecord* r);
Json::Value PackAccessControls(const EventHandlerRecord& r);

// A record count cut to [0, capacity].
uint32_t CutCount(int32_t count, uint32_t capacity);

// How many entries of `entrySize` bytes fit between `offset` and the end of
// an EventHandlerRecord: the bound for the counts that packing leaves uncut.
uint32_t EntriesToRecordEnd(size_t offset, size_t entrySize);

}  // namespace kova

#endif  // KOVA_COMMON_EVENT_HANDLER_LISTS_H_
