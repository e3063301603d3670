// What a record holds, field by field, read from its description: for the
// tool that shows records to people (kova show, kova layout) and for the
// tests that hold the descriptions to the public headers.
//
// A description (the Field at offset 0 that says what the whole record is)
// is walked over the record: every member it reaches becomes one row with
// its C member path (mainFormat[0].video.width), its JSON key path
// (MainFormat[0].Video.Width), offset, size, C type and, over record bytes,
// its value. The bytes no row, presence flag or count reaches (reserved
// areas, padding, what hand-written steps leave undescribed) are listed as
// ranges, so that every byte of the record is accounted for.
#ifndef KOVA_COMMON_FIELDS_FIELD_VIEW_H_
#define KOVA_COMMON_FIELDS_FIELD_VIEW_H_

#include <json/value.h>

#include <cstdint>
#include <string>
#include <vector>

#include "common/fields/field_table.h"

namespace kova {

enum class RowRole : uint8_t {
  kValue,  // a scalar, a tuple or a hand-written member: it has a value
  kBlock,  // a nested object: its members follow
  kList,   // a fixed list: its entries follow
};

struct ViewRow {
  RowRole role = RowRole::kValue;
  int depth = 0;        // nesting level below the record
  std::string member;   // C member path
  std::string key;      // JSON key path ("" where the JSON has no key of its own)
  std::string type;     // C type ("int32_t", "char[64]", "VideoFormat", "Point[16]")
  uint32_t offset = 0;  // in the record
  uint32_t size = 0;
  const Field* field = nullptr;
  bool hasFlag = false;  // a presence flag governs the member...
  bool present = true;   // ...and says this
  uint32_t flagOffset = 0;
  bool zero = false;     // every byte of the member is 0
  bool unused = false;   // a list entry beyond the list's count
  std::string text;      // the value for people: 7 (H.264), "Main", [1, 2]
  Json::Value value;     // the value for scripts
  std::string note;      // what kind of value it is when it is not plain ("hand-written")
  int64_t entries = -1;  // kList: entries the count member says (-1: no count member)
};

struct ByteRange {
  uint32_t offset;
  uint32_t size;
};

struct RecordView {
  std::vector<ViewRow> rows;
  std::vector<ByteRange> undescribed;  // in ascending order
};

// The record's layout: every member the description reaches (a list's first
// entry standing for all), and the bytes it does not reach (every entry of
// every list counted). `whole` null: the whole record is undescribed.
RecordView LayoutOf(const Field* whole, uint32_t recordSize);

// The same over a record's bytes, with values; every list entry is a row.
RecordView ViewOf(const Field* whole, const unsigned char* record, uint32_t recordSize);

// Text for people: `n` bytes as hex pairs separated by spaces.
std::string HexBytes(const unsigned char* bytes, uint32_t n);

}  // namespace kova

#endif  // KOVA_COMMON_FIELDS_FIELD_VIEW_H_
