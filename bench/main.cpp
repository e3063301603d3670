// kova_bench: every benchmark, then the ratio of each measured case to its
// floor. See bench/README.md for how to read the numbers.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "bench/bench_cases.h"
#include "harness/documents.h"

namespace kova_bench {

namespace {

std::vector<Pair>& MutablePairs() {
  static std::vector<Pair> pairs;
  return pairs;
}

// The most each kind of case may take beside its floor: a parse a quarter
// more than reading the text, a pack half more than writing the tree, the
// single-line writer half the JSON library's compact writer, and the event
// stream at least 0.9 times the events per second of reading alone.
double Limit(const std::string& what) {
  if (what == "parse") return 1.25;
  if (what == "pack") return 1.5;
  if (what == "writer") return 0.5;
  return 1 / 0.9;  // events: time per notification
}

// The console report, remembering each benchmark's real time in ns. Run
// with repetitions (--benchmark_repetitions, best with
// --benchmark_enable_random_interleaving), a case's time is the median of
// its repetitions, ours and the floor's alike, and the console shows only
// the medians.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  // Colours only on a terminal.
  explicit RatioReporter(bool colour) : ConsoleReporter(colour ? OO_Defaults : OO_Tabular) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    std::vector<Run> shown;
    for (const Run& r : runs) {
      const bool single = r.aggregate_name.empty() && r.repetitions <= 1;
      const bool median = r.aggregate_name == "median";
      if (r.error_occurred || single || median) shown.push_back(r);
      if (r.error_occurred || !(single || median)) continue;
      nanoseconds_[r.run_name.str()] =
          r.GetAdjustedRealTime() * 1e9 / benchmark::GetTimeUnitMultiplier(r.time_unit);
    }
    if (!shown.empty()) ConsoleReporter::ReportRuns(shown);
  }

  void PrintRatios() const {
    std::printf("\n%-8s %-32s %14s %14s %8s %6s\n", "", "", "ours (ns)", "floor (ns)", "ratio",
                "limit");
    std::map<std::string, std::pair<int, int>> within;  // per kind: within the limit, measured
    for (const Pair& p : Pairs()) {
      const auto ours = nanoseconds_.find(p.ours);
      const auto floor = nanoseconds_.find(p.floor);
      if (ours == nanoseconds_.end() || floor == nanoseconds_.end()) continue;
      const double ratio = ours->second / floor->second;
      const double limit = Limit(p.what);
      std::printf("%-8s %-32s %14.0f %14.0f %8.2f %6.2f%s\n", p.what.c_str(), p.subject.c_str(),
                  ours->second, floor->second, ratio, limit, ratio > limit ? "  over" : "");
      std::pair<int, int>& w = within[p.what];
      w.first += ratio <= limit ? 1 : 0;
      ++w.second;
    }
    std::printf("\n");
    for (const auto& [what, w] : within) {
      std::printf("%-8s %d of %d within %.2f\n", what.c_str(), w.first, w.second, Limit(what));
    }
  }

 private:
  std::map<std::string, double> nanoseconds_;
};

}  // namespace

void AddPair(const std::string& what, const std::string& subject, const std::string& ours,
             const std::string& floor) {
  MutablePairs().push_back({what, subject, ours, floor});
}

const std::vector<Pair>& Pairs() { return MutablePairs(); }

}  // namespace kova_bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  const std::vector<kova_harness::SampleDocument> samples =
      kova_harness::LoadSampleDocuments({KOVA_SAMPLES_DIR, KOVA_FIXTURES_DIR});
  kova_bench::RegisterTranslatorBenchmarks(samples);
  kova_bench::RegisterRuleListBenchmarks(samples);
  kova_bench::RegisterWriterBenchmarks(samples);
  kova_bench::RegisterEventBenchmarks(samples);
  kova_bench::RatioReporter reporter(isatty(STDOUT_FILENO) != 0);
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.PrintRatios();
  benchmark::Shutdown();
  return 0;
}
