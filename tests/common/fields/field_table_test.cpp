// The field-table walker on its own: every kind at every width, every
// presence and pack rule, every list rule, parsed from a member, packed back
// and parsed again; and the bad values a device may send in their place.
#include "common/fields/field_table.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "common/json/json.h"
#include "common/json/json_writer.h"

namespace {

struct Inner {
  int32_t a;
  int32_t aPresent;
};

struct Probe {
  int8_t i8;
  int16_t i16;
  int32_t i32;
  int64_t i64;
  uint8_t u8;
  uint16_t u16;
  uint32_t u32;
  uint64_t u64;
  uint8_t b8;
  int32_t b32;
  int64_t b64;
  float f32;
  double f64;
  char text[8];
  char raw[8];
  int32_t e32;
  uint8_t e8;
  uint8_t flag8;
  int32_t flag32;
  int32_t pair[2];
  Inner inner;
  int32_t count;
  int32_t list[3];
  uint32_t ucount;
  char texts[3][4];
};

constexpr const char* kNumberNames[] = {"Zero", "One", "Two"};
constexpr const char* kNumberAliases[] = {nullptr, "Uno", nullptr};
constexpr kova::EnumNames kNumbers = kova::EnumNames::Of(kNumberNames).Aliases(kNumberAliases);
constexpr kova::EnumNames kExactNumbers = kova::EnumNames::Of(kNumberNames).Exact().FirstValue(5);
constexpr kova::EnumNames kNumbersOrMinusOne =
    kova::EnumNames::Of(kNumberNames).UnknownAs(-1).OmitUnnamed();
constexpr kova::EnumNames kNumbersOrTwo = kova::EnumNames::Of(kNumberNames).UnknownAs(2);

constexpr kova::Field kInnerFields[] = {
    KOVA_F(Inner, a, "A", kInt).Flag(KOVA_AT(Inner, aPresent)).ClearsFlag(),
};

using kova::CountRule;
using kova::EnumNames;
using kova::Field;
using kova::FieldTable;

}  // namespace

namespace kova {
KOVA_DESCRIBE(Inner, kInnerFields)
}  // namespace kova

namespace {

using kova::Unnamed;

constexpr Field kInt32Item = KOVA_ITEM(int32_t, kInt);
constexpr Field kInt32ItemAlways = KOVA_ITEM(int32_t, kInt).AlwaysRead();
constexpr Field kTextItem = KOVA_ITEM(char[4], kText);

// Probe's member "V" in the description under test.
#define V(member, KIND) KOVA_F(Probe, member, "V", KIND)
#define LIST(entry) KOVA_LIST(Probe, list, "V", entry)

struct Case {
  const char* what;
  Field field;
  const char* json;    // the member's value ("" when the member is missing)
  const char* packed;  // the object packed from the record parsed
  bool roundTrips;     // parsing the packed object gives the same record
};

// clang-format off
const Case kCases[] = {
    // Kinds at every width; integers stored truncated to the member.
    {"int8 wraps", V(i8, kInt), "300", R"({ "V" : 44 })", true},
    {"int16 wraps", V(i16, kInt), "70000", R"({ "V" : 4464 })", true},
    {"int32", V(i32, kInt), "-5", R"({ "V" : -5 })", true},
    {"int64 reads 32 bits", V(i64, kInt), "4294967296", R"({ "V" : 0 })", true},
    {"int real truncated", V(i32, kInt), "-7.9", R"({ "V" : -7 })", true},
    {"uint8 wraps", V(u8, kUInt), "257", R"({ "V" : 1 })", true},
    {"uint16 negative reads 0", V(u16, kUInt), "-1", R"({ "V" : 0 })", true},
    {"uint32 top", V(u32, kUInt), "4294967295", R"({ "V" : 4294967295 })", true},
    {"uint64 real", V(u64, kUInt), "3.9", R"({ "V" : 3 })", true},
    {"bool8 text", V(b8, kBool), R"("yes")", R"({ "V" : true })", true},
    {"bool32 zero", V(b32, kBool), "0", R"({ "V" : false })", true},
    {"bool64 array", V(b64, kBool), "[1]", R"({ "V" : true })", true},
    {"float", V(f32, kReal), "12.5", R"({ "V" : 12.50000000000000 })", true},
    {"double from bool", V(f64, kReal), "true", R"({ "V" : 1.000000000000000 })", true},
    {"text cut", V(text, kText), R"("abcdefghij")", R"({ "V" : "abcdefg" })", true},
    {"raw text", V(raw, kTextRaw), R"("a\/b")", R"({ "V" : "a\/b" })", true},
    // Wrong JSON types: numbers from text and objects read 0, text from a number is empty.
    {"int from text", V(i32, kInt), R"("12")", R"({ "V" : 0 })", true},
    {"uint from object", V(u32, kUInt), R"({"x":1})", R"({ "V" : 0 })", true},
    {"real from text", V(f64, kReal), R"("1.5")", R"({ "V" : 0.000000000000000 })", true},
    {"text from number", V(text, kText), "5", R"({ "V" : "" })", true},
    // Enumerations: letter case, exactness, first value, aliases, unnamed values.
    {"enum any case", KOVA_ENUM(Probe, e32, "V", kNumbers), R"("TWO")", R"({ "V" : "Two" })", true},
    {"enum alias", KOVA_ENUM(Probe, e8, "V", kNumbers), R"("uno")", R"({ "V" : "One" })", true},
    {"enum exact, first 5", KOVA_ENUM(Probe, e32, "V", kExactNumbers), R"("One")", R"({ "V" : "One" })", true},
    {"enum exact misses", KOVA_ENUM(Probe, e32, "V", kExactNumbers), R"("one")", R"({ "V" : "" })", true},
    {"unknown text leaves the field", KOVA_ENUM(Probe, e32, "V", kNumbers), R"("Three")", R"({ "V" : "Zero" })", true},
    {"unknown -1, omitted", KOVA_ENUM(Probe, e32, "V", kNumbersOrMinusOne), "7", "{  }", false},
    {"unnamed as first", KOVA_ENUM(Probe, e32, "V", kNumbersOrMinusOne).UnnamedAs(Unnamed::kFirstName), R"("x")", R"({ "V" : "Zero" })", false},
    {"unnamed as null", KOVA_ENUM(Probe, e32, "V", kNumbersOrMinusOne).UnnamedAs(Unnamed::kNull), R"("x")", R"({ "V" : null })", false},
    {"unnamed as text", KOVA_ENUM(Probe, e32, "V", kNumbersOrMinusOne).UnnamedAs(Unnamed::kEmptyText), R"("x")", R"({ "V" : "" })", false},
    {"unnamed as unknown's name", KOVA_ENUM(Probe, e32, "V", kNumbersOrTwo).UnnamedAs(Unnamed::kUnknownName), R"("x")", R"({ "V" : "Two" })", true},
    // Presence and pack rules.
    {"flag set", V(i32, kInt).Flag(KOVA_AT(Probe, flag8)), "3", R"({ "V" : 3 })", true},
    {"flag unset: not packed", V(i32, kInt).Flag(KOVA_AT(Probe, flag32)), "", "{  }", true},
    {"always read, flagged", V(b32, kBool).Flag(KOVA_AT(Probe, flag8)).AlwaysRead(), "", R"({ "V" : false })", true},
    {"missing as -1", V(i32, kInt).MissingAs(-1).Sentinel(-1), "", "{  }", true},
    {"null as -1", V(i16, kInt).MissingAs(-1).Sentinel(-1), "null", "{  }", true},
    {"sentinel written otherwise", V(i32, kInt).Sentinel(-1), "0", R"({ "V" : 0 })", true},
    {"negative not packed", V(i64, kInt).NonNegative(), "-3", "{  }", false},
    {"bool equals one", V(i32, kInt).PackBoolEqualsOne(), "2", R"({ "V" : false })", false},
    {"bool non-zero", V(u16, kUInt).With(&kova::Field::packAs, kova::PackAs::kBoolNonZero), "2", R"({ "V" : true })", false},
    {"parse only", V(i32, kInt).ParseOnly(), "9", "{  }", false},
    {"pack only", V(i32, kInt).PackOnly(), "9", R"({ "V" : 0 })", false},
    {"packed when a flag is set", V(i32, kInt).WhenAnySet(KOVA_FLAGS(Probe, flag8, flag32)), "4", "{  }", false},
    // Tuples: all items required by default, fewer with MinItems, more cut.
    {"pair", KOVA_TUPLE(Probe, pair, "V", int32_t, 2), "[3, 4]", R"({ "V" : [ 3, 4 ] })", true},
    {"pair too short", KOVA_TUPLE(Probe, pair, "V", int32_t, 2).Flag(KOVA_AT(Probe, flag8)), "[3]", "{  }", true},
    {"pair from one item", KOVA_TUPLE(Probe, pair, "V", int32_t, 2).MinItems(1), "[3]", R"({ "V" : [ 3, 0 ] })", true},
    {"pair cut", KOVA_TUPLE(Probe, pair, "V", int32_t, 2), "[1, 2, 3]", R"({ "V" : [ 1, 2 ] })", true},
    {"pair not an array", KOVA_TUPLE(Probe, pair, "V", int32_t, 2).Flag(KOVA_AT(Probe, flag8)), R"("1,2")", "{  }", true},
    // Nested blocks found by their type.
    {"nested", KOVA_NESTED(Probe, inner, "V"), R"({"A": 8})", R"({ "V" : { "A" : 8 } })", true},
    {"nested not an object", KOVA_NESTED(Probe, inner, "V").Flag(KOVA_AT(Probe, flag8)), "[]", "{  }", true},
    {"nested of any type", KOVA_NESTED(Probe, inner, "V").Flag(KOVA_AT(Probe, flag8)).AnyType(), "3", R"({ "V" : {  } })", true},
    {"nested always read", KOVA_NESTED(Probe, inner, "V").AlwaysRead().NullWhenEmpty(), "", R"({ "V" : null })", true},
    // Lists: the count rules, kept slots, cuts, wrong types.
    {"list, all", LIST(kInt32Item).Count(KOVA_AT(Probe, count), CountRule::kAll), "[1, null, 2, 3, 4]", R"({ "V" : [ 1, 2, 3 ] })", true},
    {"list, taken", LIST(kInt32Item).Count(KOVA_AT(Probe, count), CountRule::kTaken), "[1, null, 2]", R"({ "V" : [ 1, 2 ] })", true},
    {"list, non-null", LIST(kInt32Item).Count(KOVA_AT(Probe, count), CountRule::kNonNull).KeepSlots(), "[null, 5, null]", R"({ "V" : [ 0 ] })", false},
    {"list, length", LIST(kInt32Item).Count(KOVA_AT(Probe, count), CountRule::kLength), "[1, 2, 3, 4, 5]", R"({ "V" : [ 1, 2, 3 ] })", false},
    {"list, kept slots", LIST(kInt32Item).Count(KOVA_AT(Probe, count), CountRule::kAll).KeepSlots(), "[1, null, 2]", R"({ "V" : [ 1, 0, 2 ] })", true},
    {"list, nulls read", LIST(kInt32ItemAlways).Count(KOVA_AT(Probe, count), CountRule::kTaken), "[null, 7]", R"({ "V" : [ 0, 7 ] })", true},
    {"list without count", LIST(kInt32Item), "[4]", R"({ "V" : [ 4, 0, 0 ] })", false},
    {"list not an array", LIST(kInt32Item).Count(KOVA_AT(Probe, count), CountRule::kAll).Flag(KOVA_AT(Probe, flag8)), R"({"0": 1})", "{  }", true},
    {"list of any type", LIST(kInt32Item).Count(KOVA_AT(Probe, count), CountRule::kAll).Flag(KOVA_AT(Probe, flag8)).AnyType(), "5", R"({ "V" : [  ] })", true},
    {"list of texts", KOVA_LIST(Probe, texts, "V", kTextItem).Count(KOVA_AT(Probe, ucount), CountRule::kAll), R"(["ab", "cdefg"])", R"({ "V" : [ "ab", "cde" ] })", true},
};
// clang-format on

#undef V
#undef LIST

Json::Value Read(const std::string& text) {
  Json::Value v;
  EXPECT_TRUE(kova::ReadJson(text.c_str(), &v)) << text;
  return v;
}

std::string Packed(const Probe& r, const Field& f) {
  Json::Value obj(Json::objectValue);
  kova::PackFields(&r, obj, &f, 1);
  std::string text = kova::WriteJson(obj);
  text.pop_back();  // the newline
  return text;
}

Probe Parsed(const Json::Value& obj, const Field& f) {
  Probe r;
  std::memset(&r, 0, sizeof r);
  kova::ParseFields(obj, &r, &f, 1);
  return r;
}

TEST(FieldTable, EveryKindWidthAndRuleParsesPacksAndParsesAgain) {
  for (const Case& c : kCases) {
    const Json::Value obj = Read(*c.json ? std::string(R"({"V":)") + c.json + "}" : "{}");
    const Probe first = Parsed(obj, c.field);

    const std::string packed = Packed(first, c.field);
    EXPECT_EQ(c.packed, packed) << c.what;
    if (!c.roundTrips) continue;
    const Probe again = Parsed(Read(packed), c.field);
    EXPECT_EQ(0, std::memcmp(&first, &again, sizeof first)) << c.what << ": " << packed;
  }
}

TEST(FieldTable, StoredValuesAndFlags) {
  const auto parse = [](const Field& f, const char* json) {
    return Parsed(Read(std::string(R"({"V":)") + json + "}"), f);
  };
  EXPECT_EQ(-1, parse(KOVA_ENUM(Probe, e32, "V", kNumbersOrMinusOne), R"("x")").e32);
  EXPECT_EQ(5, parse(KOVA_ENUM(Probe, e32, "V", kExactNumbers), R"("Zero")").e32);

  // A present scalar is flagged even when its text names nothing.
  const Probe unnamed =
      parse(KOVA_ENUM(Probe, e32, "V", kNumbers).Flag(KOVA_AT(Probe, flag8)), R"("x")");
  EXPECT_EQ(1, unnamed.flag8);
  EXPECT_EQ(0, unnamed.e32);

  // A flag written both ways; a record that parse does not clear keeps the
  // value of a missing member.
  Probe kept;
  std::memset(&kept, 0, sizeof kept);
  kept.i32 = 77;
  kept.flag32 = 1;
  const Field cleared = KOVA_F(Probe, i32, "V", kInt).Flag(KOVA_AT(Probe, flag32)).ClearsFlag();
  kova::ParseFields(Read("{}"), &kept, &cleared, 1);
  EXPECT_EQ(0, kept.flag32);
  EXPECT_EQ(77, kept.i32);

  // Lists: counts by each rule, slots of a list cut to its capacity.
  const Probe length = parse(
      KOVA_LIST(Probe, list, "V", kInt32Item).Count(KOVA_AT(Probe, count), CountRule::kLength),
      "[1, 2, 3, 4, 5]");
  EXPECT_EQ(5, length.count);
  const Probe nonNull = parse(KOVA_LIST(Probe, list, "V", kInt32Item)
                                  .Count(KOVA_AT(Probe, count), CountRule::kNonNull)
                                  .KeepSlots(),
                              "[null, 5, null]");
  EXPECT_EQ(1, nonNull.count);
  EXPECT_EQ(5, nonNull.list[1]);

  // Written when one of a group of flags is set.
  Probe grouped;
  std::memset(&grouped, 0, sizeof grouped);
  grouped.flag32 = 1;
  EXPECT_EQ(
      R"({ "V" : 0 })",
      Packed(grouped, KOVA_F(Probe, i32, "V", kInt).WhenAnySet(KOVA_FLAGS(Probe, flag8, flag32))));

  // A nested block given with another type but read as any type: its own
  // flags are written as for a missing member.
  const Probe anyType = parse(KOVA_NESTED(Probe, inner, "V").AnyType(), "[1]");
  EXPECT_EQ(0, anyType.inner.aPresent);
}

TEST(FieldTable, CountsFromTheRecordAreCutToTheList) {
  const Field list =
      KOVA_LIST(Probe, list, "V", kInt32Item).Count(KOVA_AT(Probe, count), CountRule::kAll);
  const Field texts =
      KOVA_LIST(Probe, texts, "V", kTextItem).Count(KOVA_AT(Probe, ucount), CountRule::kAll);
  Probe r;
  std::memset(&r, 0x7F, sizeof r);
  EXPECT_EQ(R"({ "V" : [ 2139062143, 2139062143, 2139062143 ] })", Packed(r, list));
  r.count = -1;  // a negative signed count packs nothing
  EXPECT_EQ(R"({ "V" : [  ] })", Packed(r, list));
  // An unsigned count is cut to the capacity; texts filled to capacity
  // without a terminator are read no further.
  r.ucount = 0xFFFFFFFFu;
  std::memset(r.texts, 'w', sizeof r.texts);
  EXPECT_EQ(R"({ "V" : [ "wwww", "wwww", "wwww" ] })", Packed(r, texts));
}

// A group of the record's own fields, a list of lists, fields sharing a
// key, and custom steps: one table, through both lookups.
struct Door {
  int32_t count;
  int32_t numbers[2];
};
struct Block {
  int32_t enable;
  int32_t groupCount;
  Door groups[2];
  uint8_t present;
  int32_t custom;
  int32_t shared;
};

void ParseCustom(const Json::Value& obj, unsigned char* record, const Field& f) {
  kova::StoreInt(record + f.offset, f.size, obj.isObject() ? kova::Count(obj) : -1);
  kova::MarkPresent(record, f);
}
void PackCustom(const unsigned char* record, Json::Value& obj, const Field& f) {
  kova::SetMember(obj, f.key) =
      static_cast<Json::Int>(kova::LoadInt(record + f.offset, f.size, true));
}

constexpr Field kDoorNumber = KOVA_ITEM(int32_t, kInt).AlwaysRead();
constexpr Field kDoor =
    KOVA_LIST(Door, numbers, nullptr, kDoorNumber).Count(KOVA_AT(Door, count), CountRule::kAll);
constexpr Field kLockFields[] = {
    KOVA_F(Block, enable, "Enable", kBool),
    KOVA_LIST(Block, groups, "Doors", kDoor)
        .Count(KOVA_AT(Block, groupCount), CountRule::kAll)
        .KeepSlots(),
};
constexpr FieldTable kLock = KOVA_TABLE(kLockFields);
constexpr Field kBlockFields[] = {
    KOVA_F(Block, shared, "Z", kInt).ParseOnly(),
    KOVA_GROUP(Block, "Lock", kLock).Flag(KOVA_AT(Block, present)).AnyType(),
    KOVA_CUSTOM(Block, custom, "Custom", ParseCustom, PackCustom).Flag(KOVA_AT(Block, present)),
    KOVA_F(Block, custom, "Z", kInt).PackOnly(),
};
constexpr FieldTable kBlock = KOVA_TABLE(kBlockFields);

TEST(FieldTable, GroupsListsOfListsSharedKeysAndCustomSteps) {
  const Json::Value obj =
      Read(R"({"Z": 4, "Lock": {"Doors": [[1, null, 3], "x", [7]]}, "A": 1, "B": 2})");
  Block byField, joined;
  std::memset(&byField, 0, sizeof byField);
  std::memset(&joined, 0, sizeof joined);
  kova::ParseFields(obj, &byField, kBlock.fields, kBlock.count);
  kova::ParseFields(obj, &joined, kBlock);
  EXPECT_EQ(0, std::memcmp(&byField, &joined, sizeof byField));
  EXPECT_EQ(4, joined.shared);
  EXPECT_EQ(2, joined.groupCount);
  EXPECT_EQ(2, joined.groups[0].count);
  EXPECT_EQ(0, joined.groups[0].numbers[1]);  // a null door reads 0 in its slot
  EXPECT_EQ(0, joined.groups[1].count);       // "x" is not a group: left as it was
  EXPECT_EQ(1, joined.present);
  EXPECT_EQ(4, joined.custom);  // the custom step sees the whole object

  Json::Value out(Json::objectValue);
  kova::PackFields(&joined, out, kBlock);
  EXPECT_EQ(
      R"({ "Custom" : 4, "Lock" : { "Doors" : [ [ 1, 0 ], [  ] ], "Enable" : false }, "Z" : 4 })"
      "\n",
      kova::WriteJson(out));
}

}  // namespace
