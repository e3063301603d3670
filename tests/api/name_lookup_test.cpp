// The name lookup searches the lists in folded order: every listed name must
// be found at its own index whatever its letter case, and nothing else.
#include <gtest/gtest.h>

#include <string>

#include "api/dispatch.h"

namespace {

std::string Cased(const char* name, bool upper) {
  std::string s(name);
  for (char& c : s) {
    if (upper && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (!upper && c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return s;
}

TEST(NameLookup, EveryListedNameIsFoundAtItsOwnIndexInAnyCase) {
  for (size_t i = 0; i < kova::kParseNameCount; ++i) {
    const char* name = kova::kParseNames[i].name;
    for (const std::string& n : {std::string(name), Cased(name, true), Cased(name, false)}) {
      EXPECT_EQ(static_cast<int>(i), kova::FindParseName(n.c_str())) << n;
      EXPECT_EQ(-1, kova::FindParseName((n + "_").c_str())) << n;
      EXPECT_EQ(-1, kova::FindParseName(n.substr(0, n.size() - 1).c_str())) << n;
    }
  }
  for (size_t k = 0; k < kova::kPackNameCount; ++k) {
    const char* name = kova::kPackNames[k].name;
    for (const std::string& n : {std::string(name), Cased(name, true), Cased(name, false)}) {
      EXPECT_EQ(static_cast<int>(k), kova::FindPackName(n.c_str())) << n;
    }
  }
}

}  // namespace
