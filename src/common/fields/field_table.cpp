#include "common/fields/field_table.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <utility>

#include "common/base/ascii.h"
#include "common/base/log.h"
#include "common/fields/fields.h"
#include "common/json/json.h"

namespace kova {

namespace {

bool TextEquals(std::string_view name, std::string_view text, bool exact) {
  return exact ? name == text : AsciiEqualNoCase(name, text);
}

void WriteFlag(unsigned char* record, const Field& f, int64_t value) {
  if (f.presence != Presence::kFlag || f.flag.size == 0) return;
  StoreInt(record + f.flag.offset, f.flag.size, value);
}

bool AnyByteSet(const unsigned char* p, uint32_t n) {
  for (uint32_t i = 0; i < n; ++i) {
    if (p[i] != 0) return true;
  }
  return false;
}

// Whether a nested block or list reads a value that is not of its JSON type
// (as empty).
bool ReadsAnyType(const Field& f) { return f.anyType || f.alwaysRead; }

bool Present(const unsigned char* record, const Field& f) {
  switch (f.presence) {
    case Presence::kAlways:
      return true;
    case Presence::kFlag:
      return LoadInt(record + f.flag.offset, f.flag.size, false) != 0;
    case Presence::kSentinel:
      return LoadInt(record + f.offset, f.size, true) != f.sentinel;
    case Presence::kNonNegative:
      return LoadInt(record + f.offset, f.size, true) >= 0;
    case Presence::kAnySet:
      return AnyByteSet(record + f.flag.offset, f.flag.size);
  }
  return true;
}

// One scalar of kind f.kind and width f.size.
bool ParseScalar(const Json::Value& v, unsigned char* p, const Field& f) {
  switch (f.kind) {
    case FieldKind::kBool:
      StoreInt(p, f.size, ToBool(v) ? 1 : 0);
      return true;
    case FieldKind::kInt:
      StoreInt(p, f.size, ToInt32(v));
      return true;
    case FieldKind::kUInt:
      StoreInt(p, f.size, ToUInt32(v));
      return true;
    case FieldKind::kReal:
      if (f.size == sizeof(float)) {
        const float x = static_cast<float>(ToDouble(v));
        std::memcpy(p, &x, sizeof x);
      } else if (f.size == sizeof(double)) {
        const double x = ToDouble(v);
        std::memcpy(p, &x, sizeof x);
      }
      return true;
    case FieldKind::kText:
    case FieldKind::kTextRaw:
      GetJsonString(v, reinterpret_cast<char*>(p), f.size, f.kind == FieldKind::kText);
      return true;
    case FieldKind::kEnum: {
      int32_t value = 0;
      if (f.names == nullptr) return false;
      if (EnumValue(*f.names, v, &value)) {
        StoreInt(p, f.size, value);
        return true;
      }
      if (f.names->setOnUnknown) {
        StoreInt(p, f.size, f.names->unknownValue);
        return true;
      }
      return false;
    }
    case FieldKind::kObject:
    case FieldKind::kCustom:
      return false;
  }
  return false;
}

bool PackScalar(const unsigned char* p, const Field& f, Json::Value* out) {
  if (f.packAs == PackAs::kBoolNonZero) {
    *out = LoadInt(p, f.size, false) != 0;
    return true;
  }
  if (f.packAs == PackAs::kBoolEqualsOne) {
    *out = LoadInt(p, f.size, true) == 1;
    return true;
  }
  switch (f.kind) {
    case FieldKind::kBool:
      *out = LoadInt(p, f.size, false) != 0;
      return true;
    case FieldKind::kInt:
      *out = static_cast<Json::Int64>(LoadInt(p, f.size, true));
      return true;
    case FieldKind::kUInt:
      *out = static_cast<Json::UInt64>(LoadInt(p, f.size, false));
      return true;
    case FieldKind::kReal:
      if (f.size == sizeof(float)) {
        float x;
        std::memcpy(&x, p, sizeof x);
        *out = static_cast<double>(x);
      } else if (f.size == sizeof(double)) {
        double x;
        std::memcpy(&x, p, sizeof x);
        *out = x;
      } else {
        return false;
      }
      return true;
    case FieldKind::kText:
    case FieldKind::kTextRaw:
      SetJsonStringBounded(*out, reinterpret_cast<const char*>(p), f.size,
                           f.kind == FieldKind::kText);
      return true;
    case FieldKind::kEnum: {
      if (f.names == nullptr) return false;
      const char* name = EnumName(*f.names, LoadInt(p, f.size, true));
      if (name != nullptr) {
        *out = name;
        return true;
      }
      Unnamed rule = f.unnamed;
      if (rule == Unnamed::kTable)
        rule = f.names->omitUnnamed ? Unnamed::kOmit : Unnamed::kEmptyText;
      const char* fallback = nullptr;
      switch (rule) {
        case Unnamed::kOmit:
          return false;
        case Unnamed::kNull:
          *out = Json::Value(Json::nullValue);
          return true;
        case Unnamed::kFirstName:
          fallback = f.names->count > 0 ? f.names->names[0] : nullptr;
          break;
        case Unnamed::kUnknownName:
          fallback = EnumName(*f.names, f.names->unknownValue);
          break;
        case Unnamed::kTable:
        case Unnamed::kEmptyText:
          break;
      }
      *out = fallback != nullptr ? fallback : "";
      return true;
    }
    case FieldKind::kObject:
    case FieldKind::kCustom:
      return false;
  }
  return false;
}

// Entries of an allocated list sit behind a header that holds their
// number, so that release and copies never depend on the count member
// (a list that keeps slots may count fewer entries than it holds).
constexpr size_t kEntriesHeader = alignof(std::max_align_t);

unsigned char* AllocateEntries(uint32_t slots, uint32_t size) {
  void* block = std::calloc(1, kEntriesHeader + static_cast<size_t>(slots) * size);
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
  std::free(entries - kEntriesHeader);
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

const Json::Value& Null() {
  static const Json::Value kNull;
  return kNull;
}

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

}  // namespace

bool ParseValue(const Json::Value& value, unsigned char* member, const Field& f) {
  switch (f.shape) {
    case FieldShape::kScalar:
      return ParseScalar(value, member, f);
    case FieldShape::kNested:
      if (f.table == nullptr || (!value.isObject() && !ReadsAnyType(f))) return false;
      // Member() of anything but an object is null: every member reads as missing.
      ParseFields(value, member, *f.table);
      return true;
    case FieldShape::kTuple: {
      if (!value.isArray() || Count(value) < f.minItems) return false;
      ForEachElement(value, [&](uint32_t i, const Json::Value& item) {
        if (i >= f.capacity) return false;
        ParseScalar(item, member + i * f.size, f);
        return true;
      });
      return true;
    }
    case FieldShape::kList:
      // A list entry that is itself a list: `member` is the list itself; its
      // offset and count sit in the entry's slot around it.
      return ParseList(value, member - f.offset, f);
    case FieldShape::kCustom:
      return false;
  }
  return false;
}

bool PackValue(const unsigned char* member, const Field& f, Json::Value* out) {
  switch (f.shape) {
    case FieldShape::kScalar:
      return PackScalar(member, f, out);
    case FieldShape::kNested:
      if (f.table == nullptr) return false;
      *out = Json::Value(Json::objectValue);
      PackFields(member, *out, f.table->fields, f.table->count);
      if (f.nullWhenEmpty && out->empty()) *out = Json::Value(Json::nullValue);
      return true;
    case FieldShape::kTuple: {
      *out = Json::Value(Json::arrayValue);
      for (uint32_t i = 0; i < f.capacity; ++i) {
        Json::Value item;
        if (!PackScalar(member + i * f.size, f, &item)) item = "";
        out->append(std::move(item));
      }
      return true;
    }
    case FieldShape::kList:
      if (f.element == nullptr) return false;
      PackList(member - f.offset, f, out);  // a list entry that is itself a list, as in ParseValue
      return true;
    case FieldShape::kCustom:
      return false;
  }
  return false;
}

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

int64_t LoadInt(const void* p, uint32_t size, bool isSigned) {
  switch (size) {
    case 1: {
      uint8_t x;
      std::memcpy(&x, p, 1);
      return isSigned ? static_cast<int64_t>(static_cast<int8_t>(x)) : x;
    }
    case 2: {
      uint16_t x;
      std::memcpy(&x, p, 2);
      return isSigned ? static_cast<int64_t>(static_cast<int16_t>(x)) : x;
    }
    case 4: {
      uint32_t x;
      std::memcpy(&x, p, 4);
      return isSigned ? static_cast<int64_t>(static_cast<int32_t>(x)) : x;
    }
    case 8: {
      int64_t x;
      std::memcpy(&x, p, 8);
      return x;
    }
    default:
      return 0;
  }
}

void StoreInt(void* p, uint32_t size, int64_t value) {
  switch (size) {
    case 1: {
      const uint8_t x = static_cast<uint8_t>(value);
      std::memcpy(p, &x, 1);
      break;
    }
    case 2: {
      const uint16_t x = static_cast<uint16_t>(value);
      std::memcpy(p, &x, 2);
      break;
    }
    case 4: {
      const uint32_t x = static_cast<uint32_t>(value);
      std::memcpy(p, &x, 4);
      break;
    }
    case 8:
      std::memcpy(p, &value, 8);
      break;
    default:
      break;
  }
}

bool EnumValue(const EnumNames& e, const Json::Value& v, int32_t* value) {
  if (!v.isString()) return false;
  const std::string text = ToText(v);
  for (const char* const* list : {e.names, e.aliases}) {
    if (list == nullptr) continue;
    for (uint32_t i = 0; i < e.count; ++i) {
      if (list[i] != nullptr && TextEquals(list[i], text, e.exact)) {
        *value = e.first + static_cast<int32_t>(i);
        return true;
      }
    }
  }
  return false;
}

const char* EnumName(const EnumNames& e, int64_t value) {
  const int64_t i = value - e.first;
  if (e.names == nullptr || i < 0 || i >= static_cast<int64_t>(e.count)) return nullptr;
  return e.names[i];
}

void MarkPresent(unsigned char* record, const Field& f) { WriteFlag(record, f, 1); }

uint32_t CutCount(int64_t count, uint32_t capacity) {
  if (count <= 0) return 0;
  return count < static_cast<int64_t>(capacity) ? static_cast<uint32_t>(count) : capacity;
}

namespace {

// One field of a parse walk, given the member's value (null when missing).
void ParseField(const Json::Value& obj, const Json::Value& v, unsigned char* base, const Field& f) {
  if (f.direction == Direction::kPackOnly) return;
  if (f.shape == FieldShape::kCustom) {
    if (f.parse != nullptr) f.parse(obj, base, f);
    return;
  }
  if (v.isNull()) {
    if (f.hasMissingValue) StoreInt(base + f.offset, f.size, f.missingValue);
    if (!f.alwaysRead) {
      if (f.clearsFlag) WriteFlag(base, f, 0);
      return;
    }
  }
  const bool read =
      f.shape == FieldShape::kList ? ParseList(v, base, f) : ParseValue(v, base + f.offset, f);
  // A scalar that is present counts as present even when its text names
  // nothing; a block or list of the wrong JSON type does not (unless it
  // reads any type).
  if (read || f.shape == FieldShape::kScalar || f.alwaysRead) {
    WriteFlag(base, f, 1);
  } else if (f.clearsFlag) {
    WriteFlag(base, f, 0);
  }
}

void ParseIndexed(const MemberIndex& members, unsigned char* base, const Field* fields,
                  size_t count) {
  const Json::Value& obj = members.object();
  for (size_t i = 0; i < count; ++i) {
    const Field& f = fields[i];
    if (f.key == nullptr && f.shape == FieldShape::kNested && f.table != nullptr &&
        f.direction != Direction::kPackOnly) {
      // A block whose members sit in this object: the same index serves it.
      if (!obj.isObject()) continue;
      ParseIndexed(members, base + f.offset, f.table->fields, f.table->count);
      WriteFlag(base, f, 1);
      continue;
    }
    const Json::Value& v =
        f.shape == FieldShape::kCustom ? Null() : (f.key != nullptr ? members.Find(f.key) : obj);
    ParseField(obj, v, base, f);
  }
}

}  // namespace

void ParseFields(const Json::Value& obj, void* record, const Field* fields, size_t count) {
  unsigned char* base = static_cast<unsigned char*>(record);
  if (count == 1 && fields[0].key != nullptr) {
    // One member to look up: no index is worth building.
    ParseField(obj, Member(obj, fields[0].key), base, fields[0]);
    return;
  }
  ParseIndexed(MemberIndex(obj), base, fields, count);
}

void PackFields(const void* record, Json::Value& obj, const Field* fields, size_t count) {
  const unsigned char* base = static_cast<const unsigned char*>(record);
  for (size_t i = 0; i < count; ++i) {
    const Field& f = fields[i];
    if (f.direction == Direction::kParseOnly) continue;
    if (!Present(base, f)) continue;
    if (f.shape == FieldShape::kCustom) {
      if (f.pack != nullptr) f.pack(base, obj, f);
      continue;
    }
    if (f.allocated) continue;
    if (f.key == nullptr) {
      if (f.shape == FieldShape::kNested && f.table != nullptr) {
        PackFields(base + f.offset, obj, f.table->fields, f.table->count);
      }
      continue;
    }
    Json::Value v;
    bool written = true;
    if (f.shape == FieldShape::kList) {
      PackList(base, f, &v);  // the count member lives in the record, not in the list's slots
    } else {
      written = PackValue(base + f.offset, f, &v);
    }
    // Moved, not copied: a nested block or list is a whole tree.
    if (written) SetMember(obj, f.key) = std::move(v);
  }
}

}  // namespace kova
