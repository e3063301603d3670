// The shapes particular to a device-wide setting: a bare text, a grid that
// keeps its day count, members keyed by identifier, the door schedule's two
// forms.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "kova/records/access.h"
#include "kova/records/system.h"
#include "test_util.h"

namespace kova_test {
namespace {

// `slots` records of `name`, parsed from `json`; `ret` receives the length.
template <typename Rec>
std::vector<Rec> Parse(const char* name, const std::string& json, uint32_t* ret,
                       uint32_t slots = 4) {
  std::vector<Rec> out(slots);
  std::memset(out.data(), 0xAB, slots * sizeof(Rec));
  *ret = 0;
  EXPECT_EQ(1, KOVA_ParseData(name, json.c_str(), out.data(), slots * sizeof(Rec), ret)) << name;
  return out;
}

TEST(SystemSettings, LanguageIsABareText) {
  uint32_t ret = 0;
  EXPECT_STREQ("English", Parse<LanguageConfig>("Language", Doc("\"English\""), &ret)[0].language);
  // A table that is not a text leaves the language empty.
  EXPECT_STREQ("",
               Parse<LanguageConfig>("Language", Doc(R"({"Name":"English"})"), &ret)[0].language);
}

TEST(SystemSettings, SnapKeepsTheDaysTheDeviceSent) {
  std::string week = R"(["5 01:02:03-04:05:06"])";
  for (int d = 1; d < 7; ++d) week += R"(,["0 00:00:00-24:00:00"])";
  uint32_t ret = 0;
  const std::vector<SnapConfig> s =
      Parse<SnapConfig>("Snap", Doc(R"({"TimeSection":[)" + week + "]}"), &ret);
  EXPECT_EQ(sizeof(SnapConfig), ret);
  EXPECT_EQ(7, s[0].dayCount);
  EXPECT_EQ(5, s[0].sections[0][0].enable);  // the snapshot-kind mask, carried unchanged
  const std::string text = PackBytes("Snap", s.data(), ret);
  size_t days = 0;
  for (size_t at = text.find("[ \""); at != std::string::npos; at = text.find("[ \"", at + 1)) {
    ++days;
  }
  EXPECT_EQ(7u, days);  // written back as a week, not padded to 8 days
  EXPECT_NE(std::string::npos, text.find("[ [ \"5 01:02:03-04:05:06\""));
}

TEST(SystemSettings, RemoteDevicesAreKeyedByTheirIdentifiers) {
  const std::string table =
      R"({"uuid:b":{"Name":"B","VideoInputs":[null,{"Name":"b0"}]},"skip":5,"uuid:a":{"Name":"A"}})";
  uint32_t ret = 0;
  std::vector<RemoteDeviceConfig> d = Parse<RemoteDeviceConfig>("RemoteDevice", Doc(table), &ret);
  ASSERT_EQ(2 * sizeof(RemoteDeviceConfig), ret);  // "skip" is not a device and takes no record
  EXPECT_STREQ("uuid:a", d[0].id);                 // the member order is sorted by name
  EXPECT_STREQ("uuid:b", d[1].id);
  EXPECT_STREQ("b0", d[1].videoInputs[0].name);
  const std::string text = PackBytes("RemoteDevice", d.data(), ret);
  EXPECT_EQ(0u, text.find(R"({ "uuid:a" : { "Address" : "")"));
  EXPECT_NE(std::string::npos, text.find(R"("uuid:b" : {)"));

  // Two records with one identifier make one member, the last one's: the
  // text that fits is packed even though the first record's member was
  // longer.
  std::memset(d.data(), 0, 2 * sizeof d[0]);
  std::strcpy(d[0].id, "cam");
  std::strcpy(d[0].name, "a name far longer than the one that replaces it");
  std::strcpy(d[1].id, "cam");
  std::strcpy(d[1].name, "B");
  const std::string last = PackBytes("RemoteDevice", &d[1], sizeof d[1]);
  std::vector<char> out(last.size() + 1, 'x');
  const uint32_t two = 2 * sizeof d[0];
  ASSERT_EQ(1, KOVA_PacketData("RemoteDevice", d.data(), two, out.data(),
                               static_cast<uint32_t>(out.size())));
  EXPECT_EQ(last, out.data());
  EXPECT_EQ(0, KOVA_PacketData("RemoteDevice", d.data(), two, out.data(),
                               static_cast<uint32_t>(last.size())));

  // An identifier with a NUL in it names the device its text up to the NUL names.
  d = Parse<RemoteDeviceConfig>("RemoteDevice",
                                Doc(R"({"k":{"Name":"A"},"k\u0000x":{"Name":"Z"}})"), &ret);
  ASSERT_EQ(2 * sizeof(RemoteDeviceConfig), ret);
  EXPECT_STREQ("A", d[1].name);
  Parse<RemoteDeviceConfig>("RemoteDevice", Doc(R"({"k\u0000x":{"Name":"Z"}})"), &ret);
  EXPECT_EQ(0u, ret);
}

TEST(SystemSettings, DoorScheduleFormsAndTimeRanges) {
  const std::string doors =
      R"([{"TimeSchedule":[null,{"TimeSection":"07:30-19:00"},{"TimeSection":"bad"}]},)"
      R"({"TimeSchedule":[[{"Method":2,"TimeSection":"08:00:00-12:00:30"}],[]]},)"
      R"({"TimeSchedule":"08:00-09:00","FirstEnter":{"Status":4}}])";
  uint32_t ret = 0;
  const std::vector<AccessControlConfig> d =
      Parse<AccessControlConfig>("AccessControl", Doc(doors), &ret);
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
  const std::string text = PackBytes("AccessControl", d.data(), ret);
  EXPECT_NE(std::string::npos, text.find(R"("TimeSchedule" : [ { "TimeSection" : "07:30-19:00" }, )"
                                         R"({ "TimeSection" : "00:00-00:00" } ])"));
  EXPECT_NE(std::string::npos,
            text.find(R"([ [ { "Method" : 2, "TimeSection" : "08:00:00-12:00:30" } ], [  ] ])"));
}

}  // namespace
}  // namespace kova_test
