// The portable part of the platform module: the UTF-8 codec and the two
// conversions built on it and on the system's converter.
#include "common/base/platform.h"

#include <cstring>

#include "common/base/platform_internal.h"

namespace kova {
namespace platform {

namespace internal {

std::vector<char32_t> DecodeUtf8(const unsigned char* s, size_t n) {
  std::vector<char32_t> out;
  out.reserve(n + 1);
  size_t i = 0;
  while (i < n) {
    const unsigned char b = s[i];
    if (b < 0x80) {
      out.push_back(b);
      ++i;
      continue;
    }
    size_t need = 0;
    unsigned char lo = 0x80, hi = 0xBF;
    char32_t cp = 0;
    if (b >= 0xC2 && b <= 0xDF) {
      need = 1;
      cp = b & 0x1F;
    } else if (b >= 0xE0 && b <= 0xEF) {
      need = 2;
      cp = b & 0x0F;
      if (b == 0xE0) lo = 0xA0;  // no overlong forms
      if (b == 0xED) hi = 0x9F;  // no surrogates
    } else if (b >= 0xF0 && b <= 0xF4) {
      need = 3;
      cp = b & 0x07;
      if (b == 0xF0) lo = 0x90;  // no overlong forms
      if (b == 0xF4) hi = 0x8F;  // nothing past U+10FFFF
    } else {
      out.push_back(kReplacement);
      ++i;
      continue;
    }
    size_t j = i + 1;
    bool ok = true;
    for (size_t k = 0; k < need; ++k, ++j) {
      const unsigned char lower = (k == 0) ? lo : 0x80;
      const unsigned char upper = (k == 0) ? hi : 0xBF;
      if (j >= n || s[j] < lower || s[j] > upper) {
        ok = false;
        break;
      }
      cp = (cp << 6) | (s[j] & 0x3F);
    }
    out.push_back(ok ? cp : kReplacement);
    i = j;
  }
  return out;
}

size_t EncodeUtf8(const std::vector<char32_t>& cps, char* dst, size_t cap) {
  size_t w = 0;
  for (const char32_t c : cps) {
    unsigned char buf[4];
    size_t len;
    if (c < 0x80) {
      buf[0] = static_cast<unsigned char>(c);
      len = 1;
    } else if (c < 0x800) {
      buf[0] = static_cast<unsigned char>(0xC0 | (c >> 6));
      buf[1] = static_cast<unsigned char>(0x80 | (c & 0x3F));
      len = 2;
    } else if (c < 0x10000) {
      buf[0] = static_cast<unsigned char>(0xE0 | (c >> 12));
      buf[1] = static_cast<unsigned char>(0x80 | ((c >> 6) & 0x3F));
      buf[2] = static_cast<unsigned char>(0x80 | (c & 0x3F));
      len = 3;
    } else {
      buf[0] = static_cast<unsigned char>(0xF0 | (c >> 18));
      buf[1] = static_cast<unsigned char>(0x80 | ((c >> 12) & 0x3F));
      buf[2] = static_cast<unsigned char>(0x80 | ((c >> 6) & 0x3F));
      buf[3] = static_cast<unsigned char>(0x80 | (c & 0x3F));
      len = 4;
    }
    if (len > cap - w) break;
    std::memcpy(dst + w, buf, len);
    w += len;
  }
  return w;
}

std::string FoldName(const std::string& name) {
  std::string folded;
  for (const char c : name) {
    if (c != '-' && c != '_') folded += static_cast<char>((c >= 'a' && c <= 'z') ? c - 32 : c);
  }
  return folded;
}

}  // namespace internal

namespace {

// Pins held on this thread, and the code page fixed by the first
// conversion made under them (none when the document has no text).
thread_local int tPins = 0;
thread_local const internal::CodePage* tPinnedPage = nullptr;

const internal::CodePage& CurrentCodePage() {
  if (tPinnedPage != nullptr) return *tPinnedPage;
  const internal::CodePage& page = internal::FollowCodePage();
  if (tPins > 0) tPinnedPage = &page;
  return page;
}

bool IsAscii(const char* s, size_t n) {
  for (size_t i = 0; i < n; ++i) {
    if (static_cast<unsigned char>(s[i]) >= 0x80) return false;
  }
  return true;
}

Conversion Outcome(const internal::CodePage& page, size_t written) {
  Conversion c;
  c.written = written;
  if (page.unknown) {
    c.fellBack = true;
    c.unknownName = page.name;
  }
  return c;
}

}  // namespace

Conversion Utf8ToLocal(const char* src, size_t n, char* dst, size_t cap) {
  const internal::CodePage& page = CurrentCodePage();
  if (page.viaUtf8 && IsAscii(src, n)) {
    // Plain ASCII into UTF-8: every character is one byte, nothing to decode.
    const size_t w = n < cap ? n : cap;
    std::memcpy(dst, src, w);
    return Outcome(page, w);
  }
  std::vector<char32_t> cps = internal::DecodeUtf8(reinterpret_cast<const unsigned char*>(src), n);
  return Outcome(page, page.viaUtf8 ? internal::EncodeUtf8(cps, dst, cap)
                                    : internal::CodePointsToLocal(cps, dst, cap));
}

Conversion LocalToUtf8(const char* src, size_t n, char* dst, size_t cap) {
  const internal::CodePage& page = CurrentCodePage();
  const std::vector<char32_t> cps =
      page.viaUtf8 ? internal::DecodeUtf8(reinterpret_cast<const unsigned char*>(src), n)
                   : internal::LocalToCodePoints(src, n);
  return Outcome(page, internal::EncodeUtf8(cps, dst, cap));
}

std::string LocalCodePage() { return internal::ResolveCodePage(); }

CodePagePin::CodePagePin() {
  // The thread's converter stays as the first conversion under a pin
  // readied it until the last pin goes.
  ++tPins;
}

CodePagePin::~CodePagePin() {
  if (--tPins == 0) tPinnedPage = nullptr;
}

}  // namespace platform
}  // namespace kova
