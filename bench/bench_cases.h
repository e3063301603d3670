// The benchmark groups and the pairs (ours, floor) whose ratio the report
// prints at the end.
#ifndef KOVA_BENCH_BENCH_CASES_H_
#define KOVA_BENCH_BENCH_CASES_H_

#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <vector>

#include "harness/documents.h"

namespace kova_bench {

struct Pair {
  std::string what;     // "parse", "pack", "writer"
  std::string subject;  // configuration name, or what was written
  std::string ours;     // benchmark name of our code
  std::string floor;    // benchmark name of the floor it is compared with
};

void AddPair(const std::string& what, const std::string& subject, const std::string& ours,
             const std::string& floor);
const std::vector<Pair>& Pairs();

// The floors. Parse: the JSON library's reader (one reader, kept) on `doc`
// plus clearing `clearBytes` bytes. Pack: the library's compact writer on
// the value tree of `packed` plus copying the text into a buffer of
// `textLen` bytes.
void RunParseFloor(benchmark::State& state, const std::string& doc, size_t clearBytes);
void RunPackFloor(benchmark::State& state, const std::string& packed, size_t textLen);

void RegisterTranslatorBenchmarks(const std::vector<kova_harness::SampleDocument>& samples);
void RegisterWriterBenchmarks(const std::vector<kova_harness::SampleDocument>& samples);
void RegisterRuleListBenchmarks(const std::vector<kova_harness::SampleDocument>& samples);
void RegisterEventBenchmarks(const std::vector<kova_harness::SampleDocument>& samples);

}  // namespace kova_bench

#endif  // KOVA_BENCH_BENCH_CASES_H_
