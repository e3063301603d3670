#include "config/analyse/rule_types.h"

#include <array>
#include <iterator>
#include <string_view>

#include "common/base/ascii.h"
#include "common/base/name_index.h"
#include "config/analyse/rule_config.h"

namespace kova {

namespace {

// A type the rule list carries, with its record's description.
// `kBodySize` is the body size the devices give the code: the record must
// be exactly that, and the row does not build otherwise.
template <uint32_t kBodySize, typename Rec>
constexpr RuleTypeRow Carried(const char* name, uint32_t code, const RuleTypeFor<Rec>& record,
                              EventFamily events) {
  static_assert(sizeof(Rec) == kBodySize, "a rule record is the body size of its type code");
  return RuleTypeRow{name, code, &record, events};
}

// A type that has a code but no record: a rule list holding it fails.
constexpr RuleTypeRow Rejected(const char* name, uint32_t code, EventFamily events) {
  return RuleTypeRow{name, code, nullptr, events};
}

}  // namespace

// The rule types: name, code, the description of the rule record (what
// the rule list and the parse-by-callback reader read and write a rule of
// the code with) and the event family of the code's analyzer events.
// Accepted types first, then the types that have a code but that the rule
// list rejects. Every name is distinct; "TrafficYellowPlateInLane" and
// "TrafficYellowInRoute" share one code. Events of a code not listed here
// are general.
constexpr RuleTypeRow kRuleTypeRows[] = {
    Rejected("All", 1, kGeneralEvents),
    Carried<341944>("CrossLineDetection", 2, kCrossLineRuleType, kCrossingEvents),
    Carried<341960>("CrossRegionDetection", 3, kCrossRegionRuleType, kCrossingEvents),
    Carried<341444>("PasteDetection", 4, kFireRuleType, kPresenceEvents),
    Carried<341944>("LeftDetection", 5, kLeftRuleType, kPresenceEvents),
    Carried<341952>("StayDetection", 6, kStayRuleType, kPresenceEvents),
    Carried<341952>("WanderDetection", 7, kStayRuleType, kPresenceEvents),
    Carried<341440>("Preservation", 8, kPreservationRuleType, kPresenceEvents),
    Carried<341960>("MoveDetection", 9, kMoveRuleType, kCrowdEvents),
    Carried<341440>("TailDetection", 10, kPreservationRuleType, kCrowdEvents),
    Carried<341464>("RioterDetection", 11, kRioterRuleType, kCrowdEvents),
    Carried<341444>("FireDetection", 12, kFireRuleType, kGeneralEvents),
    Carried<341440>("ElectroSparkDetection", 272, kPreservationRuleType, kGeneralEvents),
    Carried<341444>("SmokeDetection", 13, kFireRuleType, kGeneralEvents),
    Carried<341448>("FightDetection", 14, kFightRuleType, kCrowdEvents),
    Carried<341444>("FlowStat", 15, kFlowStatRuleType, kCrowdEvents),
    Carried<341480>("NumberStat", 16, kNumberStatRuleType, kCrowdEvents),
    Carried<341608>("VideoAbnormalDetection", 19, kVideoAbnormalRuleType, kAbnormalityEvents),
    Carried<347232>("TrafficControl", 21, kTrafficControlRuleType, kTrafficEvents),
    Carried<341436>("TrafficAccident", 22, kTrafficAccidentRuleType, kTrafficEvents),
    Carried<345888>("TrafficJunction", 23, kTrafficJunctionRuleType, kTrafficEvents),
    Carried<346064>("TrafficGate", 24, kTrafficGateRuleType, kTrafficEvents),
    Carried<342960>("FaceDetection", 26, kFaceDetectionRuleType, kFaceEvents),
    Carried<341772>("TrafficRunRedLight", 256, kTrafficRunRedLightRuleType, kTrafficEvents),
    Carried<341772>("TrafficPedestrianRunRedLight", 315, kTrafficRunRedLightRuleType,
                    kTrafficEvents),
    Carried<341280>("TrafficPassNotInOrder", 316, kTrafficPassNotInOrderRuleType, kTrafficEvents),
    Carried<341604>("TrafficOverLine", 257, kTrafficRouteRuleType, kTrafficEvents),
    Carried<341604>("TrafficTurnLeft", 259, kTrafficRouteRuleType, kTrafficEvents),
    Carried<341604>("TrafficTurnRight", 260, kTrafficRouteRuleType, kTrafficEvents),
    Carried<341604>("TrafficWrongRoute", 265, kTrafficRouteRuleType, kTrafficEvents),
    Carried<341604>("TrafficCrossLane", 266, kTrafficRouteRuleType, kTrafficEvents),
    Carried<341604>("TrafficVehicleInRoute", 283, kTrafficRouteRuleType, kTrafficEvents),
    Carried<341604>("TrafficBacking", 293, kTrafficRouteRuleType, kTrafficEvents),
    Carried<341604>("TrafficYellowPlateInLane", 270, kTrafficRouteRuleType, kTrafficEvents),
    Carried<341604>("TrafficYellowInRoute", 270, kTrafficRouteRuleType, kTrafficEvents),
    Carried<341612>("TrafficRetrograde", 258, kTrafficRetrogradeRuleType, kTrafficEvents),
    Carried<341928>("TrafficU-Turn", 261, kTrafficUTurnRuleType, kTrafficEvents),
    Carried<341288>("TrafficOverSpeed", 262, kTrafficSpeedRuleType, kTrafficEvents),
    Carried<341288>("TrafficUnderSpeed", 263, kTrafficSpeedRuleType, kTrafficEvents),
    Carried<341452>("TrafficParking", 264, kTrafficParkingRuleType, kTrafficEvents),
    Carried<341452>("TrafficJam", 27, kTrafficJamRuleType, kTrafficEvents),
    Carried<341452>("TrafficIdle", 303, kTrafficJamRuleType, kTrafficEvents),
    Carried<341440>("TrafficOverYellowLine", 267, kTrafficOverYellowLineRuleType, kTrafficEvents),
    Carried<341440>("TrafficTollGate", 288, kTrafficTollGateRuleType, kTrafficEvents),
    Carried<341276>("TrafficPedestrainPriority", 271, kTrafficPlainRuleType, kTrafficEvents),
    Carried<342112>("CrossFenceDetection", 287, kCrossFenceRuleType, kCrossingEvents),
    Carried<341952>("RunDetection", 274, kRunRuleType, kCrowdEvents),
    Carried<342096>("RetrogradeDetection", 275, kRetrogradeRuleType, kCrossingEvents),
    Carried<341944>("TakenAwayDetection", 277, kLeftRuleType, kPresenceEvents),
    Carried<341944>("ParkingDetection", 278, kLeftRuleType, kPresenceEvents),
    Carried<341292>("FaceRecognition", 279, kFaceRecognitionRuleType, kFaceEvents),
    Carried<341888>("PrisonerRiseDetection", 286, kPrisonerRiseRuleType, kPresenceEvents),
    Carried<341296>("QueueDetection", 291, kQueueRuleType, kCrowdEvents),
    Carried<341444>("TrafficVehicleInBusRoute", 292, kTrafficBusRouteRuleType, kTrafficEvents),
    Carried<339228>("AudioAbnormalDetection", 294, kAudioAbnormalRuleType, kAbnormalityEvents),
    Carried<341920>("ClimbDetection", 296, kClimbRuleType, kCrossingEvents),
    Carried<342192>("LeaveDetection", 297, kLeaveRuleType, kPresenceEvents),
    Carried<341288>("TrafficParkingOnYellowBox", 298, kTrafficParkingOnYellowBoxRuleType,
                    kTrafficEvents),
    Carried<341444>("TrafficParkingSpaceParking", 299, kTrafficParkingSpaceRuleType,
                    kTrafficEvents),
    Carried<341444>("TrafficParkingSpaceNoParking", 300, kTrafficParkingSpaceRuleType,
                    kTrafficEvents),
    Carried<341444>("TrafficPedestrain", 301, kTrafficPedestrainRuleType, kTrafficEvents),
    Carried<341444>("TrafficThrow", 302, kTrafficPedestrainRuleType, kTrafficEvents),
    Carried<341276>("TrafficParkingSpaceOverLine", 308, kTrafficPlainRuleType, kTrafficEvents),
    Carried<341312>("TrafficWithoutSafeBelt", 312, kTrafficSafeBeltRuleType, kTrafficEvents),
    Carried<341276>("TrafficDriverSmoking", 313, kTrafficPlainRuleType, kTrafficEvents),
    Carried<341276>("TrafficDriverCalling", 314, kTrafficPlainRuleType, kTrafficEvents),
    Carried<341608>("GetOutBedDetection", 341, kGetOutBedRuleType, kPresenceEvents),
    Carried<341936>("PatrolDetection", 342, kPatrolRuleType, kPresenceEvents),
    Carried<341960>("OnDutyDetection", 343, kOnDutyRuleType, kPresenceEvents),
    Carried<341920>("HeatMap", 351, kHeatMapRuleType, kGeneralEvents),
    Carried<341632>("StandUpDetection", 359, kStandUpRuleType, kPresenceEvents),
    Carried<341444>("ShootingScoreRecognition", 362, kShootingScoreRuleType, kGeneralEvents),
    Carried<341920>("VehicleAnalyse", 514, kHeatMapRuleType, kTrafficEvents),
    Rejected("CameraCoverdDetection", 17, kAbnormalityEvents),
    Rejected("CameraMovedDetection", 18, kAbnormalityEvents),
    Rejected("VideoBadDetection", 20, kAbnormalityEvents),
    Rejected("TrafficSnapshot", 25, kTrafficEvents),
    Rejected("TrafficDrivingOnShoulder", 268, kTrafficEvents),
    Rejected("TrafficNoPassing", 273, kTrafficEvents),
    Rejected("InRegionDetection", 276, kCrossingEvents),
    Rejected("TrafficManualSnap", 280, kTrafficEvents),
    Rejected("TrafficFlowStat", 281, kTrafficEvents),
    Rejected("TrafficStay", 282, kTrafficEvents),
    Rejected("VideoMotion", 284, kGeneralEvents),
    Rejected("AlarmLocal", 285, kGeneralEvents),
    Rejected("VideoDiagnosieResult", 290, kAbnormalityEvents),
    Rejected("TrafficRunYellowLight", 295, kTrafficEvents),
    Rejected("VehicleACC", 304, kGeneralEvents),
    Rejected("VehicleTurnover", 305, kGeneralEvents),
    Rejected("VehicleCollision", 306, kGeneralEvents),
    Rejected("VehicleLargeAngle", 307, kGeneralEvents),
    Rejected("MultiSceneSwitch", 309, kGeneralEvents),
    Rejected("TrafficRestrictedPlate", 310, kTrafficEvents),
    Rejected("TrafficOverStopLine", 311, kTrafficEvents),
    Rejected("AnalogAlarm", 336, kGeneralEvents),
    Rejected("VideoAnalyse", 512, kGeneralEvents),
    Rejected("NoAnswerCall", 344, kGeneralEvents),
    Rejected("StorageNotExist", 345, kGeneralEvents),
    Rejected("StorageLowSpace", 346, kGeneralEvents),
    Rejected("StorageFailure", 347, kGeneralEvents),
    Rejected("ProfileAlarmTransmit", 348, kGeneralEvents),
    Rejected("TrafficJamForbidInto", 355, kTrafficEvents),
    Rejected("ObjectDetection", 321, kGeneralEvents),
    Rejected("Common", 338, kGeneralEvents),
    Rejected("VideoBlind", 339, kAbnormalityEvents),
    Rejected("VideoLoss", 340, kAbnormalityEvents),
    Rejected("VideoStatic", 349, kAbnormalityEvents),
    Rejected("VideoTiming", 350, kGeneralEvents),
    Rejected("LinkSD", 513, kGeneralEvents),
    Rejected("Oil4GFlowRate", 515, kGeneralEvents),
    Rejected("CitizenIDCard", 352, kGeneralEvents),
    Rejected("PicInfo", 353, kGeneralEvents),
    Rejected("NetPlayCheck", 354, kGeneralEvents),
    Rejected("SnapByTime", 356, kGeneralEvents),
    Rejected("PtzPreset", 357, kGeneralEvents),
    Rejected("QSYTrafficCarWeight", 360, kTrafficEvents),
    Rejected("RFIDInfo", 358, kGeneralEvents),
    Rejected("TrafficComparePlate", 361, kTrafficEvents),
    Rejected("TrafficVideoAnalysePreSnap", 368, kTrafficEvents),
};
const uint32_t kRuleTypeRowCount = sizeof kRuleTypeRows / sizeof kRuleTypeRows[0];

namespace {

// Codes index a table: every code is below this.
constexpr uint32_t kCodeLimit = 1024;
constexpr uint8_t kNoRow = 0xFF;
static_assert(kRuleTypeRowCount < kNoRow, "a row index fits a byte");

constexpr bool CodesFitTheIndex() {
  for (const RuleTypeRow& r : kRuleTypeRows) {
    if (r.code == 0 || r.code >= kCodeLimit) return false;
  }
  return true;
}
static_assert(CodesFitTheIndex(), "rule type codes run from 1 to kCodeLimit - 1");

// The row index of each code: filled from the last row back, so that a
// code shared by several names keeps its first row.
constexpr std::array<uint8_t, kCodeLimit> MakeRowOfCode() {
  std::array<uint8_t, kCodeLimit> rows{};
  for (uint8_t& r : rows) r = kNoRow;
  for (uint32_t i = kRuleTypeRowCount; i-- > 0;)
    rows[kRuleTypeRows[i].code] = static_cast<uint8_t>(i);
  return rows;
}
constexpr std::array<uint8_t, kCodeLimit> kRowOfCode = MakeRowOfCode();

const RuleTypeRow* RowOf(uint32_t code) {
  if (code >= kCodeLimit || kRowOfCode[code] == kNoRow) return nullptr;
  return &kRuleTypeRows[kRowOfCode[code]];
}

// SceneClassNames, index order.
constexpr const char* kSceneClassList[] = {
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

}  // namespace

uint32_t RuleTypeFromName(const char* name) {
  if (name == nullptr) return 0;
  static const NameIndex<256> index(kRuleTypeRows, std::size(kRuleTypeRows));
  static_assert(std::size(kRuleTypeRows) <= 128, "the index stays at most half full");
  const int i = index.Find(kRuleTypeRows, name);
  return i >= 0 ? kRuleTypeRows[i].code : 0;
}

int32_t RuleBodySize(uint32_t code) {
  const RuleType* record = FindRuleType(code);
  return record != nullptr ? static_cast<int32_t>(record->recordSize) : 0;
}

const char* RuleTypeName(uint32_t code) {
  const RuleTypeRow* r = RowOf(code);
  return r != nullptr ? r->name : nullptr;
}

const RuleType* FindRuleType(uint32_t code) {
  const RuleTypeRow* r = RowOf(code);
  return r != nullptr ? r->record : nullptr;
}

EventFamily RuleEventFamily(uint32_t code) {
  const RuleTypeRow* r = RowOf(code);
  return r != nullptr ? r->events : kGeneralEvents;
}

constexpr EnumNames kSceneClassNames = EnumNames::Of(kSceneClassList);
constexpr EnumNames kSceneClassPackNames = [] {
  EnumNames packed = EnumNames::Of(kSceneClassList);
  packed.count -= 1;
  return packed;
}();

}  // namespace kova
