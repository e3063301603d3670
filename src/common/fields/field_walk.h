// Pieces the field walker's files share (field_values.cpp, field_lists.cpp,
// field_walker.cpp); not for translators, which use field_table.h.
#ifndef KOVA_COMMON_FIELDS_FIELD_WALK_H_
#define KOVA_COMMON_FIELDS_FIELD_WALK_H_

#include <json/value.h>

#include <cstdint>

#include "common/fields/field_table.h"

namespace kova {
namespace walk {

// Sets the presence flag of `f` in `record` to `value` (fields with a flag).
void WriteFlag(unsigned char* record, const Field& f, int64_t value);
// Whether a nested block or list reads a value that is not of its JSON type
// (as empty).
bool ReadsAnyType(const Field& f);
// Whether `f` of `record` is written on pack, by its presence rule.
bool Present(const unsigned char* record, const Field& f);
// One scalar of kind f.kind and width f.size.
bool ParseScalar(const Json::Value& v, unsigned char* p, const Field& f);
bool PackScalar(const unsigned char* p, const Field& f, Json::Value* out);
// What one scalar packs as, decided once for the value tree and the text.
struct PackedScalar {
  enum class Is : uint8_t {
    kNothing,  // not written
    kNull,
    kBool,
    kInt,
    kUInt,
    kReal,
    kField,  // `text`: the record's text field of f.size bytes, converted when `convert`
    kName,   // `text`: an enumeration's literal
  };
  Is is = Is::kNothing;
  bool b = false;
  bool convert = false;
  int64_t i = 0;
  uint64_t u = 0;
  double real = 0;
  const char* text = nullptr;
};
PackedScalar PackedScalarOf(const unsigned char* p, const Field& f);
// What an enumeration value without a name packs as (f.names set): a text,
// or null for JSON null; `written` false when nothing is written.
const char* UnnamedText(const Field& f, bool* written);
// The list `f` of `record` (its offset and count counted from `record`).
bool ParseList(const Json::Value& v, unsigned char* record, const Field& f);
void PackList(const unsigned char* record, const Field& f, Json::Value* out);
// The entries of list `f` of `record` a pack writes: its count member cut to
// the capacity, or every slot when it has none.
uint32_t LoadCount(const unsigned char* record, const Field& f);

}  // namespace walk
}  // namespace kova

#endif  // KOVA_COMMON_FIELDS_FIELD_WALK_H_
