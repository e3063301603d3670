// Perimeter rules: fences, objects left in or taken from a region, staying
// and wandering, preserved areas, climbing and moving against the allowed
// direction.
#include "common/blocks/analyse_blocks.h"
#include "config/analyse/rule_config.h"
#include "kova/records/analyse_rules.h"

namespace kova {

namespace {

constexpr Field kCrossFenceConfig[] = {
    KOVA_POINT_LIST(CrossFenceRule, upstairsLine, "UpstairsLine"),
    KOVA_POINT_LIST(CrossFenceRule, downstairsLine, "DownstairsLine"),
    KOVA_TRIGGER_POSITIONS(CrossFenceRule, triggerPositions, "TriggerPosition"),
    KOVA_ENUM(CrossFenceRule, direction, "Direction", kLineDirections),
    KOVA_F(CrossFenceRule, trackDuration, "TrackDuration", kInt),
    KOVA_SIZE_FILTER(CrossFenceRule),
};

constexpr Field kLeftConfig[] = {
    KOVA_POINT_LIST(LeftRule, detectRegion, "DetectRegion"),
    KOVA_TRIGGER_POSITIONS(LeftRule, triggerPositions, "TriggerPosition"),
    KOVA_F(LeftRule, minDuration, "MinDuration", kInt),
    KOVA_SIZE_FILTER(LeftRule),
    KOVA_F(LeftRule, trackDuration, "TrackDuration", kInt),
};

constexpr Field kStayConfig[] = {
    KOVA_POINT_LIST(StayRule, detectRegion, "DetectRegion"),
    KOVA_TRIGGER_POSITIONS(StayRule, triggerPositions, "TriggerPosition"),
    KOVA_F(StayRule, minDuration, "MinDuration", kInt),
    KOVA_F(StayRule, triggerTargetsNumber, "TriggerTargetsNumber", kInt),
    KOVA_F(StayRule, reportInterval, "ReportInterval", kInt),
    KOVA_SIZE_FILTER(StayRule),
    KOVA_F(StayRule, trackDuration, "TrackDuration", kInt),
};

constexpr Field kPreservationConfig[] = {
    KOVA_POINT_LIST(PreservationRule, detectRegion, "DetectRegion"),
    KOVA_F(PreservationRule, minDuration, "MinDuration", kInt),
};

constexpr Field kClimbConfig[] = {
    KOVA_POINT_LIST(ClimbRule, detectLine, "DetectLine"),
    KOVA_SIZE_FILTER(ClimbRule),
};

constexpr Field kRetrogradeConfig[] = {
    KOVA_POINT_LIST(RetrogradeRule, detectRegion, "DetectRegion"),
    KOVA_TRIGGER_POSITIONS(RetrogradeRule, triggerPositions, "TriggerPosition"),
    KOVA_POINT_LIST(RetrogradeRule, direction, "Direction"),
    KOVA_SIZE_FILTER(RetrogradeRule),
    KOVA_F(RetrogradeRule, sensitivity, "Sensitivity", kInt),
};

}  // namespace

const RuleTypeFor<CrossFenceRule> kCrossFenceRuleType(kCrossFenceConfig);
const RuleTypeFor<LeftRule> kLeftRuleType(kLeftConfig);
const RuleTypeFor<StayRule> kStayRuleType(kStayConfig);
const RuleTypeFor<PreservationRule> kPreservationRuleType(kPreservationConfig);
const RuleTypeFor<ClimbRule> kClimbRuleType(kClimbConfig);
const RuleTypeFor<RetrogradeRule> kRetrogradeRuleType(kRetrogradeConfig);

}  // namespace kova
