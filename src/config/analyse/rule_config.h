// Analysis rule types as data: every rule record is the common head, the
// type's own leading fields, the common linkage part and the type's
// trailing fields (kova/records/analyse.h), so one parse and one pack serve
// every type, driven by the type's description: its record size, the
// offset of its linkage part and the field table of its "Config" keys.
//
// Recipe for binding a rule type (a record, a table, a row):
//
//   1. kova/records/analyse_rules.h (or analyse_traffic_rules.h): the
//      record, with KOVA_RULE_LAYOUT (its size is the body size of its code
//      in rule_types.cpp) and static_asserts on its offsets:
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
//        const RuleType kFireRuleType = RuleType::Of<FireRule>(kFireConfig);
//      (a type without keys of its own: RuleType::Of<Rec>(); types with
//      the same keys in bodies of different sizes: one table written as a
//      variable template over the record, kFireConfig<Rec>); declare it
//      below;
//   3. rule_config.cpp: put &kFireRuleType in its code's row(s) of
//      kRuleConfigTable (a type serving several codes goes in each row).
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
#include "kova/records/analyse.h"

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

  template <typename Rec, size_t N>
  static constexpr RuleType Of(const Field (&config)[N]) {
    return Laid<Rec>(FieldTable{config, N});
  }
  template <typename Rec>
  static constexpr RuleType Of() {
    return Laid<Rec>(FieldTable{nullptr, 0});
  }

 private:
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

// One row of RuleConfigTable: a rule type code and its description.
struct RuleConfigRow {
  uint32_t code;
  const RuleType* type;
};

// All 71 types the rule list carries, in the devices' table order.
extern const RuleConfigRow kRuleConfigTable[];
extern const size_t kRuleConfigRowCount;

// The description of `code` (linear scan of the table); null when the
// code has no row.
const RuleType* FindRuleType(uint32_t code);

// Fills the cleared rule record at `body` from the rule object: the head,
// the type's "Config" keys and the linkage part. `body` holds
// type.recordSize bytes and is aligned to 4 (RuleLinkage is read in place).
void ParseRuleBody(const Json::Value& rule, unsigned char* body, const RuleType& type);
// Writes the rule record at `body` (same size and alignment) into the rule
// object `rule`: "Name", "Enable", "TrackEnable", "ObjectTypes" (not for an
// audio rule), "EventHandler", "PtzPresetId" and "Config".
void PackRuleBody(const unsigned char* body, const RuleType& type, Json::Value& rule);

// The bound rule types, by the file that describes them.
// cross_rules.cpp
extern const RuleType kCrossLineRuleType;
extern const RuleType kCrossRegionRuleType;
// perimeter_rules.cpp
extern const RuleType kCrossFenceRuleType;
extern const RuleType kLeftRuleType;
extern const RuleType kStayRuleType;
extern const RuleType kPreservationRuleType;
extern const RuleType kClimbRuleType;
extern const RuleType kRetrogradeRuleType;
// behaviour_rules.cpp
extern const RuleType kFireRuleType;
extern const RuleType kRioterRuleType;
extern const RuleType kFightRuleType;
extern const RuleType kMoveRuleType;
extern const RuleType kRunRuleType;
extern const RuleType kVideoAbnormalRuleType;
extern const RuleType kPrisonerRiseRuleType;
extern const RuleType kLeaveRuleType;
extern const RuleType kGetOutBedRuleType;
extern const RuleType kOnDutyRuleType;
extern const RuleType kPatrolRuleType;
extern const RuleType kStandUpRuleType;
extern const RuleType kShootingScoreRuleType;
// counting_rules.cpp
extern const RuleType kFlowStatRuleType;
extern const RuleType kNumberStatRuleType;
extern const RuleType kHeatMapRuleType;
extern const RuleType kQueueRuleType;
// face_audio_rules.cpp
extern const RuleType kFaceDetectionRuleType;
extern const RuleType kFaceRecognitionRuleType;
extern const RuleType kAudioAbnormalRuleType;
// traffic_rules.cpp
extern const RuleType kTrafficControlRuleType;
extern const RuleType kTrafficAccidentRuleType;
extern const RuleType kTrafficJunctionRuleType;
extern const RuleType kTrafficGateRuleType;
extern const RuleType kTrafficJamRuleType;
extern const RuleType kTrafficParkingRuleType;
extern const RuleType kTrafficRunRedLightRuleType;
extern const RuleType kTrafficRouteRuleType;
extern const RuleType kTrafficBusRouteRuleType;
extern const RuleType kTrafficOverYellowLineRuleType;
extern const RuleType kTrafficUTurnRuleType;
extern const RuleType kTrafficSpeedRuleType;
extern const RuleType kTrafficTollGateRuleType;
extern const RuleType kTrafficRetrogradeRuleType;
extern const RuleType kTrafficParkingSpaceRuleType;
extern const RuleType kTrafficSafeBeltRuleType;
extern const RuleType kTrafficPedestrainRuleType;
extern const RuleType kTrafficPlainRuleType;
extern const RuleType kTrafficPassNotInOrderRuleType;
extern const RuleType kTrafficParkingOnYellowBoxRuleType;

}  // namespace kova

#endif  // KOVA_CONFIG_ANALYSE_RULE_CONFIG_H_
