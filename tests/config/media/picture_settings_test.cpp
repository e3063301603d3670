// What is irregular about the picture, light and motion settings: the two
// depths of the light lists, the scheme's section text, settings answered
// as one object or per channel, the bare-text video standard, the mode's
// week of sections, an empty channel, and titles in the local code page.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

#include "kova/records/picture.h"
#include "kova/records/video_in.h"
#include "test_util.h"

namespace kova_test {
namespace {

// A camera answers [channel][profile][light], a recorder answering for one
// channel [profile][light]: both fill record 0 alike. A camera whose first
// profile has no light yet is still read by channel.
TEST(LightingV2, BothDepthsFillTheChannelsRecord) {
  const std::string profiles =
      R"([[{"LightType":"InfraredLight","Mode":"Auto","Light":70}],)"
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
      "[ [ [  ], [ { \"Light\" : 70, \"LightType\" : \"InfraredLight\", \"Mode\" : \"Auto\" } ], "
      "[ { \"LightType\" : \"WhiteLight\", \"Mode\" : \"Off\", \"NearLight\" : [ { \"Angle\" : 30, "
      "\"Light\" : 50 } ] } ] ], [ [  ] ] ]\n",
      PackBytes("Lighting_V2", two.get(), 2 * sizeof(LightingV2Config)));
}

// "00:00:00-23:59:59 AIMode": the range, then the mode's name. A text of
// another form is left out of its day; days and sections are cut to 7 x 6.
TEST(LightingScheme, SectionTextsKeepRangeAndModeName) {
  std::string day = R"("00:00:00-23:59:59 AIMode")";
  for (int s = 1; s < 7; ++s) day += R"(,"00:00:00-23:59:59 AIMode")";
  std::string days = R"(["1 00:00:00-24:00:00","6:0:0-18:00:00 Off","18:00:00-23:59:59"])";
  for (int d = 1; d < 8; ++d) days += ",[" + day + "]";
  int rc = 0;
  const auto r = ParseAs<LightingSchemeConfig>(
      "LightingScheme",
      Doc(R"([{"SchemeSchedule":{"Enable":true,"TimeSectionByWeek":[)" + days + "]}}]"), &rc);
  ASSERT_EQ(1, rc);
  const LightingSchemeProfile& p = r->profiles[0];
  EXPECT_EQ(7, p.dayCount);
  EXPECT_EQ(1, p.sectionCount[0]);  // the leading flag and the missing name do not read
  EXPECT_EQ(6, p.sectionCount[1]);
  EXPECT_EQ(6, p.sections[0][0].beginHour);
  EXPECT_STREQ("Off", p.sections[0][0].mode);
  EXPECT_NE(std::string::npos, Pack("LightingScheme", *r)
                                   .find(R"("TimeSectionByWeek" : [ [ "06:00:00-18:00:00 Off" ], )"
                                         R"([ "00:00:00-23:59:59 AIMode", )"));
}

// One object on some firmware, an array per channel on other: pack writes
// the form that came. A bare text is the whole "VideoStandard" table.
TEST(PictureSettings, OneObjectOrPerChannelAndBareText) {
  for (const char* table : {R"({"Enable":true})", R"([{"Enable":true},null,{"Enable":false}])"}) {
    int rc = 0;
    const auto r = ParseAs<DisableLinkageConfig>("DisableLinkage", Doc(table), &rc);
    ASSERT_EQ(1, rc);
    EXPECT_EQ(table[0] == '[' ? "[ { \"Enable\" : true }, { \"Enable\" : false }, "
                                "{ \"Enable\" : false } ]\n"
                              : "{ \"Enable\" : true }\n",
              Pack("DisableLinkage", *r));
  }
  // Neither form: a cleared record, packed as the object.
  int rc = 0;
  const auto neither = ParseAs<DisableLinkageConfig>("DisableLinkage", Doc("5"), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ("{ \"Enable\" : false }\n", Pack("DisableLinkage", *neither));

  const auto standard = ParseAs<VideoStandardConfig>("VideoStandard", Doc(R"("NTSC")"), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ("\"NTSC\"\n", Pack("VideoStandard", *standard));
}

// The mode's week keeps a whole day written either way, and a week with a
// malformed text is left out whole.
TEST(VideoInMode, WeekOfSectionsIsKeptWholeOrNotAtAll) {
  uint32_t ret = 0;
  std::unique_ptr<VideoInModeConfig[]> two(new VideoInModeConfig[2]);
  ASSERT_EQ(1, KOVA_ParseData("VideoInMode",
                              Doc(R"([{"TimeSection":[["1 00:00:00-23:59:59"],)"
                                  R"(["1 00:00:00-24:00:00"]]},{"TimeSection":[["1 00:00"]]}])")
                                  .c_str(),
                              two.get(), 2 * sizeof(VideoInModeConfig), &ret));
  EXPECT_EQ(1, two[0].timeSectionPresent);
  EXPECT_EQ(59, two[0].timeSection.sections[0][0].endMinute);
  EXPECT_EQ(24, two[0].timeSection.sections[1][0].endHour);
  EXPECT_EQ(0, two[1].timeSectionPresent);
}

// A channel without profiles ([]) is still a channel of an all-channel answer.
TEST(VideoInZoom, AnEmptyChannelStaysAChannel) {
  VideoInZoomConfig r[2];
  uint32_t ret = 0;
  ASSERT_EQ(1, KOVA_ParseData("VideoInZoom", Doc(R"([[{"ZoomLimit":16}],[]])").c_str(), r, sizeof r,
                              &ret));
  EXPECT_EQ(sizeof r, ret);
  EXPECT_EQ(0, r[1].profileCount);
  EXPECT_EQ("[ [ { \"DigitalZoom\" : false, \"Speed\" : 0, \"ZoomLimit\" : 16 } ], [  ] ]\n",
            PackBytes("VideoInZoom", r, sizeof r));
}

TEST(ChannelTitle, NameIsLocalTextAndLineBreaksStay) {
  CodePage gbk("GBK");
  int rc = 0;
  const auto r = ParseAs<ChannelTitleConfig>("ChannelTitle", Doc(R"({"Name":"大门|入口"})"), &rc);
  EXPECT_STREQ("\xB4\xF3\xC3\xC5|\xC8\xEB\xBF\xDA", r->name);
  EXPECT_EQ("{ \"Name\" : \"大门|入口\" }\n", Pack("ChannelTitle", *r));
}

}  // namespace
}  // namespace kova_test
