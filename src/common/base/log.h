// The process-wide error log.
//
// Translators report malformed data here. The library never opens a logger
// itself, so by default every report is dropped after taking the slot's
// lock; a host (or the command-line tool) that opens one sees the reports.
// Logging never fails toward its caller: an unopenable file or a failed
// write is swallowed.
#ifndef KOVA_COMMON_LOG_H_
#define KOVA_COMMON_LOG_H_

#include <cstdint>

#include "kova/records/log.h"

namespace kova {

constexpr uint32_t kErrBadParameter = 0x80000007u;
constexpr uint32_t kErrMalformedData = 0x80000015u;

// Remembers the source position of the report that follows on the same
// thread (each thread keeps its own, so two threads reporting at once never
// swap positions).
void ReportPosition(const char* file, uint32_t line, int flag);
// Hands one report (level "ERROR") to the open logger, if any, under the
// slot's lock; with no logger open it costs only the lock. The line carries
// the calling thread's last reported position and the code.
void ReportError(uint32_t code, const char* format, ...) __attribute__((format(printf, 2, 3)));

// Opens a logger in the process-wide slot, closing any current one first,
// under the slot's lock. `settings` may be null for all defaults; a record
// whose path is empty gets the default path written into it, while the
// logger opens with the empty path (and so writes nothing). Returns true
// when the sink is ready to write; the slot holds the logger either way.
bool OpenLogger(LogSettings* settings);
// Closes the current logger, if any, and empties the slot.
void CloseLogger();

}  // namespace kova

// Reports `code` with a printf-style message and the current source position.
#define KOVA_REPORT(code, ...)                     \
  do {                                             \
    ::kova::ReportPosition(__FILE__, __LINE__, 0); \
    ::kova::ReportError((code), __VA_ARGS__);      \
  } while (0)

#endif  // KOVA_COMMON_LOG_H_
