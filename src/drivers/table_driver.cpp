#include "drivers/table_driver.h"

#include <cstring>
#include <limits>

namespace kova {

namespace {

// The frame the drivers' arguments describe: a record of `recordSize`
// bytes, worked in place (the per-record steps of driver-served records
// copy their members, so any alignment serves).
bool FrameOf(uint64_t recordSize, ParseStep parse, PackStep pack, DriverSettings d,
             ResponseFrame* frame) {
  if (recordSize == 0 || recordSize > std::numeric_limits<uint32_t>::max()) return false;
  ResponseFrame f;
  f.recordSize = static_cast<uint32_t>(recordSize);
  f.parse = parse;
  f.pack = pack;
  *frame = f.Driver(d);
  return true;
}

}  // namespace

int ParseTableDriver(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen,
                     ParseStep parser, uint64_t recordSize, int32_t depthMinusOne,
                     uint8_t arrayAllowed, uint8_t zeroFill) {
  ResponseFrame f;
  const DriverSettings d{depthMinusOne, arrayAllowed != 0, zeroFill != 0, false};
  if (!FrameOf(recordSize, parser, nullptr, d, &f)) return 0;
  return ParseWithFrame(f, jsonText, outBuf, outLen, retLen);
}

int PackTableDriver(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen,
                    PackStep packer, uint64_t recordSize, int32_t /*ignored*/,
                    uint8_t arrayAllowed) {
  ResponseFrame f;
  const DriverSettings d{0, false, false, arrayAllowed != 0};
  if (!FrameOf(recordSize, nullptr, packer, d, &f)) {
    if (outJson != nullptr && outLen != 0) std::memset(outJson, 0, outLen);
    return 0;
  }
  return PackWithFrame(f, inBuf, inLen, outJson, outLen);
}

}  // namespace kova
