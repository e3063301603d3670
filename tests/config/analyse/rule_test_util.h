// Helpers of the analysis rule tests: a rule list parsed into a buffer of
// its own, its entries read back as typed records, and single entries
// packed.
#ifndef KOVA_TESTS_CONFIG_ANALYSE_RULE_TEST_UTIL_H_
#define KOVA_TESTS_CONFIG_ANALYSE_RULE_TEST_UTIL_H_

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "kova/kova.h"
#include "kova/records/analyse.h"

namespace kova_test {

// Room for the largest list: 32 entries of the largest body.
constexpr uint32_t kRuleRoom = 32u * (KOVA_RULE_ENTRY_HEADER_SIZE + 347232u);

// A rule list parsed from a device document.
struct RuleList {
  int rc = 0;
  uint32_t count = 0;
  std::vector<uint8_t> buffer;
  std::vector<size_t> offsets;  // of each entry's header

  RuleEntryHeader Header(size_t i) const {
    RuleEntryHeader h;
    std::memcpy(&h, buffer.data() + offsets.at(i), sizeof h);
    return h;
  }

  // Entry i as a record of type Rec (copied out: bodies sit at 4-byte
  // steps); fails the test when its header is not {code, sizeof(Rec)}.
  template <typename Rec>
  std::unique_ptr<Rec> Body(size_t i, uint32_t code) const {
    std::unique_ptr<Rec> r(new Rec);
    std::memset(r.get(), 0, sizeof(Rec));
    if (i >= offsets.size()) {
      ADD_FAILURE() << "no entry " << i;
      return r;
    }
    const RuleEntryHeader h = Header(i);
    EXPECT_EQ(code, h.ruleType) << "entry " << i;
    EXPECT_EQ(sizeof(Rec), h.bodySize) << "entry " << i;
    if (h.bodySize == sizeof(Rec)) {
      std::memcpy(r.get(), buffer.data() + offsets[i] + KOVA_RULE_ENTRY_HEADER_SIZE, sizeof(Rec));
    }
    return r;
  }
};

inline RuleList ParseRules(const char* name, const std::string& json, uint32_t room = kRuleRoom) {
  RuleList l;
  l.buffer.assign(room, 0xEE);
  VideoAnalyseRuleList list = {0, l.buffer.data(), room};
  uint32_t retLen = 0;
  l.rc = KOVA_ParseData(name, json.c_str(), &list, sizeof list, &retLen);
  l.count = list.ruleCount;
  if (l.rc == 0) return l;
  size_t at = 0;
  for (uint32_t i = 0; i < list.ruleCount && at + KOVA_RULE_ENTRY_HEADER_SIZE <= room; ++i) {
    l.offsets.push_back(at);
    at += KOVA_RULE_ENTRY_HEADER_SIZE + l.Header(i).bodySize;
  }
  l.buffer.resize(at);
  return l;
}

// The packed text of `count` entries from entry `first` on, or "<failed>".
inline std::string PackRules(const char* name, const RuleList& l, size_t first, size_t count) {
  if (first + count > l.offsets.size()) return "<failed>";
  const size_t from = l.offsets[first];
  const size_t to = first + count < l.offsets.size() ? l.offsets[first + count] : l.buffer.size();
  std::vector<uint8_t> entries(l.buffer.begin() + from, l.buffer.begin() + to);
  VideoAnalyseRuleList list = {static_cast<uint32_t>(count), entries.data(),
                               static_cast<uint32_t>(entries.size())};
  std::vector<char> text(4u << 20);
  if (!KOVA_PacketData(name, &list, sizeof list, text.data(), static_cast<uint32_t>(text.size()))) {
    return "<failed>";
  }
  return std::string(text.data());
}
inline std::string PackRules(const char* name, const RuleList& l) {
  return PackRules(name, l, 0, l.offsets.size());
}

// The text of the first "Config" object in packed rules; "" when none.
inline std::string ConfigText(const std::string& packed) {
  const std::string key = "\"Config\" : ";
  const size_t start = packed.find(key);
  if (start == std::string::npos) return "";
  const size_t open = start + key.size();
  int depth = 0;
  for (size_t i = open; i < packed.size(); ++i) {
    if (packed[i] == '{') ++depth;
    if (packed[i] == '}' && --depth == 0) return packed.substr(open, i - open + 1);
  }
  return "";
}

}  // namespace kova_test

#endif  // KOVA_TESTS_CONFIG_ANALYSE_RULE_TEST_UTIL_H_
