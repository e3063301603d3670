#include "events/analyse_rule_reader.h"

#include <cstdlib>

#include "common/base/allocation.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/analyse/rule_config.h"
#include "config/analyse/rule_types.h"
#include "kova/records/analyse.h"

namespace kova {

bool BuildRuleRecord(const Json::Value& rule, RuleRecord* out) {
  const Json::Value& type = Member(rule, "Type");
  out->typeCode = type.isNull() ? 0 : RuleTypeFromName(ToText(type).c_str());
  // A rule of a type without a record of its own still brings its head.
  const RuleType* described = FindRuleType(out->typeCode);
  out->size = described != nullptr ? described->recordSize : sizeof(RuleHead);
  out->record = AllocateZeroed(out->size);  // aligned for every rule record
  if (out->record == nullptr) return false;
  try {
    if (described != nullptr) {
      ParseRuleBody(rule, static_cast<unsigned char*>(out->record), *described);
    } else {
      ParseFields(rule, out->record, kRuleHeadTable);
    }
  } catch (...) {  // out of memory half-way
    ReleaseBlock(out->record);
    out->record = nullptr;
    return false;
  }
  return true;
}

}  // namespace kova
