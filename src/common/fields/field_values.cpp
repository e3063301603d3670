// The walker's scalars: one value of a field's kind and width, read from
// JSON or written to it, its presence rule and flag, enumeration names, and
// width-agnostic integer members.
#include <cstring>
#include <string_view>

#include "common/base/ascii.h"
#include "common/fields/field_table.h"
#include "common/fields/field_walk.h"
#include "common/fields/fields.h"
#include "common/json/json.h"

namespace kova {

namespace {

bool TextEquals(const char* name, std::string_view text, bool exact) {
  return exact ? NameEquals(name, text) : AsciiEqualNoCase(name, text);
}

bool AnyByteSet(const unsigned char* p, uint32_t n) {
  for (uint32_t i = 0; i < n; ++i) {
    if (p[i] != 0) return true;
  }
  return false;
}

}  // namespace

namespace walk {

void WriteFlag(unsigned char* record, const Field& f, int64_t value) {
  if (f.presence != Presence::kFlag || f.flag.size == 0) return;
  StoreInt(record + f.flag.offset, f.flag.size, value);
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

const char* UnnamedText(const Field& f, bool* written) {
  Unnamed rule = f.unnamed;
  if (rule == Unnamed::kTable) rule = f.names->omitUnnamed ? Unnamed::kOmit : Unnamed::kEmptyText;
  *written = true;
  const char* text = nullptr;
  switch (rule) {
    case Unnamed::kOmit:
      *written = false;
      return nullptr;
    case Unnamed::kNull:
      return nullptr;
    case Unnamed::kFirstName:
      text = f.names->count > 0 ? f.names->names[0] : nullptr;
      break;
    case Unnamed::kUnknownName:
      text = EnumName(*f.names, f.names->unknownValue);
      break;
    case Unnamed::kTable:
    case Unnamed::kEmptyText:
      break;
  }
  return text != nullptr ? text : "";
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

PackedScalar PackedScalarOf(const unsigned char* p, const Field& f) {
  PackedScalar s;
  if (f.packAs != PackAs::kNatural) {
    s.is = PackedScalar::Is::kBool;
    s.b = f.packAs == PackAs::kBoolEqualsOne ? LoadInt(p, f.size, true) == 1
                                             : LoadInt(p, f.size, false) != 0;
    return s;
  }
  switch (f.kind) {
    case FieldKind::kBool:
      s.is = PackedScalar::Is::kBool;
      s.b = LoadInt(p, f.size, false) != 0;
      break;
    case FieldKind::kInt:
      s.is = PackedScalar::Is::kInt;
      s.i = LoadInt(p, f.size, true);
      break;
    case FieldKind::kUInt:
      s.is = PackedScalar::Is::kUInt;
      s.u = static_cast<uint64_t>(LoadInt(p, f.size, false));
      break;
    case FieldKind::kReal:
      if (f.size == sizeof(float)) {
        float x;
        std::memcpy(&x, p, sizeof x);
        s.is = PackedScalar::Is::kReal;
        s.real = static_cast<double>(x);
      } else if (f.size == sizeof(double)) {
        s.is = PackedScalar::Is::kReal;
        std::memcpy(&s.real, p, sizeof s.real);
      }
      break;
    case FieldKind::kText:
    case FieldKind::kTextRaw:
      s.is = PackedScalar::Is::kField;
      s.text = reinterpret_cast<const char*>(p);
      s.convert = f.kind == FieldKind::kText;
      break;
    case FieldKind::kEnum: {
      if (f.names == nullptr) break;
      s.text = EnumName(*f.names, LoadInt(p, f.size, true));
      bool written = true;
      if (s.text == nullptr) s.text = UnnamedText(f, &written);
      if (written) s.is = s.text != nullptr ? PackedScalar::Is::kName : PackedScalar::Is::kNull;
      break;
    }
    case FieldKind::kObject:
    case FieldKind::kCustom:
      break;
  }
  return s;
}

bool PackScalar(const unsigned char* p, const Field& f, Json::Value* out) {
  const PackedScalar s = PackedScalarOf(p, f);
  switch (s.is) {
    case PackedScalar::Is::kNothing:
      return false;
    case PackedScalar::Is::kNull:
      *out = Json::Value();
      break;
    case PackedScalar::Is::kBool:
      *out = s.b;
      break;
    case PackedScalar::Is::kInt:
      *out = static_cast<Json::Int64>(s.i);
      break;
    case PackedScalar::Is::kUInt:
      *out = static_cast<Json::UInt64>(s.u);
      break;
    case PackedScalar::Is::kReal:
      *out = s.real;
      break;
    case PackedScalar::Is::kField:
      SetJsonStringBounded(*out, s.text, f.size, s.convert);
      break;
    case PackedScalar::Is::kName:
      // The names are the tables' own literals: the tree points at them.
      *out = Json::Value(Json::StaticString(s.text));
      break;
  }
  return true;
}

}  // namespace walk

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
  const std::string_view text = TextView(v);
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

uint32_t CutCount(int64_t count, uint32_t capacity) {
  if (count <= 0) return 0;
  return count < static_cast<int64_t>(capacity) ? static_cast<uint32_t>(count) : capacity;
}

void MarkPresent(unsigned char* record, const Field& f) { walk::WriteFlag(record, f, 1); }

}  // namespace kova
