// The parts of a field description: what one JSON member is to the walker
// (kind, shape, presence, pack rule, direction, list and tuple settings) and
// the enumeration tables. Declared with the builders of field_declare.h;
// see field_table.h for how a configuration is described.
#ifndef KOVA_COMMON_FIELDS_FIELD_H_
#define KOVA_COMMON_FIELDS_FIELD_H_

#include <json/value.h>

#include <cstddef>
#include <cstdint>

namespace kova {

class ObjectText;
class TextSink;

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
// One member's value (no key) written straight as text, byte for byte what
// the single-line writer gives for the value its pack step makes; `record`
// and `field` are what the member was given with.
using MemberText = void (*)(const void* record, const Field* field, TextSink* out);
// A step's members for a pack written straight as text: adds to `object`
// the members its CustomPack writes (ObjectText::Member).
using CustomPackText = void (*)(const unsigned char* record, const Field& field,
                                ObjectText* object);

// Where a flag or count member sits in the record.
struct Slot {
  uint32_t offset;
  uint32_t size;
  bool isSigned = false;  // a count member that may hold a negative value (read as 0)
};

// A member name's slot in a walk's index of an object's members (64 slots):
// cheap enough to make for every member of the object, and decided once for
// every field at compile time.
constexpr uint8_t KeyHash(const char* name, size_t length) {
  if (length == 0) return 0;
  const uint32_t first = static_cast<unsigned char>(name[0]);
  const uint32_t last = static_cast<unsigned char>(name[length - 1]);
  return static_cast<uint8_t>((static_cast<uint32_t>(length) * 37u + first * 7u + last) & 63u);
}

// What a parse looks at for every member comes first: a walk over a long
// table reads one cache line of each field it finds missing.
struct Field {
  const char* key = nullptr;  // JSON member name (unused for list entries)
  uint32_t keyLength = 0;     // of `key`, set with it
  uint32_t offset = 0;        // of the member in the record (0 for a list entry)
  uint32_t size = 0;          // bytes of the member: of one item for tuples, one slot for lists
  FieldKind kind = FieldKind::kInt;
  FieldShape shape = FieldShape::kScalar;
  Direction direction = Direction::kBoth;
  PackAs packAs = PackAs::kNatural;
  Presence presence = Presence::kAlways;
  // Parse rules for a member that is missing, null or of another JSON type
  // (see the builders below).
  bool alwaysRead = false;
  bool anyType = false;
  bool clearsFlag = false;
  bool hasMissingValue = false;
  uint8_t keyHash = 0;               // KeyHash() of `key`, set with it
  Slot flag = {0, 0};                // Presence::kFlag
  int64_t sentinel = 0;              // Presence::kSentinel
  const EnumNames* names = nullptr;  // kEnum
  Unnamed unnamed = Unnamed::kTable;
  const FieldTable* table = nullptr;  // kNested: the member type's table; kCustom: its step's
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
  // kCustom, for a pack written straight as text: the value of its one
  // member `key` (written whenever the field is present), or, for any
  // other step, what adds its members.
  MemberText packValue = nullptr;
  CustomPackText packText = nullptr;
  Slot beside = {0, 0};        // kCustom: a second member its step keeps (size 0: none)
  int64_t missingValue = 0;    // hasMissingValue
  bool nullWhenEmpty = false;  // kNested pack: null instead of an object with no members
  // For tools that show records: the C member's name (null for list entries
  // and whole-record fields) and the C type of one item (of the member, of a
  // tuple item, of a list entry; null when not known).
  const char* member = nullptr;
  const char* type = nullptr;

  // The member name, its length and its hash.
  constexpr void SetKey(const char* k) {
    key = k;
    keyLength = 0;
    while (k != nullptr && k[keyLength] != '\0') ++keyLength;
    keyHash = KeyHash(k, keyLength);
  }

  // The one way an attribute is set: a copy with `member` set to `v`.
  template <typename M, typename V>
  constexpr Field With(M Field::*member, V v) const {
    Field f = *this;
    f.*member = v;
    return f;
  }

  // Presence on pack: a flag member, a sentinel value, not negative, or any
  // byte of a group of the members' own flags set (see KOVA_FLAGS; parse
  // leaves those bytes to the members).
  constexpr Field Flag(Slot s) const {
    return With(&Field::presence, Presence::kFlag).With(&Field::flag, s);
  }
  constexpr Field Sentinel(int64_t v) const {
    return With(&Field::presence, Presence::kSentinel).With(&Field::sentinel, v);
  }
  constexpr Field NonNegative() const { return With(&Field::presence, Presence::kNonNegative); }
  constexpr Field WhenAnySet(Slot s) const {
    return With(&Field::presence, Presence::kAnySet).With(&Field::flag, s);
  }
  constexpr Field ParseOnly() const { return With(&Field::direction, Direction::kParseOnly); }
  constexpr Field PackOnly() const { return With(&Field::direction, Direction::kPackOnly); }
  constexpr Field PackBoolEqualsOne() const { return With(&Field::packAs, PackAs::kBoolEqualsOne); }
  constexpr Field UnnamedAs(Unnamed u) const { return With(&Field::unnamed, u); }
  constexpr Field Count(Slot s, CountRule rule) const {
    return With(&Field::count, s).With(&Field::countRule, rule);
  }
  constexpr Field KeepSlots() const { return With(&Field::keepSlots, true); }
  constexpr Field MinItems(uint32_t n) const { return With(&Field::minItems, n); }
  constexpr Field NoMemoryReport(const char* text) const {
    return With(&Field::noMemoryReport, text);
  }
  constexpr Field Names(const EnumNames& e) const { return With(&Field::names, &e); }
  constexpr Field Member(const char* name) const { return With(&Field::member, name); }
  // Parse reads the member even when it is missing or null, as null (a
  // scalar stores its null conversion: 0, false, empty text, an enumeration's
  // unknown value; a nested block reads its table with every member
  // missing), and sets the flag. A nested block or list given with another
  // JSON type reads as empty. List entries: null elements are read too.
  constexpr Field AlwaysRead() const { return With(&Field::alwaysRead, true); }
  // A nested block or list given (not null) with another JSON type counts
  // as present (its flag is set) and reads as empty: no member, no element.
  constexpr Field AnyType() const { return With(&Field::anyType, true); }
  // Parse writes the flag both ways: 0 when the member is missing, null or
  // not read (for records that parse does not clear first).
  constexpr Field ClearsFlag() const { return With(&Field::clearsFlag, true); }
  // Parse stores `v` when the member is missing or null (an integer member).
  constexpr Field MissingAs(int64_t v) const {
    return With(&Field::hasMissingValue, true).With(&Field::missingValue, v);
  }
  // Pack: a nested block none of whose members is written packs as null.
  constexpr Field NullWhenEmpty() const { return With(&Field::nullWhenEmpty, true); }
  // A custom step's text: the value of its one member, or its members.
  constexpr Field PackText(MemberText write) const { return With(&Field::packValue, write); }
  constexpr Field PackText(CustomPackText add) const { return With(&Field::packText, add); }
};

// The description of a record type, found by the member's type for nested
// blocks. Specialised by KOVA_DESCRIBE.
template <typename T>
struct Description;

}  // namespace kova

#endif  // KOVA_COMMON_FIELDS_FIELD_H_
