// The one place where the library touches the operating system: code-page
// conversion, a mutex, the local clock, the thread id and log files.
//
// Everything else in the library is portable C++ over these calls.
// platform.cpp is portable too; each system has its own part,
// platform_posix.cpp or platform_windows.cpp, and a port to another system
// adds one more.
#ifndef KOVA_COMMON_PLATFORM_H_
#define KOVA_COMMON_PLATFORM_H_

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#if !defined(_WIN32)
#include <mutex>
#endif

namespace kova {
namespace platform {

// ---- Code pages ----------------------------------------------------------
//
// The local code page is the one named by the environment variable
// KOVA_CODEPAGE when it is set and not empty; a name the system's converter
// does not know falls back to UTF-8.
// - POSIX: any iconv name ("GBK", "CP936", "BIG5", "ISO-8859-1", "UTF-8",
//   ...); unset, the codeset of the calling thread's current locale, where
//   the plain C/POSIX locale (ASCII) counts as UTF-8, so that a program that
//   never sets a locale gets its text unchanged.
// - Windows: a code page number ("936") or a name ("CP936", "windows-1252",
//   "GBK", "BIG5", "ISO-8859-1", "UTF-8", ...); unset, the process's ANSI
//   code page (CP_ACP). Converted by MultiByteToWideChar and
//   WideCharToMultiByte, with the same replacement rules as below.
//
// Converters are opened once per thread and reopened only when the local
// code page changes.

// The outcome of one conversion.
struct Conversion {
  size_t written = 0;  // bytes stored into the destination
  // Set when the local code page is unknown to the converter and UTF-8 was
  // used instead; `unknownName` then holds the name that was asked for.
  bool fellBack = false;
  std::string unknownName;
};

// Converts `n` bytes of UTF-8 at `src` into the local code page, storing at
// most `cap` bytes at `dst` and no terminator. An invalid UTF-8 sequence
// becomes one replacement character (U+FFFD, or "?" where the local code
// page has none) and conversion goes on; a character that the local code
// page cannot hold becomes "?". Output stops at the last whole character
// that fits: a multi-byte character is never split.
Conversion Utf8ToLocal(const char* src, size_t n, char* dst, size_t cap);

// Converts `n` bytes in the local code page at `src` into UTF-8, storing at
// most `cap` bytes at `dst` and no terminator. A byte sequence that is not
// valid in the local code page becomes one U+FFFD; output stops at the last
// whole character that fits.
Conversion LocalToUtf8(const char* src, size_t n, char* dst, size_t cap);

// The name of the local code page as the calling thread sees it now.
std::string LocalCodePage();

// While one lives on a thread, that thread's conversions use the local code
// page as the first conversion under it found it: one look at the
// environment and the locale for a whole document instead of one per text
// field, and none for a document without text.
class CodePagePin {
 public:
  CodePagePin();
  ~CodePagePin();
  CodePagePin(const CodePagePin&) = delete;
  CodePagePin& operator=(const CodePagePin&) = delete;
};

// ---- Locks ---------------------------------------------------------------

// A non-recursive mutex; constant-initialised, so a namespace-scope Mutex is
// ready before any static constructor runs. On Windows a slim reader/writer
// lock taken exclusively (SRWLOCK_INIT is all zero bits and needs no
// cleanup), elsewhere the standard library's mutex.
class Mutex {
 public:
  constexpr Mutex() = default;
  Mutex(const Mutex&) = delete;
  Mutex& operator=(const Mutex&) = delete;
#if defined(_WIN32)
  void Lock();
  void Unlock();

 private:
  void* srwLock_ = nullptr;  // an SRWLOCK: one pointer-sized word
#else
  void Lock() { m_.lock(); }
  void Unlock() { m_.unlock(); }

 private:
  std::mutex m_;
#endif
};

// Holds a Mutex for the lifetime of the scope.
class MutexLock {
 public:
  explicit MutexLock(Mutex* mu) : mu_(mu) { mu_->Lock(); }
  ~MutexLock() { mu_->Unlock(); }
  MutexLock(const MutexLock&) = delete;
  MutexLock& operator=(const MutexLock&) = delete;

 private:
  Mutex* mu_;
};

// ---- Clock and threads ---------------------------------------------------

struct LocalTime {
  int year;   // e.g. 2024
  int month;  // 1-12
  int day;    // 1-31
  int hour;
  int minute;
  int second;
  int millisecond;  // 0-999
};

// The wall-clock time now, in the local time zone.
LocalTime Now();

// The operating system's id of the calling thread.
uint32_t ThreadId();

// ---- Files ---------------------------------------------------------------

// Opens `path` for appending in binary mode, creating the directories that
// lead to it first. Null on failure; LastError() then tells why.
std::FILE* OpenAppend(const char* path);
// Closes `f`; false on failure (LastError() tells why).
bool CloseFile(std::FILE* f);
// Renames `from` to `to`, replacing `to` when it exists.
bool RenameFile(const char* from, const char* to);
// Removes `path`; false when it could not be removed (or did not exist).
bool RemoveFile(const char* path);
// True when `path` names an existing file or directory.
bool FileExists(const char* path);
// The size of an open file in bytes; 0 when unknown.
uint64_t FileSize(std::FILE* f);

// The system's error number of the last failed call on this thread, and its
// text.
int LastError();
std::string ErrorText(int code);

}  // namespace platform
}  // namespace kova

#endif  // KOVA_COMMON_PLATFORM_H_
