#include "common/fields/text_forms.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "common/base/decimal.h"
#include "common/base/log.h"

namespace kova {

namespace {

// The standard text-to-integer reading: leading blanks and a sign, then
// digits up to the first other character; no digits read as 0.
int32_t ReadDecimal(const char* text) {
  return static_cast<int32_t>(std::strtol(text, nullptr, 10));
}

// The first `len` bytes of `text`, stopping early at a NUL: the readers
// never look past either.
std::string Bounded(const char* text, int32_t len) {
  return std::string(text, strnlen(text, static_cast<size_t>(len)));
}

constexpr int kIntListCapacity = 100;
constexpr size_t kIntPieceLimit = 8;  // a piece must be shorter than this
constexpr size_t kRightIdLimit = 32;  // the id piece must be shorter than this
constexpr size_t kRightTextCapacity = 32;

}  // namespace

char* IpToText(uint32_t addr, char* dst) {
  if (dst == nullptr) return dst;
  std::snprintf(dst, 16, "%d.%d.%d.%d", static_cast<int>(addr & 0xFF),
                static_cast<int>((addr >> 8) & 0xFF), static_cast<int>((addr >> 16) & 0xFF),
                static_cast<int>((addr >> 24) & 0xFF));
  return dst;
}

uint32_t TextToIp(const char* text) {
  if (text == nullptr) return 0;
  uint32_t addr = static_cast<uint32_t>(ReadDecimal(text)) & 0xFF;
  if (text[0] == '\0') return addr;
  uint32_t dots = 0;
  for (const char* p = text; *p != '\0' && dots < 127; ++p) {
    if (*p != '.') continue;  // anything else is skipped: no error is ever reported
    ++dots;
    const uint32_t part = static_cast<uint32_t>(ReadDecimal(p + 1)) & 0xFF;
    // A fifth part lands in the lowest byte again; the wrap is intended.
    addr |= part << ((8 * dots) % 32);
  }
  return addr;
}

namespace {

// "2024-01-05 12:00:00", the form devices write, read without scanning: at
// the start of the first `len` bytes, no digit after it. False for any other
// text, which the general reading gives the same numbers for.
bool ReadFixedDateTime(const char* text, int32_t len, int* v) {
  static const char kForm[] = "dddd-dd-dd dd:dd:dd";
  constexpr int32_t kLength = sizeof kForm - 1;
  if (len < kLength || !MatchesForm(text, kForm)) return false;
  if (len > kLength && IsDigit(text[kLength])) return false;
  v[0] = ((text[0] - '0') * 10 + (text[1] - '0')) * 100 + (text[2] - '0') * 10 + (text[3] - '0');
  for (int32_t f = 1; f < 6; ++f) v[f] = (text[2 + 3 * f] - '0') * 10 + (text[3 + 3 * f] - '0');
  return true;
}

}  // namespace

int ParseDateTimePacked(const char* text, int32_t len, uint32_t* out) {
  if (text == nullptr || out == nullptr || len < 1) return -1;
  int v[6];
  if (!ReadFixedDateTime(text, len, v) &&
      std::sscanf(Bounded(text, len).c_str(), "%d-%d-%d %d:%d:%d", &v[0], &v[1], &v[2], &v[3],
                  &v[4], &v[5]) != 6) {
    return -1;
  }
  const int year = v[0], month = v[1], day = v[2], hour = v[3], minute = v[4], second = v[5];
  // The year is shifted unmasked; only its lowest six bits survive the shift.
  *out = (static_cast<uint32_t>(year) << 26) | ((static_cast<uint32_t>(month) & 0xF) << 22) |
         ((static_cast<uint32_t>(day) & 0x1F) << 17) |
         ((static_cast<uint32_t>(hour) & 0x1F) << 12) |
         ((static_cast<uint32_t>(minute) & 0x3F) << 6) | (static_cast<uint32_t>(second) & 0x3F);
  return 0;
}

char* FormatDateTimePacked(uint32_t packed, char* dst) {
  if (dst == nullptr) return dst;
  const uint32_t yearBits = packed >> 26;
  const int year = 2000 + static_cast<int>((yearBits - 2000u) & 0x3F);
  std::snprintf(dst, 20, "%04d-%02d-%02d %02d:%02d:%02d", year,
                static_cast<int>((packed >> 22) & 0xF), static_cast<int>((packed >> 17) & 0x1F),
                static_cast<int>((packed >> 12) & 0x1F), static_cast<int>((packed >> 6) & 0x3F),
                static_cast<int>(packed & 0x3F));
  return dst;
}

int ParseTimeRange(const char* text, int32_t len, TimeRange* range) {
  if (text == nullptr || range == nullptr || len < 1) return -1;
  int v[6];
  if (std::sscanf(Bounded(text, len).c_str(), "%d:%d:%d-%d:%d:%d", &v[0], &v[1], &v[2], &v[3],
                  &v[4], &v[5]) != 6) {
    return -1;
  }
  range->beginHour = static_cast<uint8_t>(v[0]);
  range->beginMinute = static_cast<uint8_t>(v[1]);
  range->beginSecond = static_cast<uint8_t>(v[2]);
  range->endHour = static_cast<uint8_t>(v[3]);
  range->endMinute = static_cast<uint8_t>(v[4]);
  range->endSecond = static_cast<uint8_t>(v[5]);
  return 0;
}

int ParseIntList(const char* text, int32_t len, uint32_t* values, uint32_t* count) {
  if (len == 0) return 0;
  if (text == nullptr || values == nullptr || len < 1) return -1;
  const std::string s = Bounded(text, len);
  int stored = 0;
  size_t start = 0;
  for (size_t i = 0; i <= s.size(); ++i) {
    if (i < s.size() && s[i] != ',') continue;
    // A hundredth comma would start a 101st number: refused.
    if (i < s.size() && stored == kIntListCapacity - 1) return -1;
    const size_t pieceLen = i - start;
    if (pieceLen >= kIntPieceLimit) return -1;
    values[stored++] = static_cast<uint32_t>(ReadDecimal(s.substr(start, pieceLen).c_str()));
    start = i + 1;
  }
  if (count != nullptr) *count = static_cast<uint32_t>(stored);
  return 0;
}

uint32_t ParseRightItem(const char* text, int32_t len, RightItem* item) {
  if (len == 0) return 0;
  if (text == nullptr || item == nullptr) {
    KOVA_REPORT(kErrBadParameter, "ParseRightItem: invaild parameter, input buf = %p, rItem = %p",
                static_cast<const void*>(text), static_cast<void*>(item));
    return kErrBadParameter;
  }
  const std::string s = len > 0 ? Bounded(text, len) : std::string();
  int colons = 0;
  size_t start = 0;
  for (size_t i = 0; i < s.size(); ++i) {
    if (s[i] != ':') continue;
    const size_t pieceLen = i - start;
    if (colons == 0) {
      if (pieceLen >= kRightIdLimit) {
        KOVA_REPORT(kErrMalformedData, "ParseRightItem: return id length is max than %d",
                    static_cast<int>(kRightIdLimit));
        return kErrMalformedData;
      }
      item->id = static_cast<uint32_t>(ReadDecimal(s.substr(start, pieceLen).c_str()));
    } else if (colons == 1) {
      if (pieceLen > kRightTextCapacity) {
        KOVA_REPORT(kErrMalformedData, "ParseRightItem: name's length is max then %d!",
                    static_cast<int>(kRightTextCapacity));
        return kErrMalformedData;
      }
      // Filled to all 32 bytes when the name is that long: no terminator.
      std::memcpy(item->name, s.data() + start, pieceLen);
    } else {
      KOVA_REPORT(kErrMalformedData, "ParseRightItem: unkonw item index %d", colons);
      return kErrMalformedData;
    }
    ++colons;
    start = i + 1;
  }
  if (colons != 2) {
    KOVA_REPORT(kErrMalformedData, "ParseRightItem: parse data error!");
    return kErrMalformedData;
  }
  const size_t memoLen = s.size() - start;
  if (memoLen > kRightTextCapacity) {
    // The limit printed is the colon count plus 30 (always 32); computed so
    // on purpose.
    KOVA_REPORT(kErrMalformedData, "ParseRightItem: memo's length is max then %d!", colons + 30);
    return kErrMalformedData;
  }
  std::memcpy(item->memo, s.data() + start, memoLen);
  return 0;
}

}  // namespace kova
