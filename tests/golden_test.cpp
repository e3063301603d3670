// The golden test, inside the unit binary: every shipped device answer
// samples/NAME[.what].json (with its .args) goes through the kova tool's own
// "roundtrip" command and must print exactly tests/fixtures/NAME[.what]
// .packed.txt; every event document samples/events/FILE.json goes through
// "events" (both readers) and must print exactly tests/fixtures/events/
// FILE.txt. A new configuration is covered by its sample and its packed
// text; `sh tests/golden.sh TOOL samples tests/fixtures --update` writes them.
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

TEST(Golden, EverySamplePacksToItsFixtureText) {
  const fs::path samples = KOVA_SAMPLES_DIR;
  const fs::path fixtures = KOVA_FIXTURES_DIR;
  for (const fs::path& f : Files(samples)) {
    const std::string stem = f.stem().string();
    std::string name = stem;  // "VideoAnalyseRule.face" is read as "VideoAnalyseRule"
    while (kova::FindParseName(name.c_str()) < 0 && name.find('.') != std::string::npos) {
      name.erase(name.rfind('.'));
    }
    std::vector<std::string> args = {"roundtrip", name, f.string()};
    for (const std::string& a : {stem, name}) {
      if (!fs::exists(samples / (a + ".args"))) continue;
      std::istringstream extra(Slurp(samples / (a + ".args")));
      for (std::string word; extra >> word;) args.push_back(word);
      break;
    }
    const std::string out = ToolOutput(args);
    const std::string packed = out.substr(std::min(out.size(), out.find('\n') + 1));
    EXPECT_EQ(Slurp(fixtures / (stem + ".packed.txt")), packed) << f;
  }
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
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(Slurp(fixtures / c.fixture), ToolOutput(c.args)) << c.fixture;
  }
}

}  // namespace
