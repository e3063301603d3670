// The sinks a logger writes to: a file with size-limited renaming, or the
// standard output. Used only by log.cpp, always under the slot's lock.
#ifndef KOVA_COMMON_LOG_SINKS_H_
#define KOVA_COMMON_LOG_SINKS_H_

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

namespace kova {

constexpr const char* kDefaultLogPath = "./kovalog/sdklog.log";
constexpr uint32_t kDefaultSizeLimitKiB = 10240;
constexpr uint32_t kDefaultKeptFiles = 2;
constexpr uint32_t kSinkFile = 1;
constexpr uint32_t kSinkConsole = 2;

// The level names a line can carry.
enum class LogLevel { kDebug, kInfo, kWarn, kError };
const char* LevelName(LogLevel level);

// "year-mm-dd hh:mm:ss.mmm" of the local time now.
std::string TimePrefix();

class LogSink {
 public:
  virtual ~LogSink() = default;
  // True when the sink can write (a file sink whose file opened).
  virtual bool ready() const = 0;
  // Writes one whole line for `message` (which carries no line ending).
  virtual void Write(LogLevel level, const std::string& message) = 0;
};

// Appends "<time>[<LEVEL>][<thread id hex>] <message>\r\n" to `path`. Before
// a line would take the file past `sizeLimitKiB`, the file is closed and
// renamed to "<path>.1" (older ones moving up to "<path>.<keptFiles>") and a
// new one is started. An empty or unopenable path gives a sink that drops
// every line.
std::unique_ptr<LogSink> NewFileSink(const std::string& path, uint32_t sizeLimitKiB,
                                     uint32_t keptFiles);

// Prints "<time>[<LEVEL>][<thread id hex>]<message>\n" to the standard output.
std::unique_ptr<LogSink> NewConsoleSink();

}  // namespace kova

#endif  // KOVA_COMMON_LOG_SINKS_H_
