// The device-wide settings: each shipped device answer packs back to its
// expected text and reads back to the same records, plus the shapes that
// are particular to a configuration (bare values, keyed members, optional
// blocks, grids that keep their day count).
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
    {"General", sizeof(GeneralConfig), 1},
    {"NTP", sizeof(NtpConfig), 1},
    {"Locales", sizeof(LocalesConfig), 1},
    {"AutoMaintain", sizeof(AutoMaintainConfig), 1},
    {"Language", sizeof(LanguageConfig), 1},
    {"Email", sizeof(EmailConfig), 1},
    {"AlarmOut", sizeof(AlarmOutConfig), 3},
    {"Snap", sizeof(SnapConfig), 2},
    {"RemoteDevice", sizeof(RemoteDeviceConfig), 2},
    {"AccessControl", sizeof(AccessControlConfig), 2},
    {"AudioDetect", sizeof(AudioDetectConfig), 2},
    {"AudioOutputVolume", sizeof(AudioVolumeConfig), 4},
    {"AudioInputVolume", sizeof(AudioVolumeConfig), 2},
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

TEST(SystemSettings, SamplesPackToTheExpectedTextAndReadBackIdentically) {
  for (const Setting& s : kSettings) {
    int rc = 0;
    uint32_t ret = 0;
    const std::vector<unsigned char> first = Parse(s, kova_test::Sample(s.name), &rc, &ret);
    ASSERT_EQ(1, rc) << s.name;
    ASSERT_EQ(s.records * s.size, ret) << s.name;
    const std::string text = PackBytes(s.name, first.data(), ret);
    EXPECT_EQ(kova_test::PackedText(s.name), text) << s.name;
    const std::vector<unsigned char> second = Parse(s, Doc(text), &rc, &ret);
    EXPECT_EQ(1, rc) << s.name;
    // The linkage block writes an empty output set as null, which reads back
    // as not given: there the second record is the fixed point.
    if (std::string(s.name) == "AudioDetect") {
      const std::string text2 = PackBytes(s.name, second.data(), ret);
      EXPECT_TRUE(second == Parse(s, Doc(text2), &rc, &ret)) << s.name;
    } else {
      EXPECT_TRUE(first == second) << s.name;
    }
  }
}

TEST(SystemSettings, EnvelopeRules) {
  for (const Setting& s : kSettings) {
    int rc = 0;
    uint32_t ret = 7;
    std::vector<unsigned char> out =
        Parse(s, R"({"result":false,"params":{"table":{}}})", &rc, &ret);
    EXPECT_EQ(0, rc) << s.name;
    EXPECT_EQ(std::vector<unsigned char>(out.size(), 0), out) << s.name << ": cleared first";
    Parse(s, R"({"result":true,"params":{"table":null}})", &rc, &ret);
    EXPECT_EQ(1, rc) << s.name;
    EXPECT_EQ(0u, ret) << s.name;
    Parse(s, R"({"result":true,)", &rc, &ret);
    EXPECT_EQ(0, rc) << s.name;
    // A buffer below one record is refused, and so is a pack input below one.
    std::vector<unsigned char> small(s.size - 1);
    EXPECT_EQ(0, KOVA_ParseData(s.name, kova_test::Sample(s.name).c_str(), small.data(),
                                static_cast<uint32_t>(small.size()), &ret))
        << s.name;
    EXPECT_EQ("<failed>", PackBytes(s.name, small.data(), static_cast<uint32_t>(small.size())))
        << s.name;
  }
}

TEST(SystemSettings, PerChannelAnswersFillOneRecordEachCutToTheBuffer) {
  const Setting alarmOut = Named("AlarmOut");
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> two = Parse(alarmOut, kova_test::Sample("AlarmOut"), &rc, &ret, 2);
  EXPECT_EQ(1, rc);
  EXPECT_EQ(2 * sizeof(AlarmOutConfig), ret);
  const AlarmOutConfig* ports = reinterpret_cast<const AlarmOutConfig*>(two.data());
  EXPECT_STREQ("Gate relay", ports[1].name);
  EXPECT_EQ(1, ports[1].mode);
  // One port answered alone, without the optional members.
  std::vector<unsigned char> one = Parse(alarmOut, Doc(R"({"Mode":2,"Name":"Bell"})"), &rc, &ret);
  EXPECT_EQ(sizeof(AlarmOutConfig), ret);
  EXPECT_EQ(R"({ "Mode" : 2, "Name" : "Bell" })"
            "\n",
            PackBytes("AlarmOut", one.data(), ret));
}

TEST(SystemSettings, OptionalMembersAreWrittenOnlyWhenTheDeviceSentThem) {
  const std::string general = Doc(R"({"MachineName":"NVR","LocalNo":1})");
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> g = Parse(Named("General"), general, &rc, &ret);
  EXPECT_EQ(
      R"({ "LocalNo" : 1, "LockLoginEnable" : false, "LockLoginTimes" : 0, "LoginFailLockTime" : 0, )"
      R"("MachineName" : "NVR", "MaxOnlineTime" : 0 })"
      "\n",
      PackBytes("General", g.data(), ret));
  // "HealthReport" that is not an object counts as absent.
  std::vector<unsigned char> e =
      Parse(Named("Email"), Doc(R"({"HealthReport":true,"Receivers":"a@b"})"), &rc, &ret);
  const EmailConfig* mail = reinterpret_cast<const EmailConfig*>(e.data());
  EXPECT_EQ(0, mail->healthReportPresent);
  EXPECT_EQ(0, mail->receiverCount);
  EXPECT_EQ(std::string::npos, PackBytes("Email", e.data(), ret).find("HealthReport"));
}

TEST(SystemSettings, EmailReceiversAreCutToEight) {
  std::string list = "[";
  for (int i = 0; i < 10; ++i)
    list += std::string(i ? "," : "") + "\"r" + std::to_string(i) + "@x\"";
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> e =
      Parse(Named("Email"), Doc(R"({"Receivers":)" + list + "]}"), &rc, &ret);
  const EmailConfig* mail = reinterpret_cast<const EmailConfig*>(e.data());
  EXPECT_EQ(8, mail->receiverCount);
  EXPECT_STREQ("r7@x", mail->receivers[7]);
}

TEST(SystemSettings, LanguageAndLocalesShapes) {
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> lang =
      Parse(Named("Language"), kova_test::Sample("Language"), &rc, &ret);
  EXPECT_STREQ("English", reinterpret_cast<const LanguageConfig*>(lang.data())->language);
  // A table that is not a text leaves the language empty.
  lang = Parse(Named("Language"), Doc("{\"Name\":\"English\"}"), &rc, &ret);
  EXPECT_EQ(1, rc);
  EXPECT_STREQ("", reinterpret_cast<const LanguageConfig*>(lang.data())->language);

  std::vector<unsigned char> loc = Parse(Named("Locales"), kova_test::Sample("Locales"), &rc, &ret);
  const LocalesConfig* l = reinterpret_cast<const LocalesConfig*>(loc.data());
  EXPECT_EQ(1, l->dstEnable);
  EXPECT_EQ(3, l->dstStart.month);
  EXPECT_EQ(-1, l->dstEnd.week);
  EXPECT_EQ(2024, l->dstEnd.year);
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
  EXPECT_EQ(1, d[1].videoInputCount);
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
  EXPECT_EQ(2, d[1].days[0].sections[0].method);
  EXPECT_EQ(30, d[1].days[0].sections[0].range.endSecond);
  EXPECT_EQ(KOVA_DOOR_SCHEDULE_NONE, d[2].timeScheduleForm);  // neither form
  EXPECT_EQ(1, d[2].firstEnterPresent);
  EXPECT_EQ(4, d[2].firstEnter.status);
  const std::string text = PackBytes("AccessControl", out.data(), ret);
  EXPECT_NE(std::string::npos, text.find(R"("TimeSchedule" : [ { "TimeSection" : "07:30-19:00" }, )"
                                         R"({ "TimeSection" : "00:00-00:00" } ])"));
  EXPECT_NE(std::string::npos,
            text.find(R"([ [ { "Method" : 2, "TimeSection" : "08:00:00-12:00:30" } ], [  ] ])"));
}

TEST(SystemSettings, SoundAlarmKeepsItsLightBesideTheLinkageBlock) {
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> out =
      Parse(Named("AudioDetect"), kova_test::Sample("AudioDetect"), &rc, &ret);
  const AudioDetectConfig* a = reinterpret_cast<const AudioDetectConfig*>(out.data());
  EXPECT_EQ(1, a[0].lightingLinkPresent);
  EXPECT_STREQ("WhiteLight", a[0].lightingLink.filckerLightType);
  EXPECT_EQ(10, a[0].lightingLink.filckerTimes);
  EXPECT_EQ(30, a[0].mutationThreold);
  EXPECT_EQ(0, a[1].lightingLinkPresent);
  const std::string text = PackBytes("AudioDetect", out.data(), ret);
  EXPECT_EQ(1u, [&] {
    size_t n = 0;
    for (size_t at = text.find("LightingLink"); at != std::string::npos;
         at = text.find("LightingLink", at + 1))
      ++n;
    return n;
  }());
}

TEST(SystemSettings, VolumesArePlainNumbers) {
  int rc = 0;
  uint32_t ret = 0;
  std::vector<unsigned char> out =
      Parse(Named("AudioOutputVolume"), Doc("[80,\"x\",null,100,7]"), &rc, &ret, 4);
  const AudioVolumeConfig* v = reinterpret_cast<const AudioVolumeConfig*>(out.data());
  EXPECT_EQ(4 * sizeof(AudioVolumeConfig), ret);  // cut to the buffer
  EXPECT_EQ(80, v[0].volume);
  EXPECT_EQ(0, v[1].volume);
  EXPECT_EQ(100, v[3].volume);
  out = Parse(Named("AudioInputVolume"), Doc("35"), &rc, &ret);  // one channel answered alone
  EXPECT_EQ(sizeof(AudioVolumeConfig), ret);
  EXPECT_EQ("35\n", PackBytes("AudioInputVolume", out.data(), ret));
}

}  // namespace
