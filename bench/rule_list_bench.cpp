// The analysis rule list at its largest: 32 rules (the most one list
// holds) of some 342 KB each, 11 MB of rule buffer, made by repeating the
// rules of the "VideoAnalyseRule" sample; and each rule list sample as the
// device sent it (one per family of rule types, so that every type is
// measured). The generic translator benchmarks cannot run them: the list
// record points at a buffer of its own.
//   parse floor: the JSON library's reader on the same text plus clearing
//                the rule buffer once;
//   pack floor:  the library's compact writer on the packed value tree plus
//                copying the text into the caller's buffer.
#include <benchmark/benchmark.h>
#include <json/reader.h>
#include <json/writer.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "bench/bench_cases.h"
#include "harness/documents.h"
#include "kova/kova.h"
#include "kova/records/analyse.h"

namespace kova_bench {

namespace {

constexpr const char* kName = "VideoAnalyseRule";
constexpr uint32_t kRules = KOVA_RULE_LIST_MAX_RULES;

struct RuleListCase {
  std::string name;            // "VideoAnalyseRule" or "AudioAnalyseRule"
  std::string doc;             // the rules in a response envelope
  uint32_t count = 0;          // rules in the document
  std::vector<uint8_t> rules;  // a rule buffer of exactly the entries' size
  std::string packed;          // the packed text of those entries
};

Json::Value Read(const std::string& text) {
  Json::CharReaderBuilder builder;
  builder["collectComments"] = false;
  std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
  Json::Value root;
  reader->parse(text.data(), text.data() + text.size(), &root, nullptr);
  return root;
}

// The file name of a sample less ".json": "VideoAnalyseRule.traffic_road".
std::string Stem(const kova_harness::SampleDocument& d) {
  return std::filesystem::path(d.path).stem().string();
}

// Parses c->doc into a buffer of exactly its entries and packs them back;
// false when the translator refuses it.
bool Fill(RuleListCase* c) {
  std::vector<uint8_t> room(kRules * (KOVA_RULE_ENTRY_HEADER_SIZE + 400000u));
  VideoAnalyseRuleList list = {0, room.data(), static_cast<uint32_t>(room.size())};
  const char* name = c->name.c_str();
  if (!KOVA_ParseData(name, c->doc.c_str(), &list, sizeof list, nullptr)) return false;
  c->count = list.ruleCount;
  size_t used = 0;
  for (uint32_t i = 0; i < list.ruleCount; ++i) {
    RuleEntryHeader h;
    std::memcpy(&h, room.data() + used, sizeof h);
    used += sizeof h + h.bodySize;
  }
  c->rules.assign(room.begin(), room.begin() + static_cast<std::ptrdiff_t>(used));
  list.ruleBuffer = c->rules.data();
  list.ruleBufferLength = static_cast<uint32_t>(used);
  std::vector<char> text(16u << 20);
  if (!KOVA_PacketData(name, &list, sizeof list, text.data(), static_cast<uint32_t>(text.size()))) {
    return false;
  }
  c->packed.assign(text.data());
  return true;
}

// 32 rules repeated from the rules of samples/VideoAnalyseRule.json; false
// when there is no such sample or it does not parse.
bool MakeLargestCase(const std::vector<kova_harness::SampleDocument>& samples, RuleListCase* c) {
  Json::Value sample;
  for (const kova_harness::SampleDocument& d : samples) {
    if (Stem(d) == kName) sample = Read(d.text);
  }
  const Json::Value& table = sample["params"]["table"];
  if (!table.isArray() || table.empty()) return false;
  Json::Value rules(Json::arrayValue);
  for (uint32_t i = 0; i < kRules; ++i) {
    Json::Value rule = table[i % table.size()];
    rule["Name"] = "Rule " + std::to_string(i + 1);
    rules.append(rule);
  }
  Json::StreamWriterBuilder wb;
  wb["indentation"] = "";
  c->name = kName;
  c->doc = kova_harness::Envelope(Json::writeString(wb, rules));
  return Fill(c);
}

void Parse(benchmark::State& state, RuleListCase* c) {
  std::vector<uint8_t> rules(c->rules.size());
  for (auto _ : state) {
    VideoAnalyseRuleList list = {0, rules.data(), static_cast<uint32_t>(rules.size())};
    uint32_t retLen = 0;
    benchmark::DoNotOptimize(
        KOVA_ParseData(c->name.c_str(), c->doc.c_str(), &list, sizeof list, &retLen));
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * c->doc.size()));
}

void ParseFloor(benchmark::State& state, RuleListCase* c) {
  RunParseFloor(state, c->doc, c->rules.size());
}

void Pack(benchmark::State& state, RuleListCase* c) {
  VideoAnalyseRuleList list = {c->count, c->rules.data(), static_cast<uint32_t>(c->rules.size())};
  std::vector<char> text(2 * c->packed.size() + 64);
  for (auto _ : state) {
    benchmark::DoNotOptimize(KOVA_PacketData(c->name.c_str(), &list, sizeof list, text.data(),
                                             static_cast<uint32_t>(text.size())));
    benchmark::ClobberMemory();
  }
}

void PackFloor(benchmark::State& state, RuleListCase* c) {
  RunPackFloor(state, c->packed, 2 * c->packed.size() + 64);
}

void Register(const std::string& subject, RuleListCase* c) {
  benchmark::RegisterBenchmark(("parse/" + subject).c_str(), Parse, c);
  benchmark::RegisterBenchmark(("parse_floor/" + subject).c_str(), ParseFloor, c);
  AddPair("parse", subject, "parse/" + subject, "parse_floor/" + subject);
  benchmark::RegisterBenchmark(("pack/" + subject).c_str(), Pack, c);
  benchmark::RegisterBenchmark(("pack_floor/" + subject).c_str(), PackFloor, c);
  AddPair("pack", subject, "pack/" + subject, "pack_floor/" + subject);
}

}  // namespace

void RegisterRuleListBenchmarks(const std::vector<kova_harness::SampleDocument>& samples) {
  static std::vector<std::unique_ptr<RuleListCase>> cases;
  auto largest = std::make_unique<RuleListCase>();
  if (MakeLargestCase(samples, largest.get())) {
    Register(std::string(kName) + "(32)", largest.get());
    cases.push_back(std::move(largest));
  }
  for (const kova_harness::SampleDocument& d : samples) {
    if (d.name != kName && d.name != "AudioAnalyseRule") continue;
    auto c = std::make_unique<RuleListCase>();
    c->name = d.name;
    c->doc = d.text;
    if (!Fill(c.get())) continue;
    Register(Stem(d), c.get());
    cases.push_back(std::move(c));
  }
}

}  // namespace kova_bench
