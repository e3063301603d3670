// "VideoAnalyseRule" / "AudioAnalyseRule" through the exported functions:
// entry headers and rule records byte for byte, the packed text, parse ->
// pack -> parse, what a failure leaves, and the pack refusals.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/analyse.h"

namespace {

using kova_test::Doc;

constexpr uint32_t kLine = sizeof(CrossLineRule);
constexpr uint32_t kRegion = sizeof(CrossRegionRule);
constexpr uint32_t kHeader = sizeof(RuleEntryHeader);

// A rule list record with a rule buffer of its own.
struct Rules {
  explicit Rules(size_t bytes, uint8_t fill = 0) : buffer(bytes + 1, fill) {
    list = {0xDEADu, buffer.data(), static_cast<uint32_t>(bytes)};
  }
  int Parse(const std::string& json, const char* name = "VideoAnalyseRule") {
    retLen = 0;
    return KOVA_ParseData(name, json.c_str(), &list, sizeof list, &retLen);
  }
  // Offset of entry i, walking the headers.
  size_t At(uint32_t i) const {
    size_t at = 0;
    for (uint32_t k = 0; k < i; ++k) at += kHeader + Header(at).bodySize;
    return at;
  }
  RuleEntryHeader Header(size_t at) const {
    RuleEntryHeader h;
    std::memcpy(&h, list.ruleBuffer + at, sizeof h);
    return h;
  }
  // The body of entry i copied into an aligned record.
  template <typename Rec>
  std::unique_ptr<Rec> Body(uint32_t i) const {
    std::unique_ptr<Rec> r(new Rec);
    std::memcpy(r.get(), list.ruleBuffer + At(i) + kHeader, sizeof(Rec));
    return r;
  }
  std::string Pack(uint32_t outLen = 1u << 20) const {
    return kova_test::PackBytes("VideoAnalyseRule", &list, sizeof list, outLen);
  }
  bool AllBytes(size_t from, uint8_t b) const {
    for (size_t i = from; i < list.ruleBufferLength; ++i) {
      if (list.ruleBuffer[i] != b) return false;
    }
    return true;
  }

  std::vector<uint8_t> buffer;  // one spare byte, never to be written
  VideoAnalyseRuleList list;
  uint32_t retLen = 0;
};

std::string Rule(const char* type, const std::string& config, const std::string& more = "") {
  return std::string(R"({"Name":"R","Class":"Normal","Type":")") + type + R"(",)" + more +
         R"("Config":)" + config + "}";
}
std::string LineRule(const std::string& config, const std::string& more = "") {
  return Rule("CrossLineDetection", config, more);
}
std::string RegionRule(const std::string& config, const std::string& more = "") {
  return Rule("CrossRegionDetection", config, more);
}

// What each failure leaves: ruleCount is always the number of rules; the
// buffer is untouched when the failure is found before writing, and
// cleared with the earlier entries in place when found while writing.
TEST(RuleList, FailuresAndWhatTheyLeave) {
  const std::string line = LineRule(R"({"TrackDuration":9})");
  const std::string noType = R"({"Name":"X","Config":{}})";
  struct Case {
    std::string rules;
    uint32_t count;
    bool cleared;  // false: untouched
    uint32_t entriesKept;
  } cases[] = {
      {line + "," + Rule("All", "{}"), 2, false, 0},
      {line + "," + Rule("VideoMotion", "{}"), 2, false, 0},
      {line + "," + Rule("NoSuchDetection", "{}"), 2, false, 0},
      {line + R"(,{"Name":"X","Type":7,"Config":{}})", 2, false, 0},
      {line + "," + noType, 2, true, 1},
      {noType + "," + line, 2, true, 0},
  };
  for (const Case& c : cases) {
    Rules r(3 * (kHeader + kRegion), 0xAB);
    EXPECT_EQ(0, r.Parse(Doc("[" + c.rules + "]"))) << c.rules;
    EXPECT_EQ(c.count, r.list.ruleCount) << c.rules;
    EXPECT_EQ(0u, r.retLen);
    if (!c.cleared) {
      EXPECT_TRUE(r.AllBytes(0, 0xAB)) << c.rules;
      continue;
    }
    const size_t kept = c.entriesKept * (kHeader + kLine);
    EXPECT_TRUE(r.AllBytes(kept, 0)) << c.rules;
    if (c.entriesKept > 0) {
      EXPECT_EQ(9, r.Body<CrossLineRule>(0)->trackDuration) << c.rules;
    }
  }
}

TEST(RuleList, RoomIsCheckedBeforeAnythingIsWritten) {
  const std::string doc = Doc("[" + LineRule("{}") + "," + RegionRule("{}") + "]");
  const size_t need = 2 * kHeader + kLine + kRegion;
  Rules shortByOne(need - 1, 0xAB);
  EXPECT_EQ(0, shortByOne.Parse(doc));
  EXPECT_EQ(2u, shortByOne.list.ruleCount);
  EXPECT_TRUE(shortByOne.AllBytes(0, 0xAB));
  Rules exact(need, 0xAB);
  EXPECT_EQ(1, exact.Parse(doc));
  EXPECT_EQ(0xAB, exact.buffer.back());
}

TEST(RuleList, AtMost32Rules) {
  std::string rules;
  for (int i = 0; i < 33; ++i) rules += (i ? "," : "") + LineRule("{}");
  Rules r(33 * (kHeader + kLine));
  ASSERT_EQ(1, r.Parse(Doc("[" + rules + "]")));
  EXPECT_EQ(32u, r.list.ruleCount);
  EXPECT_TRUE(r.AllBytes(32 * (kHeader + kLine), 0));
}

// The device's edge cases of the common head and the two types' own keys.
TEST(RuleList, RuleFieldRules) {
  const std::string doc = Doc(
      "[" +
      LineRule(R"({"Direction":"righttoleft",)"
               R"("TriggerPosition":["Center",null,"Up","BottomCenter","Center"]})") +
      "," + LineRule(R"({"Direction":"Sideways","TriggerPosition":[0,1,2,3,4,5,6,7,8,9]})") + "," +
      RegionRule(
          R"({"Direction":"ENTER","Action":["Cross",null,"Nope","Appear","Inside","Cross"]})") +
      "]");
  Rules r(3 * (kHeader + kRegion));
  ASSERT_EQ(1, r.Parse(doc));
  auto first = r.Body<CrossLineRule>(0);
  EXPECT_EQ(KOVA_LINE_RIGHT_TO_LEFT, first->direction);
  // Non-null entries are counted, an unknown name too; null keeps its slot.
  EXPECT_EQ(4u, first->triggerPositions.count);
  const uint8_t positions[] = {0, 0, 0, 4, 0};
  EXPECT_EQ(0, std::memcmp(positions, first->triggerPositions.positions, sizeof positions));

  auto second = r.Body<CrossLineRule>(1);
  EXPECT_EQ(0, second->direction);
  EXPECT_EQ(8u, second->triggerPositions.count);  // at most 8 looked at

  auto region = r.Body<CrossRegionRule>(2);
  EXPECT_EQ(KOVA_REGION_ENTER, region->direction);
  EXPECT_EQ(3u, region->actionCount);  // of the first 4
  const uint8_t actions[] = {3, 0, 0, 0};
  EXPECT_EQ(0, std::memcmp(actions, region->actions, sizeof actions));
}

// A caller's buffer that puts the records 4-byte-misaligned reads and packs
// the same bytes.
TEST(RuleList, MisalignedBufferReadsTheSame) {
  const std::string doc = kova_test::Sample("VideoAnalyseRule");
  const size_t bytes = 3 * (kHeader + kRegion);
  Rules aligned(bytes);
  ASSERT_EQ(1, aligned.Parse(doc));
  std::vector<uint8_t> shifted(bytes + 3);
  VideoAnalyseRuleList list = {0, shifted.data() + 1, static_cast<uint32_t>(bytes)};
  ASSERT_EQ(1, KOVA_ParseData("VideoAnalyseRule", doc.c_str(), &list, sizeof list, nullptr));
  EXPECT_EQ(0, std::memcmp(aligned.buffer.data(), shifted.data() + 1, bytes));
  EXPECT_EQ(aligned.Pack(), kova_test::PackBytes("VideoAnalyseRule", &list, sizeof list));
}

TEST(RuleList, PackRefusals) {
  Rules good(kHeader + kLine);
  ASSERT_EQ(1, good.Parse(Doc("[" + LineRule("{}") + "]")));
  const std::string text = good.Pack();
  ASSERT_NE("<failed>", text);

  struct Case {
    const char* what;
    uint32_t ruleCount;
    uint32_t length;
    RuleEntryHeader header;
  } cases[] = {
      {"body past the end", 1, kHeader + kLine - 1, {2, kLine, 1}},
      {"header past the end", 1, kHeader - 1, {2, kLine, 1}},
      {"second entry past the end", 2, kHeader + kLine, {2, kLine, 1}},
      {"body size of another type", 1, kHeader + kLine, {2, kRegion, 1}},
      {"a type the list rejects", 1, kHeader + kLine, {1, kLine, 1}},
      {"no type", 1, kHeader + kLine, {0, 0, 0}},
  };
  for (const Case& c : cases) {
    Rules r(kHeader + kLine);
    r.buffer = good.buffer;
    r.list.ruleBuffer = r.buffer.data();
    std::memcpy(r.list.ruleBuffer, &c.header, sizeof c.header);
    r.list.ruleCount = c.ruleCount;
    r.list.ruleBufferLength = c.length;
    EXPECT_EQ("<failed>", r.Pack()) << c.what;
  }
}

}  // namespace
