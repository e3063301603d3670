// The device protocol's two name vocabularies, kept as fixtures independent
// of the one name table: a name missing, duplicated or misspelt in a list,
// or out of order in the parse list, fails here.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "api/dispatch.h"

namespace {

// One name a line, in dispatch order; a tab and "parse only" or "pack only"
// after the names with a single direction.
struct Vocabulary {
  std::vector<std::string> names;
  std::vector<std::string> parseOnly;
};

Vocabulary Load(const char* file) {
  Vocabulary v;
  std::ifstream in(std::string(KOVA_FIXTURES_DIR) + "/" + file);
  std::string line;
  while (std::getline(in, line)) {
    const size_t tab = line.find('\t');
    v.names.push_back(line.substr(0, tab));
    if (tab != std::string::npos && line.substr(tab + 1) == "parse only") {
      v.parseOnly.push_back(v.names.back());
    }
  }
  return v;
}

const Vocabulary& ParseVocabulary() {
  static const Vocabulary v = Load("parse_names.txt");
  return v;
}

const Vocabulary& PackVocabulary() {
  static const Vocabulary v = Load("pack_names.txt");
  return v;
}

// The names added beyond the two vocabularies follow every listed name.
size_t ListedCount(const kova::NameEntry* list, size_t count) {
  size_t listed = 0;
  while (listed < count && !list[listed].added) ++listed;
  for (size_t i = listed; i < count; ++i) EXPECT_TRUE(list[i].added) << list[i].name;
  return listed;
}

TEST(NameLists, ParseTableHoldsTheVocabularyInOrder) {
  const std::vector<std::string>& names = ParseVocabulary().names;
  ASSERT_EQ(293u, names.size());
  ASSERT_EQ(names.size(), ListedCount(kova::kParseNames, kova::kParseNameCount));
  for (size_t i = 0; i < names.size(); ++i) {
    EXPECT_EQ(names[i], kova::kParseNames[i].name) << "index " << i;
  }
}

// The pack list follows the one table's order, which is the parse list's:
// the names are distinct, so their order decides nothing a caller sees.
TEST(NameLists, PackTableHoldsTheVocabulary) {
  std::vector<std::string> names = PackVocabulary().names;
  ASSERT_EQ(252u, names.size());
  const size_t listed = ListedCount(kova::kPackNames, kova::kPackNameCount);
  ASSERT_EQ(names.size(), listed);
  std::vector<std::string> table;
  for (size_t i = 0; i < listed; ++i) table.push_back(kova::kPackNames[i].name);
  std::sort(names.begin(), names.end());
  std::sort(table.begin(), table.end());
  EXPECT_EQ(names, table);
}

TEST(NameLists, DirectionsMatchTheVocabulary) {
  const std::vector<std::string>& only = ParseVocabulary().parseOnly;
  const std::set<std::string> parseOnly(only.begin(), only.end());
  EXPECT_EQ(42u, parseOnly.size());
  for (const std::string& n : ParseVocabulary().names) {
    EXPECT_EQ(parseOnly.count(n) == 0, kova::FindPackName(n.c_str()) >= 0) << n;
  }
  size_t packOnly = 0;
  for (const std::string& n : PackVocabulary().names) {
    if (kova::FindParseName(n.c_str()) < 0) {
      ++packOnly;
      EXPECT_EQ("VideoDiagnosisRealProject", n);
    }
  }
  EXPECT_EQ(1u, packOnly);
}

}  // namespace
