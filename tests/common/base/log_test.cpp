#include "common/base/log.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <random>
#include <regex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "test_util.h"

namespace kova {
namespace {

// Each test writes in a directory of its own and leaves no logger open.
class LogTest : public ::testing::Test {
 protected:
  void TearDown() override {
    CloseLogger();
    std::filesystem::remove_all(dir_);
  }
  std::string OpenAt(const std::string& name, uint32_t sizeLimit = 0, uint32_t kept = 0) {
    std::filesystem::create_directories(dir_);
    LogSettings s = {};
    std::snprintf(s.path, sizeof s.path, "%s/%s", dir_.c_str(), name.c_str());
    s.sizeLimit = sizeLimit;
    s.secondLimit = kept;
    EXPECT_TRUE(OpenLogger(&s));
    return s.path;
  }

  const std::string dir_ = (std::filesystem::temp_directory_path() /
                            ("kova_log_" + std::to_string(std::random_device()())))
                               .string();
};

const std::regex kLine(
    R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3}\[ERROR\]\[[0-9a-f]+\] log_test\.cpp:(\d+) )"
    R"(code\[0x80000015\] t(\d+) n(\d+) at (\d+))");

TEST_F(LogTest, ThreadsWriteWholeLinesWithTheirOwnPositions) {
  const std::string path = OpenAt("threads.log");
  constexpr int kThreads = 6;
  constexpr int kReports = 300;
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([t] {
      for (int i = 0; i < kReports; ++i) {
        // Two report sites: a position must never pair with another
        // thread's report.
        if (t % 2 == 0) {
          KOVA_REPORT(kErrMalformedData, "t%d n%d at %d", t, i, __LINE__);
        } else {
          KOVA_REPORT(kErrMalformedData, "t%d n%d at %d", t, i, __LINE__);
        }
      }
    });
  }
  for (std::thread& th : threads) th.join();
  CloseLogger();

  const std::string text = kova_test::ReadFile(path);
  std::set<std::pair<int, int>> seen;
  size_t start = 0;
  int lines = 0;
  for (size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2) {
    const std::string line = text.substr(start, end - start);
    std::smatch m;
    ASSERT_TRUE(std::regex_match(line, m, kLine)) << line;
    EXPECT_EQ(m[1].str(), m[4].str()) << line;
    seen.insert({std::stoi(m[2].str()), std::stoi(m[3].str())});
    ++lines;
  }
  EXPECT_EQ(text.size(), start) << "text after the last CR LF";
  EXPECT_EQ(kThreads * kReports, lines);
  EXPECT_EQ(static_cast<size_t>(kThreads * kReports), seen.size());
}

TEST_F(LogTest, ReopeningReplacesTheLoggerAndFullFilesMoveAside) {
  const std::string first = OpenAt("first.log");
  const std::string path = OpenAt("small.log", 1, 2);  // closes first.log
  for (int i = 0; i < 60; ++i) KOVA_REPORT(kErrMalformedData, "t0 n%d at %d", i, __LINE__);
  CloseLogger();
  EXPECT_EQ("", kova_test::ReadFile(first));
  for (const std::string& f : {path, path + ".1", path + ".2"}) {
    const std::string text = kova_test::ReadFile(f);
    EXPECT_FALSE(text.empty()) << f;
    EXPECT_LE(text.size(), 1024u) << f;
  }
  EXPECT_FALSE(std::filesystem::exists(path + ".3"));
  EXPECT_NE(std::string::npos, kova_test::ReadFile(path).find(" n59 at "));
}

}  // namespace
}  // namespace kova
