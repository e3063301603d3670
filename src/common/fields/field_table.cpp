#include "common/fields/field_table.h"

#include <algorithm>
#include <cstring>

#include "common/fields/fields.h"
#include "common/json/json.h"

namespace kova {

namespace {

bool TextEquals(const char* a, const std::string& b, bool exact) {
  const size_t n = std::strlen(a);
  if (n != b.size()) return false;
  for (size_t i = 0; i < n; ++i) {
    char x = a[i];
    char y = b[i];
    if (!exact) {
      if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
      if (y >= 'A' && y <= 'Z') y = static_cast<char>(y - 'A' + 'a');
    }
    if (x != y) return false;
  }
  return true;
}

void SetFlag(unsigned char* record, const Field& f) {
  if (f.presence != Presence::kFlag || f.flag.size == 0) return;
  StoreInt(record + f.flag.offset, f.flag.size, 1);
}

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
      if (rule == Unnamed::kTable) rule = f.names->omitUnnamed ? Unnamed::kOmit : Unnamed::kEmptyText;
      if (rule == Unnamed::kOmit) return false;
      if (rule == Unnamed::kFirstName && f.names->count > 0 && f.names->names[0] != nullptr) {
        *out = f.names->names[0];
      } else {
        *out = "";
      }
      return true;
    }
    case FieldKind::kObject:
    case FieldKind::kCustom:
      return false;
  }
  return false;
}

uint32_t LoadCount(const unsigned char* record, const Field& f) {
  if (f.count.size == 0) return f.capacity;
  const int64_t n = LoadInt(record + f.count.offset, f.count.size, false);
  if (n < 0) return 0;
  return n > static_cast<int64_t>(f.capacity) ? f.capacity : static_cast<uint32_t>(n);
}

// A list: element i (or the i-th entry taken) into its slot; the count
// member by the field's rule. A non-array leaves everything as it was.
bool ParseList(const Json::Value& v, unsigned char* record, const Field& f) {
  if (!v.isArray() || f.element == nullptr) return false;
  unsigned char* base = record + f.offset;
  const uint32_t n = Count(v);
  uint32_t looked = 0, taken = 0, nonNull = 0;
  for (uint32_t i = 0; i < n; ++i) {
    const uint32_t slot = f.keepSlots ? i : taken;
    if (slot >= f.capacity) break;
    ++looked;
    const Json::Value& e = Element(v, i);
    if (e.isNull()) continue;
    ++nonNull;
    unsigned char* entry = base + static_cast<size_t>(slot) * f.size + f.element->offset;
    if (ParseValue(e, entry, *f.element)) ++taken;
  }
  if (f.count.size != 0) {
    const uint32_t c = f.countRule == CountRule::kAll     ? looked
                       : f.countRule == CountRule::kTaken ? taken
                                                          : nonNull;
    StoreInt(record + f.count.offset, f.count.size, c);
  }
  return true;
}

}  // namespace

bool ParseValue(const Json::Value& value, unsigned char* member, const Field& f) {
  switch (f.shape) {
    case FieldShape::kScalar:
      return ParseScalar(value, member, f);
    case FieldShape::kNested:
      if (!value.isObject() || f.table == nullptr) return false;
      ParseFields(value, member, f.table->fields, f.table->count);
      return true;
    case FieldShape::kTuple: {
      if (!value.isArray() || Count(value) < f.minItems) return false;
      const uint32_t n = std::min(Count(value), f.capacity);
      for (uint32_t i = 0; i < n; ++i) ParseScalar(Element(value, i), member + i * f.size, f);
      return true;
    }
    case FieldShape::kList: {
      // A list entry that is itself a list: member is the start of its slot.
      // `member` is the list itself; its offset and count sit in the record around it.
      return ParseList(value, member - f.offset, f);
    }
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
      return true;
    case FieldShape::kTuple: {
      *out = Json::Value(Json::arrayValue);
      for (uint32_t i = 0; i < f.capacity; ++i) {
        Json::Value item;
        if (!PackScalar(member + i * f.size, f, &item)) item = "";
        out->append(item);
      }
      return true;
    }
    case FieldShape::kList: {
      if (f.element == nullptr) return false;
      const unsigned char* record = member - f.offset;
      const uint32_t n = LoadCount(record, f);
      *out = Json::Value(Json::arrayValue);
      for (uint32_t i = 0; i < n; ++i) {
        Json::Value item;
        const unsigned char* entry = member + static_cast<size_t>(i) * f.size + f.element->offset;
        if (PackValue(entry, *f.element, &item)) {
          out->append(item);
        }
      }
      return true;
    }
    case FieldShape::kCustom:
      return false;
  }
  return false;
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
  for (uint32_t i = 0; i < e.count; ++i) {
    if (e.names[i] != nullptr && TextEquals(e.names[i], text, e.exact)) {
      *value = e.first + static_cast<int32_t>(i);
      return true;
    }
  }
  return false;
}

const char* EnumName(const EnumNames& e, int64_t value) {
  const int64_t i = value - e.first;
  if (i < 0 || i >= static_cast<int64_t>(e.count)) return nullptr;
  return e.names[i];
}

void ParseFields(const Json::Value& obj, void* record, const Field* fields, size_t count) {
  unsigned char* base = static_cast<unsigned char*>(record);
  for (size_t i = 0; i < count; ++i) {
    const Field& f = fields[i];
    if (f.direction == Direction::kPackOnly) continue;
    if (f.shape == FieldShape::kCustom) {
      if (f.parse != nullptr) f.parse(obj, base, f);
      continue;
    }
    const Json::Value& v = Member(obj, f.key);
    if (v.isNull()) continue;
    const bool read = f.shape == FieldShape::kList ? ParseList(v, base, f)
                                                    : ParseValue(v, base + f.offset, f);
    // A scalar that is present counts as present even when its text names
    // nothing; a block or list of the wrong JSON type does not.
    if (read || f.shape == FieldShape::kScalar) SetFlag(base, f);
  }
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
    Json::Value v;
    bool written;
    if (f.shape == FieldShape::kList) {
      // The count member lives in the record, not in the list's slots.
      const uint32_t n = LoadCount(base, f);
      v = Json::Value(Json::arrayValue);
      for (uint32_t k = 0; k < n && f.element != nullptr; ++k) {
        Json::Value item;
        const unsigned char* entry =
            base + f.offset + static_cast<size_t>(k) * f.size + f.element->offset;
        if (PackValue(entry, *f.element, &item)) {
          v.append(item);
        }
      }
      written = true;
    } else {
      written = PackValue(base + f.offset, f, &v);
    }
    if (written) SetMember(obj, f.key) = v;
  }
}

}  // namespace kova
