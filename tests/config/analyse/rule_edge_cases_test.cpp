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
