// Every name called from several threads at once, parse and pack, with the
// event stream beside them, on shared read-only inputs: each call must give
// exactly what it gives when made alone. Run under ThreadSanitizer by
// `make tsan`.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "api/dispatch.h"
#include "harness/calls.h"
#include "harness/catalog.h"
#include "harness/documents.h"
#include "harness/guarded_buffer.h"
#include "kova/kova.h"

namespace kova_harness {
namespace {

// One call and its inputs. The inputs are shared by every thread and only
// read; each call writes into buffers of its own.
struct Task {
  enum Kind { kParse, kPack, kEvents, kByCallback } kind;
  int index;                                // list index (parse, pack) or document index
  std::string text;                         // JSON text (parse, events)
  std::shared_ptr<GuardedBuffer> record;    // records (pack), pointer fields aimed already
  std::shared_ptr<PointedBuffers> pointed;  // what those pointer fields point at
  uint32_t outLen;
  std::string what;  // the call, for the failure message
};

uint64_t Outcome(const Task& t) {
  switch (t.kind) {
    case Task::kParse: {
      const char* name = kova::kParseNames[t.index].name;
      GuardedBuffer out(t.outLen);
      PointedBuffers pointed;
      pointed.Attach(name, out.data(), out.size(), ParseSize(t.index), 4096, std::string());
      uint32_t retLen = 0;
      const int ret = KOVA_ParseData(name, t.text.c_str(), out.data(), t.outLen, &retLen);
      uint64_t h = Digest(&ret, sizeof ret, out.GuardsIntact());
      h = Digest(&retLen, sizeof retLen, h);
      std::string bytes(out.chars(), out.size());
      ClearPointerFields(name, reinterpret_cast<uint8_t*>(&bytes[0]), bytes.size(),
                         ParseSize(t.index));
      h = Digest(bytes.data(), bytes.size(), h);
      const std::string contents = pointed.Contents();
      return Digest(contents.data(), contents.size(), h);
    }
    case Task::kPack: {
      GuardedBuffer out(t.outLen);
      const int ret =
          KOVA_PacketData(kova::kPackNames[t.index].name, t.record->data(),
                          static_cast<uint32_t>(t.record->size()), out.chars(), t.outLen);
      return Digest(out.data(), out.size(), Digest(&ret, sizeof ret, out.GuardsIntact()));
    }
    case Task::kEvents:
    case Task::kByCallback: {
      const EventResult r = CallEventsInPlace(t.text.c_str(), static_cast<uint32_t>(t.text.size()),
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
  // Per name: its shortest realistic document and a hostile variant of it;
  // per packer: a record of zeros and the record that document parses into.
  std::vector<std::string> shortest(kova::kParseNameCount);
  for (int i = 0; i < static_cast<int>(kova::kParseNameCount); ++i) {
    // A name without translator refuses at once: a small buffer will do.
    const uint32_t size = kova::ParseBuilt(i) ? ParseSizeOrDefault(i) : 64;
    const std::vector<std::string> docs = RealisticDocuments(i, samples);
    shortest[i] = *std::min_element(
        docs.begin(), docs.end(),
        [](const std::string& a, const std::string& b) { return a.size() < b.size(); });
    for (const std::string& d : {shortest[i], ReplaceScalars(shortest[i], "2147483648")}) {
      tasks.push_back({Task::kParse, i, d, nullptr, nullptr, size,
                       std::string("parse ") + kova::kParseNames[i].name});
    }
  }
  for (int k = 0; k < static_cast<int>(kova::kPackNameCount); ++k) {
    const bool built = kova::PackBuilt(k);
    const uint32_t size = built ? PackSizeOrDefault(k) : 64;
    const uint32_t textSize = built ? std::min(4u << 20, (64u << 10) + 2 * size) : 64;
    const int i = kova::FindParseName(kova::kPackNames[k].name);
    for (bool parsed : {false, true}) {
      auto record = std::make_shared<GuardedBuffer>(size);
      if (parsed && i >= 0 && built && kova::ParseBuilt(i)) {
        ParseOptions o;
        o.keepBytes = true;
        const ParseResult r = CallParse(kova::kPackNames[k].name, shortest[i].c_str(), size, o);
        std::memcpy(record->data(), r.bytes.data(), size);
      }
      auto pointed = std::make_shared<PointedBuffers>();
      pointed->Attach(kova::kPackNames[k].name, record->data(), size, PackSize(k), -1, "kova");
      tasks.push_back({Task::kPack, k, std::string(), record, pointed, textSize,
                       std::string("pack ") + kova::kPackNames[k].name});
    }
  }
  const std::vector<std::string> events = EventDocuments(samples);
  for (size_t d = 0; d < events.size(); ++d) {
    const int n = static_cast<int>(d);
    const std::string doc = ", document " + std::to_string(d);
    tasks.push_back({Task::kEvents, n, events[d], nullptr, nullptr, 0, "analyzer events" + doc});
    tasks.push_back({Task::kByCallback, n, events[d], nullptr, nullptr, 0, "by callback" + doc});
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
          if (first.empty()) first = tasks[t].what;
        }
      }
    });
  }
  for (std::thread& t : threads) t.join();
  EXPECT_EQ(0, mismatches.load()) << "first differing call: " << first;
}

}  // namespace
}  // namespace kova_harness
