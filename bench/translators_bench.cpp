// Parse and pack of a realistic document for every built translator, each
// beside its floor: what no translator on this JSON library can beat.
//   parse floor: the library's reader on the same text (one reader, kept)
//                plus clearing the record's bytes;
//   pack floor:  the library's own compact writer on the packed value tree
//                plus copying the text into the caller's buffer.
#include <benchmark/benchmark.h>
#include <json/reader.h>
#include <json/writer.h>

#include <cstring>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "api/dispatch.h"
#include "bench/bench_cases.h"
#include "harness/catalog.h"
#include "harness/documents.h"
#include "kova/kova.h"

namespace kova_bench {

using kova_harness::GuardedBuffer;
using kova_harness::PointedBuffers;

namespace {

// Everything one name's benchmarks share, made once.
struct NameCase {
  std::string name;
  std::string doc;          // the realistic document parsed
  uint32_t outLen = 0;      // record bytes the document fills
  std::string record;       // those records, for pack
  uint32_t textLen = 0;     // text buffer for pack: twice the packed text
  std::string packedTable;  // the packed text, to rebuild the floor's tree
};

std::unique_ptr<GuardedBuffer> RecordBuffer(const NameCase& c, PointedBuffers* pointed) {
  auto buf = std::make_unique<GuardedBuffer>(c.outLen);
  const uint32_t size = kova_harness::ParseSize(kova::FindParseName(c.name.c_str()));
  pointed->Attach(c.name.c_str(), buf->data(), buf->size(), size, 1 << 18, std::string());
  // Caller-sized records carry their size, as a caller sets it (the parse
  // keeps it in every slot).
  if (kova_harness::CallerSized(c.name.c_str())) {
    for (size_t at = 0; size >= sizeof size && at + size <= buf->size(); at += size) {
      std::memcpy(buf->data() + at, &size, sizeof size);
    }
  }
  return buf;
}

// Finds the document and the buffer sizes for parse name `i`; false when
// the translator refuses its own realistic document.
bool MakeCase(int i, const std::vector<kova_harness::SampleDocument>& samples, NameCase* c) {
  c->name = kova::kParseNames[i].name;
  c->doc = kova_harness::RealisticDocuments(i, samples).front();
  const uint32_t size = kova_harness::ParseSizeOrDefault(i);
  c->outLen = std::max<uint32_t>(size * 16, 1u << 20);
  PointedBuffers pointed;
  auto buf = RecordBuffer(*c, &pointed);
  uint32_t retLen = 0;
  if (KOVA_ParseData(c->name.c_str(), c->doc.c_str(), buf->data(), c->outLen, &retLen) == 0) {
    return false;
  }
  // The buffer a caller would give: the records the document fills.
  c->outLen = std::max(size, (retLen + size - 1) / size * size);
  c->record.assign(buf->chars(), c->outLen);

  const int k = kova::FindPackName(c->name.c_str());
  if (k < 0 || !kova::PackBuilt(k)) return true;
  std::vector<char> text(16u << 20);
  if (KOVA_PacketData(c->name.c_str(), c->record.data(), c->outLen, text.data(),
                      static_cast<uint32_t>(text.size())) == 0) {
    return true;
  }
  c->packedTable.assign(text.data());
  c->textLen = static_cast<uint32_t>(2 * c->packedTable.size() + 64);
  return true;
}

void Parse(benchmark::State& state, const NameCase* c) {
  PointedBuffers pointed;
  auto buf = RecordBuffer(*c, &pointed);
  for (auto _ : state) {
    uint32_t retLen = 0;
    benchmark::DoNotOptimize(
        KOVA_ParseData(c->name.c_str(), c->doc.c_str(), buf->data(), c->outLen, &retLen));
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * c->doc.size()));
}

void ParseFloor(benchmark::State& state, const NameCase* c) {
  RunParseFloor(state, c->doc, c->outLen);
}

void Pack(benchmark::State& state, const NameCase* c) {
  GuardedBuffer in(c->record.size());
  std::memcpy(in.data(), c->record.data(), c->record.size());
  PointedBuffers pointed;
  pointed.Attach(c->name.c_str(), in.data(), in.size(),
                 kova_harness::PackSize(kova::FindPackName(c->name.c_str())), -1, std::string());
  std::vector<char> text(c->textLen);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        KOVA_PacketData(c->name.c_str(), in.data(), c->outLen, text.data(), c->textLen));
    benchmark::ClobberMemory();
  }
}

void PackFloor(benchmark::State& state, const NameCase* c) {
  RunPackFloor(state, c->packedTable, c->textLen);
}

}  // namespace

void RunParseFloor(benchmark::State& state, const std::string& doc, size_t clearBytes) {
  Json::CharReaderBuilder builder;
  builder["collectComments"] = false;
  std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
  std::vector<char> buf(clearBytes);
  const char* begin = doc.c_str();
  const char* end = begin + doc.size();
  for (auto _ : state) {
    Json::Value root;
    benchmark::DoNotOptimize(reader->parse(begin, end, &root, nullptr));
    std::memset(buf.data(), 0, buf.size());
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * doc.size()));
}

void RunPackFloor(benchmark::State& state, const std::string& packed, size_t textLen) {
  Json::Value tree;
  Json::CharReaderBuilder rb;
  std::unique_ptr<Json::CharReader> reader(rb.newCharReader());
  reader->parse(packed.data(), packed.data() + packed.size(), &tree, nullptr);
  Json::StreamWriterBuilder wb;
  wb["indentation"] = "";
  std::unique_ptr<Json::StreamWriter> writer(wb.newStreamWriter());
  std::vector<char> text(textLen);
  for (auto _ : state) {
    std::ostringstream out;
    writer->write(tree, &out);
    const std::string s = out.str();
    std::memset(text.data(), 0, text.size());
    std::memcpy(text.data(), s.c_str(), std::min(s.size() + 1, text.size()));
    benchmark::ClobberMemory();
  }
}

void RegisterTranslatorBenchmarks(const std::vector<kova_harness::SampleDocument>& samples) {
  static std::vector<std::unique_ptr<NameCase>> cases;
  for (int i : kova_harness::BuiltParseNames()) {
    auto c = std::make_unique<NameCase>();
    if (!MakeCase(i, samples, c.get())) continue;
    const NameCase* p = c.get();
    benchmark::RegisterBenchmark(("parse/" + p->name).c_str(), Parse, p);
    benchmark::RegisterBenchmark(("parse_floor/" + p->name).c_str(), ParseFloor, p);
    AddPair("parse", p->name, "parse/" + p->name, "parse_floor/" + p->name);
    if (!p->packedTable.empty()) {
      benchmark::RegisterBenchmark(("pack/" + p->name).c_str(), Pack, p);
      benchmark::RegisterBenchmark(("pack_floor/" + p->name).c_str(), PackFloor, p);
      AddPair("pack", p->name, "pack/" + p->name, "pack_floor/" + p->name);
    }
    cases.push_back(std::move(c));
  }
}

}  // namespace kova_bench
