// Declaring fields: the builders behind the KOVA_F, KOVA_NESTED, KOVA_LIST,
// ... macros, which check each kind against the member's type at compile
// time. See field_table.h for how a configuration is described.
#ifndef KOVA_COMMON_FIELDS_FIELD_DECLARE_H_
#define KOVA_COMMON_FIELDS_FIELD_DECLARE_H_

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "common/fields/c_type_name.h"
#include "common/fields/field.h"

namespace kova {

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
  f.SetKey(key);
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
  f.SetKey(key);
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
  f.SetKey(key);
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
  f.SetKey(key);
  f.size = recordSize;
  f.kind = FieldKind::kObject;
  f.shape = FieldShape::kNested;
  f.table = table;
  return f;
}

constexpr Field MakeCustom(const char* key, size_t offset, uint32_t size, CustomParse parse,
                           CustomPack pack) {
  Field f;
  f.SetKey(key);
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
      key, offsetof(Rec, member), n)                                            \
      .Member(#member)
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

#endif  // KOVA_COMMON_FIELDS_FIELD_DECLARE_H_
