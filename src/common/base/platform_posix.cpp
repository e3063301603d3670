// The POSIX (glibc) part of the platform module: iconv for code pages, the
// C library's clock and files.
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

#include "common/base/platform.h"
#include "common/base/platform_internal.h"

namespace kova {
namespace platform {

namespace internal {

namespace {

// ---- Per-thread converters -----------------------------------------------

#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
constexpr const char* kUtf32 = "UTF-32BE";
#else
constexpr const char* kUtf32 = "UTF-32LE";
#endif

const iconv_t kNoConverter = reinterpret_cast<iconv_t>(-1);

// The converters of one thread for the local code page it last used.
class ConverterCache {
 public:
  ~ConverterCache() { Close(); }

  // Makes the converters match the current local code page, reopening them
  // only when its name changed since the last call on this thread.
  const CodePage& Refresh() {
    std::string name = ResolveCodePage();
    if (opened_ && name == page_.name) return page_;
    Close();
    page_ = CodePage();
    page_.name = std::move(name);
    opened_ = true;
    if (FoldName(page_.name) == "UTF8") return page_;
    toLocal_ = iconv_open(page_.name.c_str(), kUtf32);
    fromLocal_ = iconv_open(kUtf32, page_.name.c_str());
    if (toLocal_ == kNoConverter || fromLocal_ == kNoConverter) {
      Close();
      opened_ = true;
      page_.unknown = true;
      return page_;
    }
    page_.viaUtf8 = false;
    return page_;
  }

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

  CodePage page_;
  bool opened_ = false;
  iconv_t toLocal_ = kNoConverter;
  iconv_t fromLocal_ = kNoConverter;
};

thread_local ConverterCache tCache;

}  // namespace

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

const CodePage& FollowCodePage() { return tCache.Refresh(); }

size_t CodePointsToLocal(std::vector<char32_t>& cps, char* dst, size_t cap) {
  const iconv_t cd = tCache.toLocal();
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

std::vector<char32_t> LocalToCodePoints(const char* src, size_t n) {
  const iconv_t cd = tCache.fromLocal();
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

}  // namespace internal

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
