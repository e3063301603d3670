// Response-frame steps for a record that is nothing but its description:
// one Field, at offset 0 of the record, says what the record's whole JSON
// is (a nested object read with the record type's own table, or a list of
// profiles), and one pair of steps reads and writes it.
//
//   constexpr Field kWhole = KOVA_ITEM_NESTED(ChannelTitleConfig);
//   constexpr ResponseFrame kFrame = DescribedFrame<ChannelTitleConfig, kWhole>();
//
// or, for a record that is one object (its KOVA_DESCRIBE in view),
// DescribedObject<ChannelTitleConfig>::kFrame.
#ifndef KOVA_DRIVERS_DESCRIBED_RECORD_H_
#define KOVA_DRIVERS_DESCRIBED_RECORD_H_

#include <json/value.h>

#include "common/fields/field_table.h"
#include "drivers/response_frame.h"

namespace kova {

// Reads the record from its element; an element of the wrong JSON type
// leaves the record cleared. Never fails.
template <const Field& kWhole>
bool ParseDescribed(const Json::Value& element, const StepContext& /*ctx*/, unsigned char* record) {
  static_assert(kWhole.offset == 0, "the whole record's field starts the record");
  ParseValue(element, record, kWhole);
  return true;
}

// Writes the record as its whole JSON value.
template <const Field& kWhole>
bool PackDescribed(const unsigned char* record, Json::Value& out) {
  return PackValue(record, kWhole, &out);
}

template <const Field& kWhole>
bool PackDescribedText(const unsigned char* record, TextSink* out) {
  return WriteValueText(record, kWhole, out);
}
// The pack of a described record, for a frame.
template <const Field& kWhole>
constexpr Packing DescribedPack() {
  return Packing(PackDescribed<kWhole>, PackDescribedText<kWhole>);
}

// A record that carries its own size, for a frame that does not clear the
// buffer: cleared with its size word written (also for a null element),
// then read like ParseDescribed.
template <typename Rec, const Field& kWhole>
bool ParseDescribedSized(const Json::Value& element, const StepContext& ctx,
                         unsigned char* record) {
  StartSizedRecord(record, sizeof(Rec));
  return ParseDescribed<kWhole>(element, ctx, record);
}

// The frame of a described per-channel record: "result" must be true, the
// caller's buffer is cleared, element i of an array table fills record i
// (as many as fit), any other table fills record 0, and the returned length
// is the bytes of the records filled. Pack writes one record bare and
// several as an array. A record whose JSON is a list (profiles) takes the
// table as channels only when its elements are arrays.
template <typename Rec, const Field& kWhole>
constexpr ResponseFrame DescribedFrame() {
  constexpr ResponseFrame frame =
      ResponseFrame::For<Rec>(ParseDescribed<kWhole>, DescribedPack<kWhole>())
          .Walk(RecordWalk::kPerChannel)
          .Describe(kWhole);
  return kWhole.shape == FieldShape::kList ? frame.ArrayRecords() : frame;
}

// The frame of a record whose JSON is one object read with its own table.
template <typename Rec>
struct DescribedObject {
  static constexpr Field kWhole = KOVA_ITEM_NESTED(Rec);
  static constexpr ResponseFrame kFrame = DescribedFrame<Rec, kWhole>();
};

}  // namespace kova

#endif  // KOVA_DRIVERS_DESCRIBED_RECORD_H_
