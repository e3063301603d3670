// The member index of the field walker (field_walker.cpp only).
#ifndef KOVA_COMMON_FIELDS_MEMBER_INDEX_H_
#define KOVA_COMMON_FIELDS_MEMBER_INDEX_H_

#include <json/value.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "common/fields/field.h"
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
      uint32_t h = KeyHash(name, length);
      while (slots_[h] != 0) h = (h + 1) & kSlotMask;
      entries_[n_] = Entry{name, length, &value};
      slots_[h] = static_cast<uint8_t>(++n_);
      return true;
    });
  }

  // The value of `f`'s member; null when the object has no such member.
  const Json::Value* Find(const Field& f) const {
    const size_t length = f.keyLength;
    for (uint32_t h = f.keyHash; slots_[h] != 0; h = (h + 1) & kSlotMask) {
      const Entry& e = entries_[slots_[h] - 1];
      if (e.length == length && SameBytes(e.name, f.key, length)) return e.value;
    }
    return complete_ ? nullptr : FindMember(obj_, f.key, length);
  }

  const Json::Value& object() const { return obj_; }

 private:
  // Member names are short: compared here, eight bytes at a time, instead
  // of by a call into the C library.
  static bool SameBytes(const char* a, const char* b, size_t n) {
    for (; n >= 8; n -= 8, a += 8, b += 8) {
      uint64_t x;
      uint64_t y;
      std::memcpy(&x, a, 8);
      std::memcpy(&y, b, 8);
      if (x != y) return false;
    }
    for (; n > 0; --n, ++a, ++b) {
      if (*a != *b) return false;
    }
    return true;
  }

  static constexpr uint32_t kCapacity = 48;
  static constexpr uint32_t kSlotMask = 63;  // 64 slots (KeyHash): at most three quarters used

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
