// Hostile input for every configuration name, in both directions: text
// that does not parse, envelopes and tables of the wrong type, nesting far
// beyond the reader's limit, huge tables, out-of-range numbers, malformed
// strings, records full of 0xFF, 0x7F, 0x7FFFFFFF counts and random bytes,
// and buffers from one byte to 16 MiB. Whatever the name, the call must
// keep within its buffers and refuse what the rules say it refuses.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "api/dispatch.h"
#include "harness/calls.h"
#include "harness/catalog.h"
#include "harness/documents.h"

namespace kova_harness {
namespace {

const std::vector<SampleDocument>& Samples() {
  static const std::vector<SampleDocument> kSamples =
      LoadSampleDocuments({KOVA_SAMPLES_DIR, KOVA_FIXTURES_DIR});
  return kSamples;
}

// A document whose table holds 100000 empty objects, made once.
const std::string& HugeTable() {
  static const std::string kTable = [] {
    std::string table = "[";
    for (int i = 0; i < 100000; ++i) table += "{},";
    table.back() = ']';
    return Envelope(table);
  }();
  return kTable;
}

class ParseBadInput : public testing::TestWithParam<int> {
 protected:
  // Calls the parser and records any broken rule under `what`.
  void Check(const std::string& what, const std::string& text, uint32_t outLen,
             uint8_t prefill = 0) {
    const int i = GetParam();
    ParseOptions o;
    o.prefill = prefill;
    const ParseResult r = CallParse(kova::kParseNames[i].name, text.c_str(), outLen, o);
    const std::string v = ParseViolation(i, text, outLen, r);
    EXPECT_EQ("", v) << what << " (outLen " << outLen << ", returned " << r.ret << ")";
  }
};

TEST_P(ParseBadInput, KeepsWithinItsBufferAndRefusesWhatDoesNotParse) {
  const int i = GetParam();
  const uint32_t size = ParseSizeOrDefault(i);
  const std::vector<std::string> docs = RealisticDocuments(i, Samples());
  const std::string& doc = docs.front();

  Check("realistic document", doc, 1, kUntouched);
  if (size > 1) Check("realistic document", doc, size - 1, kUntouched);
  if (!kova::ParseBuilt(i)) return;  // refused at once: nothing more to learn

  for (size_t d = 0; d < docs.size(); ++d) {
    Check("realistic document " + std::to_string(d), docs[d], size);
    if (docs[d].size() <= kSmallDocument) {
      Check("realistic document " + std::to_string(d), docs[d], 2 * size + 1);
    }
  }
  Check("realistic document in 16 MiB", doc, kHugeBuffer);

  const std::vector<std::string> malformed = MalformedTexts(doc);
  for (size_t m = 0; m < malformed.size(); ++m) {
    Check("malformed text " + std::to_string(m), malformed[m], size);
  }

  // Every hostile value in every member of up to three short documents (or
  // of the shortest one when all are long, a few values only).
  std::vector<size_t> shapes;
  for (size_t d = 0; d < docs.size() && shapes.size() < 3; ++d) {
    if (docs[d].size() <= kSmallDocument) shapes.push_back(d);
  }
  const bool allLong = shapes.empty();
  if (allLong) shapes.push_back(0);
  const std::vector<std::string>& hostile = HostileValues();
  for (size_t h = 0; h < hostile.size(); ++h) {
    const std::string& v = hostile[h];
    const std::string label = "hostile value " + std::to_string(h);
    Check(label + " as root", v, size);
    Check(label + " as result", "{\"result\":" + v + ",\"params\":{\"table\":{}}}", size);
    Check(label + " as params", "{\"result\":true,\"params\":" + v + "}", size);
    Check(label + " as table", Envelope(v), size);
    if (allLong && h % 8 != 0) continue;
    for (size_t d : shapes) {
      Check(label + " in every scalar of document " + std::to_string(d), ReplaceScalars(docs[d], v),
            size);
      const std::string swapped = ReplaceContainers(docs[d], v);
      if (!swapped.empty()) {
        Check(label + " for every object and array of document " + std::to_string(d), swapped,
              size);
      }
    }
  }

  Check("table of 100000 elements", HugeTable(), size);
}

INSTANTIATE_TEST_SUITE_P(EveryName, ParseBadInput,
                         testing::Range(0, static_cast<int>(kova::kParseNameCount)),
                         [](const testing::TestParamInfo<int>& info) {
                           return TestLabel(kova::kParseNames[info.param].name);
                         });

class PackBadInput : public testing::TestWithParam<int> {
 protected:
  void Check(const std::string& what, const std::string& record, uint32_t inLen, uint32_t outLen) {
    const int k = GetParam();
    const PackResult r = CallPack(kova::kPackNames[k].name, record, inLen, outLen, record);
    const std::string v = PackViolation(k, record, inLen, outLen, r, record);
    EXPECT_EQ("", v) << what << " (inLen " << inLen << ", outLen " << outLen << ", returned "
                     << r.ret << ")";
  }
};

TEST_P(PackBadInput, KeepsWithinItsBuffersWhateverTheRecordHolds) {
  const int k = GetParam();
  const uint32_t recordSize = PackSize(k);
  const uint32_t size = PackSizeOrDefault(k);
  const char* const kFillNames[] = {"zero", "0xFF", "0x7F", "0x7FFFFFFF counts", "random"};

  std::string record(2 * size + 1, '\0');
  if (!kova::PackBuilt(k)) {
    Check("zero record", record, size, 64u << 10);
    return;
  }
  for (int f = 0; f < static_cast<int>(Fill::kCount); ++f) {
    FillRecord(reinterpret_cast<uint8_t*>(&record[0]), record.size(), static_cast<Fill>(f),
               static_cast<uint32_t>(k));
    const std::string label = std::string(kFillNames[f]) + " record";
    std::vector<uint32_t> inLens = {0, size, 2 * size + 1};
    if (recordSize > 0) inLens.push_back(recordSize - 1);
    for (uint32_t inLen : inLens) Check(label, record, inLen, 64u << 10);
    Check(label, record, size, 1);
  }
  FillRecord(reinterpret_cast<uint8_t*>(&record[0]), record.size(), Fill::kAllFF, 0);
  Check("0xFF record into 16 MiB", record, size, kHugeBuffer);
}

INSTANTIATE_TEST_SUITE_P(EveryName, PackBadInput,
                         testing::Range(0, static_cast<int>(kova::kPackNameCount)),
                         [](const testing::TestParamInfo<int>& info) {
                           return TestLabel(kova::kPackNames[info.param].name);
                         });

// Caller-sized records: the same documents and records with the size word
// laid as a caller sets it, at the full record size, at a shorter size (a
// caller built with an older record) and at an odd one (records after the
// first are then not aligned).
std::vector<uint32_t> CallerStrides(uint32_t size) {
  return {size, std::max<uint32_t>(4, size / 2 / 4 * 4), size + 3};
}

class CallerSizedParseBadInput : public testing::TestWithParam<int> {};

TEST_P(CallerSizedParseBadInput, KeepsWithinTheCallersSize) {
  const int i = GetParam();
  const char* name = kova::kParseNames[i].name;
  if (!CallerSized(name) || !kova::ParseBuilt(i)) return;
  const std::vector<std::string> docs = RealisticDocuments(i, Samples());
  for (uint32_t stride : CallerStrides(ParseSizeOrDefault(i))) {
    auto check = [&](const std::string& what, const std::string& text, uint32_t outLen) {
      ParseOptions o;
      o.sizeWord = stride;
      const ParseResult r = CallParse(name, text.c_str(), outLen, o);
      EXPECT_EQ("", ParseViolation(i, text, outLen, r))
          << what << " (stride " << stride << ", outLen " << outLen << ")";
      if (r.ret != 0) {
        EXPECT_EQ(0u, r.retLen % stride) << what;
      }
    };
    for (size_t d = 0; d < docs.size(); ++d) {
      check("realistic document " + std::to_string(d), docs[d], 2 * stride + 1);
      check("realistic document " + std::to_string(d) + " in one record", docs[d], stride);
    }
    check("realistic document below the size", docs.front(), stride - 1);
    for (size_t h = 0; h < HostileValues().size(); ++h) {
      const std::string& v = HostileValues()[h];
      check("hostile table " + std::to_string(h), Envelope(v), 2 * stride);
      check("hostile element " + std::to_string(h), Envelope("[" + v + "," + v + "]"), 2 * stride);
      if (docs.front().size() <= kSmallDocument) {
        check("hostile value " + std::to_string(h) + " in every scalar",
              ReplaceScalars(docs.front(), v), 2 * stride);
      }
    }
    check("table of 100000 elements", HugeTable(), 2 * stride);
  }
}

INSTANTIATE_TEST_SUITE_P(EveryName, CallerSizedParseBadInput,
                         testing::Range(0, static_cast<int>(kova::kParseNameCount)),
                         [](const testing::TestParamInfo<int>& info) {
                           return TestLabel(kova::kParseNames[info.param].name);
                         });

class CallerSizedPackBadInput : public testing::TestWithParam<int> {};

TEST_P(CallerSizedPackBadInput, ReadsNoFurtherThanTheCallersSize) {
  const int k = GetParam();
  const char* name = kova::kPackNames[k].name;
  if (!CallerSized(name) || !kova::PackBuilt(k)) return;
  const char* const kFillNames[] = {"zero", "0xFF", "0x7F", "0x7FFFFFFF counts", "random"};
  for (uint32_t stride : CallerStrides(PackSizeOrDefault(k))) {
    std::string record(2 * stride + 1, '\0');
    for (int f = 0; f < static_cast<int>(Fill::kCount); ++f) {
      FillRecord(reinterpret_cast<uint8_t*>(&record[0]), record.size(), static_cast<Fill>(f),
                 static_cast<uint32_t>(k));
      std::memcpy(&record[0], &stride, sizeof stride);
      std::memcpy(&record[stride], &stride, sizeof stride);
      for (uint32_t inLen : {stride - 1, stride, 2 * stride + 1}) {
        for (uint32_t outLen : {1u, 64u << 10, 4u << 20}) {
          const PackResult r = CallPack(name, record, inLen, outLen, record);
          EXPECT_EQ("", PackViolation(k, record, inLen, outLen, r, record, false))
              << kFillNames[f] << " record (stride " << stride << ", inLen " << inLen << ", outLen "
              << outLen << ")";
        }
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EveryName, CallerSizedPackBadInput,
                         testing::Range(0, static_cast<int>(kova::kPackNameCount)),
                         [](const testing::TestParamInfo<int>& info) {
                           return TestLabel(kova::kPackNames[info.param].name);
                         });

}  // namespace
}  // namespace kova_harness
