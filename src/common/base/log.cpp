#include "common/base/log.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "common/base/log_sinks.h"
#include "common/base/platform.h"

namespace kova {

namespace {

// The one process-wide slot and its lock. Empty until a host opens a
// logger; the library itself never does.
platform::Mutex gSlotMu;
LogSink* gSlot = nullptr;  // owned; guarded by gSlotMu

// The position of the report that follows, per thread: a position and its
// report always come from the same thread, so two threads cannot swap them.
struct Position {
  const char* file = nullptr;
  uint32_t line = 0;
  int flag = 0;
};
thread_local Position tPosition;

const char* BaseName(const char* path) {
  if (path == nullptr) return "?";
  const char* slash = std::strrchr(path, '/');
  return slash != nullptr ? slash + 1 : path;
}

constexpr size_t kMessageCapacity = 1024;

}  // namespace

void ReportPosition(const char* file, uint32_t line, int flag) {
  tPosition.file = file;
  tPosition.line = line;
  tPosition.flag = flag;
}

void ReportError(uint32_t code, const char* format, ...) {
  platform::MutexLock lock(&gSlotMu);
  if (gSlot == nullptr || format == nullptr) return;
  char text[kMessageCapacity];
  va_list args;
  va_start(args, format);
  std::vsnprintf(text, sizeof(text), format, args);
  va_end(args);
  // The sink ends the line itself.
  size_t n = std::strlen(text);
  while (n > 0 && (text[n - 1] == '\n' || text[n - 1] == '\r')) text[--n] = '\0';
  char head[160];
  std::snprintf(head, sizeof(head), "%s:%u code[0x%08x] ", BaseName(tPosition.file), tPosition.line,
                code);
  gSlot->Write(LogLevel::kError, std::string(head) + text);
}

bool OpenLogger(LogSettings* settings) {
  std::string path = kDefaultLogPath;
  uint32_t sizeLimit = kDefaultSizeLimitKiB;
  uint32_t keptFiles = kDefaultKeptFiles;
  uint32_t kind = kSinkFile;
  if (settings != nullptr) {
    path.assign(settings->path, strnlen(settings->path, sizeof(settings->path)));
    // The caller's record learns the default path, but the logger keeps
    // the empty one it was given: deliberate, and kept.
    if (path.empty()) {
      std::snprintf(settings->path, sizeof(settings->path), "%s", kDefaultLogPath);
    }
    if (settings->sizeLimit != 0) sizeLimit = settings->sizeLimit;
    if (settings->secondLimit != 0) keptFiles = settings->secondLimit;
    if (settings->sinkKind == kSinkConsole) kind = kSinkConsole;
  }
  platform::MutexLock lock(&gSlotMu);
  delete gSlot;
  gSlot = nullptr;
  std::unique_ptr<LogSink> sink =
      kind == kSinkConsole ? NewConsoleSink() : NewFileSink(path, sizeLimit, keptFiles);
  const bool ready = sink->ready();
  gSlot = sink.release();
  return ready;
}

void CloseLogger() {
  platform::MutexLock lock(&gSlotMu);
  delete gSlot;
  gSlot = nullptr;
}

}  // namespace kova
