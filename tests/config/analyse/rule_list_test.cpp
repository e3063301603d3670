// "VideoAnalyseRule" / "AudioAnalyseRule" through the exported functions:
// what a failure leaves, the room check, a misaligned caller's buffer, the
// pack refusals, every rule type through parse, pack and parse, and the
// irregular members of single types.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "config/analyse/rule_config.h"
#include "config/analyse/rule_types.h"
#include "kova/records/analyse_rules.h"
#include "kova/records/analyse_traffic_rules.h"
#include "test_util.h"

namespace kova_test {
namespace {

constexpr uint32_t kLine = sizeof(CrossLineRule);
constexpr uint32_t kRegion = sizeof(CrossRegionRule);
constexpr uint32_t kHeader = sizeof(RuleEntryHeader);
// Room for the largest list: 32 entries of the largest body.
constexpr uint32_t kRoom = 32u * (kHeader + 347232u);

// A rule list record with a rule buffer of its own.
struct Rules {
  explicit Rules(size_t bytes, uint8_t fill = 0) : buffer(bytes + 1, fill) {
    list = {0xDEADu, buffer.data(), static_cast<uint32_t>(bytes)};
  }
  Rules(const Rules&) = delete;
  int Parse(const std::string& json, const char* name = "VideoAnalyseRule") {
    retLen = 0;
    return KOVA_ParseData(name, json.c_str(), &list, sizeof list, &retLen);
  }
  RuleEntryHeader Header(size_t at) const {
    RuleEntryHeader h;
    std::memcpy(&h, list.ruleBuffer + at, sizeof h);
    return h;
  }
  // Offset of entry i, walking the headers.
  size_t At(uint32_t i) const {
    size_t at = 0;
    for (uint32_t k = 0; k < i; ++k) at += kHeader + Header(at).bodySize;
    return at;
  }
  // The body of entry i copied into an aligned record; its header must be
  // {code, sizeof(Rec)}.
  template <typename Rec>
  std::unique_ptr<Rec> Body(uint32_t i, uint32_t code) const {
    EXPECT_EQ(code, Header(At(i)).ruleType);
    EXPECT_EQ(sizeof(Rec), Header(At(i)).bodySize);
    std::unique_ptr<Rec> r(new Rec);
    std::memcpy(r.get(), list.ruleBuffer + At(i) + kHeader, sizeof(Rec));
    return r;
  }
  std::string Pack(const char* name = "VideoAnalyseRule") const {
    VideoAnalyseRuleList used = list;
    used.ruleBufferLength = static_cast<uint32_t>(At(list.ruleCount));
    return PackBytes(name, &used, sizeof used, 4u << 20);
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
std::string LineRule(const std::string& config) { return Rule("CrossLineDetection", config); }

// What each failure leaves: ruleCount is always the number of rules; the
// buffer is untouched when the failure is found before writing, and
// cleared with the earlier entries in place when found while writing.
TEST(RuleList, FailuresAndWhatTheyLeave) {
  const std::string line = LineRule(R"({"TrackDuration":9})");
  const std::string noType = R"({"Name":"X","Config":{}})";
  struct Case {
    std::string rules;
    bool cleared;  // false: untouched
    uint32_t entriesKept;
  } cases[] = {
      {line + "," + Rule("All", "{}"), false, 0},
      {line + "," + Rule("VideoMotion", "{}"), false, 0},
      {line + "," + Rule("NoSuchDetection", "{}"), false, 0},
      {line + R"(,{"Name":"X","Type":7,"Config":{}})", false, 0},
      {line + "," + noType, true, 1},
      {noType + "," + line, true, 0},
  };
  for (const Case& c : cases) {
    Rules r(3 * (kHeader + kRegion), 0xAB);
    EXPECT_EQ(0, r.Parse(Doc("[" + c.rules + "]"))) << c.rules;
    EXPECT_EQ(2u, r.list.ruleCount) << c.rules;
    EXPECT_EQ(0u, r.retLen);
    if (!c.cleared) {
      EXPECT_TRUE(r.AllBytes(0, 0xAB)) << c.rules;
      continue;
    }
    EXPECT_TRUE(r.AllBytes(c.entriesKept * (kHeader + kLine), 0)) << c.rules;
    if (c.entriesKept > 0) {
      EXPECT_EQ(9, r.Body<CrossLineRule>(0, 2)->trackDuration) << c.rules;
    }
  }
}

TEST(RuleList, RoomIsCheckedBeforeAnythingIsWrittenAndAtMost32RulesAreRead) {
  const std::string doc =
      Doc("[" + LineRule("{}") + "," + Rule("CrossRegionDetection", "{}") + "]");
  const size_t need = 2 * kHeader + kLine + kRegion;
  Rules shortByOne(need - 1, 0xAB);
  EXPECT_EQ(0, shortByOne.Parse(doc));
  EXPECT_EQ(2u, shortByOne.list.ruleCount);
  EXPECT_TRUE(shortByOne.AllBytes(0, 0xAB));
  Rules exact(need, 0xAB);
  EXPECT_EQ(1, exact.Parse(doc));
  EXPECT_EQ(0xAB, exact.buffer.back());

  std::string rules = LineRule("{}");
  for (int i = 1; i < 33; ++i) rules += "," + LineRule("{}");
  Rules r(33 * (kHeader + kLine));
  ASSERT_EQ(1, r.Parse(Doc("[" + rules + "]")));
  EXPECT_EQ(32u, r.list.ruleCount);
  EXPECT_TRUE(r.AllBytes(32 * (kHeader + kLine), 0));
}

// A caller's buffer that puts the records 4-byte-misaligned reads and packs
// the same bytes.
TEST(RuleList, MisalignedBufferReadsTheSame) {
  const std::string doc = Sample("VideoAnalyseRule");
  const size_t bytes = 3 * (kHeader + kRegion);
  Rules aligned(bytes);
  ASSERT_EQ(1, aligned.Parse(doc));
  std::vector<uint8_t> shifted(bytes + 3);
  VideoAnalyseRuleList list = {0, shifted.data() + 1, static_cast<uint32_t>(bytes)};
  ASSERT_EQ(1, KOVA_ParseData("VideoAnalyseRule", doc.c_str(), &list, sizeof list, nullptr));
  EXPECT_EQ(0, std::memcmp(aligned.buffer.data(), shifted.data() + 1, bytes));
  EXPECT_EQ(PackBytes("VideoAnalyseRule", &aligned.list, sizeof aligned.list),
            PackBytes("VideoAnalyseRule", &list, sizeof list));
}

TEST(RuleList, PackRefusals) {
  const struct {
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
  for (const auto& c : cases) {
    Rules r(kHeader + kLine);
    ASSERT_EQ(1, r.Parse(Doc("[" + LineRule("{}") + "]")));
    ASSERT_NE("<failed>", r.Pack());
    std::memcpy(r.list.ruleBuffer, &c.header, sizeof c.header);
    r.list.ruleCount = c.ruleCount;
    r.list.ruleBufferLength = c.length;
    EXPECT_EQ("<failed>", PackBytes("VideoAnalyseRule", &r.list, sizeof r.list)) << c.what;
  }
}

// The rule buffer less what does not come back by design: the presence
// flags of every entry's linkage block (an empty channel list reads as
// present but packs as null) and scene class 15 (it packs as "").
std::vector<uint8_t> WithoutOneWayBytes(const Rules& l) {
  std::vector<uint8_t> bytes = l.buffer;
  for (uint32_t i = 0; i < l.list.ruleCount; ++i) {
    const size_t at = l.At(i);
    RuleEntryHeader h = l.Header(at);
    if (h.sceneClass == KOVA_SCENE_STAND_UP_DETECTION) h.sceneClass = KOVA_SCENE_NONE;
    std::memcpy(bytes.data() + at, &h, sizeof h);
    const kova::RuleType* type = kova::FindRuleType(h.ruleType);
    if (type == nullptr) continue;
    std::memset(bytes.data() + at + kHeader + type->linkageOffset +
                    offsetof(RuleLinkage, eventHandler) + offsetof(EventHandlerRecord, present),
                0, sizeof(EventHandlerRecord::present));
  }
  return bytes;
}

// Parse, pack, parse: the second parse writes the same bytes as the first.
// Together the samples hold a rule of every type the rule list carries.
TEST(RuleList, EveryTypeComesBackUnchanged) {
  std::set<uint32_t> seen;
  for (const char* file :
       {"VideoAnalyseRule", "VideoAnalyseRule.perimeter", "VideoAnalyseRule.behaviour",
        "VideoAnalyseRule.counting", "VideoAnalyseRule.face", "VideoAnalyseRule.traffic_junction",
        "VideoAnalyseRule.traffic_road", "AudioAnalyseRule"}) {
    const char* name = file[0] == 'A' ? "AudioAnalyseRule" : "VideoAnalyseRule";
    Rules first(kRoom);
    ASSERT_EQ(1, first.Parse(Sample(file), name)) << file;
    Rules second(kRoom);
    ASSERT_EQ(1, second.Parse(Doc(first.Pack(name)), name)) << file;
    EXPECT_EQ(first.list.ruleCount, second.list.ruleCount) << file;
    EXPECT_TRUE(WithoutOneWayBytes(first) == WithoutOneWayBytes(second)) << file;
    for (uint32_t i = 0; i < first.list.ruleCount; ++i) {
      seen.insert(first.Header(first.At(i)).ruleType);
    }
  }
  for (uint32_t i = 0; i < kova::kRuleTypeRowCount; ++i) {
    const kova::RuleTypeRow& r = kova::kRuleTypeRows[i];
    EXPECT_TRUE(r.record == nullptr || seen.count(r.code) == 1) << "no rule of type " << r.name;
  }
}

// The rule object's "TrackEnable" and the one in "Config" are two members;
// the face areas keep the device's trailing blank; the size filter of a
// rising prisoner is kept without its box lists; a scene class goes back
// by name.
TEST(RuleList, IrregularMembersOfSingleTypes) {
  Rules r(kRoom);
  ASSERT_EQ(1, r.Parse(Doc("[" +
                           Rule("TrafficParking", R"({"TrackEnable":false,"Delay":30})",
                                R"("TrackEnable":true,)") +
                           R"(,{"Class":"CourseRecord","Type":"FaceRecognition",)"
                           R"("Config":{"Areas":["Cheek","eyebrow ","Eyebrow"]}},)" +
                           Rule("PrisonerRiseDetection",
                                R"({"SizeFilter":{"Type":"ByArea","MinArea":2.5,)"
                                R"("CalibrateBoxs":[{"CenterPoint":[1,2],"Ratio":3}]}})") +
                           "]")));
  auto parking = r.Body<TrafficParkingRule>(0, 264);
  EXPECT_EQ(1, parking->head.trackEnable);
  EXPECT_EQ(0, parking->configTrackEnable);
  auto face = r.Body<FaceRecognitionRule>(1, 279);
  EXPECT_EQ(KOVA_FACE_AREA_EYEBROW, face->areas[1]);
  EXPECT_EQ(0, face->areas[2]);  // "Eyebrow" without its blank names nothing
  auto rise = r.Body<PrisonerRiseRule>(2, 286);
  EXPECT_EQ(1u, rise->sizeFilterPresent);
  EXPECT_EQ(0, rise->sizeFilter.calibrateBoxsPresent);
  for (uint8_t b : rise->reserved) ASSERT_EQ(0, b);
  const std::string packed = r.Pack();
  EXPECT_NE(std::string::npos,
            packed.find(R"("ReportTimes" : 0, "Sensitivity" : 0, "TrackEnable" : false })"));
  EXPECT_NE(std::string::npos, packed.find(R"("TrackEnable" : true, "Type" : "TrafficParking")"));
  EXPECT_NE(std::string::npos, packed.find(R"("Areas" : [ "Cheek", "Eyebrow ", "Eyebrow " ])"));
  EXPECT_NE(std::string::npos, packed.find(R"("Class" : "CourseRecord")"));
  EXPECT_NE(std::string::npos,
            packed.find(R"("SizeFilter" : { "MinArea" : 2.500000000000000, "Type" : "ByArea" })"));
}

// The abnormality names against the header's constants, both ways.
TEST(RuleList, VideoAbnormalTypeNames) {
  Rules r(kRoom);
  ASSERT_EQ(
      1,
      r.Parse(Doc(
          "[" +
          Rule("VideoAbnormalDetection", R"({"DetectType":["Loss","Cover","Frozen","Light"]})") +
          "," + Rule("VideoAbnormalDetection", R"({"DetectType":["Dark","SceneChange"]})") + "]")));
  auto first = r.Body<VideoAbnormalRule>(0, 19);
  auto second = r.Body<VideoAbnormalRule>(1, 19);
  const uint8_t expected[] = {KOVA_VIDEO_ABNORMAL_LOSS, KOVA_VIDEO_ABNORMAL_COVER,
                              KOVA_VIDEO_ABNORMAL_FROZEN, KOVA_VIDEO_ABNORMAL_LIGHT};
  EXPECT_EQ(0, std::memcmp(expected, first->detectTypes, sizeof expected));
  EXPECT_EQ(KOVA_VIDEO_ABNORMAL_DARK, second->detectTypes[0]);
  EXPECT_EQ(KOVA_VIDEO_ABNORMAL_SCENE_CHANGE, second->detectTypes[1]);
  const std::string packed = r.Pack();
  EXPECT_NE(std::string::npos, packed.find(R"([ "Loss", "Cover", "Frozen", "Light" ])"));
  EXPECT_NE(std::string::npos, packed.find(R"([ "Dark", "SceneChange" ])"));
}

}  // namespace
}  // namespace kova_test
