// The device's analysis rule types, one row each, and the scene class
// names of rules.
//
// A rule's "Type" (and an analyzer event's "Code") is a name such as
// "CrossLineDetection"; records carry it as a code. The row of a type also
// names the description of its rule record, whose size is the body size of
// the code in the rule list (no record: the rule list rejects the type),
// and the event record an analyzer event of the code is delivered with.
#ifndef KOVA_CONFIG_ANALYSE_RULE_TYPES_H_
#define KOVA_CONFIG_ANALYSE_RULE_TYPES_H_

#include <cstdint>

#include "common/fields/field_table.h"

namespace kova {

struct RuleType;  // config/analyse/rule_config.h

// The event record of kova/records/events.h that an analyzer event of a
// rule type's code is delivered with.
enum EventFamily : uint8_t {
  kGeneralEvents,      // GeneralEventInfo
  kCrossingEvents,     // CrossingEventInfo
  kPresenceEvents,     // PresenceEventInfo
  kCrowdEvents,        // CrowdEventInfo
  kFaceEvents,         // FaceEventInfo
  kTrafficEvents,      // TrafficEventInfo
  kAbnormalityEvents,  // AbnormalityEventInfo
};

// One rule type. Several names may share a code: the first row of a code
// gives its name, record and event family.
struct RuleTypeRow {
  const char* name;        // the devices' own word, misspellings included
  uint32_t code;           // never 0 (0 is "no type")
  const RuleType* record;  // its rule record's description; null: the rule list rejects it
  EventFamily events;
};

// Every rule type, in the devices' table order (the order names are tried in).
extern const RuleTypeRow kRuleTypeRows[];
extern const uint32_t kRuleTypeRowCount;

// The code of a rule type name, compared without regard to ASCII case,
// whole name, first match in table order; 0 for an unknown name or null.
uint32_t RuleTypeFromName(const char* name);

// The body size of a rule of type `code` in the rule list: the size of its
// record; 0 when the rule list does not accept the code.
int32_t RuleBodySize(uint32_t code);

// The first name of `code` in table order (the name written on pack); null
// for a code without a name.
const char* RuleTypeName(uint32_t code);

// The description of the rule record of `code`; null when the rule list
// does not accept the code.
const RuleType* FindRuleType(uint32_t code);

// The event record family of an analyzer event of `code`; kGeneralEvents
// for a code without a row.
EventFamily RuleEventFamily(uint32_t code);

// SceneClassNames: a rule's "Class", 1 "Normal" to 15 "StandUpDetection",
// compared without regard to ASCII case, whole name; "" or a name that
// matches nothing reads as 0.
extern const EnumNames kSceneClassNames;
// The "Class" a scene class packs as: the same names one short, on purpose:
// class 15 ("StandUpDetection"), like class 0 and any unknown class, packs
// as "".
extern const EnumNames kSceneClassPackNames;

}  // namespace kova

#endif  // KOVA_CONFIG_ANALYSE_RULE_TYPES_H_
