// The member index of the field walker (field_walker.cpp only).
#ifndef KOVA_COMMON_FIELDS_MEMBER_INDEX_H_
#define KOVA_COMMON_FIELDS_MEMBER_INDEX_H_

#include <json/value.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "common/json/json.h"

namespace kova {
namespace walk {

// The members of one object, for a table that looks them up: one walk over
// the object into a small hash table, then each key found by plain
// comparisons instead of a search of the JSON library's tree (several
// times faster on the objects devices send). Members beyond what fits are
// looked up directly.
class MemberIndex {
 public:
  explicit MemberIndex(const Json::Value& obj) : obj_(obj) {
    ForEachMemberInPlace(obj, [this](const char* name, size_t length, const Json::Value& value) {
      if (n_ == kCapacity) {
        complete_ = false;
        return false;
      }
      uint32_t h = Hash(name, length);
      while (slots_[h] != 0) h = (h + 1) & kSlotMask;
      entries_[n_] = Entry{name, length, &value};
      slots_[h] = static_cast<uint8_t>(++n_);
      return true;
    });
  }

  const Json::Value& Find(const char* key) const {
    const size_t length = std::strlen(key);
    for (uint32_t h = Hash(key, length); slots_[h] != 0; h = (h + 1) & kSlotMask) {
      const Entry& e = entries_[slots_[h] - 1];
      if (e.length == length && std::memcmp(e.name, key, length) == 0) return *e.value;
    }
    return complete_ ? Null() : Member(obj_, key);
  }

  const Json::Value& object() const { return obj_; }

 private:
  static constexpr uint32_t kCapacity = 48;
  static constexpr uint32_t kSlotMask = 63;  // 64 slots: at most three quarters used

  static uint32_t Hash(const char* name, size_t length) {
    if (length == 0) return 0;
    const uint32_t first = static_cast<unsigned char>(name[0]);
    const uint32_t last = static_cast<unsigned char>(name[length - 1]);
    return (static_cast<uint32_t>(length) * 37u + first * 7u + last) & kSlotMask;
  }

  struct Entry {
    const char* name;
    size_t length;
    const Json::Value* value;
  };
  const Json::Value& obj_;
  bool complete_ = true;
  uint32_t n_ = 0;
  uint8_t slots_[kSlotMask + 1] = {};
  Entry entries_[kCapacity];
};

}  // namespace walk
}  // namespace kova

#endif  // KOVA_COMMON_FIELDS_MEMBER_INDEX_H_
