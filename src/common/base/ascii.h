// The one comparison of names and enumeration texts that ignores letter
// case: configuration names, rule type names, scene classes and every
// enumeration table that is not exact.
//
// Only the ASCII letters A-Z are folded (to a-z). Every other byte, UTF-8
// sequences included, compares as it stands, so "a@" and "a`" differ and
// "É" never equals "é". Lengths count: a text with an embedded NUL is not
// the name it begins with.
#ifndef KOVA_COMMON_BASE_ASCII_H_
#define KOVA_COMMON_BASE_ASCII_H_

#include <string_view>

namespace kova {

// `c` with A-Z folded to a-z.
constexpr char AsciiLower(char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

// Whole-text equality after folding.
bool AsciiEqualNoCase(std::string_view a, std::string_view b);
// The same for a NUL-terminated name, read no further than it differs: a
// search through a table of names need not measure each one.
bool AsciiEqualNoCase(const char* name, std::string_view text);
// Exact equality of a NUL-terminated name and a text, read the same way.
bool NameEquals(const char* name, std::string_view text);

// The order of texts after folding, byte by byte as unsigned values, a text
// before any longer text it begins: below 0, 0 or above 0 as a sorts before,
// with or after b. Texts that compare 0 are exactly those AsciiEqualNoCase
// finds equal.
int AsciiCompareNoCase(std::string_view a, std::string_view b);

}  // namespace kova

#endif  // KOVA_COMMON_BASE_ASCII_H_
