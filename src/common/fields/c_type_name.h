// The C type of a record member as a text, for tools that show records: the
// fixed-width name of an integer type, float, double, char or bool;
// arrays name their element. Null for a
// type this cannot name (a struct: its description names it).
#ifndef KOVA_COMMON_FIELDS_C_TYPE_NAME_H_
#define KOVA_COMMON_FIELDS_C_TYPE_NAME_H_

#include <type_traits>

namespace kova {

template <typename T>
struct Description;

template <typename T>
constexpr const char* CTypeName() {
  using B = std::remove_cv_t<std::remove_all_extents_t<T>>;
  if constexpr (std::is_enum<B>::value) {
    return CTypeName<std::underlying_type_t<B>>();
  } else if constexpr (std::is_same<B, bool>::value) {
    return "bool";
  } else if constexpr (std::is_same<B, char>::value) {
    return "char";
  } else if constexpr (std::is_integral<B>::value) {
    constexpr const char* kSigned[] = {"int8_t", "int16_t", "int32_t", "int64_t"};
    constexpr const char* kUnsigned[] = {"uint8_t", "uint16_t", "uint32_t", "uint64_t"};
    constexpr int kWidth = sizeof(B) == 1 ? 0 : sizeof(B) == 2 ? 1 : sizeof(B) == 4 ? 2 : 3;
    return std::is_signed<B>::value ? kSigned[kWidth] : kUnsigned[kWidth];
  } else if constexpr (std::is_same<B, float>::value) {
    return "float";
  } else if constexpr (std::is_same<B, double>::value) {
    return "double";
  } else {
    return nullptr;
  }
}

}  // namespace kova

#endif  // KOVA_COMMON_FIELDS_C_TYPE_NAME_H_
