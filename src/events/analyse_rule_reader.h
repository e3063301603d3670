// Analysis rules as the parse-by-callback reader delivers them: one record
// per rule object, the record of the rule's type.
#ifndef KOVA_EVENTS_ANALYSE_RULE_READER_H_
#define KOVA_EVENTS_ANALYSE_RULE_READER_H_

#include <json/value.h>

#include <cstdint>

namespace kova {

struct RuleRecord {
  uint32_t typeCode = 0;   // the code of the rule's "Type" (0: unknown or missing)
  void* record = nullptr;  // allocated with malloc; holds no pointers
  uint32_t size = 0;
};

// Builds the record of one rule object (an entry of a rule list): the record
// of its rule type, read as the rule list reads it, or RuleHead alone for a
// rule whose type is missing or has no record. False when memory runs out.
bool BuildRuleRecord(const Json::Value& rule, RuleRecord* out);

}  // namespace kova

#endif  // KOVA_EVENTS_ANALYSE_RULE_READER_H_
