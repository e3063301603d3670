// The awkward inputs of the rule types: letter case, null and unknown list
// entries, lists longer than their slots, names that match nothing, values
// without a name, the two "TrackEnable"s, the audio rule's short head and
// the one size filter kept without its box lists.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "config/alarm/alarm_test_util.h"
#include "config/analyse/rule_test_util.h"
#include "kova/records/analyse_rules.h"
#include "kova/records/analyse_traffic_rules.h"

namespace {

using kova_test::ConfigText;
using kova_test::PackRules;
using kova_test::ParseRules;
using kova_test::RuleList;

// A document holding one rule of `type` with "Config" `config`; `extra`
// adds members to the rule object.
std::string OneRule(const std::string& type, const std::string& config,
                    const std::string& extra = "") {
  return kova_test::Doc(R"([{"Name":"Edge","Enable":true,"Type":")" + type +
                        R"(","Class":"Normal",)" + extra + R"("Config":)" + config + "}]");
}

RuleList Parse(const std::string& type, const std::string& config, const std::string& extra = "") {
  RuleList l = ParseRules("VideoAnalyseRule", OneRule(type, config, extra));
  EXPECT_EQ(1, l.rc) << type;
  return l;
}

std::string PackedConfig(const RuleList& l) { return ConfigText(PackRules("VideoAnalyseRule", l)); }

TEST(AnalyseRuleEdgeCases, DirectionNamesIgnoreLetterCase) {
  struct Case {
    const char* text;
    int32_t direction;
  };
  const Case kCases[] = {
      {"RightToLeft", KOVA_LINE_RIGHT_TO_LEFT},
      {"rIGHTtOlEFT", KOVA_LINE_RIGHT_TO_LEFT},
      {"BOTH", KOVA_LINE_BOTH},
      {"RightToLeft ", 0},
      {"Upward", 0},
      {"", 0},
  };
  for (const Case& c : kCases) {
    const std::string config = std::string(R"({"Direction":")") + c.text + "\"}";
    EXPECT_EQ(c.direction,
              Parse("CrossFenceDetection", config).Body<CrossFenceRule>(0, 287)->direction)
        << c.text;
    EXPECT_EQ(c.direction, Parse("CrossLineDetection", config).Body<CrossLineRule>(0, 2)->direction)
        << c.text;
  }
  EXPECT_EQ(
      0,
      Parse("CrossFenceDetection", R"({"Direction":1})").Body<CrossFenceRule>(0, 287)->direction);
}

TEST(AnalyseRuleEdgeCases, TriggerPositionsCountNonNullEntries) {
  const RuleList l =
      Parse("StayDetection", R"({"TriggerPosition":["Center",null,"Sideways","BottomCenter"]})");
  auto stay = l.Body<StayRule>(0, 6);
  EXPECT_EQ(3u, stay->triggerPositions.count);
  const uint8_t slots[8] = {KOVA_TRIGGER_CENTER, 0, 0, KOVA_TRIGGER_BOTTOM_CENTER};
  EXPECT_EQ(0, std::memcmp(slots, stay->triggerPositions.positions, sizeof slots));
  // The first `count` slots are written: the null's slot and the unknown
  // name both read 0, and the last entry is past the count.
  EXPECT_NE(std::string::npos,
            PackedConfig(l).find(R"("TriggerPosition" : [ "Center", "Center", "Center" ])"));
}

TEST(AnalyseRuleEdgeCases, ActionsAreCutToFour) {
  auto region = Parse("CrossRegionDetection",
                      R"({"Action":["Cross","Inside","Appear","Disappear","Cross","Inside"]})")
                    .Body<CrossRegionRule>(0, 3);
  EXPECT_EQ(4u, region->actionCount);
  EXPECT_EQ(KOVA_ACTION_CROSS, region->actions[0]);
  EXPECT_EQ(KOVA_ACTION_DISAPPEAR, region->actions[3]);
}

TEST(AnalyseRuleEdgeCases, DetectTypesKeepFourSlotsByIndex) {
  const RuleList l =
      Parse("MoveDetection",
            R"({"DetectType":["abruptSLOWDOWN",null,"Teleport","FastMove","AbruptSpeedup"]})");
  auto move = l.Body<MoveRule>(0, 9);
  EXPECT_EQ(3u, move->detectTypeCount);  // non-null among the first 4
  const uint8_t slots[4] = {KOVA_MOVE_ABRUPT_SLOWDOWN, 0, 0, KOVA_MOVE_FAST_MOVE};
  EXPECT_EQ(0, std::memcmp(slots, move->detectTypes, sizeof slots));
  EXPECT_NE(std::string::npos,
            PackedConfig(l).find(R"("DetectType" : [ "AbruptSlowdown", "FastMove", "FastMove" ])"));

  // Each type has its own names: "FastMove" is not a running type.
  auto run = Parse("RunDetection", R"({"DetectType":["FastMove","FastRun","ABRUPTSPEEDUP"]})")
                 .Body<RunRule>(0, 274);
  EXPECT_EQ(3u, run->detectTypeCount);
  const uint8_t runSlots[4] = {0, KOVA_RUN_FAST_RUN, KOVA_RUN_ABRUPT_SPEEDUP, 0};
  EXPECT_EQ(0, std::memcmp(runSlots, run->detectTypes, sizeof runSlots));
}

TEST(AnalyseRuleEdgeCases, FaceAreasKeepTheDevicesBlank) {
  const RuleList l = Parse("FaceRecognition", R"({"Areas":["Cheek","eyebrow ","Eyebrow"]})");
  auto face = l.Body<FaceRecognitionRule>(0, 279);
  EXPECT_EQ(3u, face->areaCount);
  EXPECT_EQ(KOVA_FACE_AREA_CHEEK, face->areas[0]);
  EXPECT_EQ(KOVA_FACE_AREA_EYEBROW, face->areas[1]);
  EXPECT_EQ(0, face->areas[2]);  // "Eyebrow" without its blank names nothing
  EXPECT_NE(std::string::npos,
            PackedConfig(l).find(R"("Areas" : [ "Cheek", "Eyebrow ", "Eyebrow " ])"));
}

TEST(AnalyseRuleEdgeCases, UnknownNamesReadZeroAndUnnamedValuesPackEmpty) {
  EXPECT_EQ(0,
            Parse("FightDetection", R"({"DetectMode":"Loud"})").Body<FightRule>(0, 14)->detectMode);
  EXPECT_EQ(0, Parse("TrafficControl", R"({"TimeSchedule":2})")
                   .Body<TrafficControlRule>(0, 21)
                   ->timeSchedule);

  RuleList l = Parse("FightDetection", R"({"DetectMode":"ByAudio","MinDuration":4})");
  FightRule fight;
  std::memcpy(&fight, l.buffer.data() + KOVA_RULE_ENTRY_HEADER_SIZE, sizeof fight);
  EXPECT_EQ(KOVA_FIGHT_BY_AUDIO, fight.detectMode);
  fight.detectMode = 9;
  std::memcpy(l.buffer.data() + KOVA_RULE_ENTRY_HEADER_SIZE, &fight, sizeof fight);
  EXPECT_EQ(R"({ "DetectMode" : "", "DetectRegion" : [  ], "MinDuration" : 4, "Sensitivity" : 0 })",
            PackedConfig(l));
}

TEST(AnalyseRuleEdgeCases, TypeWithoutKeysHoldsOnlyTheCommonFields) {
  const std::string extra = R"("ObjectTypes":["Vehicle"],"PtzPresetId":4,)";
  const RuleList plain = Parse("TrafficDriverSmoking", "{}", extra);
  const RuleList keyed = Parse(
      "TrafficDriverSmoking", R"({"DetectRegion":[[0,0],[9,9]],"Sensitivity":5,"Delay":3})", extra);
  EXPECT_TRUE(plain.buffer == keyed.buffer);
  auto smoking = keyed.Body<TrafficPlainRule>(0, 313);
  EXPECT_STREQ("Vehicle", smoking->head.objectTypes[0]);
  EXPECT_EQ(4, smoking->linkage.ptzPresetId);
  EXPECT_EQ("{  }", PackedConfig(keyed));
}

TEST(AnalyseRuleEdgeCases, ConfigTrackEnableIsTheTypesOwn) {
  const RuleList l =
      Parse("TrafficParking", R"({"TrackEnable":false,"Delay":30})", R"("TrackEnable":true,)");
  auto parking = l.Body<TrafficParkingRule>(0, 264);
  EXPECT_EQ(1, parking->head.trackEnable);
  EXPECT_EQ(0, parking->configTrackEnable);
  const std::string packed = PackRules("VideoAnalyseRule", l);
  EXPECT_NE(std::string::npos,
            packed.find(R"("ReportTimes" : 0, "Sensitivity" : 0, "TrackEnable" : false })"));
  EXPECT_NE(std::string::npos, packed.find(R"("TrackEnable" : true, "Type" : "TrafficParking")"));
}

TEST(AnalyseRuleEdgeCases, DirectionLinesHoldTwoPointsByThePointRule) {
  auto retro = Parse("TrafficRetrograde", R"({"Direction":[[10,20],[30,40],[50,60]]})")
                   .Body<TrafficRetrogradeRule>(0, 258);
  EXPECT_EQ(2u, retro->direction.pointCount);
  EXPECT_EQ(40, retro->direction.points[1].y);
  auto holed = Parse("TrafficRetrograde", R"({"Direction":[[5],[30,40]]})")
                   .Body<TrafficRetrogradeRule>(0, 258);
  EXPECT_EQ(1u, holed->direction.pointCount);
  EXPECT_EQ(0, holed->direction.points[0].x);
  EXPECT_EQ(30, holed->direction.points[1].x);
}

TEST(AnalyseRuleEdgeCases, AudioRulesHaveNoObjectTypes) {
  const RuleList l = ParseRules(
      "AudioAnalyseRule", OneRule("AudioAbnormalDetection", R"({"Frequency":3000,"MinDuration":2})",
                                  R"("ObjectTypes":["Human"],"TrackEnable":true,)"));
  ASSERT_EQ(1, l.rc);
  auto audio = l.Body<AudioAbnormalRule>(0, 294);
  EXPECT_EQ(1, audio->head.trackEnable);
  EXPECT_EQ(3000, audio->frequency);
  const uint8_t* body = l.buffer.data() + KOVA_RULE_ENTRY_HEADER_SIZE;
  EXPECT_EQ(0, body[130]);  // the two bytes before "Frequency" stay clear
  EXPECT_EQ(0, body[131]);
  const std::string packed = PackRules("AudioAnalyseRule", l);
  EXPECT_EQ(std::string::npos, packed.find("ObjectTypes"));
  EXPECT_EQ(R"({ "Frequency" : 3000, "MinDuration" : 2 })", ConfigText(packed));
}

TEST(AnalyseRuleEdgeCases, PrisonerRiseSizeFilterLeavesTheBoxListsOut) {
  const RuleList l = Parse(
      "PrisonerRiseDetection",
      R"({"SizeFilter":{"Type":"ByArea","MinArea":2.5,"CalibrateBoxs":[{"CenterPoint":[1,2],"Ratio":3}]}})");
  auto rise = l.Body<PrisonerRiseRule>(0, 286);
  EXPECT_EQ(1u, rise->sizeFilterPresent);
  EXPECT_EQ(KOVA_SIZE_FILTER_BY_AREA, rise->sizeFilter.type);
  EXPECT_FLOAT_EQ(2.5f, rise->sizeFilter.minArea);
  EXPECT_EQ(0, rise->sizeFilter.calibrateBoxsPresent);
  for (uint8_t b : rise->reserved) ASSERT_EQ(0, b);
  EXPECT_NE(std::string::npos,
            PackedConfig(l).find(
                R"("SizeFilter" : { "MinArea" : 2.500000000000000, "Type" : "ByArea" })"));
}

}  // namespace
