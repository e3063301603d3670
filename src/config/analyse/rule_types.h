// The device's analysis rule type names and their numeric codes, and the
// scene class names of rules.
//
// A rule's "Type" (and an analyzer event's "Code") is a name such as
// "CrossLineDetection"; records carry it as a code. The same table also
// gives, for the types the rule list accepts, the size of the type's rule
// record.
#ifndef KOVA_CONFIG_ANALYSE_RULE_TYPES_H_
#define KOVA_CONFIG_ANALYSE_RULE_TYPES_H_

#include <cstdint>

namespace kova {

// The code of a rule type name, compared without regard to ASCII case,
// whole name, first match in table order; 0 for an unknown name or null.
uint32_t RuleTypeFromName(const char* name);

// The body size of a rule of type `code` in the rule list; 0 when the rule
// list does not accept the code.
int32_t RuleBodySize(uint32_t code);

// The first name of `code` in table order (the name written on pack); null
// for a code without a name.
const char* RuleTypeName(uint32_t code);

// The scene class of a rule's "Class" (SceneClassNames, compared without
// regard to ASCII case, whole name): 1 "Normal" to 15 "StandUpDetection";
// 0 for "" or a name that matches nothing.
uint32_t SceneClassFromName(const char* name);

// The "Class" a scene class packs as. The packing table stops one entry
// short of the parsing one, on purpose: class 15 ("StandUpDetection"), like
// class 0 and any unknown class, packs as "".
const char* SceneClassPackName(uint32_t sceneClass);

// One row of the table, for code that walks it (tests, tools).
struct RuleTypeRow {
  const char* name;
  uint32_t code;
  int32_t bodySize;  // 0: the rule list rejects the type
};
extern const RuleTypeRow kRuleTypeRows[];
extern const uint32_t kRuleTypeRowCount;

}  // namespace kova

#endif  // KOVA_CONFIG_ANALYSE_RULE_TYPES_H_
