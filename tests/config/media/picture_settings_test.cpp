// What is irregular about the picture, light and motion settings devices
// answer beyond the two name lists: the two depths of the light lists, the
// scheme's section text, the settings answered as one object or per
// channel, the bare-text video standard, the mode's week of sections, and
// the names' place in the dispatch lists.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

#include "api/dispatch.h"
#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/picture.h"

namespace {

using kova_test::Doc;
using kova_test::PackBytes;
using kova_test::ParseAs;

// A camera answers [channel][profile][light], a recorder answering for one
// channel [profile][light]: both fill record 0 alike. A camera whose first
// profile has no light yet is still read by channel.
TEST(LightingV2, BothDepthsFillTheChannelsRecord) {
  const std::string profiles =
      R"([[{"LightType":"InfraredLight","Mode":"Auto","Light":70,)"
      R"("AIMixLightObjFilterTypes":["Human","Vehicle","NonMotor","Animal","Other"]}],)"
      R"([{"LightType":"WhiteLight","Mode":"Off","NearLight":[{"Angle":30,"Light":50}]}]])";
  int rc = 0;
  uint32_t ret = 0;
  const auto recorder = ParseAs<LightingV2Config>("Lighting_V2", Doc(profiles), &rc, &ret);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(sizeof(LightingV2Config), ret);

  const auto camera = ParseAs<LightingV2Config>("lighting_v2", Doc("[" + profiles + "]"), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(0, std::memcmp(recorder.get(), camera.get(), sizeof(LightingV2Config)));

  std::unique_ptr<LightingV2Config[]> two(new LightingV2Config[2]);
  ASSERT_EQ(1, KOVA_ParseData("Lighting_V2", Doc("[[[]," + profiles.substr(1) + ",[[]]]").c_str(),
                              two.get(), 2 * sizeof(LightingV2Config), &ret));
  EXPECT_EQ(2 * sizeof(LightingV2Config), ret);
  EXPECT_EQ(3, two[0].profileCount);
  EXPECT_EQ(
      "[ [ [  ], [ { \"AIMixLightObjFilterTypes\" : [ \"Human\", \"Vehicle\", \"NonMotor\", "
      "\"Animal\" ], \"Light\" : 70, \"LightType\" : \"InfraredLight\", \"Mode\" : \"Auto\" } ], "
      "[ { \"LightType\" : \"WhiteLight\", \"Mode\" : \"Off\", \"NearLight\" : [ { \"Angle\" : 30, "
      "\"Light\" : 50 } ] } ] ], [ [  ] ] ]\n",
      PackBytes("Lighting_V2", two.get(), 2 * sizeof(LightingV2Config)));
}

// "00:00:00-23:59:59 AIMode": the range, then the mode's name. A text of
// another form is left out of its day; days and sections are cut to 7 x 6.
TEST(LightingScheme, SectionTextsKeepRangeAndModeName) {
  std::string days;
  for (int d = 0; d < 8; ++d) {
    days += d == 0 ? R"(["1 00:00:00-24:00:00","6:0:0-18:00:00 Off","18:00:00-23:59:59"],)"
                   : R"(["00:00:00-23:59:59 AIMode","a","b","c","d","e","f","g"],)";
  }
  days.pop_back();
  days += "]";
  int rc = 0;
  const auto r = ParseAs<LightingSchemeConfig>(
      "LightingScheme",
      Doc(R"([{"LightingMode":"AIMode","SchemeSchedule":{"Enable":true,"TimeSectionByWeek":[)" +
          days + "}},{\"LightingMode\":\"Off\"}]"),
      &rc);
  ASSERT_EQ(1, rc);
  const LightingSchemeProfile& p = r->profiles[0];
  EXPECT_EQ(7, p.dayCount);
  EXPECT_EQ(1, p.sectionCount[0]);  // the leading flag and the missing name do not read
  EXPECT_EQ(6, p.sections[0][0].beginHour);
  EXPECT_STREQ("Off", p.sections[0][0].mode);
  EXPECT_EQ(0, r->profiles[1].schemeSchedulePresent);

  std::string week = R"([ [ "06:00:00-18:00:00 Off" ])";
  for (int d = 1; d < 7; ++d) week += R"(, [ "00:00:00-23:59:59 AIMode" ])";
  EXPECT_EQ(
      "[ { \"LightingMode\" : \"AIMode\", \"SchemeSchedule\" : { \"Enable\" : true, "
      "\"TimeSectionByWeek\" : " +
          week + " ] } }, { \"LightingMode\" : \"Off\" } ]\n",
      kova_test::Pack("LightingScheme", *r));
}

// One object on some firmware, an array per channel on other: pack writes
// the form that came. A bare text is the whole "VideoStandard" table.
TEST(PictureSettings, OneObjectOrPerChannelAndBareText) {
  for (const char* table : {R"({"Enable":true})", R"([{"Enable":true},null,{"Enable":false}])"}) {
    int rc = 0;
    const auto r = ParseAs<DisableLinkageConfig>("DisableLinkage", Doc(table), &rc);
    ASSERT_EQ(1, rc);
    EXPECT_EQ(1, r->channels[0].enable);
    EXPECT_EQ(table[0] == '[', r->perChannel != 0);
    EXPECT_EQ(table[0] == '[' ? "[ { \"Enable\" : true }, { \"Enable\" : false }, "
                                "{ \"Enable\" : false } ]\n"
                              : "{ \"Enable\" : true }\n",
              kova_test::Pack("DisableLinkage", *r));
  }
  // Neither form: a cleared record, packed as the object.
  int rc = 0;
  const auto neither = ParseAs<DisableLinkageConfig>("DisableLinkage", Doc("5"), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(0, neither->channelCount);
  EXPECT_EQ("{ \"Enable\" : false }\n", kova_test::Pack("DisableLinkage", *neither));

  const auto standard = ParseAs<VideoStandardConfig>("VideoStandard", Doc(R"("NTSC")"), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ("\"NTSC\"\n", kova_test::Pack("VideoStandard", *standard));
}

// The mode's week keeps a whole day written either way, and a week with a
// malformed text is left out whole.
TEST(VideoInMode, WeekOfSectionsIsKeptWholeOrNotAtAll) {
  int rc = 0;
  const auto r = ParseAs<VideoInModeConfig>(
      "VideoInMode",
      Doc(R"([{"Mode":1,"Config":[0,1],"TimeSection":[["1 00:00:00-23:59:59"],)"
          R"(["1 00:00:00-24:00:00"]]},{"Mode":2,"Config":[0,1,2,0,1],)"
          R"("TimeSection":[["1 00:00:00-24:00:00","1 00:00"]]}])"),
      &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(1, r->timeSectionPresent);
  EXPECT_EQ(59, r->timeSection.sections[0][0].endMinute);
  EXPECT_EQ(24, r->timeSection.sections[1][0].endHour);
  EXPECT_EQ(0, r->configExPresent);
  uint32_t ret = 0;
  std::unique_ptr<VideoInModeConfig[]> two(new VideoInModeConfig[2]);
  ASSERT_EQ(
      1, KOVA_ParseData("VideoInMode",
                        Doc(R"([{},{"Config":[0,1,2,0,1],"TimeSection":[["1 00:00"]]}])").c_str(),
                        two.get(), 2 * sizeof(VideoInModeConfig), &ret));
  EXPECT_EQ(4, two[1].configCount);
  EXPECT_EQ(0, two[1].timeSectionPresent);
}

}  // namespace
