#include "config/analyse/rule_config.h"

#include <cstddef>

#include "common/blocks/event_handler.h"
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

// The members of the rule object held in every record's RuleLinkage:
// "EventHandler" with its 7 x 10 "TimeSection". The linkage block keeps
// its own reading of "TimeSection" (the 8 x 6 holiday schedule) as every
// linkage block does; the rule's grid is the one written back.
constexpr Field kRuleLinkageFields[] = {
    KOVA_LINKAGE(RuleLinkage, eventHandler)
        .Grid(KOVA_SCHEDULE_AT(RuleLinkage, timeSection))
        .AlwaysRead(),
    KOVA_F(RuleLinkage, ptzPresetId, "PtzPresetId", kInt),
};

// An audio rule's head: no object types.
constexpr Field kAudioRuleHeadFields[] = {
    KOVA_F(AudioRuleHead, name, "Name", kText),
    KOVA_F(AudioRuleHead, enable, "Enable", kBool),
    KOVA_F(AudioRuleHead, trackEnable, "TrackEnable", kBool),
};

}  // namespace

const FieldTable kRuleHeadTable{kRuleHeadFields,
                                sizeof kRuleHeadFields / sizeof kRuleHeadFields[0]};
const FieldTable kAudioRuleHeadTable{kAudioRuleHeadFields,
                                     sizeof kAudioRuleHeadFields / sizeof kAudioRuleHeadFields[0]};

// Rows in the devices' table order; a type serving several codes is in
// each of their rows.
const RuleConfigRow kRuleConfigTable[] = {
    {2, &kCrossLineRuleType},                // "CrossLineDetection"
    {287, &kCrossFenceRuleType},             // "CrossFenceDetection"
    {3, &kCrossRegionRuleType},              // "CrossRegionDetection"
    {12, &kFireRuleType},                    // "FireDetection"
    {13, &kFireRuleType},                    // "SmokeDetection"
    {4, &kFireRuleType},                     // "PasteDetection"
    {8, &kPreservationRuleType},             // "Preservation"
    {10, &kPreservationRuleType},            // "TailDetection"
    {272, &kPreservationRuleType},           // "ElectroSparkDetection"
    {14, &kFightRuleType},                   // "FightDetection"
    {9, &kMoveRuleType},                     // "MoveDetection"
    {6, &kStayRuleType},                     // "StayDetection"
    {7, &kStayRuleType},                     // "WanderDetection"
    {5, &kLeftRuleType},                     // "LeftDetection"
    {277, &kLeftRuleType},                   // "TakenAwayDetection"
    {278, &kLeftRuleType},                   // "ParkingDetection"
    {11, &kRioterRuleType},                  // "RioterDetection"
    {15, &kFlowStatRuleType},                // "FlowStat"
    {16, &kNumberStatRuleType},              // "NumberStat"
    {275, &kRetrogradeRuleType},             // "RetrogradeDetection"
    {274, &kRunRuleType},                    // "RunDetection"
    {19, &kVideoAbnormalRuleType},           // "VideoAbnormalDetection"
    {279, &kFaceRecognitionRuleType},        // "FaceRecognition"
    {21, &kTrafficControlRuleType},          // "TrafficControl"
    {22, &kTrafficAccidentRuleType},         // "TrafficAccident"
    {23, &kTrafficJunctionRuleType},         // "TrafficJunction"
    {24, &kTrafficGateRuleType},             // "TrafficGate"
    {26, &kFaceDetectionRuleType},           // "FaceDetection"
    {27, &kTrafficJamRuleType},              // "TrafficJam"
    {303, &kTrafficJamRuleType},             // "TrafficIdle"
    {264, &kTrafficParkingRuleType},         // "TrafficParking"
    {256, &kTrafficRunRedLightRuleType},     // "TrafficRunRedLight"
    {265, &kTrafficRouteRuleType},           // "TrafficWrongRoute"
    {266, &kTrafficRouteRuleType},           // "TrafficCrossLane"
    {257, &kTrafficRouteRuleType},           // "TrafficOverLine"
    {259, &kTrafficRouteRuleType},           // "TrafficTurnLeft"
    {260, &kTrafficRouteRuleType},           // "TrafficTurnRight"
    {270, &kTrafficRouteRuleType},           // "TrafficYellowPlateInLane", "TrafficYellowInRoute"
    {283, &kTrafficRouteRuleType},           // "TrafficVehicleInRoute"
    {293, &kTrafficRouteRuleType},           // "TrafficBacking"
    {292, &kTrafficBusRouteRuleType},        // "TrafficVehicleInBusRoute"
    {267, &kTrafficOverYellowLineRuleType},  // "TrafficOverYellowLine"
    {261, &kTrafficUTurnRuleType},           // "TrafficU-Turn"
    {262, &kTrafficSpeedRuleType},           // "TrafficOverSpeed"
    {263, &kTrafficSpeedRuleType},           // "TrafficUnderSpeed"
    {286, &kPrisonerRiseRuleType},           // "PrisonerRiseDetection"
    {288, &kTrafficTollGateRuleType},        // "TrafficTollGate"
    {258, &kTrafficRetrogradeRuleType},      // "TrafficRetrograde"
    {271, &kTrafficPlainRuleType},           // "TrafficPedestrainPriority"
    {291, &kQueueRuleType},                  // "QueueDetection"
    {294, &kAudioAbnormalRuleType},          // "AudioAbnormalDetection"
    {296, &kClimbRuleType},                  // "ClimbDetection"
    {297, &kLeaveRuleType},                  // "LeaveDetection"
    {298, &kTrafficParkingOnYellowBoxRuleType},  // "TrafficParkingOnYellowBox"
    {299, &kTrafficParkingSpaceRuleType},        // "TrafficParkingSpaceParking"
    {300, &kTrafficParkingSpaceRuleType},        // "TrafficParkingSpaceNoParking"
    {308, &kTrafficPlainRuleType},               // "TrafficParkingSpaceOverLine"
    {312, &kTrafficSafeBeltRuleType},            // "TrafficWithoutSafeBelt"
    {313, &kTrafficPlainRuleType},               // "TrafficDriverSmoking"
    {314, &kTrafficPlainRuleType},               // "TrafficDriverCalling"
    {301, &kTrafficPedestrainRuleType},          // "TrafficPedestrain"
    {302, &kTrafficPedestrainRuleType},          // "TrafficThrow"
    {341, &kGetOutBedRuleType},                  // "GetOutBedDetection"
    {342, &kPatrolRuleType},                     // "PatrolDetection"
    {343, &kOnDutyRuleType},                     // "OnDutyDetection"
    {351, &kHeatMapRuleType},                    // "HeatMap"
    {315, &kTrafficRunRedLightRuleType},         // "TrafficPedestrianRunRedLight"
    {316, &kTrafficPassNotInOrderRuleType},      // "TrafficPassNotInOrder"
    {514, &kHeatMapRuleType},                    // "VehicleAnalyse"
    {359, &kStandUpRuleType},                    // "StandUpDetection"
    {362, &kShootingScoreRuleType},              // "ShootingScoreRecognition"
};
const size_t kRuleConfigRowCount = sizeof kRuleConfigTable / sizeof kRuleConfigTable[0];

const RuleType* FindRuleType(uint32_t code) {
  for (const RuleConfigRow& row : kRuleConfigTable) {
    if (row.code == code) return row.type;
  }
  return nullptr;
}

void ParseRuleBody(const Json::Value& rule, unsigned char* body, const RuleType& type) {
  ParseFields(rule, body, *type.head);
  ParseFields(Member(rule, "Config"), body, type.config);
  ParseFields(rule, body + type.linkageOffset, kRuleLinkageFields);
}

void PackRuleBody(const unsigned char* body, const RuleType& type, Json::Value& rule) {
  PackFields(body, rule, *type.head);
  PackFields(body + type.linkageOffset, rule, kRuleLinkageFields);
  Json::Value& config = SetMember(rule, "Config");
  config = Json::Value(Json::objectValue);
  PackFields(body, config, type.config);
}

}  // namespace kova
