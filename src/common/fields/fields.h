// Moving text between JSON string values and fixed character-array fields.
//
// Record text fields hold NUL-terminated text in the local code page; JSON
// text is UTF-8. A helper never writes more than `cap` - 1 text bytes into a
// field of capacity `cap`.
#ifndef KOVA_COMMON_FIELDS_H_
#define KOVA_COMMON_FIELDS_H_

#include <json/value.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace kova {

// Clears all `cap` bytes of `dst`, then, when `v` is a JSON string, copies
// it in (converted to the local code page when `convert` is set, unchanged
// otherwise), cut to `cap` - 1 bytes. Returns true when `v` was a string;
// a number is not turned into text.
bool GetJsonString(const Json::Value& v, char* dst, uint32_t cap, uint8_t convert);

// Does nothing when `dst` is null or `v` is null (a missing member leaves
// the field as it was); otherwise GetJsonString(v, dst, cap, true).
void GetJsonStringIfPresent(const Json::Value& v, char* dst, uint32_t cap);

// Stores NUL-terminated `src` into `v` as a JSON string, converted to UTF-8
// when `convert` is set (the UTF-8 form is cut at 3/2 of the source length
// plus one, deliberately). Returns false, leaving `v` unchanged, when `src`
// is null.
bool SetJsonString(Json::Value& v, const char* src, uint8_t convert);

// Reads a fixed field of capacity `cap` that may lack its terminator: the
// text up to the first NUL or `cap` bytes, whichever comes first.
// (Records come from callers; a field filled to capacity is never read past.)
// Stores it like SetJsonString.
bool SetJsonStringBounded(Json::Value& v, const char* src, uint32_t cap, uint8_t convert);

// The room the UTF-8 form of `n` bytes of local text is given: one and a
// half times them and one; a text that grows more (two-byte GBK becoming
// three-byte UTF-8 throughout) is cut there. The bound is deliberate and kept.
constexpr size_t Utf8Room(size_t n) { return (3 * n) / 2 + 1; }

// The text of a fixed field of capacity `cap` as SetJsonStringBounded
// stores it (converted to UTF-8), up to its first NUL: a member's name.
std::string NameOfField(const char* src, uint32_t cap);

// UTF-8 to the local code page: converts the NUL-terminated length of `src`
// (`srcLen` is only checked to be at least 1) into at most `cap` bytes of
// `dst`, writing no terminator. Returns the byte count, 0 on refusal.
int32_t Utf8ToAnsi(const char* src, int32_t srcLen, char* dst, int32_t cap);

// Local code page to UTF-8: converts exactly `srcLen` bytes into at most
// `cap` - 1 bytes of `dst` and writes a NUL after them. Returns the byte
// count, 0 on refusal.
int32_t AnsiToUtf8(const char* src, int32_t srcLen, char* dst, int32_t cap);

}  // namespace kova

#endif  // KOVA_COMMON_FIELDS_H_
