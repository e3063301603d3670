// The analyzer event stream and parse-by-callback in events per second, on
// one notification of 128 events (as many as one notification may carry)
// made of the events of the shipped sample notifications, beside the JSON
// library's own reader on the same text.
#include <benchmark/benchmark.h>
#include <json/reader.h>
#include <json/writer.h>

#include <memory>
#include <string>
#include <vector>

#include "bench/bench_cases.h"
#include "kova/kova.h"

namespace kova_bench {

namespace {

constexpr int kEvents = 128;

int KOVA_CALL Count(uint32_t, const void*, uint32_t, const void*, uint32_t, void* user) {
  ++*static_cast<int64_t*>(user);
  return 0;
}

void Rates(benchmark::State& state, int64_t delivered) {
  const double iterations = static_cast<double>(state.iterations());
  state.counters["events/s"] =
      benchmark::Counter(kEvents * iterations, benchmark::Counter::kIsRate);
  state.counters["delivered/s"] =
      benchmark::Counter(static_cast<double>(delivered), benchmark::Counter::kIsRate);
}

void Events(benchmark::State& state, const std::string* doc, bool byCallback) {
  int64_t delivered = 0;
  const uint32_t len = static_cast<uint32_t>(doc->size());
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        byCallback ? KOVA_ParseDataByCallback(doc->c_str(), len, Count, &delivered)
                   : KOVA_ParseAnalyzerEventData(doc->c_str(), len, Count, &delivered));
  }
  Rates(state, delivered);
}

// What no event reader on this JSON library can beat: reading the text
// into a value tree (one reader, kept) and dropping it.
void EventsFloor(benchmark::State& state, const std::string* doc) {
  Json::CharReaderBuilder builder;
  builder["collectComments"] = false;
  std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
  const char* begin = doc->c_str();
  const char* end = begin + doc->size();
  for (auto _ : state) {
    Json::Value root;
    benchmark::DoNotOptimize(reader->parse(begin, end, &root, nullptr));
    benchmark::ClobberMemory();
  }
  Rates(state, 0);
}

// Every value of a read notification visited once through the JSON
// library's accessors: each member's name and value, each element, one
// conversion per scalar. What any walk of the tree costs that reads all of
// it, beside the reading itself (see README.md).
int64_t VisitAll(const Json::Value& v) {
  int64_t n = 1;
  if (v.isObject() || v.isArray()) {
    const Json::Value::const_iterator end = v.end();
    for (Json::Value::const_iterator it = v.begin(); it != end; ++it) {
      const char* nameEnd = nullptr;
      const char* name = it.memberName(&nameEnd);
      n += (nameEnd - name) + VisitAll(*it);
    }
  } else if (v.isString()) {
    const char* begin = nullptr;
    const char* end = nullptr;
    n += v.getString(&begin, &end) ? end - begin : 0;
  } else if (v.isNumeric()) {
    n += v.asDouble() != 0 ? 1 : 0;
  }
  return n;
}

void EventsVisit(benchmark::State& state, const std::string* doc) {
  Json::CharReaderBuilder builder;
  std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
  Json::Value root;
  reader->parse(doc->data(), doc->data() + doc->size(), &root, nullptr);
  for (auto _ : state) benchmark::DoNotOptimize(VisitAll(root));
  Rates(state, 0);
}

// A device notification of kEvents events: those of the sample
// notifications, over and over.
std::string MakeNotification(const std::vector<kova_harness::SampleDocument>& samples) {
  Json::CharReaderBuilder rb;
  std::unique_ptr<Json::CharReader> reader(rb.newCharReader());
  std::vector<Json::Value> events;
  for (const kova_harness::SampleDocument& s : samples) {
    Json::Value root;
    if (!reader->parse(s.text.data(), s.text.data() + s.text.size(), &root, nullptr)) continue;
    if (!root.isObject() || !root["params"].isObject()) continue;
    const Json::Value& list = root["params"]["eventList"];
    if (!list.isArray()) continue;
    for (const Json::Value& e : list) {
      if (e.isObject()) events.push_back(e);
    }
  }
  Json::Value root;
  root["method"] = "client.notifyEventStream";
  root["params"]["SID"] = 513;
  Json::Value& list = root["params"]["eventList"];
  list = Json::Value(Json::arrayValue);
  for (int i = 0; i < kEvents && !events.empty(); ++i) list.append(events[i % events.size()]);
  Json::StreamWriterBuilder wb;
  wb["indentation"] = "";
  return Json::writeString(wb, root);
}

}  // namespace

void RegisterEventBenchmarks(const std::vector<kova_harness::SampleDocument>& samples) {
  static std::string doc;
  doc = MakeNotification(samples);
  benchmark::RegisterBenchmark("events/analyzer", Events, &doc, false);
  benchmark::RegisterBenchmark("events/by_callback", Events, &doc, true);
  benchmark::RegisterBenchmark("events/floor", EventsFloor, &doc);
  benchmark::RegisterBenchmark("events/visit", EventsVisit, &doc);
  AddPair("events", "128-event notification", "events/analyzer", "events/floor");
  AddPair("events", "128-event notification (by callback)", "events/by_callback", "events/floor");
}

}  // namespace kova_bench
