// "VideoAnalyseModule" and "VideoAnalyseGlobal": JSON kept as text, the
// caller's room for numbered periods, numbered slots and raw text.
#include "kova/records/analyse_setup.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "test_util.h"

namespace kova_test {
namespace {

// JSON text that does not fit is not kept: a cut text would not be JSON.
TEST(VideoAnalyseModule, JsonTextThatDoesNotFitIsLeftOut) {
  const std::string filter = R"({"Names":[")" + std::string(300, 'x') + R"("]})";
  int rc = 0;
  auto b = ParseAs<VideoAnalyseModuleConfig>("VideoAnalyseModule",
                                             Doc(R"([{"ObjectFilter":)" + filter + "}]"), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(0, b->modules[0].objectFilterPresent);
  EXPECT_EQ('\0', b->modules[0].objectFilter[0]);
}

TEST(VideoAnalyseGlobal, NumberedPeriods) {
  const std::string period = R"({"Day":["08:00:00","17:00:00"],"SwitchMode":"ByColor"})";
  struct Case {
    std::string table;
    uint32_t room;
    bool pointer;
    uint32_t found;
  } cases[] = {
      {R"({"TimePeriod1":)" + period + R"(,"TimePeriod2":)" + period + "}", 1, true, 1},
      {R"({"TimePeriod1":)" + period + R"(,"TimePeriod3":)" + period + "}", 4, true, 1},
      {R"({"TimePeriod2":)" + period + "}", 4, true, 0},
      {R"({"TimePeriod1":)" + period + "}", 4, false, 0},
      {R"({"TimePeriod1":)" + period + "}", 0, true, 0},
  };
  for (const Case& c : cases) {
    std::vector<DayNightPeriod> periods(4);
    std::memset(periods.data(), 0xAB, periods.size() * sizeof periods[0]);
    auto g = NewRecord<VideoAnalyseGlobalConfig>();
    g->periods = c.pointer ? periods.data() : nullptr;
    g->periodCount = c.room;
    ASSERT_EQ(
        1, KOVA_ParseData("VideoAnalyseGlobal", Doc(c.table).c_str(), g.get(), sizeof *g, nullptr));
    EXPECT_EQ(c.found, g->periodCount) << c.table;
    if (c.found > 0) {
      EXPECT_EQ(8, periods[0].day.start.hour);
      EXPECT_EQ(0, periods[0].night.end.hour);  // a period read starts from zero
    }
    EXPECT_EQ(0xABABABABu, static_cast<uint32_t>(periods[c.found].switchMode)) << c.table;
  }

  // Pack writes "TimePeriod1" .. "TimePeriodN" from the caller's array.
  std::vector<DayNightPeriod> periods(2);
  std::memset(periods.data(), 0, periods.size() * sizeof periods[0]);
  periods[1].day.end.hour = 18;
  periods[1].switchMode = 7;  // no name: not written
  auto g = NewRecord<VideoAnalyseGlobalConfig>();
  g->periods = periods.data();
  g->periodCount = 2;
  EXPECT_EQ(R"({ "TimePeriod1" : { "Day" : [ "00:00:00", "00:00:00" ], )"
            R"("Night" : [ "00:00:00", "00:00:00" ] }, )"
            R"("TimePeriod2" : { "Day" : [ "00:00:00", "18:00:00" ], )"
            R"("Night" : [ "00:00:00", "00:00:00" ] } })"
            "\n",
            Pack("VideoAnalyseGlobal", *g));
}

TEST(VideoAnalyseGlobal, NumberedSlotsEnvelopeAndRawText) {
  const std::string table =
      R"({"CalibrateArea31":{"Staffs":[{"Length":2}]},"CalibrateArea32":{"Staffs":[]},)"
      R"("Scene8":{"Type":"Last","Depth":"near"},"Scene9":{"Type":"Beyond"},"Scene0":{},)"
      R"("Scene01":{},"CalibrateArea0":{},)"
      R"("Scene":{"CustomData":"\u00e9\u0001z","Depth":"Deep"}})";
  int rc = 0;
  auto g = ParseAs<VideoAnalyseGlobalConfig>("VideoAnalyseGlobal", Doc(table), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(1, g->calibrateAreaPresent[31]);
  EXPECT_DOUBLE_EQ(2.0, g->calibrateAreas[31].staffs[0].length);
  int present = 0;
  for (uint8_t p : g->calibrateAreaPresent) present += p;
  for (uint8_t p : g->scenesPresent) present += p;
  EXPECT_EQ(2, present);
  EXPECT_STREQ("Last", g->scenes[7].type);
  EXPECT_EQ(KOVA_DEPTH_NORMAL, g->scene.depth);
  EXPECT_EQ(1, g->scene.customDataPresent);
  EXPECT_STREQ("\xc3\xa9\x01z", g->scene.customData);  // the bytes, unconverted
}

}  // namespace
}  // namespace kova_test
