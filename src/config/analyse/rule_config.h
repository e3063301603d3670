// Analysis rule types as data: every rule record is the common head, the
// type's own leading fields, the common linkage part and the type's
// trailing fields (kova/records/analyse.h), so one parse and one pack serve
// every type, driven by the type's description: its record size, the
// offset of its linkage part and the field table of its "Config" keys.
//
// Recipe for binding a rule type (a record, a table, a row):
//
//   1. kova/records/analyse_rules.h (or analyse_traffic_rules.h): the
//      record, with KOVA_RULE_LAYOUT (its size is the body size of its
//      code) and static_asserts on its offsets:
//        typedef struct FireRule {
//          RuleHead head;
//          PointList detectRegion;   // "DetectRegion"
//          RuleLinkage linkage;
//          int32_t minDuration;      // "MinDuration"
//          int32_t sensitivity;      // "Sensitivity"
//        } FireRule;
//   2. src/config/analyse/<family>_rules.cpp: its "Config" keys, leading
//      and trailing alike, as one field table over the record, built from
//      the shared blocks of common/blocks/analyse_blocks.h, and its type:
//        constexpr Field kFireConfig[] = {
//            KOVA_POINT_LIST(FireRule, detectRegion, "DetectRegion"),
//            KOVA_F(FireRule, minDuration, "MinDuration", kInt),
//            KOVA_F(FireRule, sensitivity, "Sensitivity", kInt),
//        };
//        const RuleTypeFor<FireRule> kFireRuleType(kFireConfig);
//      (a type without keys of its own: RuleTypeFor<Rec> kX; types with
//      the same keys in bodies of different sizes: one table written as a
//      variable template over the record, kFireConfig<Rec>); declare it
//      below;
//   3. rule_types.cpp: name it in its code's row(s) of kRuleTypeRows with
//      the body size the devices give the code, which the record must be:
//        Carried<341444>("FireDetection", 12, kFireRuleType, kGeneralEvents),
//      (a type serving several codes is in each of their rows).
//
// A "Config" key that is also a member of the rule object ("TrackEnable")
// gets a field of its own in the type's record: RuleHead keeps the rule
// object's.
#ifndef KOVA_CONFIG_ANALYSE_RULE_CONFIG_H_
#define KOVA_CONFIG_ANALYSE_RULE_CONFIG_H_

#include <json/value.h>

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "common/fields/field_table.h"
#include "common/fields/field_text.h"
#include "kova/records/analyse.h"
#include "kova/records/analyse_rules.h"
#include "kova/records/analyse_traffic_rules.h"

namespace kova {

// The members of the rule object that open a record: RuleHead's, or
// AudioRuleHead's (no "ObjectTypes").
extern const FieldTable kRuleHeadTable;
extern const FieldTable kAudioRuleHeadTable;

// What the generic rule parse and pack need to know about one rule type.
struct RuleType {
  uint32_t recordSize;     // sizeof the record: the body size of the type's code
  uint32_t linkageOffset;  // offset of its RuleLinkage
  const FieldTable* head;  // the rule object's members at the record's start
  FieldTable config;       // its "Config" keys, over the whole record

 protected:
  template <typename Rec>
  static constexpr RuleType Laid(FieldTable config) {
    using Head = decltype(Rec::head);
    constexpr bool full = std::is_same<Head, RuleHead>::value;
    static_assert((full || std::is_same<Head, AudioRuleHead>::value) && offsetof(Rec, head) == 0,
                  "a rule record begins with RuleHead (or AudioRuleHead) head");
    static_assert(std::is_same<decltype(Rec::linkage), RuleLinkage>::value,
                  "a rule record holds RuleLinkage linkage");
    return RuleType{static_cast<uint32_t>(sizeof(Rec)),
                    static_cast<uint32_t>(offsetof(Rec, linkage)),
                    full ? &kRuleHeadTable : &kAudioRuleHeadTable, config};
  }
};

// The description of a rule type made from its record, which it carries as
// its own type: the table of rule types learns the record (and with it the
// body size) from the description it names, at compile time.
template <typename Rec>
struct RuleTypeFor : RuleType {
  template <size_t N>
  constexpr explicit RuleTypeFor(const Field (&config)[N])
      : RuleType(Laid<Rec>(FieldTable{config, N})) {}
  // A type without "Config" keys of its own.
  constexpr RuleTypeFor() : RuleType(Laid<Rec>(FieldTable{nullptr, 0})) {}
};

// Fills the cleared rule record at `body` from the rule object: the head,
// the type's "Config" keys and the linkage part. `body` holds
// type.recordSize bytes and is aligned to 4 (RuleLinkage is read in place).
void ParseRuleBody(const Json::Value& rule, unsigned char* body, const RuleType& type);
// Writes the rule record at `body` (same size and alignment) into the rule
// object `rule`: "Name", "Enable", "TrackEnable", "ObjectTypes" (not for an
// audio rule), "EventHandler", "PtzPresetId" and "Config".
void PackRuleBody(const unsigned char* body, const RuleType& type, Json::Value& rule);
// The same members gathered for writing straight as text; `body` is kept
// until `rule` is written.
void GatherRuleBody(const unsigned char* body, const RuleType& type, ObjectText* rule);

// The bound rule types, by the file that describes them.
// cross_rules.cpp
extern const RuleTypeFor<CrossLineRule> kCrossLineRuleType;
extern const RuleTypeFor<CrossRegionRule> kCrossRegionRuleType;
// perimeter_rules.cpp
extern const RuleTypeFor<CrossFenceRule> kCrossFenceRuleType;
extern const RuleTypeFor<LeftRule> kLeftRuleType;
extern const RuleTypeFor<StayRule> kStayRuleType;
extern const RuleTypeFor<PreservationRule> kPreservationRuleType;
extern const RuleTypeFor<ClimbRule> kClimbRuleType;
extern const RuleTypeFor<RetrogradeRule> kRetrogradeRuleType;
// behaviour_rules.cpp
extern const RuleTypeFor<FireRule> kFireRuleType;
extern const RuleTypeFor<RioterRule> kRioterRuleType;
extern const RuleTypeFor<FightRule> kFightRuleType;
extern const RuleTypeFor<MoveRule> kMoveRuleType;
extern const RuleTypeFor<RunRule> kRunRuleType;
extern const RuleTypeFor<VideoAbnormalRule> kVideoAbnormalRuleType;
extern const RuleTypeFor<PrisonerRiseRule> kPrisonerRiseRuleType;
extern const RuleTypeFor<LeaveRule> kLeaveRuleType;
extern const RuleTypeFor<GetOutBedRule> kGetOutBedRuleType;
extern const RuleTypeFor<OnDutyRule> kOnDutyRuleType;
extern const RuleTypeFor<PatrolRule> kPatrolRuleType;
extern const RuleTypeFor<StandUpRule> kStandUpRuleType;
extern const RuleTypeFor<ShootingScoreRule> kShootingScoreRuleType;
// counting_rules.cpp
extern const RuleTypeFor<FlowStatRule> kFlowStatRuleType;
extern const RuleTypeFor<NumberStatRule> kNumberStatRuleType;
extern const RuleTypeFor<HeatMapRule> kHeatMapRuleType;
extern const RuleTypeFor<QueueRule> kQueueRuleType;
// face_audio_rules.cpp
extern const RuleTypeFor<FaceDetectionRule> kFaceDetectionRuleType;
extern const RuleTypeFor<FaceRecognitionRule> kFaceRecognitionRuleType;
extern const RuleTypeFor<AudioAbnormalRule> kAudioAbnormalRuleType;
// traffic_rules.cpp
extern const RuleTypeFor<TrafficControlRule> kTrafficControlRuleType;
extern const RuleTypeFor<TrafficAccidentRule> kTrafficAccidentRuleType;
extern const RuleTypeFor<TrafficJunctionRule> kTrafficJunctionRuleType;
extern const RuleTypeFor<TrafficGateRule> kTrafficGateRuleType;
extern const RuleTypeFor<TrafficJamRule> kTrafficJamRuleType;
extern const RuleTypeFor<TrafficParkingRule> kTrafficParkingRuleType;
extern const RuleTypeFor<TrafficRunRedLightRule> kTrafficRunRedLightRuleType;
extern const RuleTypeFor<TrafficRouteRule> kTrafficRouteRuleType;
extern const RuleTypeFor<TrafficBusRouteRule> kTrafficBusRouteRuleType;
extern const RuleTypeFor<TrafficOverYellowLineRule> kTrafficOverYellowLineRuleType;
extern const RuleTypeFor<TrafficUTurnRule> kTrafficUTurnRuleType;
extern const RuleTypeFor<TrafficSpeedRule> kTrafficSpeedRuleType;
extern const RuleTypeFor<TrafficTollGateRule> kTrafficTollGateRuleType;
extern const RuleTypeFor<TrafficRetrogradeRule> kTrafficRetrogradeRuleType;
extern const RuleTypeFor<TrafficParkingSpaceRule> kTrafficParkingSpaceRuleType;
extern const RuleTypeFor<TrafficSafeBeltRule> kTrafficSafeBeltRuleType;
extern const RuleTypeFor<TrafficPedestrainRule> kTrafficPedestrainRuleType;
extern const RuleTypeFor<TrafficPlainRule> kTrafficPlainRuleType;
extern const RuleTypeFor<TrafficPassNotInOrderRule> kTrafficPassNotInOrderRuleType;
extern const RuleTypeFor<TrafficParkingOnYellowBoxRule> kTrafficParkingOnYellowBoxRuleType;

}  // namespace kova

#endif  // KOVA_CONFIG_ANALYSE_RULE_CONFIG_H_
