#include "config/analyse/rule_types.h"

#include <gtest/gtest.h>

namespace kova {
namespace {

TEST(RuleTypes, LookupRules) {
  EXPECT_EQ(RuleTypeFromName("crosslinedetection"), 2u);  // letter case ignored
  EXPECT_EQ(RuleTypeFromName("CrossLine"), 0u);           // whole name only
  EXPECT_EQ(RuleTypeFromName(nullptr), 0u);
  EXPECT_EQ(RuleTypeFromName("TrafficYellowInRoute"), 270u);
  EXPECT_STREQ(RuleTypeName(270), "TrafficYellowPlateInLane");  // first name of a shared code
  EXPECT_EQ(RuleTypeName(9999), nullptr);
  EXPECT_EQ(RuleEventFamily(9999), kGeneralEvents);
}

}  // namespace
}  // namespace kova
