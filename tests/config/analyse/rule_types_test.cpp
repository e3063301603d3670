#include "config/analyse/rule_types.h"

#include <gtest/gtest.h>
#include <json/value.h>

#include <cstddef>

#include "config/analyse/rule_config.h"
#include "kova/records/analyse.h"

namespace kova {
namespace {

// What the rows must agree on beyond what the compiler checks: no name is
// hidden behind an earlier one that folds the same, and the rows sharing a
// code share its record and event family (only the first row is looked at).
TEST(RuleTypes, EveryNameFindsItsRowAndRowsOfACodeAgree) {
  for (uint32_t i = 0; i < kRuleTypeRowCount; ++i) {
    const RuleTypeRow& r = kRuleTypeRows[i];
    EXPECT_EQ(RuleTypeFromName(r.name), r.code) << r.name;
    EXPECT_EQ(FindRuleType(r.code), r.record) << r.name;
    EXPECT_EQ(RuleEventFamily(r.code), r.events) << r.name;
  }
}

TEST(RuleTypes, LookupRules) {
  EXPECT_EQ(RuleTypeFromName("crosslinedetection"), 2u);  // letter case ignored
  EXPECT_EQ(RuleTypeFromName("CrossLine"), 0u);           // whole name only
  EXPECT_EQ(RuleTypeFromName(nullptr), 0u);
  EXPECT_EQ(RuleTypeFromName("TrafficYellowInRoute"), 270u);
  EXPECT_STREQ(RuleTypeName(270), "TrafficYellowPlateInLane");  // first name of a shared code
  EXPECT_EQ(RuleBodySize(1), 0);                                // "All" has a code but is rejected
  EXPECT_EQ(RuleBodySize(339), 0);                              // "VideoBlind"
  EXPECT_EQ(RuleBodySize(294), 339228);
  EXPECT_EQ(RuleTypeName(9999), nullptr);
  EXPECT_EQ(RuleEventFamily(9999), kGeneralEvents);
}

}  // namespace
}  // namespace kova
