// Traffic rules: junctions and gates, red lights, lanes and routes, speed,
// parking and jams, and the rules about drivers and pedestrians.
//
// A "TrackEnable" inside "Config" is the type's own field
// (configTrackEnable); the rule object's own stays in the head.
#include "common/blocks/analyse_blocks.h"
#include "config/analyse/rule_config.h"
#include "kova/records/analyse_traffic_rules.h"

namespace kova {

namespace {

inline constexpr const char* kPlateRestrictionNames[] = {"Odd", "Even", "Both"};
inline constexpr EnumNames kPlateRestrictions = EnumNames::Of(kPlateRestrictionNames);

constexpr Field kTrafficControlConfig[] = {
    KOVA_POINT_LIST(TrafficControlRule, detectLine, "DetectLine"),
    KOVA_ENUM(TrafficControlRule, timeSchedule, "TimeSchedule", kPlateRestrictions),
};

// A region and nothing else: "TrafficAccident", "TrafficOverYellowLine".
template <typename Rec>
inline constexpr Field kRegionConfig[] = {
    KOVA_POINT_LIST(Rec, detectRegion, "DetectRegion"),
};

constexpr Field kJunctionConfig[] = {
    KOVA_POINT_LIST(TrafficJunctionRule, preLine, "PreLine"),
    KOVA_POINT_LIST(TrafficJunctionRule, postLine, "PostLine"),
    KOVA_F(TrafficJunctionRule, triggerMode, "TriggerMode", kInt),
    KOVA_F(TrafficJunctionRule, lane, "Lane", kInt),
    KOVA_POINT_LIST(TrafficJunctionRule, direction, "Direction"),
};

constexpr Field kGateConfig[] = {
    KOVA_POINT_LIST(TrafficGateRule, leftLine, "LeftLine"),
    KOVA_POINT_LIST(TrafficGateRule, rightLine, "RightLine"),
    KOVA_F(TrafficGateRule, triggerMode, "TriggerMode", kInt),
    KOVA_F(TrafficGateRule, lane, "Lane", kInt),
    KOVA_POINT_LIST(TrafficGateRule, direction, "Direction"),
};

constexpr Field kJamConfig[] = {
    KOVA_F(TrafficJamRule, delay, "Delay", kInt),
    KOVA_F(TrafficJamRule, interval, "Interval", kInt),
    KOVA_F(TrafficJamRule, reportTimes, "ReportTimes", kInt),
    KOVA_POINT_LIST(TrafficJamRule, detectRegion, "DetectRegion"),
};

constexpr Field kParkingConfig[] = {
    KOVA_POINT_LIST(TrafficParkingRule, detectRegion, "DetectRegion"),
    KOVA_F(TrafficParkingRule, delay, "Delay", kInt),
    KOVA_F(TrafficParkingRule, reportTimes, "ReportTimes", kInt),
    KOVA_F(TrafficParkingRule, sensitivity, "Sensitivity", kInt),
    KOVA_F(TrafficParkingRule, configTrackEnable, "TrackEnable", kBool),
};

constexpr Field kRunRedLightConfig[] = {
    KOVA_POINT_LIST(TrafficRunRedLightRule, preLine, "PreLine"),
    KOVA_POINT_LIST(TrafficRunRedLightRule, postLine, "PostLine"),
    KOVA_POINT_LIST(TrafficRunRedLightRule, direction, "Direction"),
};

constexpr Field kRouteConfig[] = {
    KOVA_POINT_LIST(TrafficRouteRule, detectRegion, "DetectRegion"),
    KOVA_POINT_LIST(TrafficRouteRule, direction, "Direction"),
    KOVA_F(TrafficRouteRule, sensitivity, "Sensitivity", kInt),
    KOVA_F(TrafficRouteRule, configTrackEnable, "TrackEnable", kBool),
};

constexpr Field kBusRouteConfig[] = {
    KOVA_POINT_LIST(TrafficBusRouteRule, detectRegion, "DetectRegion"),
    KOVA_F(TrafficBusRouteRule, sensitivity, "Sensitivity", kInt),
    KOVA_F(TrafficBusRouteRule, enclosure, "Enclosure", kBool),
    KOVA_F(TrafficBusRouteRule, configTrackEnable, "TrackEnable", kBool),
};

constexpr Field kUTurnConfig[] = {
    KOVA_POINT_LIST(TrafficUTurnRule, detectRegion, "DetectRegion"),
    KOVA_SIZE_FILTER(TrafficUTurnRule),
    KOVA_F(TrafficUTurnRule, configTrackEnable, "TrackEnable", kBool),
};

constexpr Field kSpeedConfig[] = {
    KOVA_F(TrafficSpeedRule, minDuration, "MinDuration", kInt),
};

constexpr Field kTollGateConfig[] = {
    KOVA_POINT_LIST(TrafficTollGateRule, detectLine, "DetectLine"),
};

constexpr Field kRetrogradeConfig[] = {
    KOVA_POINT_LIST(TrafficRetrogradeRule, detectRegion, "DetectRegion"),
    KOVA_POINT_LIST(TrafficRetrogradeRule, direction, "Direction"),
    KOVA_F(TrafficRetrogradeRule, minDuration, "MinDuration", kInt),
    KOVA_F(TrafficRetrogradeRule, legal, "Legal", kBool),
    KOVA_F(TrafficRetrogradeRule, configTrackEnable, "TrackEnable", kBool),
};

constexpr Field kParkingSpaceConfig[] = {
    KOVA_POINT_LIST(TrafficParkingSpaceRule, detectRegion, "DetectRegion"),
    KOVA_F(TrafficParkingSpaceRule, delay, "Delay", kInt),
};

constexpr Field kSafeBeltConfig[] = {
    KOVA_F(TrafficSafeBeltRule, mainSeat, "MainSeat", kBool),
    KOVA_F(TrafficSafeBeltRule, slaveSeat, "SlaveSeat", kBool),
};

constexpr Field kPedestrainConfig[] = {
    KOVA_POINT_LIST(TrafficPedestrainRule, detectRegion, "DetectRegion"),
    KOVA_F(TrafficPedestrainRule, minDuration, "MinDuration", kInt),
};

}  // namespace

const RuleTypeFor<TrafficControlRule> kTrafficControlRuleType(kTrafficControlConfig);
const RuleTypeFor<TrafficAccidentRule> kTrafficAccidentRuleType(kRegionConfig<TrafficAccidentRule>);
const RuleTypeFor<TrafficJunctionRule> kTrafficJunctionRuleType(kJunctionConfig);
const RuleTypeFor<TrafficGateRule> kTrafficGateRuleType(kGateConfig);
const RuleTypeFor<TrafficJamRule> kTrafficJamRuleType(kJamConfig);
const RuleTypeFor<TrafficParkingRule> kTrafficParkingRuleType(kParkingConfig);
const RuleTypeFor<TrafficRunRedLightRule> kTrafficRunRedLightRuleType(kRunRedLightConfig);
const RuleTypeFor<TrafficRouteRule> kTrafficRouteRuleType(kRouteConfig);
const RuleTypeFor<TrafficBusRouteRule> kTrafficBusRouteRuleType(kBusRouteConfig);
const RuleTypeFor<TrafficOverYellowLineRule> kTrafficOverYellowLineRuleType(
    kRegionConfig<TrafficOverYellowLineRule>);
const RuleTypeFor<TrafficUTurnRule> kTrafficUTurnRuleType(kUTurnConfig);
const RuleTypeFor<TrafficSpeedRule> kTrafficSpeedRuleType(kSpeedConfig);
const RuleTypeFor<TrafficTollGateRule> kTrafficTollGateRuleType(kTollGateConfig);
const RuleTypeFor<TrafficRetrogradeRule> kTrafficRetrogradeRuleType(kRetrogradeConfig);
const RuleTypeFor<TrafficParkingSpaceRule> kTrafficParkingSpaceRuleType(kParkingSpaceConfig);
const RuleTypeFor<TrafficSafeBeltRule> kTrafficSafeBeltRuleType(kSafeBeltConfig);
const RuleTypeFor<TrafficPedestrainRule> kTrafficPedestrainRuleType(kPedestrainConfig);
const RuleTypeFor<TrafficPlainRule> kTrafficPlainRuleType;
const RuleTypeFor<TrafficPassNotInOrderRule> kTrafficPassNotInOrderRuleType;
const RuleTypeFor<TrafficParkingOnYellowBoxRule> kTrafficParkingOnYellowBoxRuleType;

}  // namespace kova
