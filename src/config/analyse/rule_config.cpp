#include "config/analyse/rule_config.h"

#include <cstddef>

#include "common/blocks/event_handler.h"
#include "common/blocks/time_schedule.h"
#include "common/json/json.h"

namespace kova {

namespace {

inline constexpr Field kObjectTypeItem = KOVA_ITEM(char[128], kText);

// The members of the rule object that open every rule record.
constexpr Field kRuleHeadFields[] = {
    KOVA_F(RuleHead, name, "Name", kText),
    KOVA_F(RuleHead, enable, "Enable", kBool),
    KOVA_F(RuleHead, trackEnable, "TrackEnable", kBool),
    KOVA_LIST(RuleHead, objectTypes, "ObjectTypes", kObjectTypeItem)
        .Count(KOVA_AT(RuleHead, objectTypeCount), CountRule::kAll)
        .KeepSlots(),
};

// "EventHandler" with its 7 x 10 "TimeSection". The linkage block keeps
// its own reading of "TimeSection" (the 8 x 6 holiday schedule) as every
// linkage block does; the rule's grid is the one written back.
// Custom steps get the start of the table's record: here the RuleLinkage.
void ParseRuleHandler(const Json::Value& rule, unsigned char* linkage, const Field& f) {
  const Json::Value& handler = Member(rule, f.key);
  RuleLinkage* r = reinterpret_cast<RuleLinkage*>(linkage);
  // A section that does not read stops the grid; the rule is kept anyway.
  const SectionGrid grid = {&r->timeSection.sections[0][0], KOVA_WEEK_DAYS,
                            KOVA_ANALYSE_SECTIONS_PER_DAY, nullptr};
  ParseEventHandlerWithGrid(handler, &r->eventHandler, grid);
}

void PackRuleHandler(const unsigned char* linkage, Json::Value& rule, const Field& f) {
  const RuleLinkage* r = reinterpret_cast<const RuleLinkage*>(linkage);
  Json::Value& handler = SetMember(rule, f.key);
  PackEventHandler(r->eventHandler, handler);
  Json::Value& sections = SetMember(handler, "TimeSection");
  sections = Json::Value(Json::arrayValue);
  PackTimeSectionGrid(sections, &r->timeSection.sections[0][0], KOVA_WEEK_DAYS,
                      KOVA_ANALYSE_SECTIONS_PER_DAY);
}

// The members of the rule object held in every record's RuleLinkage.
constexpr Field kRuleLinkageFields[] = {
    KOVA_CUSTOM(RuleLinkage, eventHandler, "EventHandler", ParseRuleHandler, PackRuleHandler),
    KOVA_F(RuleLinkage, ptzPresetId, "PtzPresetId", kInt),
};

}  // namespace

// Rows in the devices' table order; a null type is not laid out yet.
const RuleConfigRow kRuleConfigTable[] = {
    {2, &kCrossLineRuleType},    // "CrossLineDetection"
    {287, nullptr},              // "CrossFenceDetection"
    {3, &kCrossRegionRuleType},  // "CrossRegionDetection"
    {12, nullptr},               // "FireDetection"
    {13, nullptr},               // "SmokeDetection"
    {4, nullptr},                // "PasteDetection"
    {8, nullptr},                // "Preservation"
    {10, nullptr},               // "TailDetection"
    {272, nullptr},              // "ElectroSparkDetection"
    {14, nullptr},               // "FightDetection"
    {9, nullptr},                // "MoveDetection"
    {6, nullptr},                // "StayDetection"
    {7, nullptr},                // "WanderDetection"
    {5, nullptr},                // "LeftDetection"
    {277, nullptr},              // "TakenAwayDetection"
    {278, nullptr},              // "ParkingDetection"
    {11, nullptr},               // "RioterDetection"
    {15, nullptr},               // "FlowStat"
    {16, nullptr},               // "NumberStat"
    {275, nullptr},              // "RetrogradeDetection"
    {274, nullptr},              // "RunDetection"
    {19, nullptr},               // "VideoAbnormalDetection"
    {279, nullptr},              // "FaceRecognition"
    {21, nullptr},               // "TrafficControl"
    {22, nullptr},               // "TrafficAccident"
    {23, nullptr},               // "TrafficJunction"
    {24, nullptr},               // "TrafficGate"
    {26, nullptr},               // "FaceDetection"
    {27, nullptr},               // "TrafficJam"
    {303, nullptr},              // "TrafficIdle"
    {264, nullptr},              // "TrafficParking"
    {256, nullptr},              // "TrafficRunRedLight"
    {265, nullptr},              // "TrafficWrongRoute"
    {266, nullptr},              // "TrafficCrossLane"
    {257, nullptr},              // "TrafficOverLine"
    {259, nullptr},              // "TrafficTurnLeft"
    {260, nullptr},              // "TrafficTurnRight"
    {270, nullptr},              // "TrafficYellowPlateInLane", "TrafficYellowInRoute"
    {283, nullptr},              // "TrafficVehicleInRoute"
    {293, nullptr},              // "TrafficBacking"
    {292, nullptr},              // "TrafficVehicleInBusRoute"
    {267, nullptr},              // "TrafficOverYellowLine"
    {261, nullptr},              // "TrafficU-Turn"
    {262, nullptr},              // "TrafficOverSpeed"
    {263, nullptr},              // "TrafficUnderSpeed"
    {286, nullptr},              // "PrisonerRiseDetection"
    {288, nullptr},              // "TrafficTollGate"
    {258, nullptr},              // "TrafficRetrograde"
    {271, nullptr},              // "TrafficPedestrainPriority"
    {291, nullptr},              // "QueueDetection"
    {294, nullptr},              // "AudioAbnormalDetection"
    {296, nullptr},              // "ClimbDetection"
    {297, nullptr},              // "LeaveDetection"
    {298, nullptr},              // "TrafficParkingOnYellowBox"
    {299, nullptr},              // "TrafficParkingSpaceParking"
    {300, nullptr},              // "TrafficParkingSpaceNoParking"
    {308, nullptr},              // "TrafficParkingSpaceOverLine"
    {312, nullptr},              // "TrafficWithoutSafeBelt"
    {313, nullptr},              // "TrafficDriverSmoking"
    {314, nullptr},              // "TrafficDriverCalling"
    {301, nullptr},              // "TrafficPedestrain"
    {302, nullptr},              // "TrafficThrow"
    {341, nullptr},              // "GetOutBedDetection"
    {342, nullptr},              // "PatrolDetection"
    {343, nullptr},              // "OnDutyDetection"
    {351, nullptr},              // "HeatMap"
    {315, nullptr},              // "TrafficPedestrianRunRedLight"
    {316, nullptr},              // "TrafficPassNotInOrder"
    {514, nullptr},              // "VehicleAnalyse"
    {359, nullptr},              // "StandUpDetection"
    {362, nullptr},              // "ShootingScoreRecognition"
};
const size_t kRuleConfigRowCount = sizeof kRuleConfigTable / sizeof kRuleConfigTable[0];

const RuleType* FindRuleType(uint32_t code) {
  for (const RuleConfigRow& row : kRuleConfigTable) {
    if (row.code == code) return row.type;
  }
  return nullptr;
}

void ParseRuleBody(const Json::Value& rule, unsigned char* body, const RuleType& type) {
  ParseFields(rule, body, kRuleHeadFields);
  ParseFields(Member(rule, "Config"), body, type.config);
  ParseFields(rule, body + type.linkageOffset, kRuleLinkageFields);
}

void PackRuleBody(const unsigned char* body, const RuleType& type, Json::Value& rule) {
  PackFields(body, rule, kRuleHeadFields);
  PackFields(body + type.linkageOffset, rule, kRuleLinkageFields);
  Json::Value& config = SetMember(rule, "Config");
  config = Json::Value(Json::objectValue);
  PackFields(body, config, type.config);
}

}  // namespace kova
