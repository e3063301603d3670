// The compact text forms some device fields use: dotted IPv4 addresses, a
// packed date-time, a time range, a comma list of numbers and user-rights
// items.
#ifndef KOVA_COMMON_TEXT_FORMS_H_
#define KOVA_COMMON_TEXT_FORMS_H_

#include <cstdint>

#include "kova/records/common.h"

namespace kova {

// Writes the four bytes of `addr`, lowest first, as "%d.%d.%d.%d" into
// `dst` (at least 16 bytes). Returns `dst`.
char* IpToText(uint32_t addr, char* dst);

// Reads dotted text; the first part is the lowest byte. Each part is masked
// to 8 bits; a fifth part wraps into the lowest byte again (kept on
// purpose). Never fails.
uint32_t TextToIp(const char* text);

// "%d-%d-%d %d:%d:%d" into the packed date-time. 0 on success, -1 on failure.
int ParseDateTimePacked(const char* text, int32_t len, uint32_t* out);

// The packed date-time as "%04d-%02d-%02d %02d:%02d:%02d" into `dst` (at
// least 20 bytes). Only the year's lowest six bits are stored: the year
// written is the one in 2000..2063 that has them. Returns `dst`.
char* FormatDateTimePacked(uint32_t packed, char* dst);

// "%d:%d:%d-%d:%d:%d" into the six time fields of `range` (the leading
// byte is left alone). 0 on success, -1 on failure.
int ParseTimeRange(const char* text, int32_t len, TimeRange* range);

// A comma list of at most 100 decimal numbers, each piece shorter than 8
// characters. 0 on success (`len` 0 included), -1 on failure.
int ParseIntList(const char* text, int32_t len, uint32_t* values, uint32_t* count);

// "id:name:memo" into `item`. 0 on success, else 0x80000007 or 0x80000015
// after one line to the error log.
uint32_t ParseRightItem(const char* text, int32_t len, RightItem* item);

}  // namespace kova

#endif  // KOVA_COMMON_TEXT_FORMS_H_
