// "PtzPreset": a list per channel that comes either as the whole table or
// as one channel's list.
#include "kova/records/ptz_motion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "test_util.h"

namespace kova_test {
namespace {

std::string Presets(int n) {
  std::string s = "[";
  for (int i = 0; i < n; ++i) {
    s += std::string(i ? "," : "") + R"({"Name":"P)" + std::to_string(i + 1) + R"(","Position":[)" +
         std::to_string(i) + ",-5,1]}";
  }
  return s + "]";
}

TEST(PtzMotion, PresetListsReadAsTheWholeTableOrOneChannel) {
  std::vector<PtzPresetConfig> r(2);
  uint32_t ret = 0;
  const uint32_t bytes = static_cast<uint32_t>(r.size() * sizeof(PtzPresetConfig));
  const auto parse = [&](const std::string& table) {
    return KOVA_ParseData("PtzPreset", Doc(table).c_str(), r.data(), bytes, &ret);
  };
  // The whole table: one list per channel.
  ASSERT_EQ(1, parse("[" + Presets(3) + "," + Presets(1) + "]"));
  EXPECT_EQ(2 * sizeof(PtzPresetConfig), ret);
  EXPECT_EQ(3, r[0].presetCount);
  EXPECT_EQ(1, r[1].presetCount);
  EXPECT_EQ(2, r[0].presets[2].position[0]);

  // One channel's list (a client asked for one channel): record 0, cut to
  // the capacity.
  ASSERT_EQ(1, parse(Presets(KOVA_PTZ_PRESETS + 3)));
  EXPECT_EQ(sizeof(PtzPresetConfig), ret);
  EXPECT_EQ(KOVA_PTZ_PRESETS, r[0].presetCount);
  EXPECT_STREQ("P512", r[0].presets[KOVA_PTZ_PRESETS - 1].name);
  EXPECT_EQ(0, r[1].presetCount);

  // A table one level too deep is no list of presets: nothing is misread.
  ASSERT_EQ(1, parse("[[" + Presets(2) + "]]"));
  EXPECT_EQ(0, r[0].presetCount);
}

}  // namespace
}  // namespace kova_test
