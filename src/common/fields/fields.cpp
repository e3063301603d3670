#include "common/fields/fields.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "common/base/log.h"
#include "common/base/platform.h"
#include "common/json/json.h"

namespace kova {

namespace {

// An unknown KOVA_CODEPAGE is reported once per name, not on every field.
platform::Mutex gCodePageMu;
std::string gReportedCodePage;

void NoteFallback(const platform::Conversion& c) {
  if (!c.fellBack) return;
  {
    platform::MutexLock lock(&gCodePageMu);
    if (gReportedCodePage == c.unknownName) return;
    gReportedCodePage = c.unknownName;
  }
  KOVA_REPORT(kErrBadParameter, "unknown code page [%s] in KOVA_CODEPAGE, using UTF-8",
              c.unknownName.c_str());
}

}  // namespace

int32_t Utf8ToAnsi(const char* src, int32_t srcLen, char* dst, int32_t cap) {
  if (src == nullptr || dst == nullptr || srcLen < 1 || cap < 1) return 0;
  // The length converted is the text's own; `srcLen` is only checked.
  const platform::Conversion c =
      platform::Utf8ToLocal(src, std::strlen(src), dst, static_cast<size_t>(cap));
  NoteFallback(c);
  return static_cast<int32_t>(c.written);
}

int32_t AnsiToUtf8(const char* src, int32_t srcLen, char* dst, int32_t cap) {
  if (src == nullptr || dst == nullptr || srcLen < 1 || cap < 1) return 0;
  const platform::Conversion c =
      platform::LocalToUtf8(src, static_cast<size_t>(srcLen), dst, static_cast<size_t>(cap - 1));
  NoteFallback(c);
  dst[c.written] = '\0';
  return static_cast<int32_t>(c.written);
}

bool GetJsonString(const Json::Value& v, char* dst, uint32_t cap, uint8_t convert) {
  if (dst == nullptr || cap == 0) return false;
  std::memset(dst, 0, cap);
  if (!v.isString()) return false;
  // Read in place: the JSON library keeps a string NUL-terminated.
  const char* begin = nullptr;
  const char* end = nullptr;
  if (!v.getString(&begin, &end) || begin == end) return true;
  const size_t size = static_cast<size_t>(end - begin);
  if (convert) {
    // The capacity handed on is below INT32_MAX for any real record field.
    const uint32_t room = cap - 1 > 0x7FFFFFFFu ? 0x7FFFFFFFu : cap - 1;
    const size_t len = std::min<size_t>(size, 0x7FFFFFFFu);
    Utf8ToAnsi(begin, static_cast<int32_t>(len), dst, static_cast<int32_t>(room));
  } else {
    // Cut without regard to characters: a multi-byte character may be split.
    std::memcpy(dst, begin, std::min<size_t>(size, cap - 1));
  }
  return true;
}

void GetJsonStringIfPresent(const Json::Value& v, char* dst, uint32_t cap) {
  if (dst == nullptr || v.isNull()) return;
  GetJsonString(v, dst, cap, 1);
}

bool SetJsonString(Json::Value& v, const char* src, uint8_t convert) {
  if (src == nullptr) return false;
  if (!convert) {
    v = src;
    return true;
  }
  const size_t n = std::strlen(src);
  const size_t size = Utf8Room(n);
  std::vector<char> scratch(size, '\0');
  if (n <= 0x7FFFFFFFu && size <= 0x7FFFFFFFu) {
    AnsiToUtf8(src, static_cast<int32_t>(n), scratch.data(), static_cast<int32_t>(size));
  }
  v = scratch.data();
  return true;
}

bool SetJsonStringBounded(Json::Value& v, const char* src, uint32_t cap, uint8_t convert) {
  if (src == nullptr) return false;
  const std::string text(src, strnlen(src, cap));
  return SetJsonString(v, text.c_str(), convert);
}

std::string NameOfField(const char* src, uint32_t cap) {
  Json::Value v;
  SetJsonStringBounded(v, src, cap, 1);
  const std::string text = ToText(v);
  return text.substr(0, std::strlen(text.c_str()));
}

}  // namespace kova
