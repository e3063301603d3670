// The generic table drivers: everything around a per-record routine.
//
// ParseTableDriver reads the device's response envelope
// {"result": ..., "params": {"table": ...}}, decides between one record and
// an array of records, and walks the caller's buffer with the record's
// stride. PackTableDriver writes one record or all records of `inBuf` as
// single-line JSON text.
#ifndef KOVA_DRIVERS_TABLE_DRIVER_H_
#define KOVA_DRIVERS_TABLE_DRIVER_H_

#include <json/value.h>

#include <cstdint>

#include "common/fields/field_table.h"

namespace kova {

// Fills one record from one JSON element; the result is ignored.
using RecordParser = int (*)(const Json::Value& element, void* record);
// Writes one record into one JSON value; the result is ignored.
using RecordPacker = int (*)(const void* record, Json::Value& target);

// Per-record routines of a record that is one field table.
template <const FieldTable& kTable>
int ParseTableRecord(const Json::Value& element, void* record) {
  ParseFields(element, record, kTable);
  return 1;
}
template <const FieldTable& kTable>
int PackTableRecord(const void* record, Json::Value& target) {
  PackFields(record, target, kTable);
  return 1;
}

// Returns 1 on success, 0 on failure.
// - `outLen` below `recordSize`: 0, nothing written.
// - With `zeroFill`, all `outLen` bytes are cleared before the text is read,
//   so they stay cleared when the text does not parse or "result" is false.
// - A missing "params" or "table" succeeds with no record written.
// - In array mode (`arrayAllowed` and ArrayDepth of "table" equal to
//   `depthMinusOne` + 1) each element fills the record at its index; a null
//   element leaves its record as it was. Elements beyond the buffer are
//   ignored. `retLen`, when not null, is increased by `recordSize` for each
//   record filled (it is never reset).
int ParseTableDriver(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen,
                     RecordParser parser, uint64_t recordSize, int32_t depthMinusOne,
                     uint8_t arrayAllowed, uint8_t zeroFill);

// Returns 1 on success, 0 on failure. `outJson` is cleared first and stays
// all zero on failure. With `arrayAllowed`, `inLen` / `recordSize` records
// are packed (an array when there are two or more, "null" when none);
// otherwise exactly one, and `inLen` below one record fails. The text is
// copied with its NUL only when `outLen` is greater than its length.
// `ignored` is never read.
int PackTableDriver(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen,
                    RecordPacker packer, uint64_t recordSize, int32_t ignored,
                    uint8_t arrayAllowed);

// How many array levels nest at the top of `v`, sampling long arrays: every
// element of arrays up to 15 elements, otherwise element 0 and every
// ((n >> shift) + 1)-th element. Null gives -1, any non-array 0; a negative
// shift gives -1.
int64_t ArrayDepth(const Json::Value& v, int32_t shift);

// The envelope's truth rule for "result" (the same as ToBool).
bool ResultIsTrue(const Json::Value& root);

}  // namespace kova

#endif  // KOVA_DRIVERS_TABLE_DRIVER_H_
