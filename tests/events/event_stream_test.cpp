// KOVA_ParseAnalyzerEventData: which events a notification delivers, in
// what order, with which code and record.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "events/event_test_util.h"
#include "harness/calls.h"
#include "harness/documents.h"
#include "kova/kova.h"
#include "kova/records/events.h"

namespace kova_test {
namespace {

const std::string kData = R"("Data":{"Name":"r","UTC":1716537610})";

std::string Event(const std::string& code, const std::string& rest = kData) {
  return R"({"Code":")" + code + "\"" + (rest.empty() ? "" : "," + rest) + "}";
}

std::string Repeat(const std::string& item, int n) {
  std::string out;
  for (int i = 0; i < n; ++i) out += (i == 0 ? "" : ",") + item;
  return out;
}

struct Case {
  const char* what;
  std::string doc;
  std::vector<uint32_t> codes;
};

TEST(EventStream, SelectsTheEventListAndTheEventsItDelivers) {
  const std::string line = Event("CrossLineDetection");
  const std::string region = Event("CrossRegionDetection");
  const Case cases[] = {
      {"not JSON", "{\"Event\":[" + line, {}},
      {"Event", "{\"Event\":[" + line + "," + region + "]}", {2, 3}},
      {"Event wins over EventList",
       "{\"Event\":[" + line + "],\"EventList\":[" + region + "]}",
       {2}},
      {"EventList when Event is null", "{\"Event\":null,\"EventList\":[" + region + "]}", {3}},
      {"an Event that is no array gives nothing",
       "{\"Event\":" + line + ",\"EventList\":[" + region + "]}",
       {}},
      {"notification", Notification(line + "," + region), {2, 3}},
      {"notification ignored beside EventList",
       R"({"EventList":[)" + region + R"(],"params":{"eventList":[)" + line + "]}}",
       {3}},
      {"VideoBlind and SnapByTime come without data",
       Notification(Event("VideoBlind", "") + "," + Event("SnapByTime", R"("Action":"Start")")),
       {339, 356}},
      {"other events without data are dropped",
       Notification(Event("CrossLineDetection", "") + "," + Event("NoSuchEvent", "") + "," +
                    Event("VideoLoss", R"("Data":null)")),
       {}},
      {"unknown code with data",
       Notification(Event("NoSuchEvent") + "," + "{" + kData + "}"),
       {0, 0}},
      {"code compared without regard to case", Notification(Event("crosslineDETECTION")), {2}},
      {"null and non-object entries", Notification("null,7,\"x\",[]," + line), {2}},
      {"a code longer than 128 characters is cut",
       Notification(Event("CrossLineDetection" + std::string(200, ' '))),
       {0}},
  };
  for (const Case& c : cases) {
    int ret = 0;
    EXPECT_EQ(c.codes, Codes(c.doc, false, &ret)) << c.what;
    EXPECT_EQ(1, ret) << c.what;
  }
  // By callback a notification's events are read as well.
  EXPECT_EQ((std::vector<uint32_t>{2, 3}), Codes(Notification(line + "," + region), true));
}

// The codes of the names the rule list rejects, as the device protocol lists
// them, and one name of each event family with its family's record: a code
// shifted in the rule-type table, or delivered with another family's record,
// fails here.
TEST(EventStream, CodesAndRecordsFollowTheDeviceTable) {
  const char kRejected[] =
      "CameraCoverdDetection 17, CameraMovedDetection 18, VideoBadDetection 20, TrafficSnapshot "
      "25, TrafficDrivingOnShoulder 268, TrafficNoPassing 273, InRegionDetection 276, "
      "TrafficManualSnap 280, TrafficFlowStat 281, TrafficStay 282, VideoMotion 284, AlarmLocal "
      "285, VideoDiagnosieResult 290, TrafficRunYellowLight 295, VehicleACC 304, VehicleTurnover "
      "305, VehicleCollision 306, VehicleLargeAngle 307, MultiSceneSwitch 309, "
      "TrafficRestrictedPlate 310, TrafficOverStopLine 311, AnalogAlarm 336, VideoAnalyse 512, "
      "NoAnswerCall 344, StorageNotExist 345, StorageLowSpace 346, StorageFailure 347, "
      "ProfileAlarmTransmit 348, TrafficJamForbidInto 355, ObjectDetection 321, Common 338, "
      "VideoBlind 339, VideoLoss 340, VideoStatic 349, VideoTiming 350, LinkSD 513, Oil4GFlowRate "
      "515, CitizenIDCard 352, PicInfo 353, NetPlayCheck 354, SnapByTime 356, PtzPreset 357, "
      "QSYTrafficCarWeight 360, RFIDInfo 358, TrafficComparePlate 361, "
      "TrafficVideoAnalysePreSnap 368, All 1";
  std::istringstream list(kRejected);
  std::string name;
  uint32_t code = 0;
  while (list >> name >> code) {
    const std::vector<uint32_t> got = Codes(Notification(Event(name)));
    ASSERT_EQ(1u, got.size()) << name;
    EXPECT_EQ(code, got[0]) << name;
    list.ignore(1);  // the comma
  }
  const struct {
    const char* name;
    uint32_t code;
    uint32_t size;
  } kFamilies[] = {
      {"CrossRegionDetection", 3, sizeof(CrossingEventInfo)},
      {"WanderDetection", 7, sizeof(PresenceEventInfo)},
      {"RioterDetection", 11, sizeof(CrowdEventInfo)},
      {"FaceRecognition", 279, sizeof(FaceEventInfo)},
      {"TrafficGate", 24, sizeof(TrafficEventInfo)},
      {"CameraMovedDetection", 18, sizeof(AbnormalityEventInfo)},
      {"FireDetection", 12, sizeof(GeneralEventInfo)},
  };
  for (const auto& f : kFamilies) {
    const std::vector<Delivery> d = Deliveries(Notification(Event(f.name)));
    ASSERT_EQ(1u, d.size()) << f.name;
    EXPECT_EQ(f.code, d[0].code) << f.name;
    EXPECT_EQ(f.size, d[0].size) << f.name;
  }
}

TEST(EventStream, AtMost128EntriesAreLookedAtInDocumentOrder) {
  std::string many;
  for (int i = 0; i < 129; ++i) {
    many += (i == 0 ? "" : ",") +
            Event("LeftDetection", "\"Index\":" + std::to_string(i) + "," + kData);
  }
  std::vector<int32_t> channels;
  ReadEvents(Notification(many), [&](uint32_t, const void* info, uint32_t) {
    channels.push_back(static_cast<const EventCommon*>(info)->channel);
  });
  ASSERT_EQ(128u, channels.size());
  for (int i = 0; i < 128; ++i) EXPECT_EQ(i, channels[i]);

  // Null entries and dropped events count toward the 128.
  const std::string skipped =
      Repeat("null", 64) + "," + Repeat(Event("CrossLineDetection", ""), 64);
  EXPECT_TRUE(Codes(Notification(skipped + "," + Event("LeftDetection"))).empty());
  EXPECT_EQ(std::vector<uint32_t>{5},
            Codes(Notification(Repeat("null", 127) + "," + Event("LeftDetection"))));
}

TEST(EventStream, TheTextIsReadUpToItsTerminatorWhateverTheLength) {
  const std::string doc = Notification(Event("LeftDetection"));
  int calls = 0;
  const Visit count = [&](uint32_t, const void*, uint32_t) { ++calls; };
  for (uint32_t len : {0u, 5u, static_cast<uint32_t>(doc.size())}) {
    EXPECT_EQ(1,
              KOVA_ParseAnalyzerEventData(doc.c_str(), len, CallVisit, const_cast<Visit*>(&count)));
  }
  EXPECT_EQ(3, calls);
}

TEST(EventStream, ActionIndexAndDictionaryCodeLeadEveryRecord) {
  struct ActionCase {
    const char* action;
    int32_t value;
  } const actions[] = {{"\"Pulse\"", KOVA_EVENT_PULSE},
                       {"\"stop\"", KOVA_EVENT_STOP},
                       {"\"Begin\"", KOVA_EVENT_PULSE},
                       {"2", KOVA_EVENT_PULSE}};
  for (const ActionCase& a : actions) {
    int32_t action = -1;
    ReadEvents(
        Notification(Event("LeftDetection", std::string("\"Action\":") + a.action + "," + kData)),
        [&](uint32_t, const void* info, uint32_t) {
          action = static_cast<const EventCommon*>(info)->action;
        });
    EXPECT_EQ(a.value, action) << a.action;
  }
  // Every name of the device's event dictionary (matched exactly) brings its
  // number, a hundred events a notification.
  std::ifstream table(std::string(KOVA_FIXTURES_DIR) + "/event_codes.txt");
  std::vector<std::pair<std::string, uint32_t>> names = {{"storagelowspace", 0}};
  for (std::string name, code; table >> name >> code;) {
    if (name != "#") names.emplace_back(name, std::stoul(code, nullptr, 16));
    std::getline(table, code);  // the rest of a comment line
  }
  ASSERT_EQ(152u, names.size());
  for (size_t first = 0; first < names.size(); first += 100) {
    std::string events;
    std::vector<uint32_t> expected, dictionary;
    for (size_t i = first; i < std::min(names.size(), first + 100); ++i) {
      events += (events.empty() ? "" : ",") + Event(names[i].first.c_str());
      expected.push_back(names[i].second);
    }
    ReadEvents(Notification(events), [&](uint32_t, const void* info, uint32_t) {
      dictionary.push_back(static_cast<const EventCommon*>(info)->dictionaryCode);
    });
    EXPECT_EQ(expected, dictionary);
  }
  // The region action of a crossing is the data's own "Action", from 1.
  int32_t regionAction = 0;
  ReadEvents(Notification(Event("CrossRegionDetection", R"("Data":{"Action":"Inside"})")),
             [&](uint32_t, const void* info, uint32_t) {
               regionAction = static_cast<const CrossingEventInfo*>(info)->regionAction;
             });
  EXPECT_EQ(3, regionAction);
}

TEST(EventStream, CallsBackOnTheCallersThreadAndEachCallHasItsOwnLock) {
  const std::string doc = Notification(Event("LeftDetection") + "," + Event("VideoBlind", ""));
  const std::thread::id caller = std::this_thread::get_id();
  int inner = 0;
  int outer = 0;
  // A callback may start another call (with its own parser object and lock)
  // while its own call holds its lock.
  ReadEvents(doc, [&](uint32_t, const void*, uint32_t) {
    EXPECT_EQ(caller, std::this_thread::get_id());
    ++outer;
    inner += static_cast<int>(Codes(doc).size());
  });
  EXPECT_EQ(2, outer);
  EXPECT_EQ(4, inner);
}

TEST(EventStream, HostileSampleNotificationsKeepTheCallbackContract) {
  const std::vector<kova_harness::SampleDocument> samples =
      kova_harness::LoadSampleDocuments({std::string(KOVA_SAMPLES_DIR) + "/events"});
  ASSERT_FALSE(samples.empty());
  for (const kova_harness::SampleDocument& s : samples) {
    for (const std::string& value : kova_harness::HostileValues()) {
      for (const std::string& doc : {kova_harness::ReplaceScalars(s.text, value),
                                     kova_harness::ReplaceContainers(s.text, value)}) {
        for (bool byCallback : {false, true}) {
          const kova_harness::EventResult r =
              kova_harness::CallEvents(doc, static_cast<uint32_t>(doc.size()), byCallback);
          EXPECT_EQ("", r.violation) << s.path << " with " << value.substr(0, 40);
        }
      }
    }
  }
}

}  // namespace
}  // namespace kova_test
