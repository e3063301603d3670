// Writes the fuzzers' seed corpus: kova_fuzz_seeds OUT_DIR INPUT_DIR...
//
// From every device document under the input directories (samples/ and the
// test fixtures) and from typical records of every built name it writes
// OUT_DIR/parse, pack, roundtrip and events, one file per seed, each with
// the header the fuzzer reads (see fuzz_input.h).
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "api/dispatch.h"
#include "fuzz_input.h"
#include "harness/calls.h"
#include "harness/catalog.h"
#include "harness/documents.h"

using namespace kova_fuzz;
using namespace kova_harness;

namespace {

namespace fs = std::filesystem;

// Records larger than this are not written out as pack seeds: the fuzzer
// builds them from patterns instead.
constexpr size_t kMaxRecordSeed = kSmallDocument;

class SeedWriter {
 public:
  explicit SeedWriter(const fs::path& dir) : dir_(dir) { fs::create_directories(dir_); }
  void Write(const std::string& label, const std::string& bytes) {
    const fs::path path = dir_ / (TestLabel(label.c_str()) + "-" + std::to_string(count_++));
    std::ofstream(path, std::ios::binary).write(bytes.data(), bytes.size());
  }
  size_t count() const { return count_; }

 private:
  fs::path dir_;
  size_t count_ = 0;
};

Header NameHeader(int index) {
  Header h;
  h.name = static_cast<uint16_t>(index);
  return h;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: kova_fuzz_seeds OUT_DIR [INPUT_DIR...]\n");
    return 2;
  }
  const fs::path out(argv[1]);
  const std::vector<SampleDocument> samples =
      LoadSampleDocuments(std::vector<std::string>(argv + 2, argv + argc));

  SeedWriter parse(out / "parse");
  SeedWriter roundtrip(out / "roundtrip");
  for (int i : BuiltParseNames()) {
    const char* name = kova::kParseNames[i].name;
    for (const std::string& doc : RealisticDocuments(i, samples)) {
      if (doc.size() > kSmallDocument) continue;  // mutating megabytes is slow
      parse.Write(name, WriteHeader(NameHeader(i)) + doc);
      roundtrip.Write(name, WriteHeader(NameHeader(i)) + doc);
    }
  }
  for (const SampleDocument& d : samples) {
    if (d.name.empty() && d.text.size() <= kSmallDocument) {
      parse.Write("any", WriteHeader(Header()) + d.text);
    }
  }

  SeedWriter pack(out / "pack");
  for (int k : BuiltPackNames()) {
    const char* name = kova::kPackNames[k].name;
    Header h = NameHeader(k);
    for (uint8_t fill : {4, 1, 2, 3}) {  // zeros, 0xFF, 0x7F, 0x7FFFFFFF counts
      h.flags = static_cast<uint8_t>(fill << 2);
      pack.Write(name, WriteHeader(h));
    }
    // The records of the name's realistic documents, as their own payload.
    const int i = kova::FindParseName(name);
    const uint32_t size = PackSizeOrDefault(k);
    if (i < 0 || !kova::ParseBuilt(i) || size > kMaxRecordSeed) continue;
    for (const std::string& doc : RealisticDocuments(i, samples)) {
      if (doc.size() > kSmallDocument) continue;
      ParseOptions o;
      o.keepBytes = true;
      const ParseResult r = CallParse(name, doc.c_str(), size, o);
      if (r.ret == 0) continue;
      h.size = 5;  // input length: the payload's
      h.flags = 0;
      pack.Write(name, WriteHeader(h) + r.bytes.substr(0, size));
    }
  }

  // Inputs that once took the harness gigabytes: a 16 MiB buffer of small
  // records each aimed at its own pointed buffer, and thousands of records
  // whose counts asked for a megabyte of pointed buffer each. They keep the
  // bound on pointed buffers exercised.
  parse.Write("AudioAnalyseRule-in-16MiB", std::string("\x99\xff\xff\x2d\x32\x00\x31", 7));
  pack.Write("AudioAnalyseRule-2496-records", std::string("\x42\xff\xaf\x9e\xc0\x09\xea\xff", 8));
  pack.Write("AudioAnalyseRule-2730-records", std::string("\x42\xff\xaf\xff\xff\xff\xff", 7));
  // Four "RemoteDevice" records, two with one identifier: a text that fits
  // once was refused for the longer member the later record replaced.
  pack.Write("RemoteDevice-repeated-identifier", std::string("\x29\x00\xab\x00\x00\x3b\x00", 7) +
                                                     std::string(50, '\0') +
                                                     std::string("\xff\xff\xff\x66\x00\x00", 6));

  SeedWriter events(out / "events");
  for (const std::string& doc : EventDocuments(samples)) {
    events.Write("events", std::string(kEventHeaderSize, '\0') + doc);
    events.Write("by-callback", '\1' + std::string(kEventHeaderSize - 1, '\0') + doc);
  }

  std::printf("seeds: %zu parse, %zu pack, %zu roundtrip, %zu events\n", parse.count(),
              pack.count(), roundtrip.count(), events.count());
  return 0;
}
