// The walker's lists: fixed lists of entries in the record, and lists whose
// entries are allocated on parse and released by ReleaseFields.
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "common/base/allocation.h"
#include "common/base/log.h"
#include "common/fields/field_table.h"
#include "common/fields/field_walk.h"
#include "common/json/json.h"

namespace kova {

namespace {

// Entries of an allocated list sit behind a header that holds their
// number, so that release and copies never depend on the count member
// (a list that keeps slots may count fewer entries than it holds).
constexpr size_t kEntriesHeader = alignof(std::max_align_t);

unsigned char* AllocateEntries(uint32_t slots, uint32_t size) {
  void* block = AllocateZeroed(kEntriesHeader + static_cast<size_t>(slots) * size);
  if (block == nullptr) return nullptr;
  const uint64_t n = slots;
  std::memcpy(block, &n, sizeof n);
  return static_cast<unsigned char*>(block) + kEntriesHeader;
}

unsigned char* LoadPointer(const unsigned char* member) {
  unsigned char* p;
  std::memcpy(&p, member, sizeof p);
  return p;
}

void StorePointer(unsigned char* member, const unsigned char* p) {
  std::memcpy(member, &p, sizeof p);
}

void ReleaseValue(unsigned char* member, const Field& f);

// Frees list `f` of `record` (f.offset and the count inside `record`).
void ReleaseList(unsigned char* record, const Field& f) {
  unsigned char* base = record + f.offset;
  if (!f.allocated) {
    if (f.element == nullptr) return;
    if (f.element->shape != FieldShape::kNested && f.element->shape != FieldShape::kList) return;
    for (uint32_t i = 0; i < f.capacity; ++i) {
      ReleaseValue(base + static_cast<size_t>(i) * f.size + f.element->offset, *f.element);
    }
    return;
  }
  unsigned char* entries = LoadPointer(base);
  if (entries == nullptr) return;
  const uint32_t slots = AllocatedSlots(entries);
  for (uint32_t i = 0; i < slots && f.element != nullptr; ++i) {
    ReleaseValue(entries + static_cast<size_t>(i) * f.size + f.element->offset, *f.element);
  }
  ReleaseBlock(entries - kEntriesHeader);
  StorePointer(base, nullptr);
  if (f.count.size != 0) StoreInt(record + f.count.offset, f.count.size, 0);
}

// Releases one value laid out as `f` describes, starting at `member`.
void ReleaseValue(unsigned char* member, const Field& f) {
  if (f.shape == FieldShape::kNested && f.table != nullptr) {
    ReleaseFields(member, f.table->fields, f.table->count);
  } else if (f.shape == FieldShape::kList) {
    // `member` is the list itself; its offset and count sit in the slot around it.
    ReleaseList(member - f.offset, f);
  }
}

}  // namespace

namespace walk {

uint32_t LoadCount(const unsigned char* record, const Field& f) {
  if (f.count.size == 0) return f.capacity;
  return CutCount(LoadInt(record + f.count.offset, f.count.size, f.count.isSigned), f.capacity);
}

// A list: element i (or the i-th entry taken) into its slot; the count
// member by the field's rule. `record` is where the field's offset and its
// count's offset count from. A non-array leaves everything as it was, unless
// the field reads any type (then it is an empty list).
bool ParseList(const Json::Value& v, unsigned char* record, const Field& f) {
  if (f.element == nullptr || (!v.isArray() && !ReadsAnyType(f))) return false;
  unsigned char* base = record + f.offset;
  const uint32_t n = Count(v);
  uint32_t slots = f.capacity;
  if (f.allocated) {
    ReleaseList(record, f);
    slots = std::min(n, f.capacity);
    base = slots > 0 ? AllocateEntries(slots, f.size) : nullptr;
    if (slots > 0 && base == nullptr) {
      if (f.noMemoryReport != nullptr) KOVA_REPORT(kErrMalformedData, "%s", f.noMemoryReport);
      return false;
    }
    StorePointer(record + f.offset, base);
  }
  uint32_t looked = 0, taken = 0, nonNull = 0;
  // Slots are filled in element order; the walk stops at the first element
  // that has no slot left.
  ForEachElement(v, [&](uint32_t i, const Json::Value& e) {
    const uint32_t slot = f.keepSlots ? i : taken;
    if (slot >= slots) return false;
    ++looked;
    if (e.isNull()) {
      if (!f.element->alwaysRead) return true;
    } else {
      ++nonNull;
    }
    unsigned char* entry = base + static_cast<size_t>(slot) * f.size + f.element->offset;
    if (ParseValue(e, entry, *f.element)) ++taken;
    return true;
  });
  if (f.count.size != 0) {
    uint32_t c = std::min(looked, f.capacity);
    switch (f.countRule) {
      case CountRule::kAll:
        break;
      case CountRule::kTaken:
        c = taken;
        break;
      case CountRule::kNonNull:
        c = nonNull;
        break;
      case CountRule::kLength:
        c = n;
        break;
    }
    StoreInt(record + f.count.offset, f.count.size, c);
  }
  return true;
}

// The list `f` of `record` as a JSON array of its counted entries.
void PackList(const unsigned char* record, const Field& f, Json::Value* out) {
  const uint32_t n = LoadCount(record, f);
  *out = Json::Value(Json::arrayValue);
  if (f.element == nullptr) return;
  for (uint32_t k = 0; k < n; ++k) {
    Json::Value item;
    const unsigned char* entry =
        record + f.offset + static_cast<size_t>(k) * f.size + f.element->offset;
    if (PackValue(entry, *f.element, &item)) out->append(std::move(item));
  }
}

}  // namespace walk

uint32_t AllocatedSlots(const void* entries) {
  uint64_t n;
  std::memcpy(&n, static_cast<const unsigned char*>(entries) - kEntriesHeader, sizeof n);
  return static_cast<uint32_t>(n);
}

void ReleaseFields(void* record, const Field* fields, size_t count) {
  unsigned char* base = static_cast<unsigned char*>(record);
  for (size_t i = 0; i < count; ++i) {
    const Field& f = fields[i];
    if (f.shape == FieldShape::kList) {
      ReleaseList(base, f);
    } else if (f.shape == FieldShape::kNested) {
      ReleaseValue(base + f.offset, f);
    }
  }
}

}  // namespace kova
