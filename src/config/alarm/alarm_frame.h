// The frame every alarm-source translator shares: the argument checks, the
// cleared output, the response envelope, the working record, the linkage
// block with its 7 x 6 week grid, and the packed-text copy.
//
// Records are worked on in a zeroed heap copy (they hold a linkage block of
// over 300 KB, and the caller's buffer need not be aligned) and copied out
// whole at the end.
#ifndef KOVA_CONFIG_ALARM_ALARM_FRAME_H_
#define KOVA_CONFIG_ALARM_ALARM_FRAME_H_

#include <json/value.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "kova/records/event_handler.h"
#include "kova/records/schedule.h"

namespace kova {

// How a member treats the response envelope.
enum class TableRule : uint8_t {
  kReadNull,          // "result" not looked at; a null "table" reads as an empty table
  kFailOnNull,        // "result" not looked at; a null "table" fails
  kResultZeroOnNull,  // "result" must be true; a null "table" succeeds with an all-zero record
};

// A zeroed record on the heap, or null when memory is short.
template <typename T>
std::unique_ptr<T> NewZeroed() {
  std::unique_ptr<T> p(new (std::nothrow) T);
  if (p) std::memset(p.get(), 0, sizeof(T));
  return p;
}

// Parse steps 1 and 2: fails when `jsonText` or `outBuf` is null or
// `outLen` is below `recordSize`; otherwise clears all `outLen` bytes and
// reads the text into `root` (false when it is not JSON).
bool BeginAlarmParse(const char* jsonText, void* outBuf, uint32_t outLen, size_t recordSize,
                     Json::Value* root);

// What the envelope says under a rule.
enum class TableOutcome : uint8_t { kRead, kFail, kAllZero };

// Judges the envelope under `rule`; on kRead, `*table` is "params"."table"
// (possibly null under kReadNull).
TableOutcome TakeAlarmTable(const Json::Value& root, TableRule rule, const Json::Value** table);

// Reads "EventHandler" of `table` with its 7 x 6 week grid.
void ParseLinkageWithWeek(const Json::Value& table, EventHandlerRecord* eh, WeekSchedule* week);

// Writes "EventHandler" into `table`, then writes `week` (when not null)
// over "EventHandler"."TimeSection"[d][s] for d < 7, s < 6.
void PackLinkage(const EventHandlerRecord& eh, const WeekSchedule* week, Json::Value& table);

// Serializes `payload` and copies it when `outLen` is at least the text's
// length. 1 on success, 0 otherwise.
int FinishAlarmPack(const Json::Value& payload, char* outJson, uint32_t outLen);

// The whole parse frame for a record type: `fill` reads the members of
// "table" ("params" is passed for the members that live beside it).
template <typename Rec>
int ParseAlarmRecord(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen,
                     TableRule rule,
                     void (*fill)(const Json::Value& params, const Json::Value& table, Rec* r)) {
  Json::Value root;
  if (!BeginAlarmParse(jsonText, outBuf, outLen, sizeof(Rec), &root)) return 0;
  const Json::Value* table = nullptr;
  switch (TakeAlarmTable(root, rule, &table)) {
    case TableOutcome::kFail:
      return 0;
    case TableOutcome::kAllZero:  // the cleared buffer is the record
      if (retLen != nullptr) *retLen = sizeof(Rec);
      return 1;
    case TableOutcome::kRead:
      break;
  }
  std::unique_ptr<Rec> r = NewZeroed<Rec>();
  if (!r) return 0;
  fill(Member(root, "params"), *table, r.get());
  std::memcpy(outBuf, r.get(), sizeof(Rec));
  if (retLen != nullptr) *retLen = sizeof(Rec);
  return 1;
}

// The whole pack frame for a record type: `write` fills the "table" object.
template <typename Rec>
int PackAlarmRecord(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen,
                    void (*write)(const Rec& r, Json::Value& table)) {
  if (inBuf == nullptr || outJson == nullptr || outLen == 0 || inLen < sizeof(Rec)) return 0;
  std::unique_ptr<Rec> r = NewZeroed<Rec>();
  if (!r) return 0;
  std::memcpy(r.get(), inBuf, sizeof(Rec));
  Json::Value table(Json::objectValue);
  write(*r, table);
  return FinishAlarmPack(table, outJson, outLen);
}

// Fill and write steps of the members made of a field table and the linkage
// block: "WithWeek" for the block with its 7 x 6 grid beside it, plain for
// the block that keeps its own schedule.
template <typename Rec, size_t N, const Field (&kFields)[N]>
void FillFieldsWithWeek(const Json::Value& /*params*/, const Json::Value& table, Rec* r) {
  ParseFields(table, r, kFields);
  ParseLinkageWithWeek(table, &r->eventHandler, &r->week);
}

template <typename Rec, size_t N, const Field (&kFields)[N]>
void WriteFieldsWithWeek(const Rec& r, Json::Value& table) {
  PackFields(&r, table, kFields);
  PackLinkage(r.eventHandler, &r.week, table);
}

template <typename Rec, size_t N, const Field (&kFields)[N]>
void FillFields(const Json::Value& /*params*/, const Json::Value& table, Rec* r) {
  ParseFields(table, r, kFields);
  ParseEventHandler(Member(table, "EventHandler"), &r->eventHandler);
}

template <typename Rec, size_t N, const Field (&kFields)[N]>
void WriteFields(const Rec& r, Json::Value& table) {
  PackFields(&r, table, kFields);
  PackLinkage(r.eventHandler, nullptr, table);
}

}  // namespace kova

#endif  // KOVA_CONFIG_ALARM_ALARM_FRAME_H_
