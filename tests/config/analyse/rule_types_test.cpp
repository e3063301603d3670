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
  EXPECT_EQ(RuleEventFamily(9999), kGeneralEvents);
}

// The texts against the public constants of kova/records/analyse.h.
TEST(RuleTypes, TextsAreThoseOfThePublicConstants) {
  EXPECT_EQ(KOVA_RULE_CROSS_LINE, RuleTypeFromName("CrossLineDetection"));
  EXPECT_STREQ("CrossLineDetection", RuleTypeName(KOVA_RULE_CROSS_LINE));
  EXPECT_EQ(&kCrossLineRuleType, FindRuleType(KOVA_RULE_CROSS_LINE));
  EXPECT_EQ(offsetof(CrossLineRule, linkage), kCrossLineRuleType.linkageOffset);
  EXPECT_EQ(KOVA_RULE_CROSS_REGION, RuleTypeFromName("CrossRegionDetection"));
  EXPECT_STREQ("CrossRegionDetection", RuleTypeName(KOVA_RULE_CROSS_REGION));
  EXPECT_EQ(&kCrossRegionRuleType, FindRuleType(KOVA_RULE_CROSS_REGION));

  const struct {
    const char* text;
    int32_t sceneClass;
  } kClasses[] = {
      {"Normal", KOVA_SCENE_NORMAL},
      {"Traffic", KOVA_SCENE_TRAFFIC},
      {"TrafficPatrol", KOVA_SCENE_TRAFFIC_PATROL},
      {"FaceDetection", KOVA_SCENE_FACE_DETECTION},
      {"ATM", KOVA_SCENE_ATM},
      {"Indoor", KOVA_SCENE_INDOOR},
      {"FaceRecognition", KOVA_SCENE_FACE_RECOGNITION},
      {"Prison", KOVA_SCENE_PRISON},
      {"NumberStat", KOVA_SCENE_NUMBER_STAT},
      {"HeatMap", KOVA_SCENE_HEAT_MAP},
      {"VideoDiagnosis", KOVA_SCENE_VIDEO_DIAGNOSIS},
      {"VehicleAnalyse", KOVA_SCENE_VEHICLE_ANALYSE},
      {"CourseRecord", KOVA_SCENE_COURSE_RECORD},
      {"Vehicle", KOVA_SCENE_VEHICLE},
      {"StandUpDetection", KOVA_SCENE_STAND_UP_DETECTION},
  };
  for (const auto& c : kClasses) {
    int32_t read = KOVA_SCENE_NONE;
    EXPECT_TRUE(EnumValue(kSceneClassNames, Json::Value(c.text), &read)) << c.text;
    EXPECT_EQ(c.sceneClass, read) << c.text;
    const char* packed = EnumName(kSceneClassPackNames, c.sceneClass);
    if (c.sceneClass == KOVA_SCENE_STAND_UP_DETECTION) {
      EXPECT_EQ(nullptr, packed);  // packs as "", on purpose
    } else {
      EXPECT_STREQ(c.text, packed);
    }
  }
}

}  // namespace
}  // namespace kova
