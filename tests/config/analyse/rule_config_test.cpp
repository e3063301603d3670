// The rule type descriptions: the table of types the rule list carries, and
// what every bound type must agree with.
#include "config/analyse/rule_config.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "common/base/log.h"
#include "config/alarm/alarm_test_util.h"
#include "config/analyse/rule_types.h"
#include "kova/kova.h"

namespace kova {
namespace {

TEST(RuleConfigTable, SeventyOneRowsInTheDevicesOrder) {
  const uint32_t order[] = {
      2,   287, 3,   12,  13,  4,   8,   10,  272, 14,  9,   6,   7,   5,   277, 278, 11,  15,
      16,  275, 274, 19,  279, 21,  22,  23,  24,  26,  27,  303, 264, 256, 265, 266, 257, 259,
      260, 270, 283, 293, 292, 267, 261, 262, 263, 286, 288, 258, 271, 291, 294, 296, 297, 298,
      299, 300, 308, 312, 313, 314, 301, 302, 341, 342, 343, 351, 315, 316, 514, 359, 362};
  ASSERT_EQ(sizeof order / sizeof order[0], kRuleConfigRowCount);
  std::set<uint32_t> codes;
  for (size_t i = 0; i < kRuleConfigRowCount; ++i) {
    const RuleConfigRow& row = kRuleConfigTable[i];
    EXPECT_EQ(order[i], row.code) << i;
    EXPECT_TRUE(codes.insert(row.code).second) << row.code;
    // Every row is a type the rule list accepts, bound to a record that is
    // exactly the body the list makes room for.
    EXPECT_GT(RuleBodySize(row.code), 0) << row.code;
    ASSERT_NE(nullptr, row.type) << row.code;
    EXPECT_EQ(static_cast<uint32_t>(RuleBodySize(row.code)), row.type->recordSize) << row.code;
    EXPECT_EQ(FindRuleType(row.code), row.type);
  }
  EXPECT_EQ(&kCrossLineRuleType, FindRuleType(KOVA_RULE_CROSS_LINE));
  EXPECT_EQ(&kCrossRegionRuleType, FindRuleType(KOVA_RULE_CROSS_REGION));
  EXPECT_EQ(&kFireRuleType, FindRuleType(12));  // one type in several rows
  EXPECT_EQ(&kFireRuleType, FindRuleType(13));
  EXPECT_EQ(nullptr, FindRuleType(1));  // no row
  EXPECT_EQ(offsetof(CrossLineRule, linkage), kCrossLineRuleType.linkageOffset);
}

TEST(SceneClassNames, ParseAndPackTables) {
  EXPECT_EQ(15u, SceneClassFromName("standupdetection"));
  EXPECT_EQ(5u, SceneClassFromName("ATM"));
  EXPECT_EQ(0u, SceneClassFromName(""));
  EXPECT_EQ(0u, SceneClassFromName("Normal "));
  EXPECT_EQ(0u, SceneClassFromName(nullptr));
  EXPECT_STREQ("Vehicle", SceneClassPackName(14));
  EXPECT_STREQ("", SceneClassPackName(15));
  EXPECT_STREQ("", SceneClassPackName(0));
  EXPECT_STREQ("", SceneClassPackName(0xFFFFFFFFu));
}

// The two class reports, in the devices' own words.
TEST(RuleList, ReportsMissingAndUnknownClasses) {
  const std::string path = (std::filesystem::temp_directory_path() /
                            ("kova_rule_log_" + std::to_string(std::random_device()())))
                               .string();
  LogSettings s = {};
  std::snprintf(s.path, sizeof s.path, "%s", path.c_str());
  ASSERT_TRUE(OpenLogger(&s));
  const std::string doc = kova_test::Doc(
      R"([{"Type":"CrossLineDetection"},{"Type":"CrossLineDetection","Class":"Moon"}])");
  std::vector<uint8_t> rules(2 * (12 + sizeof(CrossLineRule)));
  VideoAnalyseRuleList list = {0, rules.data(), static_cast<uint32_t>(rules.size())};
  EXPECT_EQ(1, KOVA_ParseData("VideoAnalyseRule", doc.c_str(), &list, sizeof list, nullptr));
  CloseLogger();
  std::ifstream in(path);
  const std::string log((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  std::remove(path.c_str());
  const size_t missing = log.find("This class type is not exist!");
  const size_t unknown = log.find("This calss type is unknown!");
  EXPECT_NE(std::string::npos, missing) << log;
  EXPECT_NE(std::string::npos, unknown) << log;
  EXPECT_LT(missing, unknown);
}

}  // namespace
}  // namespace kova
