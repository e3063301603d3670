// Describe-once field tables: a record's JSON members are listed once, and
// one walker reads the list for parse and for pack, so the two directions
// cannot drift apart.
//
// A field is a few independent attributes: where the member lives (offset,
// size), its scalar kind, its shape (scalar, nested table, fixed list,
// tuple, custom step), a presence rule, a pack rule and a direction. Tables
// are constexpr; the declaration macros check the kind against the member's
// type at compile time (a real kind on an integer member does not compile).
//
// How one configuration is declared (a record with a nested list, a tuple
// and an enumeration; field_table_test.cpp compiles this very example):
//
//   struct Zone  { int32_t id; char name[32]; };
//   struct Fence { int32_t enable; int32_t mode; int32_t modePresent;
//                  int32_t origin[2]; int32_t zoneCount; Zone zones[8]; };
//
//   constexpr const char* kModeNames[] = {"Auto", "Manual"};
//   constexpr EnumNames kModes = EnumNames::Of(kModeNames).UnknownAs(-1);
//
//   constexpr Field kZoneFields[] = {
//       KOVA_F(Zone, id, "Id", kInt),
//       KOVA_F(Zone, name, "Name", kText),
//   };
//   KOVA_DESCRIBE(Zone, kZoneFields)          // inside namespace kova
//
//   constexpr Field kZone = KOVA_ITEM_NESTED(Zone);     // one list entry
//   constexpr Field kFenceFields[] = {
//       KOVA_F(Fence, enable, "Enable", kBool),
//       KOVA_ENUM(Fence, mode, "Mode", kModes).Flag(KOVA_AT(Fence, modePresent)),
//       KOVA_TUPLE(Fence, origin, "Origin", int32_t, 2),           // [x, y]
//       KOVA_LIST(Fence, zones, "Zones", kZone)
//           .Count(KOVA_AT(Fence, zoneCount), CountRule::kTaken),
//   };
//   constexpr FieldTable kFence = KOVA_TABLE(kFenceFields);
//
//   ParseFields(table, &fence, kFence);   // JSON object -> record
//   PackFields(&fence, table, kFence);    // record -> JSON object
//
// A translator runs such a table inside its response frame
// (drivers/response_frame.h): ParseTableStep<kFence> / TablePack<kFence>(),
// whose pack writes the text straight from the record (field_text.h).
//
// Beside the shape, kind and names, a field takes independent attributes:
//   presence  .Flag(slot) (KOVA_AT, KOVA_AT_ITEM for present[i]), .Sentinel(v),
//             .NonNegative(), .WhenAnySet(KOVA_FLAGS(Rec, first, last))
//   parse     .AlwaysRead() (missing reads as null), .MissingAs(v), .ClearsFlag()
//             (for records parse does not clear), .AnyType() (a block or list
//             of another JSON type reads as empty)
//   pack      .PackBoolEqualsOne(), .UnnamedAs(...), .NullWhenEmpty()
//   direction .ParseOnly(), .PackOnly()
//   lists     .Count(slot, rule), .KeepSlots(); tuples .MinItems(n)
// A JSON object whose members are fields of the record itself is a group:
// KOVA_GROUP(Rec, "Sound", kSoundTable).
//
// Deliberate irregularities stay hand-written beside the table, either as a
// custom step (KOVA_CUSTOM) that the walker calls in its turn, or as code
// around the walker's call, each with a comment saying it is intended.
//
// Records the library builds for itself (event records handed to a
// callback) may hold lists of any length as a pointer and a count:
//
//   struct Scene { Zone main; const Zone* zones; uint32_t zoneCount; };
//   constexpr Field kZoneItem = KOVA_ITEM_NESTED(Zone);
//   constexpr Field kSceneFields[] = {
//       KOVA_INLINE(Scene, main),   // Zone's members sit in the scene object itself
//       KOVA_ALLOCATED_LIST(Scene, zones, "Zones", kZoneItem, 64)
//           .Count(KOVA_AT(Scene, zoneCount), CountRule::kTaken),
//   };
//
// Parse allocates the entries; ReleaseFields frees them (and whatever their
// own entries hold) and is the only way to. Pack does not write allocated
// lists.
#ifndef KOVA_COMMON_FIELD_TABLE_H_
#define KOVA_COMMON_FIELD_TABLE_H_

#include <json/value.h>

#include <cstddef>
#include <cstdint>

#include "common/fields/field.h"
#include "common/fields/field_declare.h"

namespace kova {

// The walker.

// Parse: each field whose member is present and not null is read and its
// presence flag set. Absent or null members leave the record as it was.
// Writes only inside the members the table names (and into the entries it
// allocates for allocated lists: a list read into a record that already
// holds entries releases them first). A nested field without a key
// (KOVA_INLINE) reads its members from `obj` itself.
void ParseFields(const Json::Value& obj, void* record, const Field* fields, size_t count);
// Pack: each field that is present by its presence rule is written into `obj`.
// Counts read from the record are cut to the list's capacity.
void PackFields(const void* record, Json::Value& obj, const Field* fields, size_t count);

inline void ParseFields(const Json::Value& obj, void* record, const FieldTable& t) {
  ParseFields(obj, record, t.fields, t.count);
}
inline void PackFields(const void* record, Json::Value& obj, const FieldTable& t) {
  PackFields(record, obj, t.fields, t.count);
}
template <size_t N>
void ParseFields(const Json::Value& obj, void* record, const Field (&fields)[N]) {
  ParseFields(obj, record, fields, N);
}
template <size_t N>
void PackFields(const void* record, Json::Value& obj, const Field (&fields)[N]) {
  PackFields(record, obj, fields, N);
}

// Frees the entries of every allocated list of `record` (of nested blocks
// and of list entries too, depth first) and sets each such pointer and its
// count to 0; a record that holds none is left as it was. Safe on a record
// released before, and on one still all zeros.
void ReleaseFields(void* record, const Field* fields, size_t count);
inline void ReleaseFields(void* record, const FieldTable& t) {
  ReleaseFields(record, t.fields, t.count);
}

// The number of entries allocated for an allocated list, given its
// (non-null) pointer: at least its count member, and more when entries
// were skipped. For code that copies or checks such a record.
uint32_t AllocatedSlots(const void* entries);

// One value read or written as `f` describes it, without a key: `value`
// is the member's JSON value itself. ParseValue returns whether an entry
// was taken (a list counts it). Used by the walker and by custom steps.
bool ParseValue(const Json::Value& value, unsigned char* member, const Field& f);
bool PackValue(const unsigned char* member, const Field& f, Json::Value* out);

// Enumeration helpers for hand-written steps. EnumValue returns false when
// the text matches no name; EnumName returns null for a value without one.
bool EnumValue(const EnumNames& e, const Json::Value& v, int32_t* value);
const char* EnumName(const EnumNames& e, int64_t value);

// Width-agnostic access to integer members of 1, 2, 4 or 8 bytes (others read 0).
int64_t LoadInt(const void* p, uint32_t size, bool isSigned);
void StoreInt(void* p, uint32_t size, int64_t value);

// Sets the presence flag of `f` (when it has one) in `record`: for custom
// steps, which decide themselves when their member counts as present.
void MarkPresent(unsigned char* record, const Field& f);

// A count (from a caller's record or a device's array) cut to [0, capacity].
uint32_t CutCount(int64_t count, uint32_t capacity);

}  // namespace kova

#endif  // KOVA_COMMON_FIELD_TABLE_H_
