// A hash table of a fixed list's names, made once, so that a lookup hashes
// the name once and compares it with one name or so, rather than walking
// the list. Names that fold alike hash alike, and of names that compare
// equal the first listed sits before the others on their probe chain: it
// wins.
#ifndef KOVA_COMMON_BASE_NAME_INDEX_H_
#define KOVA_COMMON_BASE_NAME_INDEX_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "common/base/ascii.h"

namespace kova {

// The name of a list's entry, its `name`.
struct EntryName {
  template <typename Entry>
  const char* operator()(const Entry& e) const {
    return e.name;
  }
};

// kSlots: a power of two, at least twice the list's length. kFoldCase: names
// compared after folding, or exactly.
template <uint32_t kSlots, bool kFoldCase = true>
class NameIndex {
 public:
  // `nameOf(entry)` gives an entry's name; one without a name (null) is
  // not entered.
  template <typename Entry, typename NameOf = EntryName>
  NameIndex(const Entry* list, size_t count, NameOf nameOf = NameOf()) {
    for (size_t i = 0; i < count; ++i) {
      const char* name = nameOf(list[i]);
      if (name != nullptr) Add(i, name);
    }
  }
  // An empty index of a list that grows: each entry entered with Add.
  NameIndex() = default;

  // Enters entry `i` of the list under `name`. Past half the slots nothing
  // more is entered (and found).
  void Add(size_t i, std::string_view name) {
    if (i >= kSlots / 2) return;
    uint32_t h = Hash(name) & kMask;
    while (slots_[h] != 0) h = (h + 1) & kMask;
    slots_[h] = static_cast<uint16_t>(i + 1);
  }

  // The index in the list of the name equal to `text`; -1 for none.
  // `nameOf(entry)` gives a NUL-terminated name or a std::string_view.
  template <typename Entry, typename NameOf = EntryName>
  int Find(const Entry* list, std::string_view text, NameOf nameOf = NameOf()) const {
    for (uint32_t h = Hash(text) & kMask; slots_[h] != 0; h = (h + 1) & kMask) {
      const int i = slots_[h] - 1;
      const std::string_view name(nameOf(list[i]));
      if (kFoldCase ? AsciiEqualNoCase(name, text) : name == text) return i;
    }
    return -1;
  }

 private:
  static_assert(kSlots > 0 && (kSlots & (kSlots - 1)) == 0, "a power of two");
  static constexpr uint32_t kMask = kSlots - 1;

  // Eight bytes at a time, each with bit 5 set: names that fold alike hash
  // alike (other bytes may collide too, which the comparison settles). The
  // last bytes are gathered one by one: a short copy into the word and a
  // load of all of it would stall the load on the copy.
  static uint32_t Hash(std::string_view name) {
    uint64_t h = name.size();
    const char* p = name.data();
    size_t left = name.size();
    const auto mix = [&h](uint64_t chunk) {
      h = (h ^ (chunk | 0x2020202020202020u)) * 0x9E3779B97F4A7C15u;
    };
    for (; left >= 8; left -= 8, p += 8) {
      uint64_t chunk;
      std::memcpy(&chunk, p, 8);
      mix(chunk);
    }
    if (left > 0) {
      uint64_t chunk = 0;
      for (size_t k = 0; k < left; ++k) {
        chunk |= static_cast<uint64_t>(static_cast<unsigned char>(p[k])) << (8 * k);
      }
      mix(chunk);
    }
    return static_cast<uint32_t>(h >> 32);
  }

  uint16_t slots_[kSlots] = {};
};

}  // namespace kova

#endif  // KOVA_COMMON_BASE_NAME_INDEX_H_
