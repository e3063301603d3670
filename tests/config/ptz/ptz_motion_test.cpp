// What is irregular about the PTZ movement tables: a list per channel that
// comes either as the whole table or as one channel's list, lists cut to
// their capacity, and the power-up action with no room for an unknown name.
#include "kova/records/ptz_motion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"

namespace {

using kova_test::Doc;
using kova_test::PackBytes;

std::string Presets(int n) {
  std::string s = "[";
  for (int i = 0; i < n; ++i) {
    s += std::string(i ? "," : "") + R"({"Enable":true,"Name":"P)" + std::to_string(i + 1) +
         R"(","Position":[)" + std::to_string(i) + ",-5,1]}";
  }
  return s + "]";
}

TEST(PtzMotion, PresetListsReadAsTheWholeTableOrOneChannelAndAreCutToCapacity) {
  std::vector<PtzPresetConfig> r(2);
  uint32_t ret = 0;
  const uint32_t bytes = static_cast<uint32_t>(r.size() * sizeof(PtzPresetConfig));

  // The whole table: one list per channel.
  const std::string whole = "[" + Presets(3) + "," + Presets(1) + "]";
  ASSERT_EQ(1, KOVA_ParseData("PtzPreset", Doc(whole).c_str(), r.data(), bytes, &ret));
  EXPECT_EQ(2 * sizeof(PtzPresetConfig), ret);
  EXPECT_EQ(3, r[0].presetCount);
  EXPECT_EQ(1, r[1].presetCount);
  EXPECT_EQ(2, r[0].presets[2].position[0]);

  // One channel's list (a client asked for one channel), longer than the
  // record holds: record 0, cut to the capacity, written back cut.
  ASSERT_EQ(1, KOVA_ParseData("PtzPreset", Doc(Presets(KOVA_PTZ_PRESETS + 3)).c_str(), r.data(),
                              bytes, &ret));
  EXPECT_EQ(sizeof(PtzPresetConfig), ret);
  EXPECT_EQ(KOVA_PTZ_PRESETS, r[0].presetCount);
  EXPECT_STREQ("P512", r[0].presets[KOVA_PTZ_PRESETS - 1].name);
  EXPECT_EQ(0, r[1].presetCount);
  const std::string packed = PackBytes("PtzPreset", &r[0], sizeof(PtzPresetConfig));
  EXPECT_NE(std::string::npos, packed.find(R"("Name" : "P512")"));
  EXPECT_EQ(std::string::npos, packed.find(R"("Name" : "P513")"));

  // A table one level too deep is no list of presets: nothing is misread.
  ASSERT_EQ(
      1, KOVA_ParseData("PtzPreset", Doc("[[" + Presets(2) + "]]").c_str(), r.data(), bytes, &ret));
  EXPECT_EQ(0, r[0].presetCount);
}

TEST(PtzMotion, TourStopsAndTasksKeepTheirPlaces) {
  std::vector<PtzTourConfig> r(1);
  PtzTourConfig& tour = r[0];
  const std::string tours = R"([null,{"Enable":true,"Name":"T2","Presets":[[3,10],[4,20,5],"x"]}])";
  ASSERT_EQ(1, KOVA_ParseData("PtzTour", Doc(tours).c_str(), &tour, sizeof tour, nullptr));
  EXPECT_EQ(2, tour.tourCount);  // the null tour keeps its place (tour 1 stays empty)
  EXPECT_EQ(2, tour.tours[1].stopCount);
  EXPECT_EQ(10, tour.tours[1].stops[0].dwellSeconds);
  EXPECT_EQ(0, tour.tours[1].stops[0].speed);
}

}  // namespace
