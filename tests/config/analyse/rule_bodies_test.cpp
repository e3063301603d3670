// Every rule type the rule list carries: a device's rules of every type come
// back unchanged through parse, pack and parse.
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
// Together the samples hold a rule of every type the rule list carries.
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
  for (uint32_t i = 0; i < kova::kRuleTypeRowCount; ++i) {
    const kova::RuleTypeRow& r = kova::kRuleTypeRows[i];
    if (r.record == nullptr) continue;
    EXPECT_EQ(1u, seen.count(r.code)) << "no rule of type " << r.name;
  }
}

}  // namespace
