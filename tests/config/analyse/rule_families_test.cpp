// The rule types family by family: each family's sample (a device's rule
// list of that kind) is parsed, every rule's own "Config" keys are checked
// in its record, and every rule packs back to its exact "Config" text
// (fixtures/<sample>.config.txt, one line per rule).
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "config/analyse/rule_test_util.h"
#include "kova/records/analyse_rules.h"
#include "kova/records/analyse_traffic_rules.h"

namespace {

using kova_test::ConfigText;
using kova_test::PackRules;
using kova_test::ParseRules;
using kova_test::ReadFile;
using kova_test::RuleList;

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// samples/<file>.json parsed as `name`; each rule packed alone gives the
// rule's line of fixtures/<file>.config.txt as its "Config".
RuleList ParseFamily(const char* name, const std::string& file) {
  const RuleList l = ParseRules(name, ReadFile(KOVA_SAMPLES_DIR "/" + file + ".json"));
  EXPECT_EQ(1, l.rc) << file;
  const std::vector<std::string> expected =
      Lines(ReadFile(KOVA_FIXTURES_DIR "/" + file + ".config.txt"));
  EXPECT_EQ(expected.size(), l.offsets.size()) << file;
  for (size_t i = 0; i < expected.size() && i < l.offsets.size(); ++i) {
    EXPECT_EQ(expected[i], ConfigText(PackRules(name, l, i, 1))) << file << " rule " << i;
  }
  return l;
}

constexpr const char* kVideo = "VideoAnalyseRule";

TEST(AnalyseRuleFamilies, Perimeter) {
  const RuleList l = ParseFamily(kVideo, "VideoAnalyseRule.perimeter");
  ASSERT_EQ(11u, l.count);

  auto fence = l.Body<CrossFenceRule>(0, 287);
  EXPECT_STREQ("North fence", fence->head.name);
  EXPECT_EQ(3u, fence->upstairsLine.pointCount);
  EXPECT_EQ(2200, fence->upstairsLine.points[1].y);
  EXPECT_EQ(7680, fence->downstairsLine.points[2].x);
  EXPECT_EQ(KOVA_LINE_RIGHT_TO_LEFT, fence->direction);
  EXPECT_EQ(1u, fence->triggerPositions.count);
  EXPECT_EQ(KOVA_TRIGGER_BOTTOM_CENTER, fence->triggerPositions.positions[0]);
  EXPECT_EQ(10, fence->trackDuration);
  EXPECT_EQ(1u, fence->sizeFilterPresent);
  EXPECT_FLOAT_EQ(128.0f, fence->sizeFilter.minSize[1]);
  EXPECT_EQ(1, fence->linkage.eventHandler.beepEnable);

  for (size_t i = 1; i <= 3; ++i) {
    const uint32_t codes[] = {0, 5, 277, 278};
    auto left = l.Body<LeftRule>(i, codes[i]);
    EXPECT_EQ(4u, left->detectRegion.pointCount);
    EXPECT_EQ(KOVA_TRIGGER_CENTER, left->triggerPositions.positions[0]);
    EXPECT_EQ(1u, left->sizeFilterPresent);
  }
  auto left = l.Body<LeftRule>(1, 5);
  EXPECT_EQ(60, left->minDuration);
  EXPECT_EQ(20, left->trackDuration);
  EXPECT_FLOAT_EQ(1024.0f, left->sizeFilter.maxSize[0]);
  EXPECT_EQ(3, l.Body<LeftRule>(2, 277)->linkage.ptzPresetId);
  EXPECT_EQ(120, l.Body<LeftRule>(3, 278)->minDuration);

  auto stay = l.Body<StayRule>(4, 6);
  EXPECT_EQ(300, stay->minDuration);
  EXPECT_EQ(1, stay->triggerTargetsNumber);
  EXPECT_EQ(60, stay->reportInterval);
  EXPECT_EQ(20, stay->trackDuration);
  EXPECT_EQ(1u, stay->head.trackEnable);
  auto wander = l.Body<StayRule>(5, 7);
  EXPECT_EQ(2, wander->triggerTargetsNumber);
  EXPECT_EQ(300, wander->reportInterval);
  EXPECT_EQ(19, wander->linkage.timeSection.sections[0][0].beginHour);

  EXPECT_EQ(10, l.Body<PreservationRule>(6, 8)->minDuration);
  EXPECT_EQ(4700, l.Body<PreservationRule>(7, 10)->detectRegion.points[1].x);
  auto spark = l.Body<PreservationRule>(8, 272);
  EXPECT_EQ(1, spark->minDuration);
  EXPECT_EQ(0u, spark->head.objectTypeCount);

  auto climb = l.Body<ClimbRule>(9, 296);
  EXPECT_EQ(2900, climb->detectLine.points[1].y);
  EXPECT_EQ(1u, climb->sizeFilterPresent);
  EXPECT_EQ(1u, climb->sizeFilter.calibrateBoxCount);

  auto retro = l.Body<RetrogradeRule>(10, 275);
  EXPECT_EQ(2u, retro->direction.pointCount);
  EXPECT_EQ(7000, retro->direction.points[0].y);
  EXPECT_EQ(1000, retro->direction.points[1].y);
  EXPECT_EQ(KOVA_TRIGGER_BOTTOM_CENTER, retro->triggerPositions.positions[0]);
  EXPECT_EQ(6, retro->sensitivity);
  EXPECT_EQ(KOVA_SCENE_INDOOR, l.Header(10).sceneClass);
}

TEST(AnalyseRuleFamilies, CrowdAndBehaviour) {
  const RuleList l = ParseFamily(kVideo, "VideoAnalyseRule.behaviour");
  ASSERT_EQ(15u, l.count);

  auto fire = l.Body<FireRule>(0, 12);
  EXPECT_EQ(3, fire->minDuration);
  EXPECT_EQ(7, fire->sensitivity);
  EXPECT_EQ(4096, l.Body<FireRule>(1, 13)->detectRegion.points[2].y);
  EXPECT_EQ(10, l.Body<FireRule>(2, 4)->minDuration);
  auto rioter = l.Body<RioterRule>(3, 11);
  EXPECT_EQ(30, rioter->minDuration);
  EXPECT_EQ(5, rioter->sensitivity);

  auto fight = l.Body<FightRule>(4, 14);
  EXPECT_EQ(8, fight->sensitivity);
  EXPECT_EQ(KOVA_FIGHT_BOTH, fight->detectMode);

  auto move = l.Body<MoveRule>(5, 9);
  EXPECT_EQ(2u, move->detectTypeCount);
  EXPECT_EQ(KOVA_MOVE_FAST_MOVE, move->detectTypes[0]);
  EXPECT_EQ(KOVA_MOVE_ABRUPT_SPEEDUP, move->detectTypes[1]);
  EXPECT_EQ(20, move->triggerSpeed);
  EXPECT_EQ(1, move->minDuration);
  EXPECT_EQ(10, move->trackDuration);
  EXPECT_EQ(1u, move->sizeFilterPresent);

  auto run = l.Body<RunRule>(6, 274);
  EXPECT_EQ(1u, run->detectTypeCount);
  EXPECT_EQ(KOVA_RUN_FAST_RUN, run->detectTypes[0]);
  EXPECT_EQ(15, run->triggerSpeed);
  EXPECT_EQ(2, run->minDuration);
  EXPECT_EQ(6, run->sensitivity);

  auto abnormal = l.Body<VideoAbnormalRule>(7, 19);
  EXPECT_EQ(3u, abnormal->detectTypeCount);
  EXPECT_EQ(KOVA_VIDEO_ABNORMAL_COVER, abnormal->detectTypes[0]);
  EXPECT_EQ(KOVA_VIDEO_ABNORMAL_FROZEN, abnormal->detectTypes[1]);
  EXPECT_EQ(KOVA_VIDEO_ABNORMAL_SCENE_CHANGE, abnormal->detectTypes[2]);
  EXPECT_EQ(10, abnormal->minDuration);

  auto rise = l.Body<PrisonerRiseRule>(8, 286);
  EXPECT_EQ(3000, rise->direction.points[1].y);
  EXPECT_EQ(5, rise->minDuration);
  EXPECT_EQ(60, rise->reportInterval);
  EXPECT_EQ(1u, rise->sizeFilterPresent);
  EXPECT_FLOAT_EQ(4096.0f, rise->sizeFilter.maxSize[0]);
  EXPECT_EQ(KOVA_SCENE_PRISON, l.Header(8).sceneClass);

  auto leave = l.Body<LeaveRule>(9, 297);
  EXPECT_EQ(2u, leave->triggerModeCount);
  EXPECT_EQ(KOVA_LEAVE_NO_PERSON, leave->triggerModes[0]);
  EXPECT_EQ(KOVA_LEAVE_LEAVE, leave->triggerModes[1]);
  EXPECT_EQ(KOVA_LEAVE_BY_SENTRY, leave->mode);
  EXPECT_EQ(120, leave->minDuration);
  EXPECT_EQ(300, leave->reportInterval);

  auto bed = l.Body<GetOutBedRule>(10, 341);
  EXPECT_EQ(30, bed->minDuration);
  EXPECT_EQ(120, bed->reportInterval);

  auto patrol = l.Body<PatrolRule>(11, 342);
  EXPECT_EQ(1800, patrol->patrolTime);
  EXPECT_EQ(600, patrol->reportInterval);
  EXPECT_EQ(1u, patrol->sizeFilterPresent);

  auto duty = l.Body<OnDutyRule>(12, 343);
  EXPECT_EQ(300, duty->minDuration);
  EXPECT_EQ(600, duty->reportInterval);

  auto stand = l.Body<StandUpRule>(13, 359);
  EXPECT_EQ(2u, stand->direction.pointCount);
  EXPECT_EQ(4000, stand->direction.points[1].y);
  EXPECT_EQ(4u, stand->region.pointCount);
  EXPECT_EQ(7700, stand->region.points[1].x);
  EXPECT_EQ(5, stand->max);
  EXPECT_EQ(KOVA_SCENE_STAND_UP_DETECTION, l.Header(13).sceneClass);

  auto shooting = l.Body<ShootingScoreRule>(14, 362);
  EXPECT_EQ(10, shooting->round);
  EXPECT_EQ(7, shooting->sensitivity);
}

TEST(AnalyseRuleFamilies, PeopleCounting) {
  const RuleList l = ParseFamily(kVideo, "VideoAnalyseRule.counting");
  ASSERT_EQ(5u, l.count);

  auto flow = l.Body<FlowStatRule>(0, 15);
  EXPECT_EQ(15, flow->period);
  EXPECT_EQ(500, flow->upperLimit);

  auto floor = l.Body<NumberStatRule>(1, 16);
  EXPECT_EQ(500, floor->direction.points[1].y);
  EXPECT_EQ(60, floor->reportInterval);
  EXPECT_EQ(80, floor->upperLimit);
  EXPECT_EQ(KOVA_NUMBER_STAT_REGION, floor->type);
  EXPECT_EQ(1, floor->region);
  auto entrance = l.Body<NumberStatRule>(2, 16);
  EXPECT_EQ(KOVA_NUMBER_STAT_ENTRANCE, entrance->type);
  EXPECT_EQ(2, entrance->entrance);
  EXPECT_EQ(1000, entrance->upperLimit);

  auto heat = l.Body<HeatMapRule>(3, 351);
  EXPECT_EQ(4u, heat->detectRegion.pointCount);
  EXPECT_FLOAT_EQ(8191.0f, heat->sizeFilter.maxSize[1]);

  auto queue = l.Body<QueueRule>(4, 291);
  EXPECT_STREQ("Checkout queue", queue->head.name);
}

TEST(AnalyseRuleFamilies, Faces) {
  const RuleList l = ParseFamily(kVideo, "VideoAnalyseRule.face");
  ASSERT_EQ(2u, l.count);

  auto detect = l.Body<FaceDetectionRule>(0, 26);
  EXPECT_EQ(1u, detect->sizeFilterPresent);
  EXPECT_FLOAT_EQ(96.0f, detect->sizeFilter.minSize[0]);
  EXPECT_EQ(1, detect->minDuration);
  EXPECT_EQ(6, detect->sensitivity);
  EXPECT_EQ(10, detect->reportInterval);

  auto recognise = l.Body<FaceRecognitionRule>(1, 279);
  EXPECT_EQ(KOVA_FACE_MODE_AREA, recognise->mode);
  EXPECT_EQ(3u, recognise->areaCount);
  EXPECT_EQ(KOVA_FACE_AREA_EYE, recognise->areas[0]);
  EXPECT_EQ(KOVA_FACE_AREA_NOSE, recognise->areas[1]);
  EXPECT_EQ(KOVA_FACE_AREA_MOUTH, recognise->areas[2]);
  EXPECT_EQ(80, recognise->accuracy);
}

TEST(AnalyseRuleFamilies, TrafficJunction) {
  const RuleList l = ParseFamily(kVideo, "VideoAnalyseRule.traffic_junction");
  ASSERT_EQ(19u, l.count);

  auto junction = l.Body<TrafficJunctionRule>(0, 23);
  EXPECT_EQ(6000, junction->preLine.points[0].y);
  EXPECT_EQ(2500, junction->postLine.points[1].y);
  EXPECT_EQ(1, junction->triggerMode);
  EXPECT_EQ(1, junction->lane);
  EXPECT_EQ(1500, junction->direction.points[1].y);

  auto gate = l.Body<TrafficGateRule>(1, 24);
  EXPECT_EQ(2500, gate->leftLine.points[1].x);
  EXPECT_EQ(4000, gate->rightLine.points[1].x);
  EXPECT_EQ(2, gate->triggerMode);
  EXPECT_EQ(2, gate->lane);

  auto control = l.Body<TrafficControlRule>(2, 21);
  EXPECT_EQ(2u, control->detectLine.pointCount);
  EXPECT_EQ(KOVA_TRAFFIC_CONTROL_ODD, control->timeSchedule);

  for (size_t i : {3, 4}) {
    auto red = l.Body<TrafficRunRedLightRule>(i, i == 3 ? 256 : 315);
    EXPECT_EQ(2u, red->preLine.pointCount);
    EXPECT_EQ(2u, red->postLine.pointCount);
    EXPECT_EQ(2u, red->direction.pointCount);
  }

  const uint32_t routeCodes[] = {257, 259, 260, 265, 266, 270, 283, 293};
  for (size_t k = 0; k < 8; ++k) {
    auto route = l.Body<TrafficRouteRule>(5 + k, routeCodes[k]);
    EXPECT_EQ(4u, route->detectRegion.pointCount);
    EXPECT_EQ(2u, route->direction.pointCount);
  }
  auto left = l.Body<TrafficRouteRule>(6, 259);
  EXPECT_EQ(500, left->direction.points[1].x);
  EXPECT_EQ(5, left->sensitivity);
  EXPECT_EQ(1, left->configTrackEnable);
  EXPECT_EQ(0, left->head.trackEnable);  // the rule object's own
  EXPECT_EQ(0, l.Body<TrafficRouteRule>(7, 260)->configTrackEnable);
  EXPECT_EQ(4, l.Body<TrafficRouteRule>(11, 283)->sensitivity);

  auto uturn = l.Body<TrafficUTurnRule>(13, 261);
  EXPECT_EQ(1u, uturn->sizeFilterPresent);
  EXPECT_EQ(1, uturn->configTrackEnable);

  auto retro = l.Body<TrafficRetrogradeRule>(14, 258);
  EXPECT_EQ(2, retro->minDuration);
  EXPECT_EQ(1, retro->legal);
  EXPECT_EQ(1, retro->configTrackEnable);

  EXPECT_STREQ("Yield to pedestrians", l.Body<TrafficPlainRule>(15, 271)->head.name);
  EXPECT_STREQ("Yellow box", l.Body<TrafficParkingOnYellowBoxRule>(16, 298)->head.name);
  EXPECT_STREQ("Queue jumping", l.Body<TrafficPassNotInOrderRule>(17, 316)->head.name);
  EXPECT_EQ(4300, l.Body<TrafficOverYellowLineRule>(18, 267)->detectRegion.points[1].x);
}

TEST(AnalyseRuleFamilies, TrafficRoad) {
  const RuleList l = ParseFamily(kVideo, "VideoAnalyseRule.traffic_road");
  ASSERT_EQ(17u, l.count);

  EXPECT_EQ(4u, l.Body<TrafficAccidentRule>(0, 22)->detectRegion.pointCount);
  EXPECT_EQ(KOVA_SCENE_TRAFFIC_PATROL, l.Header(0).sceneClass);

  auto jam = l.Body<TrafficJamRule>(1, 27);
  EXPECT_EQ(60, jam->delay);
  EXPECT_EQ(300, jam->interval);
  EXPECT_EQ(3, jam->reportTimes);
  EXPECT_EQ(120, l.Body<TrafficJamRule>(2, 303)->delay);

  auto parking = l.Body<TrafficParkingRule>(3, 264);
  EXPECT_EQ(30, parking->delay);
  EXPECT_EQ(2, parking->reportTimes);
  EXPECT_EQ(5, parking->sensitivity);
  EXPECT_EQ(1, parking->configTrackEnable);

  auto bus = l.Body<TrafficBusRouteRule>(4, 292);
  EXPECT_EQ(5, bus->sensitivity);
  EXPECT_EQ(1, bus->enclosure);
  EXPECT_EQ(1, bus->configTrackEnable);

  EXPECT_EQ(1, l.Body<TrafficSpeedRule>(5, 262)->minDuration);
  EXPECT_EQ(5, l.Body<TrafficSpeedRule>(6, 263)->minDuration);
  EXPECT_EQ(7000, l.Body<TrafficTollGateRule>(7, 288)->detectLine.points[1].x);
  EXPECT_EQ(10, l.Body<TrafficParkingSpaceRule>(8, 299)->delay);
  EXPECT_EQ(10, l.Body<TrafficParkingSpaceRule>(9, 300)->delay);
  l.Body<TrafficPlainRule>(10, 308);

  auto belt = l.Body<TrafficSafeBeltRule>(11, 312);
  EXPECT_EQ(1, belt->mainSeat);
  EXPECT_EQ(0, belt->slaveSeat);

  l.Body<TrafficPlainRule>(12, 313);
  l.Body<TrafficPlainRule>(13, 314);
  EXPECT_EQ(3, l.Body<TrafficPedestrainRule>(14, 301)->minDuration);
  EXPECT_EQ(1, l.Body<TrafficPedestrainRule>(15, 302)->minDuration);
  auto vehicle = l.Body<HeatMapRule>(16, 514);
  EXPECT_EQ(1u, vehicle->sizeFilterPresent);
  EXPECT_FLOAT_EQ(256.0f, vehicle->sizeFilter.minSize[0]);
}

TEST(AnalyseRuleFamilies, Audio) {
  const RuleList l = ParseFamily("AudioAnalyseRule", "AudioAnalyseRule");
  ASSERT_EQ(2u, l.count);
  auto scream = l.Body<AudioAbnormalRule>(0, 294);
  EXPECT_STREQ("Scream in hall", scream->head.name);
  EXPECT_EQ(1, scream->head.enable);
  EXPECT_EQ(2000, scream->frequency);
  EXPECT_EQ(2, scream->minDuration);
  EXPECT_EQ(1, scream->linkage.eventHandler.beepEnable);
  auto glass = l.Body<AudioAbnormalRule>(1, 294);
  EXPECT_EQ(4500, glass->frequency);
  EXPECT_EQ(19, glass->linkage.timeSection.sections[6][0].beginHour);
}

}  // namespace
