// POSIX (glibc) implementation of the platform module.
#include "common/base/platform.h"

#include <errno.h>
#include <iconv.h>
#include <langinfo.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <time.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <vector>

namespace kova {
namespace platform {

namespace {

// ---- UTF-8 by hand -------------------------------------------------------
//
// Both directions go through code points (UTF-32), the way a conversion
// through a wide-character form does: UTF-8 is decoded here, so that an
// invalid sequence is replaced the same way whatever the local code page.

constexpr char32_t kReplacement = 0xFFFD;

// Decodes UTF-8 into code points. Each maximal ill-formed subpart (a lone
// continuation byte, a truncated sequence, an overlong form, a surrogate, a
// value beyond U+10FFFF) becomes one U+FFFD and decoding goes on.
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

bool IsAscii(const char* s, size_t n) {
  for (size_t i = 0; i < n; ++i) {
    if (static_cast<unsigned char>(s[i]) >= 0x80) return false;
  }
  return true;
}

// Encodes code points as UTF-8 into at most `cap` bytes; stops before the
// first character that does not fit whole.
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

// ---- Per-thread converters -----------------------------------------------

#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
constexpr const char* kUtf32 = "UTF-32BE";
#else
constexpr const char* kUtf32 = "UTF-32LE";
#endif

const iconv_t kNoConverter = reinterpret_cast<iconv_t>(-1);

bool IsUtf8Name(const std::string& name) {
  std::string folded;
  for (const char c : name) {
    if (c != '-' && c != '_') folded += static_cast<char>((c >= 'a' && c <= 'z') ? c - 32 : c);
  }
  return folded == "UTF8";
}

std::string ResolveCodePage() {
  const char* env = std::getenv("KOVA_CODEPAGE");
  if (env != nullptr && env[0] != '\0') return env;
  const char* codeset = nl_langinfo(CODESET);
  // The C/POSIX locale is plain ASCII: a program that never set a locale
  // gets UTF-8, i.e. its text unchanged.
  if (codeset == nullptr || codeset[0] == '\0' || std::strcmp(codeset, "ANSI_X3.4-1968") == 0 ||
      std::strcmp(codeset, "ASCII") == 0) {
    return "UTF-8";
  }
  return codeset;
}

// The converters of one thread for the local code page it last used.
class ConverterCache {
 public:
  ~ConverterCache() { Close(); }

  // Makes the converters match the current local code page, reopening them
  // only when its name changed since the last call on this thread.
  void Refresh() {
    // Most calls find the code page as it was: that is told by comparing
    // the text it is resolved from, without building its name.
    const char* env = std::getenv("KOVA_CODEPAGE");
    const bool fromEnv = env != nullptr && env[0] != '\0';
    const char* source = fromEnv ? env : nl_langinfo(CODESET);
    if (source == nullptr) source = "";
    if (opened_ && fromEnv == fromEnv_ && source_.compare(source) == 0) return;
    fromEnv_ = fromEnv;
    source_ = source;
    std::string name = ResolveCodePage();
    if (opened_ && name == name_) return;
    Close();
    name_ = std::move(name);
    opened_ = true;
    unknown_ = false;
    if (IsUtf8Name(name_)) return;
    toLocal_ = iconv_open(name_.c_str(), kUtf32);
    fromLocal_ = iconv_open(kUtf32, name_.c_str());
    if (toLocal_ == kNoConverter || fromLocal_ == kNoConverter) {
      Close();
      opened_ = true;
      unknown_ = true;
    }
  }

  bool native() const { return toLocal_ == kNoConverter; }
  bool unknown() const { return unknown_; }
  const std::string& name() const { return name_; }
  iconv_t toLocal() const { return toLocal_; }
  iconv_t fromLocal() const { return fromLocal_; }

 private:
  void Close() {
    if (toLocal_ != kNoConverter) iconv_close(toLocal_);
    if (fromLocal_ != kNoConverter) iconv_close(fromLocal_);
    toLocal_ = kNoConverter;
    fromLocal_ = kNoConverter;
    opened_ = false;
  }

  std::string name_;
  std::string source_;  // what name_ was resolved from: KOVA_CODEPAGE, or the locale's codeset
  bool fromEnv_ = false;
  bool opened_ = false;
  bool unknown_ = false;
  iconv_t toLocal_ = kNoConverter;
  iconv_t fromLocal_ = kNoConverter;
};

// Pins held on this thread (see CodePagePin).
thread_local int tPins = 0;

ConverterCache& Cache() {
  thread_local ConverterCache cache;
  if (tPins == 0) cache.Refresh();
  return cache;
}

Conversion Outcome(const ConverterCache& cache, size_t written) {
  Conversion c;
  c.written = written;
  if (cache.unknown()) {
    c.fellBack = true;
    c.unknownName = cache.name();
  }
  return c;
}

// Code points to the local code page through `cd`. A code point the code
// page cannot hold is written as "?"; output stops at the first character
// that does not fit whole.
size_t CodePointsToLocal(iconv_t cd, std::vector<char32_t>& cps, char* dst, size_t cap) {
  iconv(cd, nullptr, nullptr, nullptr, nullptr);
  char* in = reinterpret_cast<char*>(cps.data());
  size_t inLeft = cps.size() * sizeof(char32_t);
  char* out = dst;
  size_t outLeft = cap;
  while (inLeft > 0) {
    if (iconv(cd, &in, &inLeft, &out, &outLeft) != static_cast<size_t>(-1)) break;
    if (errno != EILSEQ) break;  // E2BIG: the output is full
    char32_t question = U'?';
    char* qin = reinterpret_cast<char*>(&question);
    size_t qinLeft = sizeof(question);
    if (iconv(cd, &qin, &qinLeft, &out, &outLeft) == static_cast<size_t>(-1)) break;
    in += sizeof(char32_t);
    inLeft -= sizeof(char32_t);
  }
  // Return a stateful code page to its initial shift state when room allows.
  iconv(cd, nullptr, nullptr, &out, &outLeft);
  return static_cast<size_t>(out - dst);
}

// Local code page to code points through `cd`. An invalid byte becomes one
// U+FFFD and conversion goes on after it; a truncated sequence at the end
// becomes one U+FFFD.
std::vector<char32_t> LocalToCodePoints(iconv_t cd, const char* src, size_t n) {
  iconv(cd, nullptr, nullptr, nullptr, nullptr);
  std::vector<char32_t> cps(n + 1);
  char* in = const_cast<char*>(src);
  size_t inLeft = n;
  size_t used = 0;
  while (inLeft > 0) {
    char* out = reinterpret_cast<char*>(cps.data() + used);
    size_t outLeft = (cps.size() - used) * sizeof(char32_t);
    const size_t r = iconv(cd, &in, &inLeft, &out, &outLeft);
    const int err = errno;
    used = static_cast<size_t>(reinterpret_cast<char32_t*>(out) - cps.data());
    if (r != static_cast<size_t>(-1)) break;
    if (err == E2BIG) {
      cps.resize(cps.size() * 2);
      continue;
    }
    if (used == cps.size()) cps.resize(cps.size() * 2);
    cps[used++] = kReplacement;
    if (err != EILSEQ) break;  // EINVAL: incomplete sequence at the end
    ++in;
    --inLeft;
  }
  cps.resize(used);
  return cps;
}

}  // namespace

Conversion Utf8ToLocal(const char* src, size_t n, char* dst, size_t cap) {
  ConverterCache& cache = Cache();
  if (cache.native() && IsAscii(src, n)) {
    // Plain ASCII into UTF-8: every character is one byte, nothing to decode.
    const size_t w = n < cap ? n : cap;
    std::memcpy(dst, src, w);
    return Outcome(cache, w);
  }
  std::vector<char32_t> cps = DecodeUtf8(reinterpret_cast<const unsigned char*>(src), n);
  if (cache.native()) return Outcome(cache, EncodeUtf8(cps, dst, cap));
  return Outcome(cache, CodePointsToLocal(cache.toLocal(), cps, dst, cap));
}

Conversion LocalToUtf8(const char* src, size_t n, char* dst, size_t cap) {
  ConverterCache& cache = Cache();
  const std::vector<char32_t> cps = cache.native()
                                        ? DecodeUtf8(reinterpret_cast<const unsigned char*>(src), n)
                                        : LocalToCodePoints(cache.fromLocal(), src, n);
  return Outcome(cache, EncodeUtf8(cps, dst, cap));
}

std::string LocalCodePage() { return ResolveCodePage(); }

CodePagePin::CodePagePin() {
  if (tPins == 0) Cache();  // the one look at the code page
  ++tPins;
}

CodePagePin::~CodePagePin() { --tPins; }

// ---- Clock and threads ---------------------------------------------------

LocalTime Now() {
  struct timespec ts;
  clock_gettime(CLOCK_REALTIME, &ts);
  struct tm tm;
  localtime_r(&ts.tv_sec, &tm);
  return LocalTime{tm.tm_year + 1900,
                   tm.tm_mon + 1,
                   tm.tm_mday,
                   tm.tm_hour,
                   tm.tm_min,
                   tm.tm_sec,
                   static_cast<int>(ts.tv_nsec / 1000000)};
}

uint32_t ThreadId() { return static_cast<uint32_t>(syscall(SYS_gettid)); }

// ---- Files ---------------------------------------------------------------

std::FILE* OpenAppend(const char* path) {
  if (path == nullptr || path[0] == '\0') {
    errno = ENOENT;
    return nullptr;
  }
  // Create each directory on the way; an existing one is fine.
  const std::string p = path;
  for (size_t slash = p.find('/', 1); slash != std::string::npos; slash = p.find('/', slash + 1)) {
    mkdir(p.substr(0, slash).c_str(), 0755);
  }
  return std::fopen(path, "ab");
}

bool CloseFile(std::FILE* f) { return f != nullptr && std::fclose(f) == 0; }

bool RenameFile(const char* from, const char* to) { return std::rename(from, to) == 0; }

bool RemoveFile(const char* path) { return std::remove(path) == 0; }

bool FileExists(const char* path) {
  struct stat st;
  return path != nullptr && stat(path, &st) == 0;
}

uint64_t FileSize(std::FILE* f) {
  struct stat st;
  if (f == nullptr || fstat(fileno(f), &st) != 0) return 0;
  return static_cast<uint64_t>(st.st_size);
}

int LastError() { return errno; }

namespace {
// strerror_r comes in two flavours; take whichever this C library has.
[[maybe_unused]] std::string FromStrerror(int rc, const char* buf) {
  return rc == 0 ? buf : "unknown error";
}
[[maybe_unused]] std::string FromStrerror(const char* text, const char*) { return text; }
}  // namespace

std::string ErrorText(int code) {
  char buf[256] = {0};
  return FromStrerror(strerror_r(code, buf, sizeof(buf)), buf);
}

}  // namespace platform
}  // namespace kova
