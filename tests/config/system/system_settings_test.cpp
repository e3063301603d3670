// The shapes particular to a device-wide setting: bare values, keyed
// members, grids that keep their day count, the door schedule's two forms.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/access.h"
#include "kova/records/audio.h"
#include "kova/records/system.h"

namespace {

using kova_test::Doc;
using kova_test::PackBytes;

struct Setting {
  const char* name;
  uint32_t size;
  uint32_t records;  // records the sample fills
};

const Setting kSettings[] = {
    {"Language", sizeof(LanguageConfig), 1},
    {"Snap", sizeof(SnapConfig), 2},
    {"RemoteDevice", sizeof(RemoteDeviceConfig), 2},
    {"AccessControl", sizeof(AccessControlConfig), 2},
};

const Setting& Named(const char* name) {
  for (const Setting& s : kSettings) {
    if (std::string(s.name) == name) return s;
  }
  return kSettings[0];
}

std::vector<unsigned char> Parse(const Setting& s, const std::string& json, int* rc, uint32_t* ret,
                                 uint32_t slots = 4) {
  std::vector<unsigned char> out(static_cast<size_t>(slots) * s.size, 0xAB);
  *ret = 0;
  *rc = KOVA_ParseData(s.name, json.c_str(), out.data(), static_cast<uint32_t>(out.size()), ret);
  return out;
}

TEST(SystemSettings, LanguageIsABareText) {
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> lang =
      Parse(Named("Language"), kova_test::Sample("Language"), &rc, &ret);
  EXPECT_STREQ("English", reinterpret_cast<const LanguageConfig*>(lang.data())->language);
  // A table that is not a text leaves the language empty.
  lang = Parse(Named("Language"), Doc("{\"Name\":\"English\"}"), &rc, &ret);
  EXPECT_EQ(1, rc);
  EXPECT_STREQ("", reinterpret_cast<const LanguageConfig*>(lang.data())->language);
}

TEST(SystemSettings, SnapKeepsTheDaysTheDeviceSent) {
  const std::string week =
      R"(["1 00:00:00-24:00:00"],["2 08:00:00-18:00:00"],["0 00:00:00-24:00:00"],)"
      R"(["0 00:00:00-24:00:00"],["0 00:00:00-24:00:00"],["0 00:00:00-24:00:00"],)"
      R"(["5 01:02:03-04:05:06"])";
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> s = Parse(
      Named("Snap"), Doc(R"({"HolidayEnable":false,"TimeSection":[)" + week + "]}"), &rc, &ret);
  const SnapConfig* snap = reinterpret_cast<const SnapConfig*>(s.data());
  EXPECT_EQ(sizeof(SnapConfig), ret);
  EXPECT_EQ(7, snap->dayCount);
  EXPECT_EQ(5, snap->sections[6][0].enable);  // the snapshot-kind mask, carried unchanged
  EXPECT_EQ(6, snap->sections[6][0].endSecond);
  const std::string text = PackBytes("Snap", s.data(), ret);
  size_t days = 0;
  for (size_t at = text.find("[ \""); at != std::string::npos; at = text.find("[ \"", at + 1))
    ++days;
  EXPECT_EQ(7u, days);  // written back as a week, not padded to 8 days
  EXPECT_NE(std::string::npos, text.find("\"5 01:02:03-04:05:06\""));
}

TEST(SystemSettings, RemoteDevicesAreKeyedByTheirIdentifiers) {
  const std::string table =
      R"({"uuid:b":{"Name":"B","VideoInputs":[null,{"Name":"b0"}]},"skip":5,"uuid:a":{"Name":"A"}})";
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> r = Parse(Named("RemoteDevice"), Doc(table), &rc, &ret);
  const RemoteDeviceConfig* d = reinterpret_cast<const RemoteDeviceConfig*>(r.data());
  ASSERT_EQ(2 * sizeof(RemoteDeviceConfig), ret);  // "skip" is not a device and takes no record
  EXPECT_STREQ("uuid:a", d[0].id);                 // the member order is sorted by name
  EXPECT_STREQ("uuid:b", d[1].id);
  EXPECT_STREQ("b0", d[1].videoInputs[0].name);
  const std::string text = PackBytes("RemoteDevice", r.data(), ret);
  EXPECT_EQ(0u, text.find(R"({ "uuid:a" : { "Address" : "")"));
  EXPECT_NE(std::string::npos, text.find(R"("uuid:b" : {)"));
  // A buffer of one record keeps the first device only.
  r = Parse(Named("RemoteDevice"), Doc(table), &rc, &ret, 1);
  EXPECT_EQ(sizeof(RemoteDeviceConfig), ret);
}

// Two records with one identifier make one member, the last one's: the text
// that fits is packed even though the first record's member was longer.
TEST(SystemSettings, RemoteDeviceRepeatedIdentifierKeepsTheLastRecord) {
  RemoteDeviceConfig d[2] = {};
  std::strcpy(d[0].id, "cam");
  std::strcpy(d[0].name, "a name far longer than the one that replaces it");
  std::strcpy(d[1].id, "cam");
  std::strcpy(d[1].name, "B");
  const std::string text = PackBytes("RemoteDevice", &d[1], sizeof d[1]);
  ASSERT_FALSE(text.empty());
  std::vector<char> out(text.size() + 1, 'x');
  ASSERT_EQ(1, KOVA_PacketData("RemoteDevice", d, sizeof d, out.data(),
                               static_cast<uint32_t>(out.size())));
  EXPECT_EQ(text, out.data());
  EXPECT_EQ(0, KOVA_PacketData("RemoteDevice", d, sizeof d, out.data(),
                               static_cast<uint32_t>(text.size())));
}

TEST(SystemSettings, DoorScheduleFormsAndTimeRanges) {
  const std::string doors =
      R"([{"TimeSchedule":[null,{"TimeSection":"07:30-19:00"},{"TimeSection":"bad"}]},)"
      R"({"TimeSchedule":[[{"Method":2,"TimeSection":"08:00:00-12:00:30"}],[]]},)"
      R"({"TimeSchedule":"08:00-09:00","FirstEnter":{"Status":4}}])";
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> out = Parse(Named("AccessControl"), Doc(doors), &rc, &ret);
  const AccessControlConfig* d = reinterpret_cast<const AccessControlConfig*>(out.data());
  ASSERT_EQ(3 * sizeof(AccessControlConfig), ret);
  EXPECT_EQ(KOVA_DOOR_SCHEDULE_LIST, d[0].timeScheduleForm);
  EXPECT_EQ(2, d[0].rangeCount);  // a null entry takes no slot; a bad text reads as all zero
  EXPECT_EQ(7, d[0].ranges[0].beginHour);
  EXPECT_EQ(30, d[0].ranges[0].beginMinute);
  EXPECT_EQ(0, d[0].ranges[0].secondsPresent);
  EXPECT_EQ(KOVA_DOOR_SCHEDULE_BY_DAY, d[1].timeScheduleForm);
  EXPECT_EQ(2, d[1].dayCount);
  EXPECT_EQ(30, d[1].days[0].sections[0].range.endSecond);
  EXPECT_EQ(KOVA_DOOR_SCHEDULE_NONE, d[2].timeScheduleForm);  // neither form
  const std::string text = PackBytes("AccessControl", out.data(), ret);
  EXPECT_NE(std::string::npos, text.find(R"("TimeSchedule" : [ { "TimeSection" : "07:30-19:00" }, )"
                                         R"({ "TimeSection" : "00:00-00:00" } ])"));
  EXPECT_NE(std::string::npos,
            text.find(R"([ [ { "Method" : 2, "TimeSection" : "08:00:00-12:00:30" } ], [  ] ])"));
}

}  // namespace
