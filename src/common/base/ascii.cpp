#include "common/base/ascii.h"

#include <cstddef>

namespace kova {

bool AsciiEqualNoCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (AsciiLower(a[i]) != AsciiLower(b[i])) return false;
  }
  return true;
}

bool AsciiEqualNoCase(const char* name, std::string_view text) {
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = name[i];
    if (c == text[i] && c != '\0') continue;  // most bytes match as they stand
    if (c == '\0' || AsciiLower(c) != AsciiLower(text[i])) return false;
  }
  return name[text.size()] == '\0';
}

bool NameEquals(const char* name, std::string_view text) {
  for (size_t i = 0; i < text.size(); ++i) {
    if (name[i] == '\0' || name[i] != text[i]) return false;
  }
  return name[text.size()] == '\0';
}

int AsciiCompareNoCase(std::string_view a, std::string_view b) {
  const size_t n = a.size() < b.size() ? a.size() : b.size();
  for (size_t i = 0; i < n; ++i) {
    const unsigned char x = static_cast<unsigned char>(AsciiLower(a[i]));
    const unsigned char y = static_cast<unsigned char>(AsciiLower(b[i]));
    if (x != y) return x < y ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

}  // namespace kova
