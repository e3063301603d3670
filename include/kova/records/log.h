// Settings of the error log, for hosts that link the library's internals and
// open a logger (the four exported functions never open one).
#ifndef KOVA_RECORDS_LOG_H_
#define KOVA_RECORDS_LOG_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// Given when a logger is opened. Zero fields take their defaults.
// - `path`: the log file, NUL-terminated. Opening with no settings record
//   at all uses "./kovalog/sdklog.log". Opening with a record whose `path`
//   is empty writes "./kovalog/sdklog.log" into this record but opens the
//   logger with the empty path it was given, so that nothing is written;
//   the asymmetry is deliberate.
// - `sizeLimit`: file sink only; when the file would grow past this many
//   KiB it is renamed to "<path>.1" and a new file is started. 0 means 10240.
// - `secondLimit`: file sink only; how many renamed files are kept
//   ("<path>.1" newest to "<path>.N" oldest). 0 means 2.
// - `sinkKind`: 1 writes the file at `path`; 2 writes each line to the
//   standard output instead; any other value is taken as 1.
typedef struct LogSettings {
  char path[260];
  uint32_t sizeLimit;
  uint32_t secondLimit;
  uint32_t sinkKind;
} LogSettings;

#ifdef __cplusplus
}
static_assert(sizeof(LogSettings) == 272, "LogSettings layout");
static_assert(offsetof(LogSettings, sizeLimit) == 260, "LogSettings layout");
static_assert(offsetof(LogSettings, sinkKind) == 268, "LogSettings layout");
#endif

#endif  // KOVA_RECORDS_LOG_H_
