// Rule records of the traffic analysis rule types (codes 21 to 27 and 256
// upward): the bodies of traffic rules in the rule buffer of
// "VideoAnalyseRule". They are laid out and read as the other rule records
// (kova/records/analyse_rules.h says how): RuleHead, the leading "Config"
// keys (lines, regions, "Direction"), RuleLinkage, the trailing keys in the
// order the type lists them, and `reserved` bytes up to the body size of
// the type code.
//
// A "TrackEnable" inside "Config" is the type's own `configTrackEnable`;
// the rule object's "TrackEnable" stays in head.trackEnable.
//
// Shapes of the keys whose form the devices do not name elsewhere:
//   "Direction"                 DirectionLine, [[x0,y0],[x1,y1]]: the
//                               direction of travel of the lane
//   "TriggerMode"               number: the trigger source, as the traffic
//                               detector settings number it
//   "Lane"                      number: the lane's number on the device
//   "TimeSchedule"              one name: "Odd", "Even", "Both" (the plates
//                               let through: odd or even last digit, or all)
//   "Enclosure"                 boolean: the bus lane is fenced off
//   "Legal"                     boolean: "Direction" is the legal direction
//   "MainSeat", "SlaveSeat"     booleans: the driver's and the front
//                               passenger's seat belt are checked
#ifndef KOVA_RECORDS_ANALYSE_TRAFFIC_RULES_H_
#define KOVA_RECORDS_ANALYSE_TRAFFIC_RULES_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/analyse.h"

#ifdef __cplusplus
extern "C" {
#endif

// "TimeSchedule" of a traffic control rule.
enum {
  KOVA_TRAFFIC_CONTROL_ODD = 0,   // "Odd"
  KOVA_TRAFFIC_CONTROL_EVEN = 1,  // "Even"
  KOVA_TRAFFIC_CONTROL_BOTH = 2,  // "Both"
};

// "TrafficControl" (21): plate restrictions at a line.
typedef struct TrafficControlRule {
  RuleHead head;
  PointList detectLine;  // "DetectLine"
  RuleLinkage linkage;
  int32_t timeSchedule;  // "TimeSchedule", KOVA_TRAFFIC_CONTROL_*
  uint8_t reserved[5792];
} TrafficControlRule;

// "TrafficAccident" (22).
typedef struct TrafficAccidentRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
} TrafficAccidentRule;

// "TrafficJunction" (23): vehicles pass a junction between two lines.
typedef struct TrafficJunctionRule {
  RuleHead head;
  PointList preLine;        // "PreLine"
  PointList postLine;       // "PostLine"
  DirectionLine direction;  // "Direction"
  RuleLinkage linkage;
  int32_t triggerMode;  // "TriggerMode"
  int32_t lane;         // "Lane"
  uint8_t reserved[4260];
} TrafficJunctionRule;

// "TrafficGate" (24): vehicles pass a checkpoint between two lines.
typedef struct TrafficGateRule {
  RuleHead head;
  PointList leftLine;       // "LeftLine"
  PointList rightLine;      // "RightLine"
  DirectionLine direction;  // "Direction"
  RuleLinkage linkage;
  int32_t triggerMode;  // "TriggerMode"
  int32_t lane;         // "Lane"
  uint8_t reserved[4436];
} TrafficGateRule;

// "TrafficJam" (27), "TrafficIdle" (303).
typedef struct TrafficJamRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t delay;        // "Delay", seconds
  int32_t interval;     // "Interval", seconds
  int32_t reportTimes;  // "ReportTimes"
  uint8_t reserved[4];
} TrafficJamRule;

// "TrafficParking" (264).
typedef struct TrafficParkingRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t delay;              // "Delay", seconds
  int32_t reportTimes;        // "ReportTimes"
  int32_t sensitivity;        // "Sensitivity"
  uint8_t configTrackEnable;  // "Config"."TrackEnable" (0/1)
  uint8_t reserved[3];
} TrafficParkingRule;

// "TrafficRunRedLight" (256), "TrafficPedestrianRunRedLight" (315).
typedef struct TrafficRunRedLightRule {
  RuleHead head;
  PointList preLine;        // "PreLine"
  PointList postLine;       // "PostLine"
  DirectionLine direction;  // "Direction"
  RuleLinkage linkage;
  uint8_t reserved[152];
} TrafficRunRedLightRule;

// "TrafficOverLine" (257), "TrafficTurnLeft" (259), "TrafficTurnRight"
// (260), "TrafficWrongRoute" (265), "TrafficCrossLane" (266),
// "TrafficYellowPlateInLane" / "TrafficYellowInRoute" (270),
// "TrafficVehicleInRoute" (283), "TrafficBacking" (293): a vehicle does
// what its lane forbids.
typedef struct TrafficRouteRule {
  RuleHead head;
  PointList detectRegion;   // "DetectRegion"
  DirectionLine direction;  // "Direction"
  RuleLinkage linkage;
  int32_t sensitivity;        // "Sensitivity"
  uint8_t configTrackEnable;  // "Config"."TrackEnable" (0/1)
  uint8_t reserved[143];
} TrafficRouteRule;

// "TrafficVehicleInBusRoute" (292).
typedef struct TrafficBusRouteRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t sensitivity;        // "Sensitivity"
  uint8_t enclosure;          // "Enclosure" (0/1)
  uint8_t configTrackEnable;  // "Config"."TrackEnable" (0/1)
  uint8_t reserved[2];
} TrafficBusRouteRule;

// "TrafficOverYellowLine" (267).
typedef struct TrafficOverYellowLineRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  uint8_t reserved[4];
} TrafficOverYellowLineRule;

// "TrafficU-Turn" (261).
typedef struct TrafficUTurnRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  uint32_t sizeFilterPresent;  // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;  // "SizeFilter"
  uint8_t configTrackEnable;   // "Config"."TrackEnable" (0/1)
  uint8_t reserved[7];
} TrafficUTurnRule;

// "TrafficOverSpeed" (262), "TrafficUnderSpeed" (263).
typedef struct TrafficSpeedRule {
  RuleHead head;
  RuleLinkage linkage;
  int32_t minDuration;  // "MinDuration", seconds
  uint8_t reserved[12];
} TrafficSpeedRule;

// "TrafficTollGate" (288).
typedef struct TrafficTollGateRule {
  RuleHead head;
  PointList detectLine;  // "DetectLine"
  RuleLinkage linkage;
  uint8_t reserved[4];
} TrafficTollGateRule;

// "TrafficRetrograde" (258): a vehicle drives against its lane.
typedef struct TrafficRetrogradeRule {
  RuleHead head;
  PointList detectRegion;   // "DetectRegion"
  DirectionLine direction;  // "Direction"
  RuleLinkage linkage;
  int32_t minDuration;        // "MinDuration", seconds
  uint8_t legal;              // "Legal" (0/1)
  uint8_t configTrackEnable;  // "Config"."TrackEnable" (0/1)
  uint8_t reserved[150];
} TrafficRetrogradeRule;

// "TrafficParkingSpaceParking" (299), "TrafficParkingSpaceNoParking" (300).
typedef struct TrafficParkingSpaceRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t delay;  // "Delay", seconds
  uint8_t reserved[4];
} TrafficParkingSpaceRule;

// "TrafficWithoutSafeBelt" (312).
typedef struct TrafficSafeBeltRule {
  RuleHead head;
  RuleLinkage linkage;
  uint8_t mainSeat;   // "MainSeat" (0/1)
  uint8_t slaveSeat;  // "SlaveSeat" (0/1)
  uint8_t reserved[38];
} TrafficSafeBeltRule;

// "TrafficPedestrain" (301), "TrafficThrow" (302).
typedef struct TrafficPedestrainRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t minDuration;  // "MinDuration", seconds
  uint8_t reserved[4];
} TrafficPedestrainRule;

// The traffic types without "Config" keys of their own, by body size:
// "TrafficPedestrainPriority" (271), "TrafficParkingSpaceOverLine" (308),
// "TrafficDriverSmoking" (313), "TrafficDriverCalling" (314).
typedef struct TrafficPlainRule {
  RuleHead head;
  RuleLinkage linkage;
  uint8_t reserved[4];
} TrafficPlainRule;

// "TrafficPassNotInOrder" (316): no keys of its own.
typedef struct TrafficPassNotInOrderRule {
  RuleHead head;
  RuleLinkage linkage;
  uint8_t reserved[8];
} TrafficPassNotInOrderRule;

// "TrafficParkingOnYellowBox" (298): no keys of its own.
typedef struct TrafficParkingOnYellowBoxRule {
  RuleHead head;
  RuleLinkage linkage;
  uint8_t reserved[16];
} TrafficParkingOnYellowBoxRule;

#ifdef __cplusplus
}

KOVA_RULE_LAYOUT(TrafficControlRule, 347232, 2348);
static_assert(offsetof(TrafficControlRule, timeSchedule) == 341436, "TrafficControlRule layout");
KOVA_RULE_LAYOUT(TrafficAccidentRule, 341436, 2348);
KOVA_RULE_LAYOUT(TrafficJunctionRule, 345888, 2532);
static_assert(offsetof(TrafficJunctionRule, lane) == 341624, "TrafficJunctionRule layout");
KOVA_RULE_LAYOUT(TrafficGateRule, 346064, 2532);
static_assert(offsetof(TrafficGateRule, lane) == 341624, "TrafficGateRule layout");
KOVA_RULE_LAYOUT(TrafficJamRule, 341452, 2348);
static_assert(offsetof(TrafficJamRule, reportTimes) == 341444, "TrafficJamRule layout");
KOVA_RULE_LAYOUT(TrafficParkingRule, 341452, 2348);
static_assert(offsetof(TrafficParkingRule, configTrackEnable) == 341448,
              "TrafficParkingRule layout");
KOVA_RULE_LAYOUT(TrafficRunRedLightRule, 341772, 2532);
KOVA_RULE_LAYOUT(TrafficRouteRule, 341604, 2368);
static_assert(offsetof(TrafficRouteRule, configTrackEnable) == 341460, "TrafficRouteRule layout");
KOVA_RULE_LAYOUT(TrafficBusRouteRule, 341444, 2348);
static_assert(offsetof(TrafficBusRouteRule, configTrackEnable) == 341441,
              "TrafficBusRouteRule layout");
KOVA_RULE_LAYOUT(TrafficOverYellowLineRule, 341440, 2348);
KOVA_RULE_LAYOUT(TrafficUTurnRule, 341928, 2348);
static_assert(offsetof(TrafficUTurnRule, sizeFilter) == 341440, "TrafficUTurnRule layout");
static_assert(offsetof(TrafficUTurnRule, configTrackEnable) == 341920, "TrafficUTurnRule layout");
KOVA_RULE_LAYOUT(TrafficSpeedRule, 341288, 2184);
KOVA_RULE_LAYOUT(TrafficTollGateRule, 341440, 2348);
KOVA_RULE_LAYOUT(TrafficRetrogradeRule, 341612, 2368);
static_assert(offsetof(TrafficRetrogradeRule, legal) == 341460, "TrafficRetrogradeRule layout");
KOVA_RULE_LAYOUT(TrafficParkingSpaceRule, 341444, 2348);
KOVA_RULE_LAYOUT(TrafficSafeBeltRule, 341312, 2184);
static_assert(offsetof(TrafficSafeBeltRule, slaveSeat) == 341273, "TrafficSafeBeltRule layout");
KOVA_RULE_LAYOUT(TrafficPedestrainRule, 341444, 2348);
KOVA_RULE_LAYOUT(TrafficPlainRule, 341276, 2184);
KOVA_RULE_LAYOUT(TrafficPassNotInOrderRule, 341280, 2184);
KOVA_RULE_LAYOUT(TrafficParkingOnYellowBoxRule, 341288, 2184);
#endif

#endif  // KOVA_RECORDS_ANALYSE_TRAFFIC_RULES_H_
