// Analysis rule types as data: every rule record is the common head, the
// type's own leading fields, the common linkage part and the type's
// trailing fields (kova/records/analyse.h), so one parse and one pack serve
// every type, driven by the type's description: its record size, the
// offset of its linkage part and the field table of its "Config" keys.
//
// Recipe for binding a rule type (a record, a table, a row):
//
//   1. kova/records/analyse.h: the record, with static_asserts on its size
//      (the body size of its code in rule_types.cpp) and offsets:
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
//      (a type without keys of its own: RuleType::Of<Rec>()); declare it
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

// What the generic rule parse and pack need to know about one rule type.
struct RuleType {
  uint32_t recordSize;     // sizeof the record: the body size of the type's code
  uint32_t linkageOffset;  // offset of its RuleLinkage
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
    static_assert(std::is_same<decltype(Rec::head), RuleHead>::value && offsetof(Rec, head) == 0,
                  "a rule record begins with RuleHead head");
    static_assert(std::is_same<decltype(Rec::linkage), RuleLinkage>::value,
                  "a rule record holds RuleLinkage linkage");
    return RuleType{static_cast<uint32_t>(sizeof(Rec)),
                    static_cast<uint32_t>(offsetof(Rec, linkage)), config};
  }
};

// One row of RuleConfigTable: a rule type code and its description (null
// while the type is not laid out: a rule of that type fails the parse and
// the pack).
struct RuleConfigRow {
  uint32_t code;
  const RuleType* type;
};

// All 71 types the rule list carries, in the devices' table order.
extern const RuleConfigRow kRuleConfigTable[];
extern const size_t kRuleConfigRowCount;

// The description of `code` (linear scan of the table); null when the
// code has no row or its row is not bound yet.
const RuleType* FindRuleType(uint32_t code);

// Fills the cleared rule record at `body` from the rule object: the head,
// the type's "Config" keys and the linkage part. `body` holds
// type.recordSize bytes and is aligned to 4 (RuleLinkage is read in place).
void ParseRuleBody(const Json::Value& rule, unsigned char* body, const RuleType& type);
// Writes the rule record at `body` (same size and alignment) into the rule
// object `rule`: "Name", "Enable", "TrackEnable", "ObjectTypes",
// "EventHandler", "PtzPresetId" and "Config".
void PackRuleBody(const unsigned char* body, const RuleType& type, Json::Value& rule);

// The bound rule types.
extern const RuleType kCrossLineRuleType;
extern const RuleType kCrossRegionRuleType;

}  // namespace kova

#endif  // KOVA_CONFIG_ANALYSE_RULE_CONFIG_H_
