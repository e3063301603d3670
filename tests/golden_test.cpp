// The golden test, inside the unit binary: every shipped device answer
// samples/NAME[.what].json (with its .args) goes through the kova tool's own
// "roundtrip" command and must print exactly tests/fixtures/NAME[.what]
// .packed.txt; every event document samples/events/FILE.json goes through
// "events" (both readers) and must print exactly tests/fixtures/events/
// FILE.txt; the records every answer parses to keep the checksums of
// tests/fixtures/records.txt. A new configuration is covered by its sample
// and its packed text; `sh tests/golden.sh TOOL samples tests/fixtures
// --update` writes them.
#include <gtest/gtest.h>
#include <json/value.h>
#include <json/writer.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "api/dispatch.h"
#include "tool.h"

namespace {

namespace fs = std::filesystem;

std::string Slurp(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// What the tool prints for `args`, as the shell's $(...) keeps it: trailing
// newlines dropped, then one added back.
std::string ToolOutput(std::vector<std::string> args) {
  args.insert(args.begin(), "kova");
  std::vector<char*> argv;
  for (std::string& a : args) argv.push_back(&a[0]);
  testing::internal::CaptureStdout();
  KovaMain(static_cast<int>(argv.size()), argv.data());
  std::string out = testing::internal::GetCapturedStdout();
  while (!out.empty() && out.back() == '\n') out.pop_back();
  return out + "\n";
}

std::vector<fs::path> Files(const fs::path& dir) {
  std::vector<fs::path> files;
  for (const auto& e : fs::directory_iterator(dir)) {
    if (e.path().extension() == ".json") files.push_back(e.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

// How the tool is asked about a sample: the name its file names
// ("VideoAnalyseRule.face" is read as "VideoAnalyseRule") and the options of
// its .args file.
struct SampleCall {
  std::string stem;
  std::string name;
  std::vector<std::string> options;
};

SampleCall CallOf(const fs::path& f) {
  const fs::path samples = f.parent_path();
  SampleCall c{f.stem().string(), f.stem().string(), {}};
  while (kova::FindParseName(c.name.c_str()) < 0 && c.name.find('.') != std::string::npos) {
    c.name.erase(c.name.rfind('.'));
  }
  for (const std::string& a : {c.stem, c.name}) {
    if (!fs::exists(samples / (a + ".args"))) continue;
    std::istringstream extra(Slurp(samples / (a + ".args")));
    for (std::string word; extra >> word;) c.options.push_back(word);
    break;
  }
  return c;
}

std::vector<std::string> ToolArgs(const char* command, const SampleCall& c, const fs::path& f,
                                  std::vector<std::string> more = {}) {
  std::vector<std::string> args = {command, c.name, f.string()};
  args.insert(args.end(), more.begin(), more.end());
  args.insert(args.end(), c.options.begin(), c.options.end());
  return args;
}

// The POSIX checksum (what cksum(1) prints first) of `text`.
uint32_t Cksum(const std::string& text) {
  static const std::vector<uint32_t> kTable = [] {
    std::vector<uint32_t> t(256);
    for (uint32_t i = 0; i < 256; ++i) {
      uint32_t c = i << 24;
      for (int bit = 0; bit < 8; ++bit) c = (c & 0x80000000u) ? (c << 1) ^ 0x04C11DB7u : c << 1;
      t[i] = c;
    }
    return t;
  }();
  uint32_t crc = 0;
  const auto step = [&crc](unsigned char byte) { crc = (crc << 8) ^ kTable[(crc >> 24) ^ byte]; };
  for (const char ch : text) step(static_cast<unsigned char>(ch));
  for (uint64_t n = text.size(); n != 0; n >>= 8) step(static_cast<unsigned char>(n & 0xFF));
  return ~crc;
}

TEST(Golden, EverySamplePacksToItsFixtureText) {
  const fs::path fixtures = KOVA_FIXTURES_DIR;
  for (const fs::path& f : Files(KOVA_SAMPLES_DIR)) {
    const SampleCall c = CallOf(f);
    const std::string out = ToolOutput(ToolArgs("roundtrip", c, f));
    const std::string packed = out.substr(std::min(out.size(), out.find('\n') + 1));
    EXPECT_EQ(Slurp(fixtures / (c.stem + ".packed.txt")), packed) << f;
  }
}

// Every byte of the records each sample parses to, as `kova show --all`
// prints them (every field by its description, every other byte in hex),
// kept as that text's checksum: a parse that stores something else, where
// the packed text cannot tell (a flag, a constant, a byte no field owns),
// changes it.
TEST(Golden, EverySampleParsesToTheSameRecordBytes) {
  std::map<std::string, std::string> kept;  // sample -> "checksum length"
  std::istringstream lines(Slurp(fs::path(KOVA_FIXTURES_DIR) / "records.txt"));
  for (std::string stem, sum; lines >> stem && std::getline(lines, sum);) kept[stem] = sum;
  size_t samples = 0;
  for (const fs::path& f : Files(KOVA_SAMPLES_DIR)) {
    const SampleCall c = CallOf(f);
    const std::string shown = ToolOutput(ToolArgs("show", c, f, {"--all"}));
    EXPECT_EQ(kept[c.stem], " " + std::to_string(Cksum(shown)) + " " + std::to_string(shown.size()))
        << "kova show " << c.name << " " << f << " --all prints other records";
    ++samples;
  }
  EXPECT_EQ(kept.size(), samples);
}

TEST(Golden, EveryEventDocumentReadsToItsListing) {
  const fs::path fixtures = KOVA_FIXTURES_DIR;
  for (const fs::path& f : Files(fs::path(KOVA_SAMPLES_DIR) / "events")) {
    std::string out = ToolOutput({"events", f.string()});
    out.pop_back();
    out += "\n-- by callback\n" + ToolOutput({"events", f.string(), "--by-callback"});
    out.pop_back();
    out += "\n-- shown\n" + ToolOutput({"events", f.string(), "--show"});
    EXPECT_EQ(Slurp(fixtures / "events" / (f.stem().string() + ".txt")), out) << f;
  }
}

// What `kova show` and `kova layout` print, read from the descriptions.
TEST(Golden, ShowAndLayoutPrintTheirFixtures) {
  const std::string samples = KOVA_SAMPLES_DIR;
  const fs::path fixtures = fs::path(KOVA_FIXTURES_DIR) / "show";
  const struct {
    const char* fixture;
    std::vector<std::string> args;
  } kCases[] = {
      {"VideoColor.show.txt", {"show", "VideoColor", samples + "/VideoColor.json"}},
      {"NTP.show.json", {"show", "NTP", samples + "/NTP.json", "--json"}},
      {"StorageLowSpace.show.txt", {"show", "StorageLowSpace", samples + "/StorageLowSpace.json"}},
      {"Encode.layout.txt", {"layout", "Encode"}},
      {"DefenceArmMode.layout.txt", {"layout", "DefenceArmMode"}},
      {"Raid.layout.txt", {"layout", "Raid"}},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(Slurp(fixtures / c.fixture), ToolOutput(c.args)) << c.fixture;
  }
}

}  // namespace
