// What the Windows part of the platform module owes the rest of the library
// beyond code pages (those are covered through the DLL in
// tests/windows/load_library_test.cpp).
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace {

std::atomic<int> gIntactAtExit{0};

// A per-thread object whose destructor frees memory and checks that its
// storage is still its own, like the JSON reader and converters each thread
// of the library keeps.
struct PerThread {
  static constexpr unsigned kMark = 0x6B6F7661;
  unsigned mark = kMark;
  std::vector<int> data;
  ~PerThread() {
    if (mark == kMark) ++gIntactAtExit;
  }
};

PerThread& Mine() {
  thread_local PerThread mine;
  return mine;
}

TEST(PlatformWindows, ThreadLocalObjectsAreDestroyedWhileTheirStorageLives) {
  constexpr int kThreads = 8;
  constexpr int kRounds = 40;
  for (int round = 0; round < kRounds; ++round) {
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
      threads.emplace_back([] {
        for (int i = 0; i < 64; ++i) Mine().data.push_back(i);
        Mine().data.clear();
        Mine().data.shrink_to_fit();
      });
    }
    for (std::thread& th : threads) th.join();
  }
  EXPECT_EQ(kThreads * kRounds, gIntactAtExit.load());
}

}  // namespace
