#include "common/base/log_sinks.h"

#include <cstdarg>
#include <vector>

#include "common/base/platform.h"

namespace kova {

namespace {

std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));
std::string Format(const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list again;
  va_copy(again, args);
  const int n = std::vsnprintf(nullptr, 0, format, args);
  va_end(args);
  std::string out;
  if (n > 0) {
    std::vector<char> buf(static_cast<size_t>(n) + 1);
    std::vsnprintf(buf.data(), buf.size(), format, again);
    out.assign(buf.data(), static_cast<size_t>(n));
  }
  va_end(again);
  return out;
}

// A sink cannot log its own failures into itself; they go to the standard
// error stream.
void ReportCloseFailure(const char* format) {
  const int code = platform::LastError();
  std::fprintf(stderr, format, code, platform::ErrorText(code).c_str());
}

class FileSink : public LogSink {
 public:
  FileSink(const std::string& path, uint32_t sizeLimitKiB, uint32_t keptFiles)
      : path_(path),
        limit_(static_cast<uint64_t>(sizeLimitKiB) * 1024u),
        kept_(keptFiles),
        file_(platform::OpenAppend(path.c_str())),
        size_(platform::FileSize(file_)) {}

  ~FileSink() override {
    if (file_ != nullptr && !platform::CloseFile(file_)) {
      ReportCloseFailure("fclose failed code[%d] string[%s]\n");
    }
  }

  bool ready() const override { return file_ != nullptr; }

  void Write(LogLevel level, const std::string& message) override {
    if (file_ == nullptr) return;
    const std::string line = Format("%s[%s][%x] %s%s", TimePrefix().c_str(), LevelName(level),
                                    platform::ThreadId(), message.c_str(), "\r\n");
    if (size_ > 0 && size_ + line.size() > limit_) Rotate();
    if (file_ == nullptr) return;
    if (std::fwrite(line.data(), 1, line.size(), file_) == line.size()) size_ += line.size();
    std::fflush(file_);
  }

 private:
  std::string Numbered(uint32_t i) const {
    return i == 0 ? path_ : path_ + "." + std::to_string(i);
  }

  // Moves the full file aside ("<path>" to "<path>.1", "<path>.1" to
  // "<path>.2", ..., the oldest dropped) and starts a new one.
  void Rotate() {
    if (!platform::CloseFile(file_)) ReportCloseFailure("fclose faild code[%d] string[%s]\n");
    file_ = nullptr;
    for (uint32_t i = kept_; i >= 1; --i) {
      const std::string from = Numbered(i - 1);
      const std::string to = Numbered(i);
      if (!platform::FileExists(from.c_str())) continue;
      if (!platform::RenameFile(from.c_str(), to.c_str())) {
        std::fprintf(stderr, "%s rename [%s] to [%s] failed code[%d]\n", TimePrefix().c_str(),
                     from.c_str(), to.c_str(), platform::LastError());
      }
    }
    file_ = platform::OpenAppend(path_.c_str());
    size_ = platform::FileSize(file_);
  }

  const std::string path_;
  const uint64_t limit_;
  const uint32_t kept_;
  std::FILE* file_;
  uint64_t size_;
};

class ConsoleSink : public LogSink {
 public:
  bool ready() const override { return true; }
  void Write(LogLevel level, const std::string& message) override {
    std::printf("%s[%s][%x]%s\n", TimePrefix().c_str(), LevelName(level), platform::ThreadId(),
                message.c_str());
    std::fflush(stdout);
  }
};

}  // namespace

const char* LevelName(LogLevel level) {
  switch (level) {
    case LogLevel::kDebug:
      return "DEBUG";
    case LogLevel::kInfo:
      return "INFO";
    case LogLevel::kWarn:
      return "WARN";
    case LogLevel::kError:
      return "ERROR";
  }
  return "ERROR";
}

std::string TimePrefix() {
  const platform::LocalTime t = platform::Now();
  return Format("%d-%02d-%02d %02d:%02d:%02d.%03d", t.year, t.month, t.day, t.hour, t.minute,
                t.second, t.millisecond);
}

std::unique_ptr<LogSink> NewFileSink(const std::string& path, uint32_t sizeLimitKiB,
                                     uint32_t keptFiles) {
  return std::make_unique<FileSink>(path, sizeLimitKiB, keptFiles);
}

std::unique_ptr<LogSink> NewConsoleSink() { return std::make_unique<ConsoleSink>(); }

}  // namespace kova
