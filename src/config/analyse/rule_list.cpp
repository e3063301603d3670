// "VideoAnalyseRule" and "AudioAnalyseRule": the analysis rules of a
// channel, as entries {RuleEntryHeader, rule record} back to back in the
// caller's rule buffer (VideoAnalyseRuleList, kova/records/analyse.h).
//
// Parse runs in two passes. The first decides everything that can fail
// before a byte is written: every rule's type and body size, and the room
// for all entries. The rule buffer is then cleared once and each rule
// record is written in place, its cleared bytes serving as the record's
// zeroed start. Rule records run to 342 KB each, so no scratch copy is
// made unless the caller's buffer puts a record at an address that is not
// 4-aligned.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <string>

#include "common/base/log.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "config/analyse/rule_config.h"
#include "config/analyse/rule_types.h"
#include "drivers/response_frame.h"
#include "kova/records/analyse.h"
#include "kova/records/analyse_setup.h"

namespace kova {

namespace {

using List = VideoAnalyseRuleList;

constexpr uint32_t kHeaderSize = KOVA_RULE_ENTRY_HEADER_SIZE;
constexpr uint32_t kMaxRules = KOVA_RULE_LIST_MAX_RULES;

// What the first pass learns of one rule.
struct RulePlan {
  uint32_t code;
  uint32_t bodySize;
  uint32_t sceneClass;
};

// The code of the rule's "Type"; 0 for a type that is not a string or
// names nothing.
uint32_t TypeCode(const Json::Value& type) {
  const std::string text = ToText(type);
  if (text.find('\0') != std::string::npos) return 0;
  return RuleTypeFromName(text.c_str());
}

uint32_t SceneClass(const Json::Value& cls) {
  if (cls.isNull()) {
    KOVA_REPORT(kErrMalformedData, "This class type is not exist!");
    return 0;
  }
  int32_t c = 0;
  EnumValue(kSceneClassNames, cls, &c);
  // The devices' own words, misspelling included.
  if (c == 0) KOVA_REPORT(kErrMalformedData, "This calss type is unknown!");
  return static_cast<uint32_t>(c);
}

// "Class" as an entry packs it; a class without a pack name packs as "".
constexpr Field kPackedClass = KOVA_ENUM(RuleEntryHeader, sceneClass, "Class", kSceneClassPackNames)
                                   .UnnamedAs(Unnamed::kEmptyText);

// First pass over rule `rule`: false when its type is one the list does not
// carry. A rule without "Type" passes here with code 0 and fails when its
// entry is written.
bool PlanRule(const Json::Value& rule, RulePlan* plan) {
  plan->code = 0;
  plan->bodySize = 0;
  const Json::Value& type = Member(rule, "Type");
  if (!type.isNull()) {
    plan->code = TypeCode(type);
    const int32_t size = RuleBodySize(plan->code);
    if (size <= 0) return false;
    plan->bodySize = static_cast<uint32_t>(size);
  }
  plan->sceneClass = SceneClass(Member(rule, "Class"));
  return true;
}

// True when a record at `p` may be worked on in place.
bool Aligned(const void* p) { return reinterpret_cast<uintptr_t>(p) % alignof(RuleLinkage) == 0; }

// Writes one entry at `at`, which has room for it and is cleared.
bool WriteEntry(const Json::Value& rule, const RulePlan& plan, unsigned char* at) {
  const RuleType* type = FindRuleType(plan.code);
  if (type == nullptr || type->recordSize != plan.bodySize) return false;
  const RuleEntryHeader header = {plan.code, plan.bodySize, plan.sceneClass};
  std::memcpy(at, &header, sizeof header);
  unsigned char* body = at + kHeaderSize;
  if (Aligned(body)) {
    ParseRuleBody(rule, body, *type);
    return true;
  }
  // A caller's buffer that puts the record out of line: built aside.
  std::unique_ptr<unsigned char[]> scratch(new (std::nothrow) unsigned char[plan.bodySize]());
  if (!scratch) return false;
  ParseRuleBody(rule, scratch.get(), *type);
  std::memcpy(body, scratch.get(), plan.bodySize);
  return true;
}

bool ParseRuleList(const Json::Value& table, const StepContext& /*ctx*/, unsigned char* record) {
  List list;
  std::memcpy(&list, record, sizeof list);
  // A missing or non-array table reads as no rules.
  const uint32_t n = table.isArray() ? std::min(Count(table), kMaxRules) : 0;
  list.ruleCount = n;
  std::memcpy(record + offsetof(List, ruleCount), &list.ruleCount, sizeof list.ruleCount);

  RulePlan plans[kMaxRules];
  uint64_t total = 0;
  for (uint32_t i = 0; i < n; ++i) {
    if (!PlanRule(Element(table, i), &plans[i])) return false;
    total += kHeaderSize + static_cast<uint64_t>(plans[i].bodySize);
  }
  if (total > list.ruleBufferLength) return false;
  if (n == 0) return true;
  if (list.ruleBuffer == nullptr) return false;

  std::memset(list.ruleBuffer, 0, list.ruleBufferLength);
  size_t at = 0;
  for (uint32_t i = 0; i < n; ++i) {
    if (!WriteEntry(Element(table, i), plans[i], list.ruleBuffer + at)) return false;
    at += kHeaderSize + plans[i].bodySize;
  }
  return true;
}

// The entry at `at` with `left` bytes to the end of the buffer: its header,
// its type and its body (read from `scratch` when the caller's buffer puts
// it out of line). Null when the entry is not one the library can read.
const RuleType* ReadEntry(const unsigned char* at, size_t left, RuleEntryHeader* header,
                          const unsigned char** body, std::unique_ptr<unsigned char[]>* scratch) {
  if (left < sizeof *header) return nullptr;
  std::memcpy(header, at, sizeof *header);
  const int32_t expected = RuleBodySize(header->ruleType);
  if (expected <= 0 || header->bodySize != static_cast<uint32_t>(expected)) return nullptr;
  if (left - sizeof *header < header->bodySize) return nullptr;
  const RuleType* type = FindRuleType(header->ruleType);
  if (type == nullptr || type->recordSize != header->bodySize) return nullptr;
  *body = at + kHeaderSize;
  if (!Aligned(*body)) {
    scratch->reset(new (std::nothrow) unsigned char[header->bodySize]);
    if (!*scratch) return nullptr;
    std::memcpy(scratch->get(), *body, header->bodySize);
    *body = scratch->get();
  }
  return type;
}

// One rule object, from its entry's header and body.
void PackRule(const RuleEntryHeader& header, const unsigned char* body, const RuleType& type,
              Json::Value& rule) {
  PackRuleBody(body, type, rule);
  SetKeptMember(rule, "Type") = RuleTypeName(header.ruleType);
  PackFields(&header, rule, &kPackedClass, 1);
}

void WriteName(const void* text, const Field*, TextSink* out) {
  const char* name = static_cast<const char*>(text);
  WriteJsonString(name, name + std::strlen(name), out);
}

// The text of PackRule.
void WriteRule(const RuleEntryHeader& header, const unsigned char* body, const RuleType& type,
               TextSink* out) {
  ObjectText rule;
  GatherRuleBody(body, type, &rule);
  rule.Member("Type", WriteName, RuleTypeName(header.ruleType));
  rule.Fields(&header, &kPackedClass, 1);
  rule.WriteOrPack(out, [&](Json::Value& tree) {
    tree = Json::Value(Json::objectValue);
    PackRule(header, body, type, tree);
  });
}

// The rules of the list, each entry read by `entry(header, body, type)`;
// false when an entry is not one the library can read.
template <typename Entry>
bool ForEachRule(const unsigned char* record, Entry entry) {
  List list;
  std::memcpy(&list, record, sizeof list);
  if (list.ruleCount > 0 && list.ruleBuffer == nullptr) return false;
  size_t at = 0;
  for (uint32_t i = 0; i < list.ruleCount; ++i) {
    RuleEntryHeader header;
    const unsigned char* body = nullptr;
    std::unique_ptr<unsigned char[]> scratch;
    const RuleType* type =
        ReadEntry(list.ruleBuffer + at, list.ruleBufferLength - at, &header, &body, &scratch);
    if (type == nullptr) return false;
    entry(i, header, body, *type);
    at += kHeaderSize + header.bodySize;
  }
  return true;
}

bool PackRuleList(const unsigned char* record, Json::Value& out) {
  out = Json::Value(Json::arrayValue);
  return ForEachRule(record, [&](uint32_t, const RuleEntryHeader& header, const unsigned char* body,
                                 const RuleType& type) {
    PackRule(header, body, type, Append(out, Json::Value(Json::objectValue)));
  });
}

bool PackRuleListText(const unsigned char* record, TextSink* out) {
  out->Literal("[ ");
  const bool read = ForEachRule(record, [&](uint32_t i, const RuleEntryHeader& header,
                                            const unsigned char* body, const RuleType& type) {
    if (i != 0) out->Literal(", ");
    WriteRule(header, body, type, out);
  });
  out->Literal(" ]");
  return read;
}

// "result" is not looked at.

}  // namespace

extern const ResponseFrame kVideoAnalyseRuleFrame =
    KeptRecordFrame<List>(ParseRuleList, Packing(PackRuleList, PackRuleListText)).IgnoreResult();

}  // namespace kova
