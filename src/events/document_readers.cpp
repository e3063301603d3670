#include "events/document_readers.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>

#include "common/base/allocation.h"
#include "common/base/platform.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "events/analyse_rule_reader.h"
#include "events/event_records.h"
#include "events/event_stream.h"
#include "kova/records/events.h"

namespace kova {

namespace {

// ---- Record descriptions of the status readers ------------------------------

constexpr Field kPtzStatusFields[] = {
    KOVA_F(PtzStatusRecord, channel, "Channel", kInt),
    KOVA_TUPLE(PtzStatusRecord, position, "Position", int32_t, 3),
    KOVA_F(PtzStatusRecord, presetId, "PresetID", kInt),
    KOVA_F(PtzStatusRecord, moveStatus, "MoveStatus", kText),
    KOVA_F(PtzStatusRecord, zoomStatus, "ZoomStatus", kText),
    KOVA_F(PtzStatusRecord, utc, "UTC", kUInt),
};

constexpr Field kFocusStatusFields[] = {
    KOVA_F(FocusStatusRecord, channel, "Channel", kInt),
    KOVA_F(FocusStatusRecord, focus, "Focus", kReal),
    KOVA_F(FocusStatusRecord, zoom, "Zoom", kReal),
    KOVA_F(FocusStatusRecord, status, "Status", kText),
};

constexpr Field kTrafficFlowFields[] = {
    KOVA_F(TrafficFlowStatRecord, lane, "Lane", kInt),
    KOVA_F(TrafficFlowStatRecord, utc, "UTC", kUInt),
    KOVA_F(TrafficFlowStatRecord, period, "Period", kInt),
    KOVA_F(TrafficFlowStatRecord, vehicles, "Vehicles", kInt),
    KOVA_F(TrafficFlowStatRecord, averageSpeed, "AverageSpeed", kReal),
    KOVA_F(TrafficFlowStatRecord, timeOccupyRatio, "TimeOccupyRatio", kReal),
    KOVA_F(TrafficFlowStatRecord, spaceOccupyRatio, "SpaceOccupyRatio", kReal),
    KOVA_F(TrafficFlowStatRecord, timeHeadway, "TimeHeadway", kReal),
    KOVA_F(TrafficFlowStatRecord, spaceHeadway, "SpaceHeadway", kReal),
    KOVA_F(TrafficFlowStatRecord, state, "State", kInt),
};

constexpr Field kStatSubtotalFields[] = {
    KOVA_F(StatSubtotal, total, "Total", kInt),
    KOVA_F(StatSubtotal, today, "Today", kInt),
    KOVA_F(StatSubtotal, hour, "Hour", kInt),
};

}  // namespace

KOVA_DESCRIBE(PtzStatusRecord, kPtzStatusFields)
KOVA_DESCRIBE(FocusStatusRecord, kFocusStatusFields)
KOVA_DESCRIBE(TrafficFlowStatRecord, kTrafficFlowFields)
KOVA_DESCRIBE(StatSubtotal, kStatSubtotalFields)
namespace {

constexpr Field kStatSummaryFields[] = {
    KOVA_F(VideoStatSummaryRecord, channel, "Channel", kInt),
    KOVA_F(VideoStatSummaryRecord, ruleName, "RuleName", kText),
    KOVA_F(VideoStatSummaryRecord, utc, "UTC", kUInt),
    KOVA_F(VideoStatSummaryRecord, insideNumber, "InsideSubtotal", kInt),
    KOVA_NESTED(VideoStatSummaryRecord, entered, "EnteredSubtotal"),
    KOVA_NESTED(VideoStatSummaryRecord, exited, "ExitedSubtotal"),
};

}  // namespace

KOVA_DESCRIBE(VideoStatSummaryRecord, kStatSummaryFields)
namespace {

// A reader that delivers one record per object of its member.
struct RecordReader {
  uint32_t code;
  uint32_t size;
  const FieldTable* table;
};

template <typename Record>
constexpr RecordReader Reader(uint32_t code) {
  return RecordReader{code, sizeof(Record), &Description<Record>::table};
}

constexpr RecordReader kPtzStatusReader = Reader<PtzStatusRecord>(KOVA_CALLBACK_PTZ_STATUS);
constexpr RecordReader kFocusStatusReader = Reader<FocusStatusRecord>(KOVA_CALLBACK_FOCUS_STATUS);
constexpr RecordReader kStatSummaryReader =
    Reader<VideoStatSummaryRecord>(KOVA_CALLBACK_VIDEO_STAT_SUMMARY);
constexpr RecordReader kTrafficFlowReader =
    Reader<TrafficFlowStatRecord>(KOVA_CALLBACK_TRAFFIC_FLOW_STAT);
constexpr RecordReader kObjectReader = {KOVA_CALLBACK_OBJECT, sizeof(EventObject),
                                        &kEventObjectTable};

// At most this many records are read from one member (the rule list's own
// cap for rules).
constexpr uint32_t kMaxRecordsPerMember = 128;
constexpr uint32_t kMaxRulesPerMember = 32;

// The objects a member holds: itself when it is an object, its first
// entries when it is an array (entries that are not objects are skipped).
template <typename ReadOne>
void ForEachObject(const Json::Value& value, uint32_t cap, ReadOne readOne) {
  if (value.isObject()) {
    readOne(value);
    return;
  }
  ForEachElement(value, [&](uint32_t i, const Json::Value& entry) {
    if (i >= cap) return false;
    if (entry.isObject()) readOne(entry);
    return true;
  });
}

void ReadRecords(const Json::Value& value, const RecordReader& reader, CReqRealPicture* out) {
  ForEachObject(value, kMaxRecordsPerMember, [&](const Json::Value& obj) {
    void* record = AllocateZeroed(reader.size);
    if (record == nullptr) return;
    // Listed before it is filled, so that whatever happens the parser
    // object releases it.
    if (!out->Add(AnalyzerEventNode{reader.code, record, reader.size, reader.table})) return;
    ParseFields(obj, record, *reader.table);
  });
}

void ReadRules(const Json::Value& value, CReqRealPicture* out) {
  ForEachObject(value, kMaxRulesPerMember, [&](const Json::Value& rule) {
    RuleRecord r;
    if (!BuildRuleRecord(rule, &r)) return;
    out->Add(AnalyzerEventNode{KOVA_CALLBACK_ANALYSE_RULE | r.typeCode, r.record, r.size, nullptr});
  });
}

enum class Kind : uint8_t { kEvents, kRecords, kRules };

struct MemberReader {
  const char* name;
  Kind kind;
  const RecordReader* reader;  // for kRecords
};

// The members that select a reader, compared exactly.
const MemberReader kMemberReaders[] = {
    {"Event", Kind::kEvents, nullptr},
    {"Ptz", Kind::kRecords, &kPtzStatusReader},
    {"VideoAnalyse", Kind::kRules, nullptr},
    {"VideoAnalyseRule", Kind::kRules, nullptr},
    {"FocusStatus", Kind::kRecords, &kFocusStatusReader},
    {"VideoStatSummary", Kind::kRecords, &kStatSummaryReader},
    {"ObjectList", Kind::kRecords, &kObjectReader},
    {"TrafficFlowStatInfo", Kind::kRecords, &kTrafficFlowReader},
    {"TrafficFlowStat", Kind::kRecords, &kTrafficFlowReader},
    {"EventList", Kind::kEvents, nullptr},
    {"VideoSynopsisAnalyseRule", Kind::kRules, nullptr},
};

const MemberReader* ReaderOf(const std::string& name, const Json::Value& root) {
  for (const MemberReader& m : kMemberReaders) {
    if (name == m.name) return &m;
  }
  // A device notification carries its events in "params"."eventList".
  static const MemberReader kNotification = {"params", Kind::kEvents, nullptr};
  if (name == "params" && !Member(Member(root, "params"), "eventList").isNull()) {
    return &kNotification;
  }
  return nullptr;
}

// Hands each member that selects a reader to it, in member order.
void ReadMembers(const Json::Value& root, CReqRealPicture* parser) {
  const platform::CodePagePin pin;  // one code page for every text of the document
  bool eventsRead = false;
  ForEachMember(root, [&](const std::string& name, const Json::Value& value) {
    const MemberReader* m = ReaderOf(name, root);
    if (m == nullptr) return true;
    switch (m->kind) {
      case Kind::kEvents:
        // The event reader takes the document once, whichever of its
        // members come first: "Event" wins over "EventList" as it does
        // for KOVA_ParseAnalyzerEventData.
        if (!eventsRead) parser->ReadEvents(root);
        eventsRead = true;
        break;
      case Kind::kRecords:
        ReadRecords(value, *m->reader, parser);
        break;
      case Kind::kRules:
        ReadRules(value, parser);
        break;
    }
    return true;
  });
}

}  // namespace

int ParseDocumentByCallback(const char* buf, uint32_t len, KOVA_AnalyzerEventCallback callback,
                            void* user) {
  Json::Value root;
  if (!ReadJson(buf, &root) || !root.isObject()) return 0;
  CReqRealPicture parser;
  parser.protocolVersion = CReqRealPicture::kProtocolVersion;
  parser.parseVersion = CReqRealPicture::kParseVersion;
  ReadMembers(root, &parser);
  parser.Deliver(callback, user);
  return 1;
}

}  // namespace kova
