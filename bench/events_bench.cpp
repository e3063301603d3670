// The analyzer event stream and parse-by-callback in events per second: a
// notification of 130 events (128 of which one notification may carry),
// mixing events with and without data and unknown codes.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>

#include "bench/bench_cases.h"
#include "kova/kova.h"

namespace kova_bench {

namespace {

int KOVA_CALL Count(uint32_t, const void*, uint32_t, const void*, uint32_t, void* user) {
  ++*static_cast<int64_t*>(user);
  return 0;
}

void Events(benchmark::State& state, const std::string* doc, bool byCallback) {
  int64_t delivered = 0;
  const uint32_t len = static_cast<uint32_t>(doc->size());
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        byCallback ? KOVA_ParseDataByCallback(doc->c_str(), len, Count, &delivered)
                   : KOVA_ParseAnalyzerEventData(doc->c_str(), len, Count, &delivered));
  }
  const double iterations = static_cast<double>(state.iterations());
  state.counters["events/s"] = benchmark::Counter(128 * iterations, benchmark::Counter::kIsRate);
  state.counters["delivered/s"] =
      benchmark::Counter(static_cast<double>(delivered), benchmark::Counter::kIsRate);
}

}  // namespace

void RegisterEventBenchmarks(const std::vector<kova_harness::SampleDocument>& samples) {
  // The largest of the made documents is the notification of 130 events.
  static std::string doc;
  for (const std::string& d :
       kova_harness::EventDocuments(std::vector<kova_harness::SampleDocument>())) {
    if (d.size() > doc.size()) doc = d;
  }
  benchmark::RegisterBenchmark("events/analyzer", Events, &doc, false);
  benchmark::RegisterBenchmark("events/by_callback", Events, &doc, true);
}

}  // namespace kova_bench
