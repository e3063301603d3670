#include "config/analyse/rule_types.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace kova {
namespace {

TEST(RuleTypes, NamesAreDistinctAndEveryNameFindsItsCode) {
  std::set<std::string> seen;
  for (uint32_t i = 0; i < kRuleTypeRowCount; ++i) {
    const RuleTypeRow& r = kRuleTypeRows[i];
    EXPECT_TRUE(seen.insert(r.name).second) << r.name;
    EXPECT_EQ(RuleTypeFromName(r.name), r.code) << r.name;
    EXPECT_EQ(RuleBodySize(r.code), r.bodySize) << r.name;
  }
  EXPECT_EQ(kRuleTypeRowCount, 119u);
}

TEST(RuleTypes, LookupRules) {
  EXPECT_EQ(RuleTypeFromName("crosslinedetection"), 2u);  // letter case ignored
  EXPECT_EQ(RuleTypeFromName("CROSSREGIONDETECTION"), 3u);
  EXPECT_EQ(RuleTypeFromName("CrossLine"), 0u);  // whole name only
  EXPECT_EQ(RuleTypeFromName(""), 0u);
  EXPECT_EQ(RuleTypeFromName(nullptr), 0u);
  EXPECT_EQ(RuleTypeFromName("TrafficYellowInRoute"), 270u);
  EXPECT_STREQ(RuleTypeName(270), "TrafficYellowPlateInLane");  // first name of a shared code
  EXPECT_EQ(RuleBodySize(1), 0);                                // "All" has a code but is rejected
  EXPECT_EQ(RuleBodySize(339), 0);                              // "VideoBlind"
  EXPECT_EQ(RuleBodySize(294), 339228);
  EXPECT_EQ(RuleBodySize(0), 0);
  EXPECT_EQ(RuleTypeName(0), nullptr);
  EXPECT_EQ(RuleTypeName(9999), nullptr);
}

}  // namespace
}  // namespace kova
