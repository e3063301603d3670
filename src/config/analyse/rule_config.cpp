#include "config/analyse/rule_config.h"

#include <cstddef>

#include "common/blocks/event_handler.h"
#include "common/json/json.h"

namespace kova {

namespace {

inline constexpr Field kObjectTypeItem = KOVA_ITEM(char[128], kText);

// The members of the rule object that open every rule record.
constexpr Field kRuleHeadFields[] = {
    KOVA_F(RuleHead, name, "Name", kText),
    KOVA_F(RuleHead, enable, "Enable", kBool),
    KOVA_F(RuleHead, trackEnable, "TrackEnable", kBool),
    KOVA_LIST(RuleHead, objectTypes, "ObjectTypes", kObjectTypeItem)
        .Count(KOVA_AT(RuleHead, objectTypeCount), CountRule::kAll)
        .KeepSlots(),
};

// The members of the rule object held in every record's RuleLinkage:
// "EventHandler" with its 7 x 10 "TimeSection". The linkage block keeps
// its own reading of "TimeSection" (the 8 x 6 holiday schedule) as every
// linkage block does; the rule's grid is the one written back.
constexpr Field kRuleLinkageFields[] = {
    KOVA_LINKAGE(RuleLinkage, eventHandler)
        .Grid(KOVA_SCHEDULE_AT(RuleLinkage, timeSection))
        .AlwaysRead(),
    KOVA_F(RuleLinkage, ptzPresetId, "PtzPresetId", kInt),
};

// An audio rule's head: no object types.
constexpr Field kAudioRuleHeadFields[] = {
    KOVA_F(AudioRuleHead, name, "Name", kText),
    KOVA_F(AudioRuleHead, enable, "Enable", kBool),
    KOVA_F(AudioRuleHead, trackEnable, "TrackEnable", kBool),
};

}  // namespace

const FieldTable kRuleHeadTable{kRuleHeadFields,
                                sizeof kRuleHeadFields / sizeof kRuleHeadFields[0]};
const FieldTable kAudioRuleHeadTable{kAudioRuleHeadFields,
                                     sizeof kAudioRuleHeadFields / sizeof kAudioRuleHeadFields[0]};

void ParseRuleBody(const Json::Value& rule, unsigned char* body, const RuleType& type) {
  ParseFields(rule, body, *type.head);
  ParseFields(Member(rule, "Config"), body, type.config);
  ParseFields(rule, body + type.linkageOffset, kRuleLinkageFields);
}

void PackRuleBody(const unsigned char* body, const RuleType& type, Json::Value& rule) {
  PackFields(body, rule, *type.head);
  PackFields(body + type.linkageOffset, rule, kRuleLinkageFields);
  Json::Value& config = SetKeptMember(rule, "Config");
  config = Json::Value(Json::objectValue);
  PackFields(body, config, type.config);
}

void GatherRuleBody(const unsigned char* body, const RuleType& type, ObjectText* rule) {
  rule->Fields(body, *type.head);
  rule->Fields(body + type.linkageOffset, kRuleLinkageFields);
  rule->Member("Config", body, type.config);
}

}  // namespace kova
