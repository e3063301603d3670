#include "config/analyse/rule_types.h"

#include "api/dispatch.h"

namespace kova {

// Accepted types first, then the types that have a code but that the rule
// list rejects. Every name is distinct; "TrafficYellowPlateInLane" and
// "TrafficYellowInRoute" share one code. Names are the devices' own words,
// misspellings included.
const RuleTypeRow kRuleTypeRows[] = {
    {"All", 1, 0},
    {"CrossLineDetection", 2, 341944},
    {"CrossRegionDetection", 3, 341960},
    {"PasteDetection", 4, 341444},
    {"LeftDetection", 5, 341944},
    {"StayDetection", 6, 341952},
    {"WanderDetection", 7, 341952},
    {"Preservation", 8, 341440},
    {"MoveDetection", 9, 341960},
    {"TailDetection", 10, 341440},
    {"RioterDetection", 11, 341464},
    {"FireDetection", 12, 341444},
    {"ElectroSparkDetection", 272, 341440},
    {"SmokeDetection", 13, 341444},
    {"FightDetection", 14, 341448},
    {"FlowStat", 15, 341444},
    {"NumberStat", 16, 341480},
    {"VideoAbnormalDetection", 19, 341608},
    {"TrafficControl", 21, 347232},
    {"TrafficAccident", 22, 341436},
    {"TrafficJunction", 23, 345888},
    {"TrafficGate", 24, 346064},
    {"FaceDetection", 26, 342960},
    {"TrafficRunRedLight", 256, 341772},
    {"TrafficPedestrianRunRedLight", 315, 341772},
    {"TrafficPassNotInOrder", 316, 341280},
    {"TrafficOverLine", 257, 341604},
    {"TrafficTurnLeft", 259, 341604},
    {"TrafficTurnRight", 260, 341604},
    {"TrafficWrongRoute", 265, 341604},
    {"TrafficCrossLane", 266, 341604},
    {"TrafficVehicleInRoute", 283, 341604},
    {"TrafficBacking", 293, 341604},
    {"TrafficYellowPlateInLane", 270, 341604},
    {"TrafficYellowInRoute", 270, 341604},
    {"TrafficRetrograde", 258, 341612},
    {"TrafficU-Turn", 261, 341928},
    {"TrafficOverSpeed", 262, 341288},
    {"TrafficUnderSpeed", 263, 341288},
    {"TrafficParking", 264, 341452},
    {"TrafficJam", 27, 341452},
    {"TrafficIdle", 303, 341452},
    {"TrafficOverYellowLine", 267, 341440},
    {"TrafficTollGate", 288, 341440},
    {"TrafficPedestrainPriority", 271, 341276},
    {"CrossFenceDetection", 287, 342112},
    {"RunDetection", 274, 341952},
    {"RetrogradeDetection", 275, 342096},
    {"TakenAwayDetection", 277, 341944},
    {"ParkingDetection", 278, 341944},
    {"FaceRecognition", 279, 341292},
    {"PrisonerRiseDetection", 286, 341888},
    {"QueueDetection", 291, 341296},
    {"TrafficVehicleInBusRoute", 292, 341444},
    {"AudioAbnormalDetection", 294, 339228},
    {"ClimbDetection", 296, 341920},
    {"LeaveDetection", 297, 342192},
    {"TrafficParkingOnYellowBox", 298, 341288},
    {"TrafficParkingSpaceParking", 299, 341444},
    {"TrafficParkingSpaceNoParking", 300, 341444},
    {"TrafficPedestrain", 301, 341444},
    {"TrafficThrow", 302, 341444},
    {"TrafficParkingSpaceOverLine", 308, 341276},
    {"TrafficWithoutSafeBelt", 312, 341312},
    {"TrafficDriverSmoking", 313, 341276},
    {"TrafficDriverCalling", 314, 341276},
    {"GetOutBedDetection", 341, 341608},
    {"PatrolDetection", 342, 341936},
    {"OnDutyDetection", 343, 341960},
    {"HeatMap", 351, 341920},
    {"StandUpDetection", 359, 341632},
    {"ShootingScoreRecognition", 362, 341444},
    {"VehicleAnalyse", 514, 341920},
    {"CameraCoverdDetection", 17, 0},
    {"CameraMovedDetection", 18, 0},
    {"VideoBadDetection", 20, 0},
    {"TrafficSnapshot", 25, 0},
    {"TrafficDrivingOnShoulder", 268, 0},
    {"TrafficNoPassing", 273, 0},
    {"InRegionDetection", 276, 0},
    {"TrafficManualSnap", 280, 0},
    {"TrafficFlowStat", 281, 0},
    {"TrafficStay", 282, 0},
    {"VideoMotion", 284, 0},
    {"AlarmLocal", 285, 0},
    {"VideoDiagnosieResult", 290, 0},
    {"TrafficRunYellowLight", 295, 0},
    {"VehicleACC", 304, 0},
    {"VehicleTurnover", 305, 0},
    {"VehicleCollision", 306, 0},
    {"VehicleLargeAngle", 307, 0},
    {"MultiSceneSwitch", 309, 0},
    {"TrafficRestrictedPlate", 310, 0},
    {"TrafficOverStopLine", 311, 0},
    {"AnalogAlarm", 336, 0},
    {"VideoAnalyse", 512, 0},
    {"NoAnswerCall", 344, 0},
    {"StorageNotExist", 345, 0},
    {"StorageLowSpace", 346, 0},
    {"StorageFailure", 347, 0},
    {"ProfileAlarmTransmit", 348, 0},
    {"TrafficJamForbidInto", 355, 0},
    {"ObjectDetection", 321, 0},
    {"Common", 338, 0},
    {"VideoBlind", 339, 0},
    {"VideoLoss", 340, 0},
    {"VideoStatic", 349, 0},
    {"VideoTiming", 350, 0},
    {"LinkSD", 513, 0},
    {"Oil4GFlowRate", 515, 0},
    {"CitizenIDCard", 352, 0},
    {"PicInfo", 353, 0},
    {"NetPlayCheck", 354, 0},
    {"SnapByTime", 356, 0},
    {"PtzPreset", 357, 0},
    {"QSYTrafficCarWeight", 360, 0},
    {"RFIDInfo", 358, 0},
    {"TrafficComparePlate", 361, 0},
    {"TrafficVideoAnalysePreSnap", 368, 0},
};
const uint32_t kRuleTypeRowCount = sizeof kRuleTypeRows / sizeof kRuleTypeRows[0];

uint32_t RuleTypeFromName(const char* name) {
  if (name == nullptr) return 0;
  for (const RuleTypeRow& r : kRuleTypeRows) {
    if (NameEquals(r.name, name)) return r.code;
  }
  return 0;
}

int32_t RuleBodySize(uint32_t code) {
  if (code == 0) return 0;
  for (const RuleTypeRow& r : kRuleTypeRows) {
    if (r.code == code) return r.bodySize;
  }
  return 0;
}

const char* RuleTypeName(uint32_t code) {
  if (code == 0) return nullptr;
  for (const RuleTypeRow& r : kRuleTypeRows) {
    if (r.code == code) return r.name;
  }
  return nullptr;
}

// SceneClassNames: index order. Packing uses the first 15 names only.
const char* const kSceneClassNames[] = {
    "",
    "Normal",
    "Traffic",
    "TrafficPatrol",
    "FaceDetection",
    "ATM",
    "Indoor",
    "FaceRecognition",
    "Prison",
    "NumberStat",
    "HeatMap",
    "VideoDiagnosis",
    "VehicleAnalyse",
    "CourseRecord",
    "Vehicle",
    "StandUpDetection",
};
constexpr uint32_t kSceneClassCount = sizeof kSceneClassNames / sizeof kSceneClassNames[0];
constexpr uint32_t kSceneClassPackCount = kSceneClassCount - 1;

uint32_t SceneClassFromName(const char* name) {
  if (name == nullptr) return 0;
  for (uint32_t i = 0; i < kSceneClassCount; ++i) {
    if (NameEquals(kSceneClassNames[i], name)) return i;
  }
  return 0;
}

const char* SceneClassPackName(uint32_t sceneClass) {
  return sceneClass < kSceneClassPackCount ? kSceneClassNames[sceneClass] : "";
}

}  // namespace kova
