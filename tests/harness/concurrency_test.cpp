// Every name called from several threads at once, parse and pack, with the
// event stream beside them, on shared read-only inputs: each call must give
// exactly what it gives when made alone. Run under ThreadSanitizer by
// `make tsan`.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "api/dispatch.h"
#include "harness/calls.h"
#include "harness/catalog.h"
#include "harness/documents.h"

namespace kova_harness {
namespace {

struct Task {
  enum Kind { kParse, kPack, kEvents, kByCallback } kind;
  int index;          // list index (parse, pack) or document index (events)
  std::string input;  // JSON text or record bytes
  uint32_t inLen;
  uint32_t outLen;
};

uint64_t Outcome(const Task& t) {
  switch (t.kind) {
    case Task::kParse: {
      ParseOptions o;
      o.keepBytes = true;
      const ParseResult r = CallParse(kova::kParseNames[t.index].name, t.input.c_str(), t.outLen, o);
      uint64_t h = Digest(&r.ret, sizeof r.ret);
      h = Digest(&r.retLen, sizeof r.retLen, h);
      return Digest(r.bytes.data(), r.bytes.size(), h ^ r.guardsIntact);
    }
    case Task::kPack: {
      const PackResult r =
          CallPack(kova::kPackNames[t.index].name, t.input, t.inLen, t.outLen, t.input);
      return Digest(r.text.data(), r.text.size(), Digest(&r.ret, sizeof r.ret) ^ r.guardsIntact);
    }
    case Task::kEvents:
    case Task::kByCallback: {
      const EventResult r = CallEvents(t.input, static_cast<uint32_t>(t.input.size()),
                                       t.kind == Task::kByCallback);
      return r.digest ^ (static_cast<uint64_t>(r.calls) << 32) ^ static_cast<uint64_t>(r.ret);
    }
  }
  return 0;
}

std::vector<Task> AllTasks() {
  const std::vector<SampleDocument> samples =
      LoadSampleDocuments({KOVA_SAMPLES_DIR, KOVA_FIXTURES_DIR});
  std::vector<Task> tasks;
  for (int i = 0; i < static_cast<int>(kova::kParseNameCount); ++i) {
    // A name without translator refuses at once: a small buffer will do.
    const uint32_t size = kova::ParseBuilt(i) ? ParseSizeOrDefault(i) : 64;
    std::vector<std::string> docs = RealisticDocuments(i, samples);
    docs.resize(std::min<size_t>(docs.size(), 2));
    docs.push_back(ReplaceScalars(docs.front(), "2147483648"));
    for (const std::string& d : docs) tasks.push_back({Task::kParse, i, d, 0, size});
  }
  for (int k = 0; k < static_cast<int>(kova::kPackNameCount); ++k) {
    const bool built = kova::PackBuilt(k);
    const uint32_t size = built ? PackSizeOrDefault(k) : 64;
    const uint32_t textSize = built ? std::min(4u << 20, (64u << 10) + 2 * size) : 64;
    for (Fill fill : {Fill::kZero, Fill::kAll7F, Fill::kRandom}) {
      std::string record(size, '\0');
      FillRecord(reinterpret_cast<uint8_t*>(&record[0]), record.size(), fill, 1);
      tasks.push_back({Task::kPack, k, record, size, textSize});
    }
  }
  const std::vector<std::string> events = EventDocuments(samples);
  for (size_t d = 0; d < events.size(); ++d) {
    tasks.push_back({Task::kEvents, static_cast<int>(d), events[d], 0, 0});
    tasks.push_back({Task::kByCallback, static_cast<int>(d), events[d], 0, 0});
  }
  return tasks;
}

TEST(Concurrency, EveryNameGivesTheSameResultsFromManyThreadsAtOnce) {
  const std::vector<Task> tasks = AllTasks();
  std::vector<uint64_t> alone(tasks.size());
  for (size_t t = 0; t < tasks.size(); ++t) alone[t] = Outcome(tasks[t]);

  const int kThreads = 4;
  const int kRounds = 2;
  std::atomic<int> mismatches{0};
  std::mutex firstLock;
  std::string first;
  std::vector<std::thread> threads;
  for (int th = 0; th < kThreads; ++th) {
    threads.emplace_back([&, th] {
      for (int round = 0; round < kRounds; ++round) {
        // Each thread walks the tasks from its own starting point, so
        // different names run side by side as well as the same ones.
        const size_t start = tasks.size() * th / kThreads;
        for (size_t n = 0; n < tasks.size(); ++n) {
          const size_t t = (start + n) % tasks.size();
          if (Outcome(tasks[t]) == alone[t]) continue;
          ++mismatches;
          std::lock_guard<std::mutex> hold(firstLock);
          if (first.empty()) first = std::to_string(tasks[t].kind) + "/" +
                                     std::to_string(tasks[t].index);
        }
      }
    });
  }
  for (std::thread& t : threads) t.join();
  EXPECT_EQ(0, mismatches.load()) << "first differing task (kind/index): " << first;
}

}  // namespace
}  // namespace kova_harness
