// Every rule type the rule list carries: its record is the body size of its
// code, and a device's rules of every type come back unchanged through
// parse, pack and parse.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "config/analyse/rule_config.h"
#include "config/analyse/rule_test_util.h"
#include "config/analyse/rule_types.h"
#include "kova/records/analyse_rules.h"
#include "kova/records/analyse_traffic_rules.h"

namespace {

struct Body {
  uint32_t code;
  size_t recordSize;
};

// The 71 codes of the rule config table, each with its record.
const Body kBodies[] = {
    {2, sizeof(CrossLineRule)},
    {287, sizeof(CrossFenceRule)},
    {3, sizeof(CrossRegionRule)},
    {12, sizeof(FireRule)},
    {13, sizeof(FireRule)},
    {4, sizeof(FireRule)},
    {8, sizeof(PreservationRule)},
    {10, sizeof(PreservationRule)},
    {272, sizeof(PreservationRule)},
    {14, sizeof(FightRule)},
    {9, sizeof(MoveRule)},
    {6, sizeof(StayRule)},
    {7, sizeof(StayRule)},
    {5, sizeof(LeftRule)},
    {277, sizeof(LeftRule)},
    {278, sizeof(LeftRule)},
    {11, sizeof(RioterRule)},
    {15, sizeof(FlowStatRule)},
    {16, sizeof(NumberStatRule)},
    {275, sizeof(RetrogradeRule)},
    {274, sizeof(RunRule)},
    {19, sizeof(VideoAbnormalRule)},
    {279, sizeof(FaceRecognitionRule)},
    {21, sizeof(TrafficControlRule)},
    {22, sizeof(TrafficAccidentRule)},
    {23, sizeof(TrafficJunctionRule)},
    {24, sizeof(TrafficGateRule)},
    {26, sizeof(FaceDetectionRule)},
    {27, sizeof(TrafficJamRule)},
    {303, sizeof(TrafficJamRule)},
    {264, sizeof(TrafficParkingRule)},
    {256, sizeof(TrafficRunRedLightRule)},
    {265, sizeof(TrafficRouteRule)},
    {266, sizeof(TrafficRouteRule)},
    {257, sizeof(TrafficRouteRule)},
    {259, sizeof(TrafficRouteRule)},
    {260, sizeof(TrafficRouteRule)},
    {270, sizeof(TrafficRouteRule)},
    {283, sizeof(TrafficRouteRule)},
    {293, sizeof(TrafficRouteRule)},
    {292, sizeof(TrafficBusRouteRule)},
    {267, sizeof(TrafficOverYellowLineRule)},
    {261, sizeof(TrafficUTurnRule)},
    {262, sizeof(TrafficSpeedRule)},
    {263, sizeof(TrafficSpeedRule)},
    {286, sizeof(PrisonerRiseRule)},
    {288, sizeof(TrafficTollGateRule)},
    {258, sizeof(TrafficRetrogradeRule)},
    {271, sizeof(TrafficPlainRule)},
    {291, sizeof(QueueRule)},
    {294, sizeof(AudioAbnormalRule)},
    {296, sizeof(ClimbRule)},
    {297, sizeof(LeaveRule)},
    {298, sizeof(TrafficParkingOnYellowBoxRule)},
    {299, sizeof(TrafficParkingSpaceRule)},
    {300, sizeof(TrafficParkingSpaceRule)},
    {308, sizeof(TrafficPlainRule)},
    {312, sizeof(TrafficSafeBeltRule)},
    {313, sizeof(TrafficPlainRule)},
    {314, sizeof(TrafficPlainRule)},
    {301, sizeof(TrafficPedestrainRule)},
    {302, sizeof(TrafficPedestrainRule)},
    {341, sizeof(GetOutBedRule)},
    {342, sizeof(PatrolRule)},
    {343, sizeof(OnDutyRule)},
    {351, sizeof(HeatMapRule)},
    {315, sizeof(TrafficRunRedLightRule)},
    {316, sizeof(TrafficPassNotInOrderRule)},
    {514, sizeof(HeatMapRule)},
    {359, sizeof(StandUpRule)},
    {362, sizeof(ShootingScoreRule)},
};

TEST(AnalyseRuleBodies, EveryCodeOfTheConfigTableHasItsRecord) {
  ASSERT_EQ(71u, sizeof kBodies / sizeof kBodies[0]);
  ASSERT_EQ(71u, kova::kRuleConfigRowCount);
  for (size_t i = 0; i < kova::kRuleConfigRowCount; ++i) {
    const Body& b = kBodies[i];
    EXPECT_EQ(kova::kRuleConfigTable[i].code, b.code) << "row " << i;
    EXPECT_EQ(static_cast<int32_t>(b.recordSize), kova::RuleBodySize(b.code)) << b.code;
    const kova::RuleType* type = kova::FindRuleType(b.code);
    ASSERT_NE(nullptr, type) << b.code;
    EXPECT_EQ(b.recordSize, type->recordSize) << b.code;
  }
}

// The rule buffer less what does not come back by design: the presence
// flags of every entry's linkage block (an empty channel list reads as
// present but packs as null) and scene class 15 (it packs as "").
std::vector<uint8_t> WithoutOneWayBytes(const kova_test::RuleList& l) {
  std::vector<uint8_t> bytes = l.buffer;
  for (size_t i = 0; i < l.offsets.size(); ++i) {
    RuleEntryHeader h = l.Header(i);
    if (h.sceneClass == KOVA_SCENE_STAND_UP_DETECTION) h.sceneClass = KOVA_SCENE_NONE;
    std::memcpy(bytes.data() + l.offsets[i], &h, sizeof h);
    const kova::RuleType* type = kova::FindRuleType(h.ruleType);
    if (type == nullptr) continue;
    const size_t at = l.offsets[i] + KOVA_RULE_ENTRY_HEADER_SIZE + type->linkageOffset +
                      offsetof(RuleLinkage, eventHandler) + offsetof(EventHandlerRecord, present);
    std::memset(bytes.data() + at, 0, sizeof(EventHandlerRecord::present));
  }
  return bytes;
}

// Parse, pack, parse: the second parse writes the same bytes as the first.
// Together the samples hold a rule of every type of the config table.
TEST(AnalyseRuleBodies, EveryTypeComesBackUnchanged) {
  struct Sample {
    const char* name;
    const char* file;
  };
  const Sample kSamples[] = {
      {"VideoAnalyseRule", "VideoAnalyseRule"},
      {"VideoAnalyseRule", "VideoAnalyseRule.perimeter"},
      {"VideoAnalyseRule", "VideoAnalyseRule.behaviour"},
      {"VideoAnalyseRule", "VideoAnalyseRule.counting"},
      {"VideoAnalyseRule", "VideoAnalyseRule.face"},
      {"VideoAnalyseRule", "VideoAnalyseRule.traffic_junction"},
      {"VideoAnalyseRule", "VideoAnalyseRule.traffic_road"},
      {"AudioAnalyseRule", "AudioAnalyseRule"},
  };
  std::set<uint32_t> seen;
  for (const Sample& s : kSamples) {
    const kova_test::RuleList first = kova_test::ParseRules(
        s.name, kova_test::ReadFile(KOVA_SAMPLES_DIR "/" + std::string(s.file) + ".json"));
    ASSERT_EQ(1, first.rc) << s.file;
    const std::string packed = kova_test::PackRules(s.name, first);
    const kova_test::RuleList second = kova_test::ParseRules(s.name, kova_test::Doc(packed));
    ASSERT_EQ(1, second.rc) << s.file;
    EXPECT_EQ(first.count, second.count) << s.file;
    EXPECT_TRUE(WithoutOneWayBytes(first) == WithoutOneWayBytes(second)) << s.file;
    for (size_t i = 0; i < first.offsets.size(); ++i) seen.insert(first.Header(i).ruleType);
  }
  for (const Body& b : kBodies) EXPECT_EQ(1u, seen.count(b.code)) << "no rule of type " << b.code;
}

}  // namespace
