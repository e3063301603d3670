// Non-throwing access to the JSON value tree.
//
// jsoncpp throws on some misuse (operator[] on a string or an array, asInt
// out of range, asString on an object). Every translator reads and writes
// JSON through these functions instead, so that no device document can make
// the library throw.
#ifndef KOVA_COMMON_JSON_H_
#define KOVA_COMMON_JSON_H_

#include <json/value.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace kova {

// Parses NUL-terminated `text` with the JSON library in its default mode
// (comments accepted but not kept). Returns false on a syntax error, a null
// text, nesting beyond the library's limit or any other failure; `root` is
// then unspecified.
bool ReadJson(const char* text, Json::Value* root);

// Member `key` of an object; a shared null value for a missing member or
// when `v` is not an object.
const Json::Value& Member(const Json::Value& v, const char* key);
// Member `key` of `length` bytes; null when missing or `v` is not an object.
const Json::Value* FindMember(const Json::Value& v, const char* key, size_t length);
// True when `v` is an object that has `key` as a member (even holding null).
bool HasMember(const Json::Value& v, const char* key);
// Element `i` of an array; a shared null value when `v` is not an array or
// `i` is out of range.
const Json::Value& Element(const Json::Value& v, uint64_t i);
// Number of elements of an array or members of an object; 0 otherwise.
uint32_t Count(const Json::Value& v);

// The shared null value that Member and Element return for what is missing.
const Json::Value& Null();

// Calls fn(i, element) for i = 0 .. min(Count(v), limit) - 1 of an array
// (nothing for any other value), in order: Element(v, i) for each i, but
// without a lookup per element. A `fn` that returns bool stops the walk by
// returning false.
template <typename Fn>
void ForEachElement(const Json::Value& v, uint32_t limit, Fn&& fn) {
  if (!v.isArray()) return;
  const uint32_t n = std::min<uint32_t>(v.size(), limit);
  // The entries come in index order and the last one's index is the size
  // less one, so an entry at or past each index below the size is there:
  // no comparison with end() is needed. An index without an entry (arrays
  // the reader makes have none) reads as null.
  Json::Value::const_iterator it = v.begin();
  for (uint32_t i = 0; i < n; ++i) {
    const bool here = it.index() == i;
    const Json::Value& e = here ? *it : Null();
    if (here) ++it;
    if constexpr (std::is_same<decltype(fn(i, e)), bool>::value) {
      if (!fn(i, e)) return;
    } else {
      fn(i, e);
    }
  }
}

// The four conversions every translator relies on. None fails or throws.
// Signed 32-bit: null 0; an integer its value when it fits in 32 bits and
// is below 2147483647 for unsigned-only values, 0 otherwise; a real within
// [-2147483648, 2147483647] truncated, 0 otherwise; a boolean 0 or 1; a
// string, array or object 0.
int32_t ToInt32(const Json::Value& v);
// Unsigned 32-bit: null 0; a negative integer 0; an integer above
// 4294967295 0; a real within [0, 4294967295] truncated, 0 otherwise; a
// boolean 0 or 1; a string, array or object 0.
uint32_t ToUInt32(const Json::Value& v);
// Real: null 0.0, integers their value, booleans 1.0 or 0.0, anything else 0.0.
double ToDouble(const Json::Value& v);
// Boolean: null false; a number true when non-zero (NaN is true); a string
// true when non-empty; an array or object true when it has elements.
bool ToBool(const Json::Value& v);
// The text of a string value (embedded NULs kept); "" for any other type.
std::string ToText(const Json::Value& v);
// The same without a copy: valid while `v` lives (never a null pointer).
std::string_view TextView(const Json::Value& v);
// The text of a string value in place, NUL-terminated (a reader sees it up
// to its first NUL), valid while `v` lives; "" for any other type. For
// scanning text without copying it.
const char* TextInPlace(const Json::Value& v);

// Calls `visit(name, length, value)` for each member of an object, in the
// JSON library's member order (ascending by the bytes of the name), until it
// returns false; does nothing for any other value. `name` (which may hold
// NULs: use `length`) and `value` live as long as `obj` is not changed.
template <typename Visit>
void ForEachMemberInPlace(const Json::Value& obj, Visit visit) {
  if (!obj.isObject()) return;
  // Counted rather than compared with end(): one call into the JSON
  // library less per member, and none to step past the last one.
  Json::Value::const_iterator it = obj.begin();
  for (Json::ArrayIndex left = obj.size(); left > 0; --left) {
    const char* nameEnd = nullptr;
    const char* name = it.memberName(&nameEnd);
    if (name != nullptr && !visit(name, static_cast<size_t>(nameEnd - name), *it)) return;
    if (left > 1) ++it;
  }
}

// Calls `visit(name, value)` for each member of an object, in the JSON
// library's member order (ascending by the bytes of the name), until it
// returns false; does nothing for any other value. `name` keeps embedded NULs.
template <typename Visit>
void ForEachMember(const Json::Value& obj, Visit visit) {
  ForEachMemberInPlace(obj, [&visit](const char* name, size_t length, const Json::Value& value) {
    return visit(std::string(name, length), value);
  });
}

// The same for every element of the array.
template <typename Fn>
void ForEachElement(const Json::Value& v, Fn&& fn) {
  ForEachElement(v, UINT32_MAX, std::forward<Fn>(fn));
}

// Writable member `key`: `obj` becomes an object first when it is not one
// (a non-null value of another type is replaced).
Json::Value& SetMember(Json::Value& obj, const char* key);
// The same for a key that outlives the tree, a literal or a key of a
// record's description: the tree points at it instead of copying it.
Json::Value& SetKeptMember(Json::Value& obj, const char* key);
// Writable element `i`: `arr` becomes an array first when it is not one;
// the array grows to hold `i`.
Json::Value& SetElement(Json::Value& arr, uint32_t i);
// Appends a value to `arr` (made an array first when it is not one) and
// returns the new element.
Json::Value& Append(Json::Value& arr, const Json::Value& v);

}  // namespace kova

#endif  // KOVA_COMMON_JSON_H_
