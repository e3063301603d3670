#include "common/fields.h"

#include <cstring>
#include <string>

#include "common/json.h"

namespace kova {

// Code-page conversion is not wired yet: text passes unchanged (UTF-8 as
// the local code page).
int32_t Utf8ToAnsi(const char* src, int32_t srcLen, char* dst, int32_t cap) {
  if (src == nullptr || dst == nullptr || srcLen < 1 || cap < 1) return 0;
  const size_t n = std::min<size_t>(std::strlen(src), static_cast<size_t>(cap));
  std::memcpy(dst, src, n);
  return static_cast<int32_t>(n);
}

int32_t AnsiToUtf8(const char* src, int32_t srcLen, char* dst, int32_t cap) {
  if (src == nullptr || dst == nullptr || srcLen < 1 || cap < 1) return 0;
  const size_t n = std::min<size_t>(static_cast<size_t>(srcLen), static_cast<size_t>(cap - 1));
  std::memcpy(dst, src, n);
  dst[n] = '\0';
  return static_cast<int32_t>(n);
}

bool GetJsonString(const Json::Value& v, char* dst, uint32_t cap, uint8_t convert) {
  if (dst == nullptr || cap == 0) return false;
  std::memset(dst, 0, cap);
  if (!v.isString()) return false;
  const std::string text = ToText(v);
  if (convert) {
    Utf8ToAnsi(text.c_str(), static_cast<int32_t>(text.size()), dst, static_cast<int32_t>(cap - 1));
  } else {
    std::memcpy(dst, text.data(), std::min<size_t>(text.size(), cap - 1));
  }
  return true;
}

void GetJsonStringIfPresent(const Json::Value& v, char* dst, uint32_t cap) {
  if (dst == nullptr || v.isNull()) return;
  GetJsonString(v, dst, cap, 1);
}

bool SetJsonString(Json::Value& v, const char* src, uint8_t convert) {
  if (src == nullptr) return false;
  v = src;
  return true;
}

bool SetJsonStringBounded(Json::Value& v, const char* src, uint32_t cap, uint8_t convert) {
  if (src == nullptr) return false;
  const std::string text(src, strnlen(src, cap));
  return SetJsonString(v, text.c_str(), convert);
}

}  // namespace kova
