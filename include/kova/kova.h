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
// - `retLen` may be null. It is never reset here: set it to 0 before the
//   call; translators add the number of bytes of records they filled.
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

// Reads one analyzer event document (NUL-terminated JSON; `len` is not used
// to bound it) and calls `callback` once per event, in document order, on
// the caller's thread, before returning. Returns 0 when `buf` or `callback`
// is null, otherwise 1 whatever the document held.
KOVA_EXPORT int KOVA_CALL KOVA_ParseAnalyzerEventData(const char* buf, uint32_t len,
                                                      KOVA_AnalyzerEventCallback callback,
                                                      void* user);

// Reads a device document (NUL-terminated JSON) and delivers typed records
// through `callback` according to the member names at its root. Returns 0
// when `buf` or `callback` is null.
KOVA_EXPORT int KOVA_CALL KOVA_ParseDataByCallback(const char* buf, uint32_t len,
                                                   KOVA_AnalyzerEventCallback callback, void* user);

#ifdef __cplusplus
}
#endif

#endif  // KOVA_KOVA_H_
