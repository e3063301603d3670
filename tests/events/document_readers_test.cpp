// KOVA_ParseDataByCallback: the member names at a document's root choose
// the readers; each reader's records and codes.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "config/analyse/rule_types.h"
#include "events/event_test_util.h"
#include "kova/kova.h"
#include "kova/records/analyse.h"
#include "kova/records/events.h"

namespace kova_test {
namespace {

constexpr uint32_t kRule = KOVA_CALLBACK_ANALYSE_RULE;

TEST(ParseByCallback, MembersSelectTheirReadersInNameOrder) {
  const std::string event = R"({"Code":"LeftDetection","Data":{"Name":"x"}})";
  const struct {
    const char* what;
    std::string doc;
    std::vector<uint32_t> codes;
  } cases[] = {
      {"no known member", R"({"Alarm":{"Enable":true}})", {}},
      {"Event", "{\"Event\":[" + event + "]}", {5}},
      {"Event and EventList read once, Event first",
       "{\"EventList\":[" + event + "],\"Event\":[{\"Code\":\"VideoBlind\"}]}",
       {339}},
      {"notification", Notification(event), {5}},
      {"Ptz", R"({"Ptz":{"Channel":0}})", {KOVA_CALLBACK_PTZ_STATUS}},
      {"FocusStatus",
       R"({"FocusStatus":[{"Focus":0.5},{"Focus":0.25}]})",
       {KOVA_CALLBACK_FOCUS_STATUS, KOVA_CALLBACK_FOCUS_STATUS}},
      {"VideoStatSummary", R"({"VideoStatSummary":{}})", {KOVA_CALLBACK_VIDEO_STAT_SUMMARY}},
      {"ObjectList skips entries that are not objects",
       R"({"ObjectList":[{},null,3,{}]})",
       {KOVA_CALLBACK_OBJECT, KOVA_CALLBACK_OBJECT}},
      {"both flow members",
       R"({"TrafficFlowStatInfo":{},"TrafficFlowStat":[{}]})",
       {KOVA_CALLBACK_TRAFFIC_FLOW_STAT, KOVA_CALLBACK_TRAFFIC_FLOW_STAT}},
      {"the three rule members",
       R"({"VideoSynopsisAnalyseRule":{"Type":"HeatMap"},"VideoAnalyse":[{"Type":"FlowStat"}],)"
       R"("VideoAnalyseRule":[{"Type":"NoSuchType"},{}]})",
       {kRule | 15, kRule | 0, kRule | 0, kRule | 351}},
      {"a member of the wrong type gives nothing", R"({"Ptz":7,"ObjectList":"x"})", {}},
      {"names compared exactly", R"({"ptz":{},"event":[{"Code":"VideoBlind"}]})", {}},
      {"one document, several readers, in name order",
       "{\"VideoStatSummary\":{},\"Ptz\":{},\"Event\":[" + event + "]}",
       {5, KOVA_CALLBACK_PTZ_STATUS, KOVA_CALLBACK_VIDEO_STAT_SUMMARY}},
  };
  for (const auto& c : cases) {
    int ret = 0;
    EXPECT_EQ(c.codes, Codes(c.doc, true, &ret)) << c.what;
    EXPECT_EQ(1, ret) << c.what;
  }
}

TEST(ParseByCallback, ReturnsZeroUnlessTheTextIsAJsonObject) {
  for (const char* text : {"[]", "3", "\"Ptz\"", "null", "{\"Ptz\":", ""}) {
    int ret = -1;
    EXPECT_TRUE(Deliveries(text, true, &ret).empty()) << text;
    EXPECT_EQ(0, ret) << text;
  }
  int ret = -1;
  Deliveries("{}", true, &ret);
  EXPECT_EQ(1, ret);
}

TEST(ParseByCallback, AtMost128RecordsAnd32RulesPerMember) {
  std::string objects, rules;
  for (int i = 0; i < 130; ++i) {
    objects += std::string(i == 0 ? "" : ",") + "{\"ObjectID\":" + std::to_string(i) + "}";
    rules += std::string(i == 0 ? "" : ",") + "{\"Type\":\"FireDetection\"}";
  }
  EXPECT_EQ(128u, Codes("{\"ObjectList\":[" + objects + "]}", true).size());
  EXPECT_EQ(32u, Codes("{\"VideoAnalyseRule\":[" + rules + "]}", true).size());
}

TEST(ParseByCallback, StatusStatisticsAndObjectRecords) {
  std::vector<Delivery> got;
  const auto check = [&](uint32_t code, const void* info, uint32_t size) {
    got.push_back({code, size, info != nullptr});
    switch (code) {
      case KOVA_CALLBACK_PTZ_STATUS: {
        const PtzStatusRecord& r = *static_cast<const PtzStatusRecord*>(info);
        EXPECT_EQ(sizeof r, size);
        if (r.channel == 0) {
          EXPECT_EQ(1250, r.position[0]);
          EXPECT_EQ(-310, r.position[1]);
          EXPECT_EQ(4, r.position[2]);
          EXPECT_EQ(3, r.presetId);
          EXPECT_STREQ("Idle", r.moveStatus);
          EXPECT_EQ(1716554000u, r.utc);
        } else {
          EXPECT_STREQ("Zooming", r.zoomStatus);
        }
        break;
      }
      case KOVA_CALLBACK_FOCUS_STATUS: {
        const FocusStatusRecord& r = *static_cast<const FocusStatusRecord*>(info);
        EXPECT_EQ(sizeof r, size);
        EXPECT_DOUBLE_EQ(0.4375, r.focus);
        EXPECT_DOUBLE_EQ(0.125, r.zoom);
        EXPECT_STREQ("Normal", r.status);
        break;
      }
      case KOVA_CALLBACK_VIDEO_STAT_SUMMARY: {
        const VideoStatSummaryRecord& r = *static_cast<const VideoStatSummaryRecord*>(info);
        EXPECT_EQ(sizeof r, size);
        EXPECT_EQ(2, r.channel);
        EXPECT_STREQ("Shop door", r.ruleName);
        EXPECT_EQ(52, r.insideNumber);
        EXPECT_EQ(18211, r.entered.total);
        EXPECT_EQ(311, r.entered.today);
        EXPECT_EQ(41, r.exited.hour);
        break;
      }
      case KOVA_CALLBACK_TRAFFIC_FLOW_STAT: {
        const TrafficFlowStatRecord& r = *static_cast<const TrafficFlowStatRecord*>(info);
        EXPECT_EQ(sizeof r, size);
        if (r.lane == 2) {
          EXPECT_EQ(131, r.vehicles);
          EXPECT_DOUBLE_EQ(22.75, r.averageSpeed);
          EXPECT_DOUBLE_EQ(0.57, r.spaceOccupyRatio);
          EXPECT_DOUBLE_EQ(14.6, r.spaceHeadway);
          EXPECT_EQ(3, r.state);
          EXPECT_EQ(5, r.period);
        }
        break;
      }
      case KOVA_CALLBACK_OBJECT: {
        const EventObject& r = *static_cast<const EventObject*>(info);
        EXPECT_EQ(sizeof r, size);
        if (r.objectId == 4210) {
          EXPECT_EQ(KOVA_OBJECT_STAY, r.action);
          EXPECT_STREQ("Truck", r.category);
          EXPECT_EQ(6144, r.boundingBox.bottom);
        }
        break;
      }
      default:
        ADD_FAILURE() << "unexpected code " << code;
    }
  };
  for (const char* file : {"document-ptz.json", "document-focus.json", "document-stat-summary.json",
                           "document-traffic-flow.json", "document-objects.json"}) {
    EXPECT_EQ(1, ReadEvents(ReadSample(file), check, true)) << file;
  }
  EXPECT_EQ(2u + 1 + 1 + 3 + 3, got.size());
}

TEST(ParseByCallback, AnalysisRulesComeAsTheirTypesRecords) {
  std::vector<uint32_t> codes;
  ReadEvents(
      ReadSample("document-rules.json"),
      [&](uint32_t code, const void* info, uint32_t size) {
        codes.push_back(code);
        // Every rule record begins with RuleHead; its size is the type's own.
        ASSERT_EQ(code == (kRule | 2) ? sizeof(CrossLineRule)
                                      : static_cast<uint32_t>(kova::RuleBodySize(code & 0xFFFF)),
                  size);
        const RuleHead& r = *static_cast<const RuleHead*>(info);
        if (code == (kRule | 2)) {
          EXPECT_STREQ("Gate line", r.name);
          EXPECT_EQ(1, r.enable);
          EXPECT_EQ(0, r.trackEnable);
          ASSERT_EQ(2u, r.objectTypeCount);
          EXPECT_STREQ("Vehicle", r.objectTypes[1]);
          const CrossLineRule& line = *static_cast<const CrossLineRule*>(info);
          EXPECT_EQ(2u, line.detectLine.pointCount);  // the type's own "Config" keys
          EXPECT_EQ(6890, line.detectLine.points[1].x);
          EXPECT_EQ(5, line.trackDuration);
        } else if (code == (kRule | 5)) {
          EXPECT_STREQ("Synopsis", r.name);
          EXPECT_EQ(0, r.enable);
        }
      },
      true);
  EXPECT_EQ((std::vector<uint32_t>{kRule | 2, kRule | 3, kRule | 5}), codes);
}

TEST(ParseByCallback, NotificationsGiveTheSameEventsAsTheEventStream) {
  for (const char* file : {"notify-crossing.json", "notify-traffic.json", "notify-abnormal.json",
                           "notify-alarms.json", "event-list.json"}) {
    const std::string doc = ReadSample(file);
    EXPECT_EQ(Codes(doc, false), Codes(doc, true)) << file;
    EXPECT_FALSE(Codes(doc, true).empty()) << file;
  }
}

}  // namespace
}  // namespace kova_test
