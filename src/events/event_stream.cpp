#include "events/event_stream.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "common/base/allocation.h"
#include "common/json/json.h"
#include "config/analyse/rule_types.h"
#include "events/event_code_dictionary.h"
#include "events/event_records.h"

namespace kova {

namespace {

// The two events a device sends without "Data" that are still delivered
// (with no record): the video signal is blinded, and the timed snapshot.
constexpr uint32_t kVideoBlind = 339;
constexpr uint32_t kSnapByTime = 356;

// At most this many characters of "Code" are looked up.
constexpr size_t kCodeCapacity = 128;

const Json::Value& EventArray(const Json::Value& root) {
  const Json::Value& event = Member(root, "Event");
  if (!event.isNull()) return event;
  const Json::Value& list = Member(root, "EventList");
  if (!list.isNull()) return list;
  return Member(Member(root, "params"), "eventList");
}

}  // namespace

void ReleaseNode(AnalyzerEventNode* node) {
  if (node->eventInfo == nullptr) return;
  if (node->release != nullptr) ReleaseFields(node->eventInfo, *node->release);
  ReleaseBlock(node->eventInfo);
  node->eventInfo = nullptr;
}

CReqRealPicture::~CReqRealPicture() {
  for (AnalyzerEventNode& node : eventList) ReleaseNode(&node);
}

bool CReqRealPicture::Parse(const char* text, uint32_t length) {
  if (parseVersion != kParseVersion) return false;
  if (!ReadJson(text, &document_)) return false;
  ReadEvents(document_);
  return true;
}

void CReqRealPicture::ReadEvents(const Json::Value& root) {
  const Json::Value& events = EventArray(root);
  if (!events.isArray()) return;
  const platform::CodePagePin pin;  // one code page for every text of the notification
  eventList.reserve(eventList.size() + std::min(Count(events), kMaxEventsPerNotification));
  ForEachElement(events, kMaxEventsPerNotification, [this](uint32_t, const Json::Value& event) {
    if (!event.isNull()) ReadEvent(event);
  });
}

const CReqRealPicture::CodeOfText& CReqRealPicture::CodesOf(std::string_view text) {
  const auto textOf = [](const CodeOfText& c) { return std::string_view(c.text); };
  const int seen = codeIndex_.Find(codesSeen_.data(), text, textOf);
  if (seen >= 0) return codesSeen_[static_cast<size_t>(seen)];
  // At most 128 characters of the text are looked up, up to its first NUL.
  char code[kCodeCapacity + 1] = {};
  std::memcpy(code, text.data(), std::min(text.size(), kCodeCapacity));
  codesSeen_.push_back(CodeOfText{std::string(text), RuleTypeFromName(code),
                                  EventCodeDictionary::Instance().CodeOf(code)});
  // A parser that has seen more texts than one notification carries finds
  // the later ones by their lookup again.
  codeIndex_.Add(codesSeen_.size() - 1, text);
  return codesSeen_.back();
}

void CReqRealPicture::ReadEvent(const Json::Value& event) {
  AnalyzerEventNode node;
  uint32_t dictionaryCode = 0;
  const Json::Value& codeText = Member(event, "Code");
  if (!codeText.isNull()) {
    const CodeOfText& codes = CodesOf(TextView(codeText));
    node.eventCode = codes.code;
    dictionaryCode = codes.dictionaryCode;
  }
  const Json::Value& data = Member(event, "Data");
  if (data.isNull()) {
    // Deliberately only these two codes come through without data.
    if (node.eventCode != kVideoBlind && node.eventCode != kSnapByTime) return;
  } else {
    node.eventInfo = BuildEventRecord(node.eventCode, dictionaryCode, event, data);
    if (node.eventInfo == nullptr) return;  // no memory for the record: the event is skipped
    const EventRecordKind& kind = EventRecordOf(node.eventCode);
    node.eventInfoSize = kind.size;
    node.release = &kind.table;
  }
  Add(node);
}

bool CReqRealPicture::Add(const AnalyzerEventNode& node) {
  AnalyzerEventNode held = node;
  try {
    eventList.push_back(held);
  } catch (...) {
    ReleaseNode(&held);
    return false;
  }
  return true;
}

void CReqRealPicture::Deliver(KOVA_AnalyzerEventCallback callback, void* user) {
  platform::MutexLock lock(&listLock);
  for (AnalyzerEventNode& node : eventList) {
    callback(node.eventCode, node.eventInfo, node.eventInfoSize, nullptr, 0, user);
    ReleaseNode(&node);
  }
  eventList.clear();
}

int ParseAnalyzerEvents(const char* buf, uint32_t len, KOVA_AnalyzerEventCallback callback,
                        void* user) {
  // 1 whatever happens inside, even when memory runs out: the parser
  // object (and with it every record not delivered yet) is gone by then.
  try {
    std::unique_ptr<CReqRealPicture> parser(new CReqRealPicture());
    parser->protocolVersion = CReqRealPicture::kProtocolVersion;
    parser->parseVersion = CReqRealPicture::kParseVersion;
    if (parser->Parse(buf, len)) parser->Deliver(callback, user);
  } catch (...) {
  }
  return 1;
}

}  // namespace kova
