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
// (drivers/response_frame.h): ParseTableStep<kFence> / PackTableStep<kFence>.
//
// Beside the shape, kind and names, a field takes independent attributes:
//   presence  .Flag(slot) (KOVA_AT, KOVA_AT_ITEM for present[i]), .Sentinel(v),
//             .NonNegative(), .WhenAnySet(KOVA_FLAGS(Rec, first, last))
//   parse     .AlwaysRead() (missing reads as null), .MissingAs(v), .ClearsFlag()
//             (for records parse does not clear), .AnyType() (a block or list
//             of another JSON type reads as empty)
//   pack      .PackBool(), .PackBoolEqualsOne(), .UnnamedAs(...), .NullWhenEmpty()
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
#include <type_traits>

#include "common/fields/c_type_name.h"

namespace kova {

// What one scalar (or one tuple item, or one list entry) holds.
enum class FieldKind : uint8_t {
  kBool,     // boolean conversion stored as 0/1 in an integer member of any width
  kInt,      // signed conversion, stored truncated to the member's width
  kUInt,     // unsigned conversion, stored truncated to the member's width
  kReal,     // real conversion into a float or double member
  kText,     // fixed text field, converted between UTF-8 and the local code page
  kTextRaw,  // fixed text field, bytes copied unchanged
  kEnum,     // a name of an EnumNames table, stored as its value in an integer member
  kObject,   // a nested object described by its own table (shape kNested)
  kCustom,   // a hand-written step (shape kCustom)
};

enum class FieldShape : uint8_t {
  kScalar,  // one value
  kNested,  // an object read with the member type's own table
  kList,    // a JSON array into a fixed array of entries, each described by `element`
  kTuple,   // a short JSON array ([x, y], [w, h], [low, high]) into fixed items
  kCustom,  // a parse/pack pair for what no table can say
};

// When the walker treats a member as present on pack. Parse always reads a
// member that is present and not null (and sets the flag when there is one).
enum class Presence : uint8_t {
  kAlways,       // always written
  kFlag,         // written when the flag member is non-zero
  kSentinel,     // written unless the member equals `sentinel`
  kNonNegative,  // written unless the member is negative
  kAnySet,       // written when any byte of `flag` is non-zero (a group of the members' own
                 // flags); parse never writes those bytes
};

enum class Direction : uint8_t { kBoth, kParseOnly, kPackOnly };

// How an integer member is written on pack.
enum class PackAs : uint8_t {
  kNatural,        // its kind: number, text, name
  kBoolNonZero,    // a boolean, true when non-zero (the default for kBool)
  kBoolEqualsOne,  // a boolean, true only when the member equals 1
};

// What pack writes for an enumeration value without a name.
enum class Unnamed : uint8_t {
  kTable,        // as the EnumNames table says (omitUnnamed)
  kEmptyText,    // ""
  kOmit,         // nothing
  kFirstName,    // the table's first name
  kNull,         // null
  kUnknownName,  // the name of the value an unknown text reads as (EnumNames::UnknownAs)
};

// How a list's count member is set on parse.
enum class CountRule : uint8_t {
  kAll,      // elements looked at: the array's length cut to the capacity
  kTaken,    // entries stored
  kNonNull,  // non-null elements among those looked at
  kLength,   // the array's whole length, not cut (only the capacity is read)
};

// An enumeration held as text in JSON and as a number in the record.
// Declared with named settings:
//   constexpr EnumNames kX = EnumNames::Of(kXNames).Exact().FirstValue(1);
struct EnumNames {
  const char* const* names = nullptr;  // names[i] is the text of value first + i; null: no name
  uint32_t count = 0;
  bool exact = false;         // compare exactly; otherwise ASCII case-insensitive
  int32_t first = 0;          // value of names[0]
  bool setOnUnknown = false;  // parse: an unknown text (or a non-string) stores unknownValue...
  int32_t unknownValue = 0;   // ...instead of leaving the field as it was
  bool omitUnnamed = false;   // pack: a value without a name is not written (else "")
  const char* const* aliases = nullptr;  // aliases[i]: a second text of value first + i (or
                                         // null); parse only, pack writes names[i]

  template <size_t N>
  static constexpr EnumNames Of(const char* const (&list)[N]) {
    EnumNames e;
    e.names = list;
    e.count = static_cast<uint32_t>(N);
    return e;
  }
  constexpr EnumNames Exact() const {
    EnumNames e = *this;
    e.exact = true;
    return e;
  }
  constexpr EnumNames FirstValue(int32_t v) const {
    EnumNames e = *this;
    e.first = v;
    return e;
  }
  constexpr EnumNames UnknownAs(int32_t v) const {
    EnumNames e = *this;
    e.setOnUnknown = true;
    e.unknownValue = v;
    return e;
  }
  constexpr EnumNames OmitUnnamed() const {
    EnumNames e = *this;
    e.omitUnnamed = true;
    return e;
  }
  // Second texts, index for index with the names (same count); read after
  // every name has been tried.
  template <size_t N>
  constexpr EnumNames Aliases(const char* const (&list)[N]) const {
    EnumNames e = *this;
    e.aliases = N == count ? list : nullptr;
    return e;
  }
};

struct Field;

// A record's description: its fields in the order they are read and written.
struct FieldTable {
  const Field* fields;
  size_t count;
};

// Hand-written step: reads (or writes) its own member(s) of the object
// `obj`; `field.key` and `field.offset` say which.
using CustomParse = void (*)(const Json::Value& obj, unsigned char* record, const Field& field);
using CustomPack = void (*)(const unsigned char* record, Json::Value& obj, const Field& field);

// Where a flag or count member sits in the record.
struct Slot {
  uint32_t offset;
  uint32_t size;
  bool isSigned = false;  // a count member that may hold a negative value (read as 0)
};

struct Field {
  const char* key = nullptr;  // JSON member name (unused for list entries)
  uint32_t offset = 0;        // of the member in the record (0 for a list entry)
  uint32_t size = 0;          // bytes of the member: of one item for tuples, one slot for lists
  FieldKind kind = FieldKind::kInt;
  FieldShape shape = FieldShape::kScalar;
  Direction direction = Direction::kBoth;
  PackAs packAs = PackAs::kNatural;
  Presence presence = Presence::kAlways;
  Slot flag = {0, 0};                // Presence::kFlag
  int64_t sentinel = 0;              // Presence::kSentinel
  const EnumNames* names = nullptr;  // kEnum
  Unnamed unnamed = Unnamed::kTable;
  const FieldTable* table = nullptr;  // kNested: the member type's table
  const Field* element = nullptr;     // kList: one entry, at offset 0 of its slot
  uint32_t capacity = 0;              // kList: slots; kTuple: items
  uint32_t minItems = 0;  // kTuple: an array with fewer items leaves the member as it was
  Slot count = {0, 0};    // kList: count member (size 0: none; pack then writes every slot)
  CountRule countRule = CountRule::kAll;
  bool keepSlots = false;  // kList: element i goes to slot i, a skipped element leaves its slot
  // kList: the member is a pointer to entries allocated on parse (at most
  // `capacity`), freed by ReleaseFields; pack leaves such a list out.
  bool allocated = false;
  const char* noMemoryReport = nullptr;  // allocated kList: reported when its entries cannot be had
  CustomParse parse = nullptr;           // kCustom
  CustomPack pack = nullptr;             // kCustom
  // Parse rules for a member that is missing, null or of another JSON type
  // (see the builders below).
  bool alwaysRead = false;
  bool anyType = false;
  bool clearsFlag = false;
  bool hasMissingValue = false;
  int64_t missingValue = 0;
  bool nullWhenEmpty = false;  // kNested pack: null instead of an object with no members
  // For tools that show records: the C member's name (null for list entries
  // and whole-record fields) and the C type of one item (of the member, of a
  // tuple item, of a list entry; null when not known).
  const char* member = nullptr;
  const char* type = nullptr;

  constexpr Field Flag(Slot s) const {
    Field f = *this;
    f.presence = Presence::kFlag;
    f.flag = s;
    return f;
  }
  constexpr Field Sentinel(int64_t v) const {
    Field f = *this;
    f.presence = Presence::kSentinel;
    f.sentinel = v;
    return f;
  }
  constexpr Field NonNegative() const {
    Field f = *this;
    f.presence = Presence::kNonNegative;
    return f;
  }
  constexpr Field ParseOnly() const {
    Field f = *this;
    f.direction = Direction::kParseOnly;
    return f;
  }
  constexpr Field PackOnly() const {
    Field f = *this;
    f.direction = Direction::kPackOnly;
    return f;
  }
  constexpr Field PackBoolEqualsOne() const {
    Field f = *this;
    f.packAs = PackAs::kBoolEqualsOne;
    return f;
  }
  constexpr Field PackBool() const {
    Field f = *this;
    f.packAs = PackAs::kBoolNonZero;
    return f;
  }
  constexpr Field UnnamedAs(Unnamed u) const {
    Field f = *this;
    f.unnamed = u;
    return f;
  }
  constexpr Field Count(Slot s, CountRule rule) const {
    Field f = *this;
    f.count = s;
    f.countRule = rule;
    return f;
  }
  constexpr Field KeepSlots() const {
    Field f = *this;
    f.keepSlots = true;
    return f;
  }
  constexpr Field MinItems(uint32_t n) const {
    Field f = *this;
    f.minItems = n;
    return f;
  }
  constexpr Field NoMemoryReport(const char* text) const {
    Field f = *this;
    f.noMemoryReport = text;
    return f;
  }
  constexpr Field Member(const char* name) const {
    Field f = *this;
    f.member = name;
    return f;
  }
  constexpr Field Names(const EnumNames& e) const {
    Field f = *this;
    f.names = &e;
    return f;
  }

  // Parse reads the member even when it is missing or null, as null (a
  // scalar stores its null conversion: 0, false, empty text, an enumeration's
  // unknown value; a nested block reads its table with every member
  // missing), and sets the flag. A nested block or list given with another
  // JSON type reads as empty. List entries: null elements are read too.
  constexpr Field AlwaysRead() const {
    Field f = *this;
    f.alwaysRead = true;
    return f;
  }
  // A nested block or list given (not null) with another JSON type counts
  // as present (its flag is set) and reads as empty: no member, no element.
  constexpr Field AnyType() const {
    Field f = *this;
    f.anyType = true;
    return f;
  }
  // Parse writes the flag both ways: 0 when the member is missing, null or
  // not read (for records that parse does not clear first).
  constexpr Field ClearsFlag() const {
    Field f = *this;
    f.clearsFlag = true;
    return f;
  }
  // Parse stores `v` when the member is missing or null (an integer member).
  constexpr Field MissingAs(int64_t v) const {
    Field f = *this;
    f.hasMissingValue = true;
    f.missingValue = v;
    return f;
  }
  // Pack: a nested block none of whose members is written packs as null.
  constexpr Field NullWhenEmpty() const {
    Field f = *this;
    f.nullWhenEmpty = true;
    return f;
  }
  // Pack: written when any byte of `s` is non-zero (the members' own flags,
  // see KOVA_FLAGS); parse leaves those bytes to the members.
  constexpr Field WhenAnySet(Slot s) const {
    Field f = *this;
    f.presence = Presence::kAnySet;
    f.flag = s;
    return f;
  }
};

// The description of a record type, found by the member's type for nested
// blocks. Specialised by KOVA_DESCRIBE.
template <typename T>
struct Description;

// ---------------------------------------------------------------------------
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

// ---------------------------------------------------------------------------
// Compile-time checks of a kind against a member type.

template <typename T>
constexpr bool IsIntegerMember() {
  return std::is_integral<T>::value || std::is_enum<T>::value;
}

template <FieldKind K, typename T>
constexpr bool KindFits() {
  if constexpr (K == FieldKind::kText || K == FieldKind::kTextRaw) {
    return std::is_array<T>::value && std::rank<T>::value == 1 &&
           std::is_same<std::remove_extent_t<T>, char>::value;
  } else if constexpr (K == FieldKind::kReal) {
    return std::is_floating_point<T>::value;
  } else if constexpr (K == FieldKind::kObject || K == FieldKind::kCustom) {
    return true;
  } else if constexpr (K == FieldKind::kBool) {
    return IsIntegerMember<T>() && sizeof(T) <= 8;
  } else {
    return IsIntegerMember<T>() && !std::is_same<T, bool>::value && sizeof(T) <= 8;
  }
}

template <FieldKind K, typename T>
constexpr Field MakeField(const char* key, size_t offset) {
  static_assert(KindFits<K, T>(), "field kind does not fit the member's type");
  Field f;
  f.key = key;
  f.offset = static_cast<uint32_t>(offset);
  f.size = static_cast<uint32_t>(sizeof(T));
  f.kind = K;
  f.type = CTypeName<T>();
  if (K == FieldKind::kBool) f.packAs = PackAs::kBoolNonZero;
  return f;
}

template <typename T>
constexpr Slot MakeSlot(size_t offset) {
  static_assert(IsIntegerMember<T>() && sizeof(T) <= 8, "flag and count members are integers");
  return Slot{static_cast<uint32_t>(offset), static_cast<uint32_t>(sizeof(T)),
              std::is_signed<T>::value};
}

// The bytes from member `first` to the end of member `last`: a group of flags.
constexpr Slot MakeSpan(size_t first, size_t end) {
  return Slot{static_cast<uint32_t>(first), static_cast<uint32_t>(end - first)};
}

template <typename T>
constexpr Field MakeNested(const char* key, size_t offset) {
  Field f;
  f.key = key;
  f.offset = static_cast<uint32_t>(offset);
  f.size = static_cast<uint32_t>(sizeof(T));
  f.kind = FieldKind::kObject;
  f.shape = FieldShape::kNested;
  f.table = &Description<T>::table;
  f.type = Description<T>::name;
  return f;
}

// A tuple of `N` items of type Item laid out back to back in the member.
template <typename Item, FieldKind K, typename T>
constexpr Field MakeTuple(const char* key, size_t offset, uint32_t n) {
  static_assert(KindFits<K, Item>(), "tuple kind does not fit the item type");
  Field f = MakeField<K, Item>(key, offset);
  f.shape = FieldShape::kTuple;
  f.capacity = n;
  f.minItems = n;
  return f;
}

// A list of `capacity` slots of `slotSize` bytes each.
constexpr Field MakeListOf(const char* key, size_t offset, const Field* element, uint32_t slotSize,
                           uint32_t capacity) {
  Field f;
  f.key = key;
  f.offset = static_cast<uint32_t>(offset);
  f.size = slotSize;
  f.kind = FieldKind::kObject;
  f.shape = FieldShape::kList;
  f.element = element;
  f.capacity = capacity;
  return f;
}

template <typename T>
constexpr Field MakeList(const char* key, size_t offset, const Field* element) {
  static_assert(std::is_array<T>::value, "a list member is an array");
  return MakeListOf(key, offset, element, static_cast<uint32_t>(sizeof(std::remove_extent_t<T>)),
                    static_cast<uint32_t>(std::extent<T>::value));
}

template <typename T>
constexpr Field MakeAllocatedList(const char* key, size_t offset, const Field* element,
                                  uint32_t capacity) {
  static_assert(std::is_pointer<T>::value, "an allocated list member is a pointer to its entries");
  Field f = MakeListOf(key, offset, element,
                       static_cast<uint32_t>(sizeof(std::remove_pointer_t<T>)), capacity);
  f.allocated = true;
  return f;
}

// A JSON object whose members are fields of the enclosing record itself.
constexpr Field MakeGroup(const char* key, uint32_t recordSize, const FieldTable* table) {
  Field f;
  f.key = key;
  f.size = recordSize;
  f.kind = FieldKind::kObject;
  f.shape = FieldShape::kNested;
  f.table = table;
  return f;
}

constexpr Field MakeCustom(const char* key, size_t offset, uint32_t size, CustomParse parse,
                           CustomPack pack) {
  Field f;
  f.key = key;
  f.offset = static_cast<uint32_t>(offset);
  f.size = size;
  f.kind = FieldKind::kCustom;
  f.shape = FieldShape::kCustom;
  f.parse = parse;
  f.pack = pack;
  return f;
}

}  // namespace kova

#define KOVA_MEMBER_TYPE(Rec, member) decltype(static_cast<Rec*>(nullptr)->member)
#define KOVA_MEMBER_T(Rec, member) std::remove_reference_t<KOVA_MEMBER_TYPE(Rec, member)>
#define KOVA_MEMBER_SIZE(Rec, member) \
  static_cast<uint32_t>(sizeof(static_cast<Rec*>(nullptr)->member))

// A scalar member: KOVA_F(Rec, member, "Key", kInt).
#define KOVA_F(Rec, member, key, KIND)                                                          \
  ::kova::MakeField<::kova::FieldKind::KIND, KOVA_MEMBER_T(Rec, member)>(key,                   \
                                                                         offsetof(Rec, member)) \
      .Member(#member)
// An enumeration member with its EnumNames table.
#define KOVA_ENUM(Rec, member, key, namesTable) KOVA_F(Rec, member, key, kEnum).Names(namesTable)
// A flag or count member, for .Flag() and .Count().
#define KOVA_AT(Rec, member) ::kova::MakeSlot<KOVA_MEMBER_T(Rec, member)>(offsetof(Rec, member))
// Element `i` of an integer array member used as flags (present[i]).
#define KOVA_AT_ITEM(Rec, member, i)                                  \
  ::kova::MakeSlot<std::remove_extent_t<KOVA_MEMBER_T(Rec, member)>>( \
      offsetof(Rec, member) + (i) * sizeof(std::remove_extent_t<KOVA_MEMBER_T(Rec, member)>))
// The bytes from `first` through `last` (several one-byte flags), for .WhenAnySet().
#define KOVA_FLAGS(Rec, first, last) \
  ::kova::MakeSpan(offsetof(Rec, first), offsetof(Rec, last) + KOVA_MEMBER_SIZE(Rec, last))
// A JSON object "key" whose members are fields of Rec itself (a FieldTable,
// see KOVA_TABLE): KOVA_GROUP(Rec, "Sound", kSoundTable).
#define KOVA_GROUP(Rec, key, fieldTable) \
  ::kova::MakeGroup(key, static_cast<uint32_t>(sizeof(Rec)), &(fieldTable))
// A FieldTable over a constexpr Field array (with static storage).
#define KOVA_TABLE(fields) \
  ::kova::FieldTable { fields, sizeof(fields) / sizeof((fields)[0]) }
// A nested object read with its type's own table (see KOVA_DESCRIBE).
#define KOVA_NESTED(Rec, member, key) \
  ::kova::MakeNested<KOVA_MEMBER_T(Rec, member)>(key, offsetof(Rec, member)).Member(#member)
// A nested block whose members sit in the enclosing object itself (no key of its own).
#define KOVA_INLINE(Rec, member) \
  ::kova::MakeNested<KOVA_MEMBER_T(Rec, member)>(nullptr, offsetof(Rec, member)).Member(#member)
// A tuple of n items of type Item ([x, y]: KOVA_TUPLE(Rec, pt, "Point", int32_t, 2)); by
// default all n items are required, .MinItems(k) lowers that.
#define KOVA_TUPLE(Rec, member, key, Item, n)                                   \
  ::kova::MakeTuple<Item, ::kova::FieldKind::kInt, KOVA_MEMBER_T(Rec, member)>( \
      key, offsetof(Rec, member), n)                                            \
      .Member(#member)
#define KOVA_TUPLE_OF(Rec, member, key, Item, KIND, n)                          \
  ::kova::MakeTuple<Item, ::kova::FieldKind::KIND, KOVA_MEMBER_T(Rec, member)>( \
      key, offsetof(Rec, member), n)
// A fixed list: `elementField` (a constexpr Field, see KOVA_ITEM*) describes one entry.
#define KOVA_LIST(Rec, member, key, elementField)                                           \
  ::kova::MakeList<KOVA_MEMBER_T(Rec, member)>(key, offsetof(Rec, member), &(elementField)) \
      .Member(#member)
// A list of at most `cap` entries allocated on parse: `member` points at them,
// .Count(...) names the count member. Freed by ReleaseFields.
#define KOVA_ALLOCATED_LIST(Rec, member, key, elementField, cap)                    \
  ::kova::MakeAllocatedList<KOVA_MEMBER_T(Rec, member)>(key, offsetof(Rec, member), \
                                                        &(elementField), cap)       \
      .Member(#member)
// A hand-written step over a member (or over the whole record: offset 0, size 0).
#define KOVA_CUSTOM(Rec, member, key, parseFn, packFn)                                           \
  ::kova::MakeCustom(key, offsetof(Rec, member), KOVA_MEMBER_SIZE(Rec, member), parseFn, packFn) \
      .Member(#member)

// List entries: a scalar, nested or tuple entry of type Type at offset 0 of its slot.
#define KOVA_ITEM(Type, KIND) ::kova::MakeField<::kova::FieldKind::KIND, Type>(nullptr, 0)
#define KOVA_ITEM_NESTED(Type) ::kova::MakeNested<Type>(nullptr, 0)
#define KOVA_ITEM_TUPLE(Type, Item, KIND, n) \
  ::kova::MakeTuple<Item, ::kova::FieldKind::KIND, Type>(nullptr, 0, n)

// Registers `fields` (a constexpr Field array) as the description of Type,
// for KOVA_NESTED and KOVA_ITEM_NESTED. Use inside namespace kova (not in
// an anonymous namespace). A description
// shared between files lives in a header as an `inline constexpr` array.
#define KOVA_DESCRIBE(Type, fields)                         \
  template <>                                               \
  struct Description<Type> {                                \
    static constexpr FieldTable table = KOVA_TABLE(fields); \
    static constexpr const char* name = #Type;              \
  };

#endif  // KOVA_COMMON_FIELD_TABLE_H_
