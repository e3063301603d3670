// People counting rules: flow and number counts, heat maps and queues.
#include "common/blocks/analyse_blocks.h"
#include "config/analyse/rule_config.h"
#include "kova/records/analyse_rules.h"

namespace kova {

namespace {

constexpr Field kFlowStatConfig[] = {
    KOVA_F(FlowStatRule, period, "Period", kInt),
    KOVA_F(FlowStatRule, upperLimit, "UpperLimit", kInt),
};

inline constexpr const char* kNumberStatTypeNames[] = {"Region", "Entrance"};
inline constexpr EnumNames kNumberStatTypes = EnumNames::Of(kNumberStatTypeNames);

constexpr Field kNumberStatConfig[] = {
    KOVA_POINT_LIST(NumberStatRule, detectRegion, "DetectRegion"),
    KOVA_POINT_LIST(NumberStatRule, direction, "Direction"),
    KOVA_F(NumberStatRule, reportInterval, "ReportInterval", kInt),
    KOVA_F(NumberStatRule, upperLimit, "UpperLimit", kInt),
    KOVA_ENUM(NumberStatRule, type, "Type", kNumberStatTypes),
    KOVA_F(NumberStatRule, region, "Region", kInt),
    KOVA_F(NumberStatRule, entrance, "Entrance", kInt),
};

constexpr Field kHeatMapConfig[] = {
    KOVA_POINT_LIST(HeatMapRule, detectRegion, "DetectRegion"),
    KOVA_SIZE_FILTER(HeatMapRule),
};

}  // namespace

const RuleTypeFor<FlowStatRule> kFlowStatRuleType(kFlowStatConfig);
const RuleTypeFor<NumberStatRule> kNumberStatRuleType(kNumberStatConfig);
const RuleTypeFor<HeatMapRule> kHeatMapRuleType(kHeatMapConfig);
const RuleTypeFor<QueueRule> kQueueRuleType;

}  // namespace kova
