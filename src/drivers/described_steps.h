// Per-record steps made from a record's description alone, for the
// configurations whose records are nothing but a field table: the response
// frame walks the records, these read and write each one.
#ifndef KOVA_DRIVERS_DESCRIBED_STEPS_H_
#define KOVA_DRIVERS_DESCRIBED_STEPS_H_

#include <json/value.h>

#include "common/fields/field_table.h"
#include "drivers/response_frame.h"

namespace kova {

// An object element read with the record type's table; anything else
// (null, a number, ...) leaves the cleared record as it is.
template <typename Rec>
bool ParseDescribed(const Json::Value& element, const StepContext&, unsigned char* record) {
  ParseFields(element, record, Description<Rec>::table);
  return true;
}

// The record written as one object with the record type's table.
template <typename Rec>
bool PackDescribed(const unsigned char* record, Json::Value& out) {
  out = Json::Value(Json::objectValue);
  PackFields(record, out, Description<Rec>::table);
  return true;
}

// A record that carries its own size, for a frame that does not clear the
// buffer: cleared with its size word written (also for a null element),
// then read like ParseDescribed.
template <typename Rec>
bool ParseDescribedSized(const Json::Value& element, const StepContext& ctx,
                         unsigned char* record) {
  StartSizedRecord(record, sizeof(Rec));
  return ParseDescribed<Rec>(element, ctx, record);
}

// A record that is one bare JSON value (a text, a number): `kField`
// describes it at offset 0.
template <const Field& kField>
bool ParseBareValue(const Json::Value& element, const StepContext&, unsigned char* record) {
  if (!element.isNull()) ParseValue(element, record, kField);
  return true;
}

template <const Field& kField>
bool PackBareValue(const unsigned char* record, Json::Value& out) {
  return PackValue(record, kField, &out);
}

// The frame of a record made of its description only.
template <typename Rec>
constexpr ResponseFrame DescribedFrame() {
  return ResponseFrame::For<Rec>(ParseDescribed<Rec>, PackDescribed<Rec>);
}

}  // namespace kova

#endif  // KOVA_DRIVERS_DESCRIBED_STEPS_H_
