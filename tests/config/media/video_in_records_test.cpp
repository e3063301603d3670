// What each picture-settings record keeps of a device's answer: the
// day/night names, presence flags, lists cut at their capacity, the single
// time section, text in the local code page, and the exact packed text.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/video_in.h"

namespace {

using kova_test::Doc;
using kova_test::Pack;

template <typename Rec>
Rec ParseOne(const char* name, const std::string& table) {
  Rec r;
  std::memset(&r, 0xA5, sizeof r);
  uint32_t ret = 0;
  EXPECT_EQ(1, KOVA_ParseData(name, Doc(table).c_str(), &r, sizeof r, &ret)) << name;
  EXPECT_EQ(sizeof r, ret) << name;
  return r;
}

TEST(VideoInDayNight, NamesIgnoreCaseUnknownsAreLeftOut) {
  const auto r = ParseOne<VideoInDayNightConfig>(
      "VideoInDayNight", R"([{"Mode":"blackwhite","Type":"ELECTRON","Sensitivity":3,"Delay":7},)"
                         R"({"Mode":"Auto","Type":7,"Sensitivity":1},{"Delay":2}])");
  const int32_t expected[12] = {2, 1, 3, 7, -1, -1, 1, 0, -1, -1, 0, 2};
  EXPECT_EQ(0, std::memcmp(expected, &r, sizeof r));
  EXPECT_EQ(
      "[ { \"Delay\" : 7, \"Mode\" : \"BlackWhite\", \"Sensitivity\" : 3, \"Type\" : \"Electron\" "
      "}, "
      "{ \"Delay\" : 0, \"Sensitivity\" : 1 }, { \"Delay\" : 2, \"Sensitivity\" : 0 } ]\n",
      Pack("VideoInDayNight", r));
}

TEST(VideoColor, SectionAndOptionalMembers) {
  // Seventeen profiles: sixteen are kept, the scene's name where given. The
  // section's time fields take two digits at most; "1 00:00" gives too few
  // numbers and is dropped.
  std::string rest;
  for (int i = 0; i < 14; ++i) rest += ",{}";
  const auto r = ParseOne<VideoColorConfig>(
      "VideoColor",
      R"([{"Brightness":40,"Contrast":50,"Saturation":50,"Hue":50,"TimeSection":"1 8:00:00-18:30:00"},)"
      R"({"Brightness":60,"Gamma":45,"Style":"Gentle","TimeSection":"1 00:00","Name":"Gate"},7)" +
          rest + "]");
  EXPECT_EQ(16, r.profileCount);
  EXPECT_EQ(1, r.profiles[0].timeSectionPresent);
  EXPECT_EQ(8, r.profiles[0].timeSection.beginHour);
  EXPECT_EQ(30, r.profiles[0].timeSection.endMinute);
  EXPECT_EQ(0, r.profiles[1].timeSectionPresent);
  EXPECT_EQ(0, r.profiles[1].timeSection.enable);
  EXPECT_EQ(1, r.profiles[1].gammaPresent);
  EXPECT_EQ(0, r.profiles[1].chromaSuppressPresent);
  std::string zeros;
  for (int i = 0; i < 14; ++i) {
    zeros += ", { \"Brightness\" : 0, \"Contrast\" : 0, \"Hue\" : 0, \"Saturation\" : 0 }";
  }
  EXPECT_EQ(
      "[ { \"Brightness\" : 40, \"Contrast\" : 50, \"Hue\" : 50, \"Saturation\" : 50, "
      "\"TimeSection\" : \"1 08:00:00-18:30:00\" }, "
      "{ \"Brightness\" : 60, \"Contrast\" : 0, \"Gamma\" : 45, \"Hue\" : 0, \"Name\" : \"Gate\", "
      "\"Saturation\" : 0, \"Style\" : \"Gentle\" }" +
          zeros + " ]\n",
      Pack("VideoColor", r));
}

TEST(VideoInOptions, NestedBlocksWriteWhatWasGiven) {
  const auto r = ParseOne<VideoInOptionsConfig>(
      "VideoInOptions", R"({"Brightness":50,"FocusRect":[1,2,3],"BacklightRegion":[10,20,30,40],)"
                        R"("NightOptions":{"InfraRed":true,"ExposureValue2":62.5},"DuskOptions":5,)"
                        R"("FlashControl":{"Mode":2,"Value":9}})");
  EXPECT_EQ(1, r.options.brightnessPresent);
  EXPECT_EQ(0, r.options.focusRectPresent);  // three numbers are not a rectangle
  EXPECT_EQ(40, r.options.backlightRegion[3]);
  EXPECT_EQ(1, r.nightOptionsPresent);
  EXPECT_EQ(1, r.nightOptions.infraRed);
  EXPECT_DOUBLE_EQ(62.5, r.nightOptions.exposureValue2);
  EXPECT_EQ(0, r.nightOptions.brightnessPresent);
  EXPECT_EQ(0, r.normalOptionsPresent);
  EXPECT_EQ(0, r.duskOptionsPresent);  // not an object
  EXPECT_EQ(
      "{ \"BacklightRegion\" : [ 10, 20, 30, 40 ], \"Brightness\" : 50, "
      "\"FlashControl\" : { \"Mode\" : 2, \"Pole\" : 0, \"PreValue\" : 0, \"Value\" : 9 }, "
      "\"NightOptions\" : { \"ExposureValue2\" : 62.50000000000000, \"InfraRed\" : true } }\n",
      Pack("VideoInOptions", r));

  VideoInOptionsConfig empty;
  std::memset(&empty, 0, sizeof empty);
  EXPECT_EQ("{  }\n", Pack("VideoInOptions", empty));
}

TEST(VideoWidget, ListsKeepObjectsUpToTheirCapacity) {
  std::string covers;
  for (int i = 0; i < 10; ++i) {
    covers +=
        i == 1 ? "null," : R"({"EncodeBlend":true,"Rect":[)" + std::to_string(i) + ",0,0,0]},";
  }
  covers.pop_back();
  const auto r =
      ParseOne<VideoWidgetConfig>("VideoWidget", R"({"Covers":[)" + covers +
                                                     R"(],"TimeTitle":{"ShowWeek":true},)"
                                                     R"("CustomTitle":[{"Text":"Gate 1|North"}]})");
  EXPECT_EQ(8, r.coverCount);
  EXPECT_EQ(2, r.covers[1].rect[0]);  // the null entry takes no slot
  EXPECT_EQ(8, r.covers[7].rect[0]);
  EXPECT_EQ(1, r.customTitlePresent);
  EXPECT_EQ(0, r.userDefinedTitlePresent);
  EXPECT_STREQ("Gate 1|North", r.customTitles[0].text);

  VideoWidgetConfig w;
  std::memset(&w, 0, sizeof w);
  w.coverCount = 1;
  w.covers[0].rect[2] = 8191;
  w.timeTitle.showWeekPresent = 1;
  w.userDefinedTitlePresent = 1;
  const std::string zeroColours =
      "\"BackColor\" : [ 0, 0, 0, 0 ], \"EncodeBlend\" : false, \"FrontColor\" : [ 0, 0, 0, 0 ], "
      "\"PreviewBlend\" : false, ";
  EXPECT_EQ(
      "{ \"ChannelTitle\" : { " + zeroColours + "\"Rect\" : [ 0, 0, 0, 0 ] }, " +
          "\"Covers\" : [ { " + zeroColours + "\"Rect\" : [ 0, 0, 8191, 0 ] } ], " +
          "\"TimeTitle\" : { " + zeroColours +
          "\"Rect\" : [ 0, 0, 0, 0 ], \"ShowWeek\" : false }, \"UserDefinedTitle\" : [  ] }\n",
      Pack("VideoWidget", w));
}

TEST(Lighting, OptionalBeamsAndLampGroups) {
  const auto r = ParseOne<LightingConfig>(
      "Lighting", R"([{"Mode":"SmartIR","MiddleLight":[{"Angle":1,"Light":2},3,)"
                  R"({"Angle":4},{},{},{"Light":9}]}])");
  EXPECT_EQ(1, r.profileCount);
  EXPECT_EQ(4, r.profiles[0].middleLightCount);
  EXPECT_EQ(4, r.profiles[0].middleLight[1].angle);
  EXPECT_EQ(0, r.profiles[0].nearLightPresent);
  EXPECT_EQ(
      "[ { \"Correction\" : 0, \"MiddleLight\" : [ { \"Angle\" : 1, \"Light\" : 2 }, "
      "{ \"Angle\" : 4, \"Light\" : 0 }, { \"Angle\" : 0, \"Light\" : 0 }, "
      "{ \"Angle\" : 0, \"Light\" : 0 } ], \"Mode\" : \"SmartIR\", \"Sensitive\" : 0 } ]\n",
      Pack("Lighting", r));
}

// A channel without profiles ([]) is still a channel of an all-channel answer.
TEST(VideoInZoom, AnEmptyChannelStaysAChannel) {
  VideoInZoomConfig r[2];
  uint32_t ret = 0;
  ASSERT_EQ(
      1, KOVA_ParseData("VideoInZoom",
                        Doc(R"([[{"DigitalZoom":true,"Speed":3,"ZoomLimit":16}],[]])").c_str(), r,
                        sizeof r, &ret));
  EXPECT_EQ(sizeof r, ret);
  EXPECT_EQ(1, r[0].profileCount);
  EXPECT_EQ(16, r[0].profiles[0].zoomLimit);
  EXPECT_EQ(0, r[1].profileCount);
  EXPECT_EQ("[ [ { \"DigitalZoom\" : true, \"Speed\" : 3, \"ZoomLimit\" : 16 } ], [  ] ]\n",
            kova_test::PackBytes("VideoInZoom", r, sizeof r));
}

// Sets KOVA_CODEPAGE for one test and puts the previous value back.
class ChannelTitleCodePage : public testing::Test {
 protected:
  void SetUp() override {
    const char* old = std::getenv("KOVA_CODEPAGE");
    had_ = old != nullptr;
    if (had_) old_ = old;
    setenv("KOVA_CODEPAGE", "GBK", 1);
  }
  void TearDown() override {
    if (had_) {
      setenv("KOVA_CODEPAGE", old_.c_str(), 1);
    } else {
      unsetenv("KOVA_CODEPAGE");
    }
  }

 private:
  bool had_ = false;
  std::string old_;
};

TEST_F(ChannelTitleCodePage, NameIsLocalTextAndLineBreaksStay) {
  const auto r = ParseOne<ChannelTitleConfig>("ChannelTitle", R"({"Name":"大门|入口"})");
  EXPECT_STREQ("\xB4\xF3\xC3\xC5|\xC8\xEB\xBF\xDA", r.name);
  EXPECT_EQ("{ \"Name\" : \"大门|入口\" }\n", Pack("ChannelTitle", r));
}

}  // namespace
