// The single-line writer against the JSON library's own compact writer on
// the same value tree: the realistic documents of the built names (up to
// 64 KiB each), and a made tree of many records with every kind of value
// and awkward strings.
#include <benchmark/benchmark.h>
#include <json/reader.h>
#include <json/writer.h>

#include <memory>
#include <sstream>
#include <string>

#include "bench/bench_cases.h"
#include "common/json/json_writer.h"
#include "harness/catalog.h"
#include "harness/documents.h"

namespace kova_bench {

namespace {

Json::Value MadeTree() {
  Json::Value root(Json::arrayValue);
  for (int i = 0; i < 2000; ++i) {
    Json::Value r(Json::objectValue);
    r["Enable"] = i % 2 == 0;
    r["Channel"] = i;
    r["Bitrate"] = 4096u * static_cast<unsigned>(i);
    r["Ratio"] = 0.25 * i;
    r["Name"] = "camera/" + std::to_string(i) + " \"lobby\"\tnorth";
    r["Memo"] = Json::Value();
    Json::Value region(Json::arrayValue);
    for (int p = 0; p < 4; ++p) region.append(Json::Value(Json::arrayValue)).append(p * 100);
    r["Region"] = region;
    root.append(r);
  }
  return root;
}

Json::Value DocumentsTree(const std::vector<kova_harness::SampleDocument>& samples) {
  Json::Value root(Json::arrayValue);
  Json::CharReaderBuilder builder;
  std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
  for (int i : kova_harness::BuiltParseNames()) {
    for (const std::string& doc : kova_harness::RealisticDocuments(i, samples)) {
      if (doc.size() > kova_harness::kSmallDocument) continue;
      Json::Value v;
      if (reader->parse(doc.data(), doc.data() + doc.size(), &v, nullptr)) root.append(v);
    }
  }
  return root;
}

void Ours(benchmark::State& state, const Json::Value* tree) {
  size_t bytes = 0;
  for (auto _ : state) {
    const std::string text = kova::WriteJson(*tree);
    bytes += text.size();
    benchmark::DoNotOptimize(text.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(bytes));
}

void JsoncppCompact(benchmark::State& state, const Json::Value* tree) {
  Json::StreamWriterBuilder builder;
  builder["indentation"] = "";
  std::unique_ptr<Json::StreamWriter> writer(builder.newStreamWriter());
  size_t bytes = 0;
  for (auto _ : state) {
    std::ostringstream out;
    writer->write(*tree, &out);
    const std::string text = out.str();
    bytes += text.size();
    benchmark::DoNotOptimize(text.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(bytes));
}

}  // namespace

void RegisterWriterBenchmarks(const std::vector<kova_harness::SampleDocument>& samples) {
  static const Json::Value made = MadeTree();
  static const Json::Value documents = DocumentsTree(samples);
  for (const auto& [label, tree] :
       {std::make_pair("made", &made), std::make_pair("documents", &documents)}) {
    const std::string ours = std::string("writer/kova/") + label;
    const std::string floor = std::string("writer/jsoncpp_compact/") + label;
    benchmark::RegisterBenchmark(ours.c_str(), Ours, tree);
    benchmark::RegisterBenchmark(floor.c_str(), JsoncppCompact, tree);
    AddPair("writer", label, ours, floor);
  }
}

}  // namespace kova_bench
