// The line and region crossing rules: "CrossLineDetection" and
// "CrossRegionDetection".
#include "common/blocks/analyse_blocks.h"
#include "config/analyse/rule_config.h"

namespace kova {

namespace {

inline constexpr const char* kActionNames[] = {"Appear", "Disappear", "Inside", "Cross"};
inline constexpr EnumNames kActions = EnumNames::Of(kActionNames);
inline constexpr Field kActionItem = KOVA_ITEM(uint8_t, kEnum).Names(kActions);

constexpr Field kCrossLineConfig[] = {
    KOVA_ENUM(CrossLineRule, direction, "Direction", kLineDirections),
    KOVA_POINT_LIST(CrossLineRule, detectLine, "DetectLine"),
    KOVA_NESTED(CrossLineRule, sizeFilter, "SizeFilter")
        .Flag(KOVA_AT(CrossLineRule, sizeFilterPresent)),
    KOVA_TRIGGER_POSITIONS(CrossLineRule, triggerPositions, "TriggerPosition"),
    KOVA_F(CrossLineRule, trackDuration, "TrackDuration", kInt),
};

constexpr Field kCrossRegionConfig[] = {
    KOVA_ENUM(CrossRegionRule, direction, "Direction", kRegionDirections),
    KOVA_POINT_LIST(CrossRegionRule, detectRegion, "DetectRegion"),
    KOVA_NESTED(CrossRegionRule, sizeFilter, "SizeFilter")
        .Flag(KOVA_AT(CrossRegionRule, sizeFilterPresent)),
    // Entry i to slot i; the count is of the non-null entries among the first 4.
    KOVA_LIST(CrossRegionRule, actions, "Action", kActionItem)
        .Count(KOVA_AT(CrossRegionRule, actionCount), CountRule::kNonNull)
        .KeepSlots(),
    KOVA_F(CrossRegionRule, minTargets, "MinTargets", kInt),
    KOVA_F(CrossRegionRule, maxTargets, "MaxTargets", kInt),
    KOVA_F(CrossRegionRule, minDuration, "MinDuration", kInt),
    KOVA_F(CrossRegionRule, reportInterval, "ReportInterval", kInt),
    KOVA_F(CrossRegionRule, trackDuration, "TrackDuration", kInt),
};

}  // namespace

const RuleTypeFor<CrossLineRule> kCrossLineRuleType(kCrossLineConfig);
const RuleTypeFor<CrossRegionRule> kCrossRegionRuleType(kCrossRegionConfig);

}  // namespace kova
