#include "common/fields/field_table.h"

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

void SetPresence(void* record, const Field& f) {
  if (f.presence < 0) return;
  StoreInt(static_cast<unsigned char*>(record) + f.presence, f.presenceSize, 1);
}

bool Present(const void* record, const Field& f) {
  if (f.presence < 0) return true;
  return LoadInt(static_cast<const unsigned char*>(record) + f.presence, f.presenceSize, false) !=
         0;
}

void ParseOne(const Json::Value& v, unsigned char* p, const Field& f) {
  switch (f.kind) {
    case FieldKind::kBool:
    case FieldKind::kBoolIsOne:
      StoreInt(p, f.size, ToBool(v) ? 1 : 0);
      break;
    case FieldKind::kInt:
    case FieldKind::kIntBoolIsOne:
      StoreInt(p, f.size, ToInt32(v));
      break;
    case FieldKind::kUInt:
      StoreInt(p, f.size, ToUInt32(v));
      break;
    case FieldKind::kReal:
      if (f.size == sizeof(float)) {
        const float x = static_cast<float>(ToDouble(v));
        std::memcpy(p, &x, sizeof x);
      } else if (f.size == sizeof(double)) {
        const double x = ToDouble(v);
        std::memcpy(p, &x, sizeof x);
      }
      break;
    case FieldKind::kText:
    case FieldKind::kTextRaw:
      GetJsonString(v, reinterpret_cast<char*>(p), f.size, f.kind == FieldKind::kText);
      break;
    case FieldKind::kEnum:
    case FieldKind::kEnumOrFirst: {
      int32_t value = 0;
      if (f.names == nullptr) break;
      if (EnumValue(*f.names, v, &value)) {
        StoreInt(p, f.size, value);
      } else if (f.names->setOnUnknown) {
        StoreInt(p, f.size, f.names->unknownValue);
      }
      break;
    }
  }
}

void PackOne(const unsigned char* p, Json::Value& obj, const Field& f) {
  switch (f.kind) {
    case FieldKind::kBool:
      SetMember(obj, f.key) = LoadInt(p, f.size, false) != 0;
      break;
    case FieldKind::kBoolIsOne:
    case FieldKind::kIntBoolIsOne:
      SetMember(obj, f.key) = LoadInt(p, f.size, false) == 1;
      break;
    case FieldKind::kInt:
      SetMember(obj, f.key) = static_cast<Json::Int64>(LoadInt(p, f.size, true));
      break;
    case FieldKind::kUInt:
      SetMember(obj, f.key) = static_cast<Json::UInt64>(LoadInt(p, f.size, false));
      break;
    case FieldKind::kReal:
      if (f.size == sizeof(float)) {
        float x;
        std::memcpy(&x, p, sizeof x);
        SetMember(obj, f.key) = static_cast<double>(x);
      } else if (f.size == sizeof(double)) {
        double x;
        std::memcpy(&x, p, sizeof x);
        SetMember(obj, f.key) = x;
      }
      break;
    case FieldKind::kText:
    case FieldKind::kTextRaw:
      SetJsonStringBounded(SetMember(obj, f.key), reinterpret_cast<const char*>(p), f.size,
                           f.kind == FieldKind::kText);
      break;
    case FieldKind::kEnum: {
      if (f.names == nullptr) break;
      const char* name = EnumName(*f.names, LoadInt(p, f.size, true));
      if (name != nullptr) {
        SetMember(obj, f.key) = name;
      } else if (!f.names->omitUnknown) {
        SetMember(obj, f.key) = "";
      }
      break;
    }
    case FieldKind::kEnumOrFirst: {
      if (f.names == nullptr || f.names->count == 0) break;
      const char* name = EnumName(*f.names, LoadInt(p, f.size, true));
      if (name == nullptr) name = f.names->names[0];
      SetMember(obj, f.key) = name != nullptr ? name : "";
      break;
    }
  }
}

}  // namespace

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
    const Json::Value& v = Member(obj, f.key);
    if (v.isNull()) continue;
    ParseOne(v, base + f.offset, f);
    SetPresence(record, f);
  }
}

void PackFields(const void* record, Json::Value& obj, const Field* fields, size_t count) {
  const unsigned char* base = static_cast<const unsigned char*>(record);
  for (size_t i = 0; i < count; ++i) {
    const Field& f = fields[i];
    if (!Present(record, f)) continue;
    PackOne(base + f.offset, obj, f);
  }
}

}  // namespace kova
