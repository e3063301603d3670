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
