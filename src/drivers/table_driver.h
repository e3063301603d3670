// The table drivers: the response frame with the drivers' settings, under
// the names and with the arguments the device protocol's dispatch gives
// them. ParseTableDriver reads the envelope {"result": ..., "params":
// {"table": ...}}, decides between one record and an array of records, and
// walks the caller's buffer with the record's stride; PackTableDriver
// writes one record or all records of `inBuf` as single-line JSON text.
// Configurations served this way name a DriverFrame in the name table; these
// entry points build the same frame from their arguments.
#ifndef KOVA_DRIVERS_TABLE_DRIVER_H_
#define KOVA_DRIVERS_TABLE_DRIVER_H_

#include <cstdint>

#include "drivers/response_frame.h"

namespace kova {

// Returns 1 on success, 0 on failure. The step fills one record in place
// (its result should be true; a false one fails the call).
// - `outLen` below `recordSize` (or a record size of 0 or above 4 GiB): 0,
//   nothing written.
// - With `zeroFill`, all `outLen` bytes are cleared before the text is read,
//   so they stay cleared when the text does not parse or "result" is false.
// - A missing "params" or "table" succeeds with no record written.
// - In array mode (`arrayAllowed` and ArrayDepth of "table" equal to
//   `depthMinusOne` + 1) each element fills the record at its index; a null
//   element leaves its record as it was. Elements beyond the buffer are
//   ignored. `retLen`, when not null, is increased by `recordSize` for each
//   record filled (it is never reset).
int ParseTableDriver(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen,
                     ParseStep parser, uint64_t recordSize, int32_t depthMinusOne,
                     uint8_t arrayAllowed, uint8_t zeroFill);

// Returns 1 on success, 0 on failure. `outJson` is cleared first and stays
// all zero on failure. With `arrayAllowed`, `inLen` / `recordSize` records
// are packed (an array when there are two or more, "null" when none);
// otherwise exactly one, and `inLen` below one record fails. The text is
// copied with its NUL only when `outLen` is greater than its length.
// `ignored` is never read.
int PackTableDriver(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen,
                    PackStep packer, uint64_t recordSize, int32_t ignored, uint8_t arrayAllowed);

}  // namespace kova

#endif  // KOVA_DRIVERS_TABLE_DRIVER_H_
