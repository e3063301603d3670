#include "events/analyse_rule_reader.h"

#include <cstdlib>
#include <string>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/analyse/rule_types.h"
#include "kova/records/events.h"

namespace kova {

namespace {

constexpr Field kObjectTypeItem = KOVA_ITEM(char[128], kText);

constexpr Field kRuleHeadFields[] = {
    KOVA_F(AnalyseRuleHead, name, "Name", kText),
    KOVA_F(AnalyseRuleHead, enable, "Enable", kBool),
    KOVA_F(AnalyseRuleHead, trackEnable, "TrackEnable", kBool),
    KOVA_LIST(AnalyseRuleHead, objectTypes, "ObjectTypes", kObjectTypeItem)
        .Count(KOVA_AT(AnalyseRuleHead, objectTypeCount), CountRule::kAll),
};

}  // namespace

bool BuildRuleRecord(const Json::Value& rule, RuleRecord* out) {
  const Json::Value& type = Member(rule, "Type");
  out->typeCode = type.isNull() ? 0 : RuleTypeFromName(ToText(type).c_str());
  out->size = sizeof(AnalyseRuleHead);
  out->record = std::calloc(1, out->size);
  if (out->record == nullptr) return false;
  try {
    ParseFields(rule, out->record, kRuleHeadFields);
  } catch (...) {  // out of memory half-way
    std::free(out->record);
    out->record = nullptr;
    return false;
  }
  return true;
}

}  // namespace kova
