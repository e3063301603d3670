// Crowd and behaviour rules: fire and smoke, fights and riots, fast moves
// and running, an abnormal picture, and the rules of prisons, wards,
// guard posts, classrooms and shooting ranges.
#include "common/blocks/analyse_blocks.h"
#include "config/analyse/rule_config.h"
#include "kova/records/analyse_rules.h"

namespace kova {

namespace {

// "DetectRegion", "MinDuration", "Sensitivity": FireRule, and RioterRule
// whose body is larger.
template <typename Rec>
inline constexpr Field kFireConfig[] = {
    KOVA_POINT_LIST(Rec, detectRegion, "DetectRegion"),
    KOVA_F(Rec, minDuration, "MinDuration", kInt),
    KOVA_F(Rec, sensitivity, "Sensitivity", kInt),
};

inline constexpr const char* kFightModeNames[] = {"ByVideo", "ByAudio", "Both"};
inline constexpr EnumNames kFightModes = EnumNames::Of(kFightModeNames);

constexpr Field kFightConfig[] = {
    KOVA_POINT_LIST(FightRule, detectRegion, "DetectRegion"),
    KOVA_F(FightRule, minDuration, "MinDuration", kInt),
    KOVA_F(FightRule, sensitivity, "Sensitivity", kInt),
    KOVA_ENUM(FightRule, detectMode, "DetectMode", kFightModes),
};

inline constexpr const char* kMoveTypeNames[] = {"FastMove", "AbruptSpeedup", "AbruptSlowdown"};
inline constexpr EnumNames kMoveTypes = EnumNames::Of(kMoveTypeNames);
inline constexpr Field kMoveTypeItem = KOVA_ITEM(uint8_t, kEnum).Names(kMoveTypes);

constexpr Field kMoveConfig[] = {
    KOVA_POINT_LIST(MoveRule, detectRegion, "DetectRegion"),
    KOVA_TRIGGER_POSITIONS(MoveRule, triggerPositions, "TriggerPosition"),
    KOVA_NAME_LIST(MoveRule, detectTypes, detectTypeCount, "DetectType", kMoveTypeItem),
    KOVA_F(MoveRule, minDuration, "MinDuration", kInt),
    KOVA_F(MoveRule, triggerSpeed, "TriggerSpeed", kInt),
    KOVA_F(MoveRule, sensitivity, "Sensitivity", kInt),
    KOVA_SIZE_FILTER(MoveRule),
    KOVA_F(MoveRule, trackDuration, "TrackDuration", kInt),
};

inline constexpr const char* kRunTypeNames[] = {"FastRun", "AbruptSpeedup", "AbruptSlowdown"};
inline constexpr EnumNames kRunTypes = EnumNames::Of(kRunTypeNames);
inline constexpr Field kRunTypeItem = KOVA_ITEM(uint8_t, kEnum).Names(kRunTypes);

constexpr Field kRunConfig[] = {
    KOVA_POINT_LIST(RunRule, detectRegion, "DetectRegion"),
    KOVA_TRIGGER_POSITIONS(RunRule, triggerPositions, "TriggerPosition"),
    KOVA_NAME_LIST(RunRule, detectTypes, detectTypeCount, "DetectType", kRunTypeItem),
    KOVA_F(RunRule, triggerSpeed, "TriggerSpeed", kInt),
    KOVA_F(RunRule, minDuration, "MinDuration", kInt),
    KOVA_F(RunRule, sensitivity, "Sensitivity", kInt),
    KOVA_SIZE_FILTER(RunRule),
};

inline constexpr const char* kVideoAbnormalTypeNames[] = {"Loss",  "Cover", "Frozen",
                                                          "Light", "Dark",  "SceneChange"};
inline constexpr EnumNames kVideoAbnormalTypes = EnumNames::Of(kVideoAbnormalTypeNames);
inline constexpr Field kVideoAbnormalTypeItem =
    KOVA_ITEM(uint8_t, kEnum).Names(kVideoAbnormalTypes);

constexpr Field kVideoAbnormalConfig[] = {
    KOVA_NAME_LIST(VideoAbnormalRule, detectTypes, detectTypeCount, "DetectType",
                   kVideoAbnormalTypeItem),
    KOVA_POINT_LIST(VideoAbnormalRule, detectRegion, "DetectRegion"),
    KOVA_F(VideoAbnormalRule, minDuration, "MinDuration", kInt),
    KOVA_F(VideoAbnormalRule, sensitivity, "Sensitivity", kInt),
};

// "SizeFilter" as SizeFilterSettings: the box lists have no room here.
constexpr Field kPrisonerRiseConfig[] = {
    KOVA_POINT_LIST(PrisonerRiseRule, detectRegion, "DetectRegion"),
    KOVA_POINT_LIST(PrisonerRiseRule, direction, "Direction"),
    KOVA_F(PrisonerRiseRule, minDuration, "MinDuration", kInt),
    KOVA_F(PrisonerRiseRule, reportInterval, "ReportInterval", kInt),
    KOVA_SIZE_FILTER(PrisonerRiseRule),
};

inline constexpr const char* kLeaveTriggerNames[] = {"NoPerson", "Leave", "Static"};
inline constexpr EnumNames kLeaveTriggers = EnumNames::Of(kLeaveTriggerNames);
inline constexpr Field kLeaveTriggerItem = KOVA_ITEM(uint8_t, kEnum).Names(kLeaveTriggers);
inline constexpr const char* kLeaveModeNames[] = {"ByPatrol", "BySentry"};
inline constexpr EnumNames kLeaveModes = EnumNames::Of(kLeaveModeNames);

constexpr Field kLeaveConfig[] = {
    KOVA_POINT_LIST(LeaveRule, detectRegion, "DetectRegion"),
    KOVA_NAME_LIST(LeaveRule, triggerModes, triggerModeCount, "TriggerMode", kLeaveTriggerItem),
    KOVA_ENUM(LeaveRule, mode, "Mode", kLeaveModes),
    KOVA_F(LeaveRule, minDuration, "MinDuration", kInt),
    KOVA_F(LeaveRule, reportInterval, "ReportInterval", kInt),
    KOVA_SIZE_FILTER(LeaveRule),
};

// "DetectRegion", "MinDuration", "ReportInterval": GetOutBedRule, and
// OnDutyRule whose body is larger.
template <typename Rec>
inline constexpr Field kGetOutBedConfig[] = {
    KOVA_POINT_LIST(Rec, detectRegion, "DetectRegion"),
    KOVA_F(Rec, minDuration, "MinDuration", kInt),
    KOVA_F(Rec, reportInterval, "ReportInterval", kInt),
};

constexpr Field kPatrolConfig[] = {
    KOVA_POINT_LIST(PatrolRule, detectRegion, "DetectRegion"),
    KOVA_F(PatrolRule, minDuration, "MinDuration", kInt),
    KOVA_F(PatrolRule, reportInterval, "ReportInterval", kInt),
    KOVA_F(PatrolRule, patrolTime, "PatrolTime", kInt),
    KOVA_SIZE_FILTER(PatrolRule),
};

constexpr Field kStandUpConfig[] = {
    KOVA_POINT_LIST(StandUpRule, detectRegion, "DetectRegion"),
    KOVA_POINT_LIST(StandUpRule, direction, "Direction"),
    KOVA_POINT_LIST(StandUpRule, region, "Region"),
    KOVA_F(StandUpRule, max, "Max", kInt),
};

constexpr Field kShootingScoreConfig[] = {
    KOVA_POINT_LIST(ShootingScoreRule, detectRegion, "DetectRegion"),
    KOVA_F(ShootingScoreRule, round, "Round", kInt),
    KOVA_F(ShootingScoreRule, sensitivity, "Sensitivity", kInt),
};

}  // namespace

const RuleTypeFor<FireRule> kFireRuleType(kFireConfig<FireRule>);
const RuleTypeFor<RioterRule> kRioterRuleType(kFireConfig<RioterRule>);
const RuleTypeFor<FightRule> kFightRuleType(kFightConfig);
const RuleTypeFor<MoveRule> kMoveRuleType(kMoveConfig);
const RuleTypeFor<RunRule> kRunRuleType(kRunConfig);
const RuleTypeFor<VideoAbnormalRule> kVideoAbnormalRuleType(kVideoAbnormalConfig);
const RuleTypeFor<PrisonerRiseRule> kPrisonerRiseRuleType(kPrisonerRiseConfig);
const RuleTypeFor<LeaveRule> kLeaveRuleType(kLeaveConfig);
const RuleTypeFor<GetOutBedRule> kGetOutBedRuleType(kGetOutBedConfig<GetOutBedRule>);
const RuleTypeFor<OnDutyRule> kOnDutyRuleType(kGetOutBedConfig<OnDutyRule>);
const RuleTypeFor<PatrolRule> kPatrolRuleType(kPatrolConfig);
const RuleTypeFor<StandUpRule> kStandUpRuleType(kStandUpConfig);
const RuleTypeFor<ShootingScoreRule> kShootingScoreRuleType(kShootingScoreConfig);

}  // namespace kova
