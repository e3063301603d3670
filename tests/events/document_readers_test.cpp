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

TEST(ParseByCallback, AtMost128RecordsAnd32RulesPerMember) {
  std::string objects, rules;
  for (int i = 0; i < 130; ++i) {
    objects += std::string(i == 0 ? "" : ",") + "{\"ObjectID\":" + std::to_string(i) + "}";
    rules += std::string(i == 0 ? "" : ",") + "{\"Type\":\"FireDetection\"}";
  }
  EXPECT_EQ(128u, Codes("{\"ObjectList\":[" + objects + "]}", true).size());
  EXPECT_EQ(32u, Codes("{\"VideoAnalyseRule\":[" + rules + "]}", true).size());
}

}  // namespace
}  // namespace kova_test
