// The analyzer event stream: the parser object behind the two callback
// exports, which reads a device document into typed records and hands them
// to the caller's callback one by one.
#ifndef KOVA_EVENTS_EVENT_STREAM_H_
#define KOVA_EVENTS_EVENT_STREAM_H_

#include <json/value.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "common/base/name_index.h"
#include "common/base/platform.h"
#include "common/fields/field_table.h"
#include "kova/kova.h"

namespace kova {

// At most this many entries of one notification's event list are looked
// at (delivered or not); the rest are ignored.
constexpr uint32_t kMaxEventsPerNotification = 128;

// One record waiting for delivery. `release` describes the lists the
// record holds (null: none); the record itself is freed with free().
struct AnalyzerEventNode {
  uint32_t eventCode = 0;
  void* eventInfo = nullptr;  // null for the events delivered without data
  uint32_t eventInfoSize = 0;
  const FieldTable* release = nullptr;
};

// The parser object: one per call. The readers fill its list; Deliver
// hands the list to the callback under the object's lock and releases each
// record right after its callback returns. Whatever was not delivered is
// released when the object goes.
class CReqRealPicture {
 public:
  static constexpr uint32_t kProtocolVersion = 0xb0001;
  static constexpr uint32_t kParseVersion = 0xb0002;

  CReqRealPicture() = default;
  virtual ~CReqRealPicture();
  CReqRealPicture(const CReqRealPicture&) = delete;
  CReqRealPicture& operator=(const CReqRealPicture&) = delete;

  // Reads an event document (NUL-terminated; `length` is not used to bound
  // it). False, with no event read, when parseVersion is not kParseVersion
  // or the text is not JSON.
  bool Parse(const char* text, uint32_t length);

  // Reads the events of a parsed document: "Event", else (when that is
  // null or missing) "EventList", else "params"."eventList" of a device
  // notification. A list that is not an array gives no events.
  void ReadEvents(const Json::Value& root);

  // Takes a record built elsewhere (the other readers of a document).
  // False when the list cannot grow: the node's record is then released.
  bool Add(const AnalyzerEventNode& node);

  // Calls `callback` for every record in list order, under the lock.
  void Deliver(KOVA_AnalyzerEventCallback callback, void* user);

  uint32_t protocolVersion = 0;
  uint32_t parseVersion = 0;

 private:
  void ReadEvent(const Json::Value& event);

  // The codes of a "Code" text: a notification repeats a few texts many
  // times, so each distinct one is looked up once, and found again through
  // an index of the texts seen.
  struct CodeOfText {
    std::string text;
    uint32_t code;
    uint32_t dictionaryCode;
  };
  const CodeOfText& CodesOf(std::string_view text);

  // The document read by Parse, kept until the object goes: freeing the
  // records first and the document's tree after it is the cheaper order.
  Json::Value document_;
  std::vector<CodeOfText> codesSeen_;
  // The texts of codesSeen_ (at most one new one an event: half full).
  NameIndex<2 * kMaxEventsPerNotification, false> codeIndex_;
  std::vector<AnalyzerEventNode> eventList;
  platform::Mutex listLock;
};

// Frees a node's record and what it holds.
void ReleaseNode(AnalyzerEventNode* node);

// KOVA_ParseAnalyzerEventData behind its argument checks.
int ParseAnalyzerEvents(const char* buf, uint32_t len, KOVA_AnalyzerEventCallback callback,
                        void* user);

}  // namespace kova

#endif  // KOVA_EVENTS_EVENT_STREAM_H_
