// Weekly schedules: the lenient grid form, the fixed form and its neighbours,
// cuts to the grid and the holiday day.
#include "common/blocks/time_schedule.h"

#include <gtest/gtest.h>

#include <cstring>

#include "common/json/json.h"
#include "common/json/json_writer.h"

namespace {

using kova::ReadJson;

Json::Value Doc(const char* text) {
  Json::Value v;
  EXPECT_TRUE(ReadJson(text, &v)) << text;
  return v;
}

bool SameSection(const TimeSectionRecord& r, int e, int bh, int bm, int bs, int eh, int em,
                 int es) {
  return r.enable == e && r.beginHour == bh && r.beginMinute == bm && r.beginSecond == bs &&
         r.endHour == eh && r.endMinute == em && r.endSecond == es;
}

TEST(TimeSectionGrid, CutsDaysAndSectionsAndSkipsNonArrayDays) {
  // 9 days, day 1 is not an array, day 2 has 12 sections.
  std::string text = "[[\"1 01:00:00-02:00:00\"], 5, [";
  for (int s = 0; s < 12; ++s) text += (s ? ",\"" : "\"") + std::to_string(s) + " 3:0:0-4:0:0\"";
  text += "], [], [], [], [], [], [\"1 09:00:00-10:00:00\"]]";
  WeekSchedule7x6 week;
  std::memset(&week, 0x11, sizeof week);  // a skipped day keeps what it held
  int32_t days = 0;
  ASSERT_TRUE(kova::ParseTimeSectionGrid(Doc(text.c_str()), &week.sections[0][0], 7, 6, &days));
  EXPECT_EQ(7, days);
  EXPECT_TRUE(SameSection(week.sections[0][0], 1, 1, 0, 0, 2, 0, 0));
  EXPECT_EQ(0x11111111, week.sections[1][0].enable);
  EXPECT_TRUE(SameSection(week.sections[2][5], 5, 3, 0, 0, 4, 0, 0));
}

TEST(TimeSectionGrid, MalformedSectionStopsTheParseKeepingEarlierRecords) {
  WeekSchedule7x6 week;
  std::memset(&week, 0, sizeof week);
  EXPECT_FALSE(
      kova::ParseTimeSectionGrid(Doc(R"([["1 8:0:0-9:0:0", "1 00:00:00", "1 10:00:00-11:00:00"]])"),
                                 &week.sections[0][0], 7, 6, nullptr));
  EXPECT_TRUE(SameSection(week.sections[0][0], 1, 8, 0, 0, 9, 0, 0));
  EXPECT_TRUE(SameSection(week.sections[0][1], 1, 0, 0, 0, 0, 0, 0));  // what converted

  EXPECT_FALSE(kova::ParseTimeSectionGrid(Doc("[[]]"), &week.sections[0][0], 0, 6, nullptr));
  Json::Value out;
  EXPECT_FALSE(kova::PackTimeSectionGrid(out, &week.sections[0][0], 7, 0));
  // A number where a string belongs reads as empty text.
  EXPECT_FALSE(kova::ParseTimeSectionGrid(Doc("[[1]]"), &week.sections[0][0], 7, 6, nullptr));
}

TEST(TimeSectionGrid, NoRangeChecksAndWrittenFormPadsToTwoDigits) {
  TimeSectionRecord r{};
  ASSERT_TRUE(
      kova::ParseTimeSectionGrid(Doc(R"([[" 7 25:61:99-  -1:+5:123"]])"), &r, 1, 1, nullptr));
  EXPECT_TRUE(SameSection(r, 7, 25, 61, 99, -1, 5, 123));
  Json::Value out;
  ASSERT_TRUE(kova::PackTimeSectionGrid(out, &r, 1, 1));
  EXPECT_EQ("[ [ \"7 25:61:99--1:05:123\" ] ]\n", kova::WriteJson(out));
}

TEST(TimeSection, SizedSectionPacksOnlyWithItsOwnSize) {
  SizedTimeSection sized{28, 1, 0, 0, 0, 24, 0, 0};
  Json::Value out("untouched");
  EXPECT_FALSE(kova::PackSizedTimeSection(out, sized));
  sized.size = 32;
  EXPECT_TRUE(kova::PackSizedTimeSection(out, sized));
  EXPECT_EQ("1 00:00:00-24:00:00", kova::ToText(out));
  SizedTimeSection in{7, 0, 0, 0, 0, 0, 0, 0};
  EXPECT_TRUE(kova::ParseSizedTimeSection(Json::Value("0 08:30:00-17:45:00"), &in));
  EXPECT_EQ(7u, in.size);  // neither checked nor changed
  EXPECT_EQ(17, in.endHour);
}

std::string Days(int n) {
  std::string text = "[";
  for (int d = 0; d < n; ++d) {
    text += (d ? ",[\"" : "[\"") + std::to_string(d + 1) + " 00:00:00-24:00:00\"]";
  }
  return text + "]";
}

TEST(HolidaySchedule, NeedsTheWeekAndFlagsTheEighthDay) {
  HolidaySchedule h;
  std::memset(&h, 0x5A, sizeof h);
  EXPECT_FALSE(kova::ParseHolidaySchedule(Doc(Days(6).c_str()), &h));
  EXPECT_EQ(0, h.holidayEnabled);
  EXPECT_EQ(1, h.sections[0][0].enable);  // zeroed first, then read
  EXPECT_TRUE(kova::ParseHolidaySchedule(Doc(Days(8).c_str()), &h));
  EXPECT_EQ(8, h.sections[7][0].enable);
  EXPECT_EQ(1, h.holidayEnabled);
}

// The devices' fixed form is read at fixed places; any departure from it
// goes through the general reader, which must give the same numbers.
TEST(TimeSectionGrid, FixedFormAndItsNeighbours) {
  struct Case {
    const char* text;
    bool read;
    int fields[7];
  } cases[] = {
      {"1 08:00:00-18:30:59", true, {1, 8, 0, 0, 18, 30, 59}},
      {"12 08:00:00-18:30:59", true, {12, 8, 0, 0, 18, 30, 59}},
      {"1 08:00:00-18:30:591", true, {1, 8, 0, 0, 18, 30, 591}},  // the grid form takes any width
      {"1 08:00:00-18:30:5x", true, {1, 8, 0, 0, 18, 30, 5}},
      {" 1 8:0:0-9:0:0", true, {1, 8, 0, 0, 9, 0, 0}},
      {"1 08:00:00-18:00:00\\r", true, {1, 8, 0, 0, 18, 0, 0}},  // carriage return is blank
      {"\\r1\\r08:00:00-18:00:00", true, {1, 8, 0, 0, 18, 0, 0}},
      {"1 08:00:00-18:30", false, {1, 8, 0, 0, 18, 30, 0}},
      {"1 08:00:00 18:30:59", false, {1, 8, 0, 0, 0, 0, 0}},
  };
  for (const Case& c : cases) {
    TimeSectionRecord r;
    std::memset(&r, 0, sizeof r);
    const std::string doc = std::string("[[\"") + c.text + "\"]]";
    EXPECT_EQ(c.read, kova::ParseTimeSectionGrid(Doc(doc.c_str()), &r, 1, 1, nullptr)) << c.text;
    EXPECT_TRUE(SameSection(r, c.fields[0], c.fields[1], c.fields[2], c.fields[3], c.fields[4],
                            c.fields[5], c.fields[6]))
        << c.text;
  }
  TimeSectionRecord r;
  std::memset(&r, 0, sizeof r);
  const Json::Value text = Doc(R"(["1 08:00:00-18:30:591"])");
  EXPECT_TRUE(kova::ParseTimeSection(kova::Element(text, 0), &r));  // two digits at most
  EXPECT_EQ(59, r.endSecond);
}

// A linkage block's schedule and a rule's 7 x 10 grid read in one walk end
// exactly as the two readers leave them one after the other, failures and
// partly read sections included.
TEST(HolidaySchedule, ReadWithAGridAsTwoSeparateReads) {
  const char* docs[] = {
      R"([["1 08:00:00-18:00:00","0 00:00:00-24:00:00"],["1 01:02:03-04:05:06"]])",
      R"([[],null,["1 00:00:00-24:00:00"],[],[],[],["2 10:00:00-11:00:00"],["3 1:2:3-4:5:6"]])",
      R"([["1 00:00:00-24:00:00","1 00:00:00-24:00:00","1 00:00:00-24:00:00",
          "1 00:00:00-24:00:00","1 00:00:00-24:00:00","1 00:00:00-24:00:00",
          "1 07:00:00-08:00:00","1 00:00:00"],[],[],[],[],[],[],[],["9 00:00:00-01:00:00"]])",
      R"([])",
  };
  for (const char* text : docs) {
    const Json::Value json = Doc(text);
    HolidaySchedule h1, h2;
    WeekSchedule7x10 g1, g2;
    std::memset(&g1, 0x5A, sizeof g1);
    std::memset(&g2, 0x5A, sizeof g2);
    int32_t days1 = -1, days2 = -1;
    const kova::SectionGrid grid = {&g1.sections[0][0], 7, 10, &days1};
    const bool r1 = kova::ParseHolidaySchedule(json, &h1, kova::SchedulesBeside{grid, nullptr});
    const bool r2 = kova::ParseHolidaySchedule(json, &h2);
    kova::ParseTimeSectionGrid(json, &g2.sections[0][0], 7, 10, &days2);
    EXPECT_EQ(r2, r1) << text;
    EXPECT_EQ(0, std::memcmp(&h1, &h2, sizeof h1)) << text;
    EXPECT_EQ(0, std::memcmp(&g1, &g2, sizeof g1)) << text;
    EXPECT_EQ(days2, days1) << text;
  }
}

}  // namespace
