// The frame of the caller-sized alarm lists ("TemperatureAlarm",
// "FanSpeedAlarm"): "table" is an array with one entry per sensor, and the
// caller's buffer is a row of records whose stride is the size the caller
// wrote into the first record's leading uint32.
//
// A caller built against an older, shorter record gives a smaller size: each
// record is then filled (and read) only as far as that size reaches.
#ifndef KOVA_CONFIG_ALARM_SIZED_ALARM_LIST_H_
#define KOVA_CONFIG_ALARM_SIZED_ALARM_LIST_H_

#include <json/value.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>

#include "common/json/json.h"
#include "config/alarm/alarm_frame.h"
#include "drivers/response_frame.h"
#include "drivers/table_driver.h"

namespace kova {

// Every packed entry holds at least its 42 week sections
// ("0 00:00:00-00:00:00" and separators), so a list of n records needs more
// than n times this many bytes of text.
constexpr uint32_t kMinPackedEntryText = 42 * 21;


template <typename Rec>
int ParseSizedAlarmList(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen,
                        void (*fill)(const Json::Value& entry, Rec* r)) {
  if (jsonText == nullptr || outBuf == nullptr) return 0;
  const uint32_t size = CallerRecordSize(outBuf, outLen);
  if (size == 0) return 0;
  const uint32_t slots = outLen / size;
  const uint32_t keep = std::min<uint32_t>(size, sizeof(Rec));
  unsigned char* out = static_cast<unsigned char*>(outBuf);
  // Cleared, but every slot keeps its size word so the buffer stays usable.
  std::memset(out, 0, outLen);
  for (uint32_t i = 0; i < slots; ++i) {
    std::memcpy(out + static_cast<size_t>(i) * size, &size, std::min<uint32_t>(size, 4));
  }
  Json::Value root;
  if (!ReadJson(jsonText, &root) || !ResultIsTrue(root)) return 0;
  const Json::Value& table = Member(Member(root, "params"), "table");
  // A device with a single sensor may answer with the object alone.
  const uint32_t entries = table.isArray() ? Count(table) : (table.isObject() ? 1 : 0);
  const uint32_t n = std::min(entries, slots);
  std::unique_ptr<Rec> r = NewZeroed<Rec>();
  if (!r) return 0;
  for (uint32_t i = 0; i < n; ++i) {
    std::memset(r.get(), 0, sizeof(Rec));
    r->size = size;
    fill(table.isArray() ? Element(table, i) : table, r.get());
    std::memcpy(out + static_cast<size_t>(i) * size, r.get(), keep);
  }
  if (retLen != nullptr) *retLen = n * size;
  return 1;
}

template <typename Rec>
int PackSizedAlarmList(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen,
                       void (*write)(const Rec& r, Json::Value& entry)) {
  if (inBuf == nullptr || outJson == nullptr || outLen == 0) return 0;
  const uint32_t size = CallerRecordSize(inBuf, inLen);
  if (size == 0) return 0;
  const uint32_t n = inLen / size;
  // The text could not fit: give up before building it.
  if (static_cast<uint64_t>(n) * kMinPackedEntryText > outLen) return 0;
  const uint32_t keep = std::min<uint32_t>(size, sizeof(Rec));
  const unsigned char* in = static_cast<const unsigned char*>(inBuf);
  std::unique_ptr<Rec> r = NewZeroed<Rec>();
  if (!r) return 0;
  Json::Value list(Json::arrayValue);
  for (uint32_t i = 0; i < n; ++i) {
    std::memset(r.get(), 0, sizeof(Rec));
    std::memcpy(r.get(), in + static_cast<size_t>(i) * size, keep);
    Json::Value& entry = SetElement(list, i);
    entry = Json::Value(Json::objectValue);
    write(*r, entry);
  }
  return FinishAlarmPack(list, outJson, outLen);
}

}  // namespace kova

#endif  // KOVA_CONFIG_ALARM_SIZED_ALARM_LIST_H_
