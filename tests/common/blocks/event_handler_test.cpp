// The alarm linkage block on device-shaped "EventHandler" objects: a full
// block from a recorder, the awkward cases, and records that lie.
#include "common/blocks/event_handler.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <memory>
#include <sstream>

#include "common/json/json.h"
#include "common/json/json_writer.h"

namespace {

using kova::Count;
using kova::Element;
using kova::Member;

Json::Value Doc(const std::string& text) {
  Json::Value v;
  EXPECT_TRUE(kova::ReadJson(text.c_str(), &v)) << text;
  return v;
}

Json::Value Fixture(const char* name) {
  std::ifstream in(std::string(KOVA_FIXTURES_DIR) + "/" + name);
  std::stringstream text;
  text << in.rdbuf();
  return Doc(text.str());
}

// The record is 337 KB: keep it off the stack.
std::unique_ptr<EventHandlerRecord> Zeroed() {
  std::unique_ptr<EventHandlerRecord> r(new EventHandlerRecord);
  std::memset(r.get(), 0, sizeof *r);
  return r;
}

std::unique_ptr<EventHandlerRecord> Parse(const Json::Value& eh) {
  auto r = Zeroed();
  EXPECT_TRUE(kova::ParseEventHandler(eh, r.get()));
  return r;
}

// The packed object without its (always written) schedule, as device text.
std::string PackedWithoutSchedule(const EventHandlerRecord& r) {
  Json::Value out;
  kova::PackEventHandler(r, out);
  EXPECT_TRUE(out.isMember("TimeSection"));
  out.removeMember("TimeSection");
  return kova::WriteJson(out);
}

// Every member the device sent is written back under its own key, nested
// ones included, but those it does not take back.
void ExpectKeysWrittenBack(const Json::Value& sent, const Json::Value& packed) {
  for (const std::string& key : sent.getMemberNames()) {
    if (key == "SDK_RecordChannel" || key == "SDK_AlarmOutChannel" || key == "TourSplit") continue;
    EXPECT_TRUE(packed.isMember(key)) << key;
    if (sent[key].isObject()) ExpectKeysWrittenBack(sent[key], Member(packed, key.c_str()));
  }
}

TEST(EventHandler, ParsePackParseGivesTheSameRecord) {
  const Json::Value sent = Fixture("event_handler_recorder.json");
  auto first = Parse(sent);
  Json::Value packed;
  kova::PackEventHandler(*first, packed);
  ExpectKeysWrittenBack(sent, packed);
  // A title's integer arrays come back as they were sent.
  for (const char* key : {"Point", "FrontColor", "BackColor"}) {
    EXPECT_EQ(sent["SnapshotTitle"][0][key], packed["SnapshotTitle"][0][key]) << key;
  }
  // Through the device text, so that reals and escapes travel too.
  auto second = Parse(Doc(kova::WriteJson(packed)));
  // Members the device reports but does not take back.
  for (EventHandlerRecord* r : {first.get(), second.get()}) {
    r->sdkRecordChannel = r->sdkAlarmOutChannel = r->tourSplit = 0;
    r->present[KOVA_EH_TOUR_SPLIT] = 0;
  }
  // An empty output set travels as null, which reads back as not given.
  EXPECT_EQ(0, second->present[KOVA_EH_EX_ALARM_OUT_CHANNELS]);
  first->present[KOVA_EH_EX_ALARM_OUT_CHANNELS] = 0;
  const unsigned char* a = reinterpret_cast<const unsigned char*>(first.get());
  const unsigned char* b = reinterpret_cast<const unsigned char*>(second.get());
  for (size_t i = 0; i < sizeof *first; ++i) ASSERT_EQ(a[i], b[i]) << "byte " << i;
  EXPECT_FALSE(packed.isMember("SDK_RecordChannel"));
  EXPECT_FALSE(packed.isMember("TourSplit"));
  EXPECT_TRUE(Member(packed, "ExAlarmOutChannels").isNull());
}

TEST(EventHandler, ChannelSetsFollowTwoRules) {
  auto r = Parse(Doc(R"({"RecordChannels": [0, 31, 32, 511, 512, -1],
                         "TourChannels": [-1, -32, 512, 511], "MatrixChannels": "3",
                         "SnapshotChannels": "3", "AlarmOutChannels": []})"));
  EXPECT_EQ(0x80000001u, r->recordChannels[0]);
  EXPECT_EQ(0x80000000u, r->recordChannels[15]);
  EXPECT_EQ(0x80000000u, r->tourChannels[0]);  // -1 wraps into the first word
  EXPECT_EQ(0x80000000u, r->tourChannels[15]);
  EXPECT_EQ(1, r->present[KOVA_EH_MATRIX_CHANNELS]);    // given, not an array
  EXPECT_EQ(0, r->present[KOVA_EH_SNAPSHOT_CHANNELS]);  // must be an array
  EXPECT_EQ(
      "{ \"AlarmOutChannels\" : null, \"AlarmOutEnable\" : false, \"RecordChannels\" : [ 0, 31, "
      "32, 511 ], \"RecordEnable\" : false, \"TourChannels\" : [ 31, 511 ] }\n",
      PackedWithoutSchedule(*r));
}

TEST(EventHandler, AwkwardMembers) {
  auto r = Parse(Doc(R"({
      "PtzLink": [["Preset", 0, 3, 0, 0], ["Tour", 1, 2], ["Tour", 4, 0, 0, 0]],
      "AccessControls": [{"Operation": "open"}, {"Operation": "Auto"}, null, {"Operation": 4}],
      "PSTNAlarmServer": {"Destination": [257, -5, 3.9], "NeedReport": true},
      "VideoTitleEnable": true,
      "SnapshotTitle": [{"Text": "T", "Point": [1, 2, 3], "Size": [7, 8]}],
      "TourSplit": "Split4", "MatrixEnable": 2, "FlashEnable": 3, "Talkback": {}})"));
  EXPECT_EQ(0, r->ptzLinks[1].type);  // three items: the entry stays zero
  EXPECT_EQ(KOVA_PTZ_LINK_TOUR, r->ptzLinks[2].type);
  EXPECT_EQ(1, r->needReport);
  EXPECT_EQ(1, r->videoTitleEnable);
  EXPECT_EQ(0, r->accessControlOperations[0]);  // compared exactly
  EXPECT_EQ(1, r->destinations[0]);
  EXPECT_EQ(3, r->destinations[2]);
  EXPECT_EQ(0, r->snapshotTitles[0].point[0]);  // wrong length: skipped
  EXPECT_EQ(8, r->snapshotTitles[0].size[1]);
  EXPECT_EQ(1, r->present[KOVA_EH_TOUR_SPLIT]);
  EXPECT_EQ(1, r->flashEnable);
  r->accessControlOperations[2] = 9;  // no name: nothing at its index
  r->tourEnable = 2;
  r->present[KOVA_EH_TOUR_ENABLE] = 1;
  Json::Value out;
  kova::PackEventHandler(*r, out);
  EXPECT_EQ("[ \"None\", 0, 0, 0, 0 ]\n", kova::WriteJson(Element(Member(out, "PtzLink"), 1)));
  EXPECT_EQ("Tour", kova::ToText(Element(Element(Member(out, "PtzLink"), 2), 0)));
  EXPECT_TRUE(kova::ToBool(Member(Member(out, "PSTNAlarmServer"), "NeedReport")));
  EXPECT_TRUE(kova::ToBool(Member(out, "VideoTitleEnable")));
  EXPECT_EQ(
      "[ { \"Operation\" : null }, { \"Operation\" : \"Auto\" }, null, { \"Operation\" : null } "
      "]\n",
      kova::WriteJson(Member(out, "AccessControls")));
  EXPECT_FALSE(kova::ToBool(Member(out, "MatrixEnable")));  // 2 is not 1
  EXPECT_EQ(Json::Value(false), Member(out, "TourEnable"));
  EXPECT_EQ(
      "{ \"CallEnable\" : false, \"CallProtocol\" : \"Cellular\", \"Caller\" : \"Device\" }\n",
      kova::WriteJson(Member(out, "Talkback")));
  // A title list given empty packs as an empty list, not as null.
  auto empty = Parse(Doc(R"({"SnapshotTitle": []})"));
  Json::Value none;
  kova::PackEventHandler(*empty, none);
  EXPECT_EQ("[  ]\n", kova::WriteJson(Member(none, "SnapshotTitle")));
}

TEST(EventHandler, WithWeekReadsTheSevenDayGridBesideTheRecord) {
  auto r = Zeroed();
  std::memset(r.get(), 0x33, sizeof *r);
  WeekSchedule7x6 week;
  std::memset(&week, 0x33, sizeof week);
  ASSERT_TRUE(kova::ParseEventHandlerWithWeek(
      Doc(R"({"TimeSection": [["1 08:00:00-18:00:00", "bad", "1 123:00:00-01:00:00"], 5,
                             [], [], [], [], ["0 01:02:03-04:05:06"], ["1 00:00:00-24:00:00"]],
              "RecordEnable": true})"),
      r.get(), &week));
  EXPECT_EQ(18, week.sections[0][0].endHour);
  EXPECT_EQ(0, week.sections[0][1].enable);
  EXPECT_EQ(12, week.sections[0][2].beginHour);  // two digits, then stopped
  EXPECT_EQ(1, r->recordEnable);
  // The linkage block's own copy stops at "bad", keeping what it read.
  EXPECT_EQ(0, r->schedule.holidayEnabled);
  EXPECT_EQ(18, r->schedule.sections[0][0].endHour);
  EXPECT_EQ(0, r->reserved[0]);
}

// A record holding a linkage block the ways configurations hold one.
struct Linked {
  int32_t given;
  EventHandlerRecord block;
  WeekSchedule7x6 week;
  WeekSchedule7x10 grid;
  int32_t lampPresent;
  int32_t lamp;
};
constexpr kova::Field kLampFields[] = {
    KOVA_F(Linked, lamp, "Lamp", kInt).Flag(KOVA_AT(Linked, lampPresent)),
};
constexpr kova::FieldTable kLamp = KOVA_TABLE(kLampFields);
constexpr kova::Field kAlways[] = {KOVA_LINKAGE(Linked, block).AlwaysRead()};
constexpr kova::Field kWhenGiven[] = {KOVA_LINKAGE(Linked, block).Flag(KOVA_AT(Linked, given))};
constexpr kova::Field kWeek[] = {
    KOVA_LINKAGE(Linked, block).Week(KOVA_SCHEDULE_AT(Linked, week)).Extra(kLamp).AlwaysRead()};
constexpr kova::Field kGrid[] = {
    KOVA_LINKAGE(Linked, block).Grid(KOVA_SCHEDULE_AT(Linked, grid)).AlwaysRead()};

template <size_t N>
std::unique_ptr<Linked> ParseLinked(const kova::Field (&fields)[N], const char* text) {
  std::unique_ptr<Linked> r(new Linked);
  std::memset(r.get(), 0, sizeof *r);
  kova::ParseFields(Doc(text), r.get(), fields);
  return r;
}

template <size_t N>
Json::Value PackLinked(const kova::Field (&fields)[N], const Linked& r) {
  Json::Value out(Json::objectValue);
  kova::PackFields(&r, out, fields);
  return out;
}

TEST(EventHandler, LinkageFieldReadsWhenAskedAndKeepsItsSchedulesBeside) {
  // A missing block: read as empty only when always read; a flagged one waits to be given.
  EXPECT_EQ(1, ParseLinked(kAlways, "{}")->block.present[KOVA_EH_RECORD_ENABLE]);
  auto r = ParseLinked(kWhenGiven, "{}");
  EXPECT_EQ(0, r->given);
  EXPECT_EQ(0, r->block.present[KOVA_EH_RECORD_ENABLE]);
  EXPECT_FALSE(PackLinked(kWhenGiven, *r).isMember("EventHandler"));
  EXPECT_EQ(1, ParseLinked(kWhenGiven, R"({"EventHandler": 5})")->given);

  // Eight days: the block keeps its holiday; the week is written over the
  // first seven, the rule's grid replaces them all; "Lamp" travels inside.
  std::string days;
  for (int d = 0; d < 8; ++d)
    days += std::string(d ? "," : "") + "[\"1 0" + std::to_string(d) + ":00:00-09:00:00\"]";
  const std::string doc = R"({"EventHandler": {"Lamp": 3, "TimeSection": [)" + days + "]}}";
  r = ParseLinked(kWeek, doc.c_str());
  EXPECT_EQ(3, r->lamp);
  EXPECT_EQ(6, r->week.sections[6][0].beginHour);
  r->week.sections[0][0].endHour = 23;
  Json::Value out = PackLinked(kWeek, *r);
  const Json::Value& sections = Member(Member(out, "EventHandler"), "TimeSection");
  EXPECT_EQ("1 00:00:00-23:00:00", kova::ToText(Element(Element(sections, 0), 0)));
  EXPECT_EQ("1 07:00:00-09:00:00", kova::ToText(Element(Element(sections, 7), 0)));
  EXPECT_EQ(6u, Count(Element(sections, 0)));
  EXPECT_EQ(3, kova::ToInt32(Member(Member(out, "EventHandler"), "Lamp")));

  r = ParseLinked(kGrid, doc.c_str());
  EXPECT_EQ(6, r->grid.sections[6][0].beginHour);
  EXPECT_EQ(1, r->block.schedule.holidayEnabled);
  out = PackLinked(kGrid, *r);
  EXPECT_EQ(7u, Count(Member(Member(out, "EventHandler"), "TimeSection")));
  EXPECT_EQ(10u, Count(Element(Member(Member(out, "EventHandler"), "TimeSection"), 0)));
  EXPECT_FALSE(Member(out, "EventHandler").isMember("Lamp"));
}

TEST(EventHandler, PackerReadsNoFurtherThanTheRecordWhateverItHolds) {
  // Every byte 0xFF: all flags set, counts -1, texts without terminators.
  auto r = Zeroed();
  std::memset(r.get(), 0xFF, sizeof *r);
  Json::Value out;
  kova::PackEventHandler(*r, out);
  EXPECT_EQ(1024u, kova::ToText(Member(out, "JpegSummary")).size());
  EXPECT_EQ(8u, Count(Member(out, "TimeSection")));

  // Huge counts are honoured only as far as the arrays extend, except the
  // two that packing leaves uncut, which stop at the end of the record.
  std::memset(r.get(), 0x7F, sizeof *r);
  r->ptzLinkCount = r->snapshotTitleCount = r->videoTitleCount = r->monitorTourCount = r->dbCount =
      r->accessControlCount = r->destinationCount = 0x7FFFFFFF;
  r->monitorTours[255].channelCount = 0x7FFFFFFF;
  for (auto& link : r->ptzLinks) link.type = KOVA_PTZ_LINK_PATTERN;
  out = Json::Value();
  kova::PackEventHandler(*r, out);
  EXPECT_EQ(256u, Count(Member(out, "PtzLink")));
  EXPECT_EQ(256u, Count(Member(Element(Member(out, "MonitorTour"), 255), "Channels")));
  EXPECT_EQ(64u, Count(Member(out, "DB")));
  EXPECT_EQ(sizeof(EventHandlerRecord) - offsetof(EventHandlerRecord, destinations),
            Count(Member(Member(out, "PSTNAlarmServer"), "Destination")));
  EXPECT_EQ(260u, kova::ToText(Member(Member(out, "Voice"), "AudioFileName")).size());
}

}  // namespace
