// Decimal numbers and clock times written and read by hand where a pack or
// a parse does it for every section of a schedule: the same bytes printf
// writes and scanf reads, without their cost.
#ifndef KOVA_COMMON_BASE_DECIMAL_H_
#define KOVA_COMMON_BASE_DECIMAL_H_

#include <cstddef>
#include <cstdint>

namespace kova {

// The longest texts of 32-bit fields: a number ("-2147483648"), a clock
// ("%02d:%02d:%02d") and a clock range ("%02d:%02d:%02d-%02d:%02d:%02d").
constexpr size_t kDecimalText = 11;
constexpr size_t kClockText = 3 * kDecimalText + 2;
constexpr size_t kClockRangeText = 2 * kClockText + 1;

// Writes `v` at `p` as "%0<width>d" does ("%d" for width 0: a sign, then
// zeros up to the width, then the digits) and returns the end: at most
// kDecimalText bytes for a width of 2 or less.
inline char* PutDecimal(char* p, uint32_t magnitude, bool negative, int width) {
  char digits[10];
  int n = 0;
  do {
    digits[n++] = static_cast<char>('0' + magnitude % 10);
    magnitude /= 10;
  } while (magnitude != 0);
  if (negative) *p++ = '-';
  for (int pad = width - n - (negative ? 1 : 0); pad > 0; --pad) *p++ = '0';
  while (n > 0) *p++ = digits[--n];
  return p;
}
inline char* PutDecimal(char* p, int32_t v, int width = 0) {
  const uint32_t magnitude = v < 0 ? 0u - static_cast<uint32_t>(v) : static_cast<uint32_t>(v);
  return PutDecimal(p, magnitude, v < 0, width);
}
// "%u".
inline char* PutUnsigned(char* p, uint32_t v) { return PutDecimal(p, v, false, 0); }

// "%02d:%02d".
inline char* PutClock(char* p, int32_t hour, int32_t minute) {
  p = PutDecimal(p, hour, 2);
  *p++ = ':';
  return PutDecimal(p, minute, 2);
}

// "%02d:%02d:%02d".
inline char* PutClock(char* p, int32_t hour, int32_t minute, int32_t second) {
  p = PutClock(p, hour, minute);
  *p++ = ':';
  return PutDecimal(p, second, 2);
}

// "%02d:%02d:%02d-%02d:%02d:%02d": at most kClockRangeText bytes.
inline char* PutClockRange(char* p, int32_t beginHour, int32_t beginMinute, int32_t beginSecond,
                           int32_t endHour, int32_t endMinute, int32_t endSecond) {
  p = PutClock(p, beginHour, beginMinute, beginSecond);
  *p++ = '-';
  return PutClock(p, endHour, endMinute, endSecond);
}

inline bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Whether the first bytes of `text` are laid out as `form` says: 'd' a
// digit, any other byte itself.
template <size_t N>
bool MatchesForm(const char* text, const char (&form)[N]) {
  for (size_t i = 0; i + 1 < N; ++i) {
    if (form[i] == 'd' ? !IsDigit(text[i]) : text[i] != form[i]) return false;
  }
  return true;
}

// Two-digit fields laid out as `pattern` says ('d' a digit, any other byte
// itself, a field every three bytes) at the start of `text`, into `fields`
// in order; the byte after them must not be a digit. False (nothing stored)
// for any other text.
template <size_t N>
bool ReadFixedFields(const char* text, const char (&pattern)[N], int32_t* const* fields) {
  if (!MatchesForm(text, pattern) || IsDigit(text[N - 1])) return false;
  for (size_t f = 0; f < N / 3; ++f)
    *fields[f] = (text[3 * f] - '0') * 10 + (text[3 * f + 1] - '0');
  return true;
}

// The clock range every device writes, "08:00:00-18:00:00" (two digits a
// field), at the start of `text`, into `fields` in order; the byte after it
// must not be a digit. False (nothing stored) for any other text: the caller
// then reads it the general way, which gives the same numbers for this form.
inline bool ReadFixedClockRange(const char* text, int32_t* fields[6]) {
  return ReadFixedFields(text, "dd:dd:dd-dd:dd:dd", fields);
}

// The same for one clock, "08:00:00", into three fields.
inline bool ReadFixedClock(const char* text, int32_t* fields[3]) {
  return ReadFixedFields(text, "dd:dd:dd", fields);
}

}  // namespace kova

#endif  // KOVA_COMMON_BASE_DECIMAL_H_
