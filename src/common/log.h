// The process-wide error log.
//
// Translators report malformed data here. The library never opens a logger
// itself, so by default every report is dropped after taking the slot's
// lock; a host (or the command-line tool) that opens one sees the reports.
#ifndef KOVA_COMMON_LOG_H_
#define KOVA_COMMON_LOG_H_

#include <cstdint>

namespace kova {

constexpr uint32_t kErrBadParameter = 0x80000007u;
constexpr uint32_t kErrMalformedData = 0x80000015u;

// Remembers the source position of the report that follows.
void ReportPosition(const char* file, uint32_t line, int flag);
// Hands one report to the open logger, if any.
void ReportError(uint32_t code, const char* format, ...)
    __attribute__((format(printf, 2, 3)));

}  // namespace kova

// Reports `code` with a printf-style message and the current source position.
#define KOVA_REPORT(code, ...)                        \
  do {                                                \
    ::kova::ReportPosition(__FILE__, __LINE__, 0);    \
    ::kova::ReportError((code), __VA_ARGS__);         \
  } while (0)

#endif  // KOVA_COMMON_LOG_H_
