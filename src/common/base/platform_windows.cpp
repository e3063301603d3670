// The Windows part of the platform module: MultiByteToWideChar and
// WideCharToMultiByte for code pages, the system clock, and log files
// through the Win32 file calls.
#include "common/base/platform.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <cxxabi.h>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "common/base/platform_internal.h"

namespace kova {
namespace platform {

namespace internal {

namespace {

// ---- Code page names -----------------------------------------------------

// The code page KOVA_CODEPAGE names: a number ("936"), "CP", "WINDOWS",
// "IBM" or "MS" followed by one ("CP936", "windows-1252"), or one of the
// charset names the C library's converters know for the same code page.
// 0 when the name means nothing here.
UINT CodePageNumber(const std::string& name) {
  struct Named {
    const char* folded;
    UINT codePage;
  };
  static constexpr Named kNames[] = {
      {"UTF8", CP_UTF8},   {"GBK", 936},        {"GB2312", 936},      {"EUCCN", 936},
      {"GB18030", 54936},  {"BIG5", 950},       {"SHIFTJIS", 932},    {"SJIS", 932},
      {"EUCJP", 20932},    {"EUCKR", 949},      {"UHC", 949},         {"JOHAB", 1361},
      {"ASCII", 20127},    {"USASCII", 20127},  {"LATIN1", 28591},    {"KOI8R", 20866},
      {"KOI8U", 21866},    {"ISO88591", 28591}, {"ISO88592", 28592},  {"ISO88593", 28593},
      {"ISO88594", 28594}, {"ISO88595", 28595}, {"ISO88596", 28596},  {"ISO88597", 28597},
      {"ISO88598", 28598}, {"ISO88599", 28599}, {"ISO885913", 28603}, {"ISO885915", 28605},
      {"TIS620", 874},
  };
  const std::string folded = FoldName(name);
  for (const Named& n : kNames) {
    if (folded == n.folded) return n.codePage;
  }
  size_t digits = 0;
  for (const char* prefix : {"CP", "WINDOWS", "IBM", "MS"}) {
    if (folded.compare(0, std::strlen(prefix), prefix) == 0) {
      digits = std::strlen(prefix);
      break;
    }
  }
  if (digits == folded.size() || folded.size() - digits > 5) return 0;
  UINT number = 0;
  for (size_t i = digits; i < folded.size(); ++i) {
    if (folded[i] < '0' || folded[i] > '9') return 0;
    number = number * 10 + static_cast<UINT>(folded[i] - '0');
  }
  return number;
}

// ---- Per-thread converter ------------------------------------------------

// The code page one thread last used, and what its conversions need.
class Converter {
 public:
  // Follows the current local code page; the checks below run again only
  // when its name changed since the last call on this thread.
  const CodePage& Refresh() {
    std::string name = ResolveCodePage();
    if (ready_ && name == page_.name) return page_;
    page_ = CodePage();
    page_.name = std::move(name);
    ready_ = true;
    codePage_ = CodePageNumber(page_.name);
    if (codePage_ == CP_UTF8) return page_;
    CPINFO info;
    if (codePage_ == 0 || !IsValidCodePage(codePage_) || !GetCPInfo(codePage_, &info)) {
      page_.unknown = true;
      return page_;
    }
    page_.viaUtf8 = false;
    maxCharSize_ = info.MaxCharSize;
    // A few code pages (the ISO-2022 and ISCII families, UTF-7) refuse the
    // strict flags; they are converted with none.
    wchar_t a = L'a';
    char out[8];
    BOOL usedDefault = FALSE;
    strict_ = WideCharToMultiByte(codePage_, WC_NO_BEST_FIT_CHARS, &a, 1, out, sizeof out, nullptr,
                                  &usedDefault) > 0;
    // The code page's own "?", as iconv writes it for a character it lacks.
    const wchar_t q = L'?';
    questionLen_ =
        WideCharToMultiByte(codePage_, 0, &q, 1, question_, sizeof question_, nullptr, nullptr);
    if (questionLen_ <= 0) {
      question_[0] = '?';
      questionLen_ = 1;
    }
    return page_;
  }

  // All of `cps` in one call, when every character has a form in the code
  // page and the whole text fits in `cap` bytes: the bytes written, or
  // SIZE_MAX to go character by character instead.
  size_t EncodeWhole(const std::vector<char32_t>& cps, char* dst, size_t cap) const {
    if (!strict_ || cps.size() > static_cast<size_t>(INT32_MAX) / 2) return SIZE_MAX;
    std::vector<wchar_t> wide;
    wide.reserve(cps.size());
    for (const char32_t c : cps) {
      wchar_t units[2];
      wide.insert(wide.end(), units, units + ToUtf16(c, units));
    }
    const int n = static_cast<int>(wide.size());
    BOOL usedDefault = FALSE;
    const int len = WideCharToMultiByte(codePage_, WC_NO_BEST_FIT_CHARS, wide.data(), n, nullptr, 0,
                                        nullptr, &usedDefault);
    if (len < 0 || usedDefault || static_cast<size_t>(len) > cap) return SIZE_MAX;
    if (len == 0) return n == 0 ? 0 : SIZE_MAX;
    return static_cast<size_t>(WideCharToMultiByte(codePage_, WC_NO_BEST_FIT_CHARS, wide.data(), n,
                                                   dst, len, nullptr, nullptr));
  }

  // One code point in the local code page into `out` (room for 8 bytes):
  // its bytes, or the code page's "?" when it has no such character.
  int Encode(char32_t c, char* out) const {
    wchar_t units[2];
    const int n = ToUtf16(c, units);
    BOOL usedDefault = FALSE;
    // Converted one character at a time: a whole character either fits or is
    // left out, and a character outside the code page is one "?" even when
    // it takes two UTF-16 units.
    const int len = WideCharToMultiByte(codePage_, strict_ ? WC_NO_BEST_FIT_CHARS : 0, units, n,
                                        out, 8, nullptr, strict_ ? &usedDefault : nullptr);
    if (len > 0 && !usedDefault) return len;
    std::memcpy(out, question_, static_cast<size_t>(questionLen_));
    return questionLen_;
  }

  // The code points of the whole character at `src` (`n` bytes left), and
  // the bytes it takes; 0 bytes when no character starts there.
  size_t Decode(const char* src, size_t n, std::vector<char32_t>& out) const {
    wchar_t units[8];
    // The shortest run of bytes that is one valid character: a lead byte
    // alone is not one in any multi-byte code page.
    for (size_t len = 1; len <= maxCharSize_ && len <= n; ++len) {
      const int got = MultiByteToWideChar(codePage_, MB_ERR_INVALID_CHARS, src,
                                          static_cast<int>(len), units, 8);
      if (got > 0) {
        AppendUtf16(units, static_cast<size_t>(got), out);
        return len;
      }
    }
    return 0;
  }

  // All of `src` in one call: true when every byte was valid (or the code
  // page refuses the strict flag and so takes what the system makes of it).
  bool DecodeWhole(const char* src, size_t n, std::vector<char32_t>& out) const {
    const DWORD flags = strict_ ? MB_ERR_INVALID_CHARS : 0;
    const int len = static_cast<int>(n);
    const int units = MultiByteToWideChar(codePage_, flags, src, len, nullptr, 0);
    if (units <= 0) return n == 0 || !strict_;
    std::vector<wchar_t> wide(static_cast<size_t>(units));
    if (MultiByteToWideChar(codePage_, flags, src, len, wide.data(), units) != units) return false;
    AppendUtf16(wide.data(), wide.size(), out);
    return true;
  }

  // The UTF-16 form of a code point: one unit, or a surrogate pair.
  static int ToUtf16(char32_t c, wchar_t* units) {
    if (c < 0x10000) {
      units[0] = static_cast<wchar_t>(c);
      return 1;
    }
    units[0] = static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
    units[1] = static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    return 2;
  }

  // Code points of UTF-16 text; a lone surrogate becomes U+FFFD.
  static void AppendUtf16(const wchar_t* w, size_t n, std::vector<char32_t>& out) {
    for (size_t i = 0; i < n; ++i) {
      const char32_t u = static_cast<char16_t>(w[i]);
      if (u >= 0xD800 && u <= 0xDBFF && i + 1 < n && w[i + 1] >= 0xDC00 && w[i + 1] <= 0xDFFF) {
        out.push_back(0x10000 + ((u - 0xD800) << 10) + (static_cast<char16_t>(w[++i]) - 0xDC00));
      } else if (u >= 0xD800 && u <= 0xDFFF) {
        out.push_back(kReplacement);
      } else {
        out.push_back(u);
      }
    }
  }

 private:
  CodePage page_;
  bool ready_ = false;
  UINT codePage_ = CP_UTF8;
  size_t maxCharSize_ = 1;
  bool strict_ = true;
  char question_[8] = {'?'};
  int questionLen_ = 1;
};

thread_local Converter tConverter;

}  // namespace

std::string ResolveCodePage() {
  // From the process environment rather than a C runtime's copy of it: the
  // client may run on another C runtime than this DLL, or set the variable
  // with SetEnvironmentVariable.
  char env[64];
  const DWORD n = GetEnvironmentVariableA("KOVA_CODEPAGE", env, sizeof env);
  if (n > 0 && n < sizeof env) return std::string(env, n);
  if (n >= sizeof env) {
    std::string value(n, '\0');
    const DWORD got = GetEnvironmentVariableA("KOVA_CODEPAGE", &value[0], n);
    if (got > 0 && got < n) return value.substr(0, got);
  }
  // The process's ANSI code page, as the system's "A" calls use it.
  return "CP" + std::to_string(GetACP());
}

const CodePage& FollowCodePage() { return tConverter.Refresh(); }

size_t CodePointsToLocal(std::vector<char32_t>& cps, char* dst, size_t cap) {
  const size_t whole = tConverter.EncodeWhole(cps, dst, cap);
  if (whole != SIZE_MAX) return whole;
  // A character without a form here, or text longer than the room: one
  // character at a time, to write one "?" for it or to stop before it.
  size_t w = 0;
  for (const char32_t c : cps) {
    char bytes[8];
    const size_t len = static_cast<size_t>(tConverter.Encode(c, bytes));
    if (len > cap - w) break;
    std::memcpy(dst + w, bytes, len);
    w += len;
  }
  return w;
}

std::vector<char32_t> LocalToCodePoints(const char* src, size_t n) {
  std::vector<char32_t> cps;
  cps.reserve(n + 1);
  if (n <= static_cast<size_t>(INT32_MAX) && tConverter.DecodeWhole(src, n, cps)) return cps;
  // Some byte is not valid: character by character, to replace just it.
  size_t i = 0;
  while (i < n) {
    const size_t used = tConverter.Decode(src + i, n - i, cps);
    if (used > 0) {
      i += used;
    } else {
      cps.push_back(kReplacement);  // conversion goes on after the invalid byte
      ++i;
    }
  }
  return cps;
}

}  // namespace internal

// ---- Thread exit ---------------------------------------------------------
//
// MinGW-w64 keeps thread_local objects in emulated TLS, whose storage a
// winpthreads key destructor frees when a thread ends; the C++ runtime runs
// the objects' destructors from the destructor of a key of its own. The keys
// run in the order they were created, so when the emulated-TLS key comes
// first (a thread_local was touched before any was registered for
// destruction) destructors run on freed storage and corrupt the heap: the
// JSON reader each thread keeps, for one. Registering one thread-exit
// destructor before anything touches a thread_local creates the C++
// runtime's key first, in every module built from these sources.
#if defined(__MINGW32__)
namespace {

// The C++ runtime calls thread-exit destructors as member functions:
// __thiscall on 32-bit Windows, which _GLIBCXX_CDTOR_CALLABI names.
void _GLIBCXX_CDTOR_CALLABI NothingToDestroy(void*) {}

__attribute__((constructor(101))) void CreateThreadExitKeyFirst() {
  abi::__cxa_thread_atexit(NothingToDestroy, nullptr, nullptr);
}

}  // namespace
#endif

// ---- Locks ---------------------------------------------------------------

static_assert(sizeof(SRWLOCK) == sizeof(void*), "Mutex holds an SRWLOCK in one word");

void Mutex::Lock() { AcquireSRWLockExclusive(reinterpret_cast<PSRWLOCK>(&srwLock_)); }

void Mutex::Unlock() { ReleaseSRWLockExclusive(reinterpret_cast<PSRWLOCK>(&srwLock_)); }

// ---- Clock and threads ---------------------------------------------------

LocalTime Now() {
  SYSTEMTIME t;
  GetLocalTime(&t);
  return LocalTime{t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond, t.wMilliseconds};
}

uint32_t ThreadId() { return static_cast<uint32_t>(GetCurrentThreadId()); }

// ---- Files ---------------------------------------------------------------

std::FILE* OpenAppend(const char* path) {
  if (path == nullptr || path[0] == '\0') {
    SetLastError(ERROR_PATH_NOT_FOUND);
    return nullptr;
  }
  // Create each directory on the way; an existing one is fine, and a drive
  // ("C:") is not one to create.
  const std::string p = path;
  for (size_t sep = p.find_first_of("/\\", 1); sep != std::string::npos;
       sep = p.find_first_of("/\\", sep + 1)) {
    const std::string dir = p.substr(0, sep);
    if (dir.back() != ':') CreateDirectoryA(dir.c_str(), nullptr);
  }
  // Shared for reading, writing and deleting, so that a reader of the log
  // or a rename by another process is never locked out.
  const HANDLE h = CreateFileA(path, FILE_APPEND_DATA | FILE_READ_ATTRIBUTES,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                               OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (h == INVALID_HANDLE_VALUE) return nullptr;
  const int fd = _open_osfhandle(reinterpret_cast<intptr_t>(h), _O_APPEND | _O_BINARY);
  if (fd == -1) {
    CloseHandle(h);
    SetLastError(ERROR_TOO_MANY_OPEN_FILES);
    return nullptr;
  }
  std::FILE* f = _fdopen(fd, "ab");
  if (f == nullptr) {
    _close(fd);
    SetLastError(ERROR_TOO_MANY_OPEN_FILES);
  }
  return f;
}

bool CloseFile(std::FILE* f) { return f != nullptr && std::fclose(f) == 0; }

bool RenameFile(const char* from, const char* to) {
  return MoveFileExA(from, to, MOVEFILE_REPLACE_EXISTING) != 0;
}

bool RemoveFile(const char* path) { return path != nullptr && DeleteFileA(path) != 0; }

bool FileExists(const char* path) {
  return path != nullptr && GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES;
}

uint64_t FileSize(std::FILE* f) {
  if (f == nullptr) return 0;
  const HANDLE h = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(f)));
  LARGE_INTEGER size;
  if (h == INVALID_HANDLE_VALUE || !GetFileSizeEx(h, &size)) return 0;
  return static_cast<uint64_t>(size.QuadPart);
}

int LastError() { return static_cast<int>(GetLastError()); }

std::string ErrorText(int code) {
  char buf[256] = {0};
  const DWORD n = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                 nullptr, static_cast<DWORD>(code), 0, buf, sizeof buf, nullptr);
  std::string text(buf, n);
  while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == '.')) {
    text.pop_back();
  }
  return text.empty() ? "unknown error" : text;
}

}  // namespace platform
}  // namespace kova
