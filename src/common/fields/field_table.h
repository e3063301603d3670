// Describe-once field tables: a configuration's regular fields are listed
// once (JSON key, record member, kind) and one walker reads the table for
// parse and for pack, so the two directions cannot drift apart.
//
//   static const Field kFields[] = {
//       KOVA_FIELD("Enable", AlarmInRecord, enable, FieldKind::kBool),
//       KOVA_TEXT("Name", AlarmInRecord, name),
//       KOVA_ENUM("SensorType", AlarmInRecord, sensorType, &kSensorTypes),
//   };
//   ParseFields(obj, record, kFields);   PackFields(record, obj, kFields);
//
// Deliberate irregularities of a configuration stay hand-written beside its
// table.
#ifndef KOVA_COMMON_FIELD_TABLE_H_
#define KOVA_COMMON_FIELD_TABLE_H_

#include <json/value.h>

#include <cstddef>
#include <cstdint>

namespace kova {

enum class FieldKind : uint8_t {
  kBool,       // boolean conversion stored as 0/1 in a 1-, 2- or 4-byte field; packs value != 0
  kBoolIsOne,  // as kBool, but packs true only when the field equals 1
  kInt,        // signed conversion into a signed 1-, 2-, 4- or 8-byte field (truncated)
  kUInt,       // unsigned conversion into an unsigned 1-, 2-, 4- or 8-byte field (truncated)
  kReal,       // real conversion into a float (4 bytes) or double (8 bytes) field
  kText,       // fixed text field, converted between UTF-8 and the local code page
  kTextRaw,    // fixed text field, bytes copied unchanged
  kEnum,       // a name from an EnumNames table, stored as its value in an int field
  kIntBoolIsOne,  // signed conversion as kInt on parse; packs as a boolean, true only when 1
  kEnumOrFirst,   // as kEnum, but pack writes the table's first name for a value without one
};

// An enumeration held as text in JSON and as a number in the record.
struct EnumNames {
  const char* const* names;  // names[i] is the text of value first + i; null: no name
  uint32_t count;
  bool exact;                // compare exactly; otherwise ASCII case-insensitive
  int32_t first;             // value of names[0]
  bool setOnUnknown;         // parse: an unknown text (or a non-string) stores unknownValue...
  int32_t unknownValue;      // ...instead of leaving the field as it was
  bool omitUnknown;          // pack: a value without a name is not written (else written as "")
};

struct Field {
  const char* key;
  FieldKind kind;
  uint32_t size;     // bytes of the member (capacity of a text field)
  uint32_t offset;   // offset of the member in the record
  const EnumNames* names;  // kEnum only
  int32_t presence;  // offset of a presence flag (byte or uint32, presenceSize), -1 for none
  uint32_t presenceSize;
};

// Parse: for each field whose member is present and not null, store the
// converted value and set its presence flag. Absent or null members leave
// the field (and its flag) as they were.
void ParseFields(const Json::Value& obj, void* record, const Field* fields, size_t count);
// Pack: write each field whose presence flag (if it has one) is set.
void PackFields(const void* record, Json::Value& obj, const Field* fields, size_t count);

template <size_t N>
void ParseFields(const Json::Value& obj, void* record, const Field (&fields)[N]) {
  ParseFields(obj, record, fields, N);
}
template <size_t N>
void PackFields(const void* record, Json::Value& obj, const Field (&fields)[N]) {
  PackFields(record, obj, fields, N);
}

// Enumeration helpers for hand-written steps. EnumValue returns false when
// the text matches no name; EnumName returns null for a value without one.
bool EnumValue(const EnumNames& e, const Json::Value& v, int32_t* value);
const char* EnumName(const EnumNames& e, int64_t value);

// Little-endian-agnostic access to integer members of any width.
int64_t LoadInt(const void* p, uint32_t size, bool isSigned);
void StoreInt(void* p, uint32_t size, int64_t value);

}  // namespace kova

#define KOVA_MEMBER_SIZE(Rec, member) static_cast<uint32_t>(sizeof(static_cast<Rec*>(nullptr)->member))
#define KOVA_FIELD(key, Rec, member, kind) \
  ::kova::Field { key, kind, KOVA_MEMBER_SIZE(Rec, member), static_cast<uint32_t>(offsetof(Rec, member)), nullptr, -1, 0 }
#define KOVA_TEXT(key, Rec, member) KOVA_FIELD(key, Rec, member, ::kova::FieldKind::kText)
#define KOVA_ENUM(key, Rec, member, table)                                                       \
  ::kova::Field { key, ::kova::FieldKind::kEnum, KOVA_MEMBER_SIZE(Rec, member),                  \
                  static_cast<uint32_t>(offsetof(Rec, member)), table, -1, 0 }
// A field with a presence flag member `flag` of the same record.
#define KOVA_FIELD_P(key, Rec, member, kind, flag)                                           \
  ::kova::Field { key, kind, KOVA_MEMBER_SIZE(Rec, member),                                  \
                  static_cast<uint32_t>(offsetof(Rec, member)), nullptr,                     \
                  static_cast<int32_t>(offsetof(Rec, flag)), KOVA_MEMBER_SIZE(Rec, flag) }
#define KOVA_ENUM_P(key, Rec, member, table, flag)                                           \
  ::kova::Field { key, ::kova::FieldKind::kEnum, KOVA_MEMBER_SIZE(Rec, member),              \
                  static_cast<uint32_t>(offsetof(Rec, member)), table,                       \
                  static_cast<int32_t>(offsetof(Rec, flag)), KOVA_MEMBER_SIZE(Rec, flag) }

// As KOVA_ENUM_P, for a table whose first name stands in for any value
// without a name on pack.
#define KOVA_ENUM_FIRST_P(key, Rec, member, table, flag)                                     \
  ::kova::Field { key, ::kova::FieldKind::kEnumOrFirst, KOVA_MEMBER_SIZE(Rec, member),       \
                  static_cast<uint32_t>(offsetof(Rec, member)), table,                       \
                  static_cast<int32_t>(offsetof(Rec, flag)), KOVA_MEMBER_SIZE(Rec, flag) }

#endif  // KOVA_COMMON_FIELD_TABLE_H_
