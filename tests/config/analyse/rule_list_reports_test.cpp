// The rule list's reports about scene classes.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "common/base/log.h"
#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/analyse.h"

namespace kova {
namespace {

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
