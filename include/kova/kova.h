// kova: translation between a surveillance device's JSON configuration and
// the fixed-layout records a client application works with.
//
// The library exports exactly four functions. Every one of them returns a
// 32-bit integer used as a truth value (non-zero: success, 0: failure),
// throws nothing, keeps no state between calls and may be called from any
// number of threads at once. The caller owns every buffer.
//
// Text fields of the records hold text in the local code page; the JSON side
// is UTF-8. The local code page is the one named by the environment variable
// KOVA_CODEPAGE when it is set: on Windows a code page number ("936") or
// name ("CP936", "windows-1252", "GBK", "BIG5", "UTF-8", ...), elsewhere any
// iconv name ("GBK", "BIG5", "ISO-8859-1", "UTF-8", ...). Otherwise it is the
// process's ANSI code page on Windows, and elsewhere the codeset of the
// process's current locale, where the plain C/POSIX locale counts as UTF-8.
// A character the local code page cannot hold becomes "?"; an invalid UTF-8
// sequence becomes one replacement character and conversion goes on; text is
// cut at a field's capacity less its terminator without splitting a
// multi-byte character. An unknown KOVA_CODEPAGE falls back to UTF-8. Set
// KOVA_CODEPAGE before calls start on other threads.
//
// Record layouts are in <kova/records/*.h>.
#ifndef KOVA_KOVA_H_
#define KOVA_KOVA_H_

#include <stdint.h>

// KOVA_CALL is the calling convention of the four functions and of the
// callback: __stdcall on 32-bit Windows, the platform's default elsewhere
// (64-bit Windows has one convention). The names are exported undecorated.
// KOVA_EXPORT imports them from kova.dll on Windows (the library's own build
// defines KOVA_BUILDING_LIBRARY to export them instead).
#if defined(_WIN32) && !defined(_WIN64)
#define KOVA_CALL __stdcall
#else
#define KOVA_CALL
#endif
#if defined(_WIN32)
#if defined(KOVA_BUILDING_LIBRARY)
#define KOVA_EXPORT __declspec(dllexport)
#else
#define KOVA_EXPORT __declspec(dllimport)
#endif
#else
#define KOVA_EXPORT __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

// Receives one analyzer event. Arguments in order: the event code, the
// event's information record (read-only, valid only during the call; null
// for events without data), that record's size in bytes, a pointer that is
// always null, a number that is always 0, and the user value given to the
// export. The return value is ignored.
typedef int(KOVA_CALL* KOVA_AnalyzerEventCallback)(uint32_t eventCode, const void* eventInfo,
                                                   uint32_t eventInfoSize, const void* reserved,
                                                   uint32_t reservedSize, void* user);

// Fills `outBuf` with the records of configuration `name` read from the
// device's response `jsonText` (NUL-terminated UTF-8 JSON).
// - Returns 0 and writes nothing when `name`, `jsonText` or `outBuf` is null,
//   `outLen` is 0 or `name` is not a parse name (compared without regard to
//   ASCII letter case, whole name).
// - Otherwise returns the translator's result. Each translator states
//   whether it clears `outBuf` first; none writes past `outLen`.
// - `retLen` may be null. It receives the bytes of the records filled, in
//   one of two ways, which each record's documentation names:
//   - added to: "AlarmLamp", "DefenceArmMode", "G3G4AutoChange",
//     "VideoInDayNight" and every other name whose record says "returned
//     length added to" add the bytes of the records they filled to the value
//     `retLen` holds: set it to 0 before the call;
//   - set: every other name sets it, when the call succeeds, to the bytes
//     its record's documentation gives (the records filled, or one record).
KOVA_EXPORT int KOVA_CALL KOVA_ParseData(const char* name, const char* jsonText, void* outBuf,
                                         uint32_t outLen, uint32_t* retLen);

// Writes the JSON text of configuration `name` for the records in
// `inBuf[0..inLen)` into `outJson` (capacity `outLen` bytes).
// - Returns 0 and writes nothing when `name`, `inBuf` or `outJson` is null,
//   `outLen` is 0 or `name` is not a pack name. `inLen` is judged by the
//   packer: one given less than its record refuses.
// - The text is the bare payload (one object, or an array for several
//   records), on one line, ending in a newline. It is copied only when it
//   fits; on failure the packers clear `outJson`.
// - The text is NUL-terminated within `outLen`, except for the translators
//   whose copy rule is "at most the output size" (documented with their
//   records) when the text fills the buffer exactly: size buffers with one
//   byte to spare.
KOVA_EXPORT int KOVA_CALL KOVA_PacketData(const char* name, const void* inBuf, uint32_t inLen,
                                          char* outJson, uint32_t outLen);

// Reads one analyzer event notification and calls `callback` once per
// event, in the order of the device's list, on the caller's thread, before
// returning. Returns 0 when `buf` or `callback` is null (nothing else is
// done), otherwise 1 whatever the text held: text that is not JSON, an
// empty list and unknown events all give 1.
// - `buf` is NUL-terminated JSON; `len` is not used to bound it.
// - The events are the array "Event" of the root; when "Event" is null or
//   missing, "EventList"; when both are, "params"."eventList" (a device's
//   {"method": "client.notifyEventStream", "params": {"eventList": [...]}}).
//   A list that is not an array gives no events. At most the first 128
//   entries are looked at (null entries are skipped but count).
// - Each event's "Code" (at most 128 characters of it) is an analysis type
//   name, compared without regard to letter case; its code ("CrossLineDetection"
//   2, "TrafficJunction" 23, ...; 0 for a name that is none) is the callback's
//   `eventCode`. `eventInfo` is the record of the code's family, declared
//   with its codes in <kova/records/events.h>, beginning with an EventCommon;
//   code 0 gets an EventCommon alone.
// - An event without "Data" is dropped, except "VideoBlind" (339) and
//   "SnapByTime" (356), which come with a null `eventInfo` and size 0.
// - The callback runs while the call holds its own lock: it must not call
//   back into the same call. Each record is freed as soon as its callback
//   returns.
KOVA_EXPORT int KOVA_CALL KOVA_ParseAnalyzerEventData(const char* buf, uint32_t len,
                                                      KOVA_AnalyzerEventCallback callback,
                                                      void* user);

// Codes of the records KOVA_ParseDataByCallback delivers besides events.
#define KOVA_CALLBACK_PTZ_STATUS 0x10001u          // PtzStatusRecord
#define KOVA_CALLBACK_FOCUS_STATUS 0x10002u        // FocusStatusRecord
#define KOVA_CALLBACK_VIDEO_STAT_SUMMARY 0x10003u  // VideoStatSummaryRecord
#define KOVA_CALLBACK_OBJECT 0x10004u              // EventObject
#define KOVA_CALLBACK_TRAFFIC_FLOW_STAT 0x10005u   // TrafficFlowStatRecord
// An analysis rule: this bit with the rule's type code below it
// (KOVA_CALLBACK_ANALYSE_RULE | 2 for "CrossLineDetection"; | 0 for a rule
// whose "Type" is missing or unknown).
#define KOVA_CALLBACK_ANALYSE_RULE 0x20000u

// Reads a device document (NUL-terminated JSON; `len` is not used) and
// delivers typed records through `callback`, chosen by the member names at
// the document's root, taken in byte order of the names; members that are
// none of these are passed over. Records are in <kova/records/events.h>.
//
//   member                              reader, code: record
//   "Event", "EventList"                the analyzer events exactly as
//   (or "params" holding "eventList")   KOVA_ParseAnalyzerEventData reads them,
//                                       once per document: event code:
//                                       the family's record
//   "Ptz"                               KOVA_CALLBACK_PTZ_STATUS: PtzStatusRecord
//   "FocusStatus"                       KOVA_CALLBACK_FOCUS_STATUS: FocusStatusRecord
//   "VideoStatSummary"                  KOVA_CALLBACK_VIDEO_STAT_SUMMARY:
//                                       VideoStatSummaryRecord
//   "ObjectList"                        KOVA_CALLBACK_OBJECT: EventObject
//   "TrafficFlowStat",                  KOVA_CALLBACK_TRAFFIC_FLOW_STAT:
//   "TrafficFlowStatInfo"               TrafficFlowStatRecord
//   "VideoAnalyse", "VideoAnalyseRule", KOVA_CALLBACK_ANALYSE_RULE | type code:
//   "VideoSynopsisAnalyseRule"          the record of the rule's type, as the
//                                       rule list fills it (CrossLineRule, ...,
//                                       <kova/records/analyse*.h>); RuleHead
//                                       alone when the type is missing or has
//                                       no record
//
// A member other than the events' holds one object (one record) or an array
// of them (one record per entry that is an object, at most 128; at most 32
// rules). Every record comes once, in that order, on the caller's thread,
// under the call's own lock, and is freed when its callback returns.
// Returns 1 when the text is a JSON object (with or without any of these
// members), 0 otherwise or when `buf` or `callback` is null.
KOVA_EXPORT int KOVA_CALL KOVA_ParseDataByCallback(const char* buf, uint32_t len,
                                                   KOVA_AnalyzerEventCallback callback, void* user);

#ifdef __cplusplus
}
#endif

#endif  // KOVA_KOVA_H_
