// Pack: the input chooses a name, the input length (one record, one byte
// less, several, none), the size of the text buffer (one byte up to 16 MiB,
// the 16 MiB as rarely as large inputs)
// and how the record is filled (its own bytes repeated, 0xFF, 0x7F,
// 0x7FFFFFFF counts, or zeros or a pattern with its bytes laid over
// somewhere). The record sits in a buffer of exactly the input length
// between poisoned guard zones; the packer must read nothing past it, write
// nothing outside the text buffer, leave NUL-terminated text on success
// (whole or nothing) and a clean buffer on failure.
//
// Packing costs with the input: a full record packs every list at its
// capacity, and the largest records make megabytes of tree and a quarter of
// a second of packing under the sanitizers, thousands of small records
// about as much, against well under a millisecond for the usual input. So
// an input is large (above kCheapInput bytes, or more than one record when
// a record is larger) and filled whole beyond kCheapInput only when the
// size selector's upper bits say so, one input in 32; otherwise it is cut
// to one record or kCheapInput bytes, and a large record keeps zeros with
// the payload laid over them, which reaches the same fields through the
// payload's bytes.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "api/dispatch.h"
#include "fuzz_input.h"
#include "harness/calls.h"
#include "harness/catalog.h"

using namespace kova_fuzz;
using namespace kova_harness;

namespace {

constexpr uint32_t kCheapInput = 8u << 10;
// Upper bits of the size selector (its low three bits choose the length)
// that let an input be large: a value mutators do not favour, unlike 0x00
// and 0xFF.
constexpr uint8_t kLargeInput = 0x15;

bool Large(uint8_t selector) { return (selector >> 3) == kLargeInput; }

uint32_t ChooseAnyInLen(uint8_t selector, uint32_t r, uint16_t extra, size_t payload) {
  switch (selector % 8) {
    case 0:
      return r;
    case 1:
      return r - 1;
    case 2:
      return 0;
    case 3:
      return r * (2 + extra % 3);
    case 4:
      return r + 1 + extra % 16;
    case 5:
      return static_cast<uint32_t>(payload < kHugeBuffer ? payload : kHugeBuffer);
    case 6:
      return 2 * r - 1;
    default:
      return extra;
  }
}

uint32_t ChooseInLen(uint8_t selector, uint32_t recordSize, uint16_t extra, size_t payload) {
  const uint32_t r = recordSize != 0 ? recordSize : kUnknownRecordSize;
  const uint32_t n = ChooseAnyInLen(selector, r, extra, payload);
  return Large(selector) ? n : std::min(n, std::max(r, kCheapInput));
}

uint32_t ChooseOutLen(uint8_t selector, uint16_t extra) {
  // Rarely: 16 MiB to clear and check on every call.
  if (Large(selector) && (extra & 0xF) == 0) return kHugeBuffer;
  const uint32_t kSizes[] = {64u << 10,       1,    1u + extra, 1u << 20,
                             2u + extra % 64, 4096, 256u << 10, 16};
  return kSizes[selector % 8];
}

std::string MakeRecord(uint32_t inLen, uint8_t fill, bool whole, uint16_t extra,
                       const std::string& payload) {
  std::string record(inLen, '\0');
  uint8_t* p = reinterpret_cast<uint8_t*>(&record[0]);
  switch (whole ? fill % 16 : 4) {
    case 0:  // the payload, repeated
      for (size_t j = 0; !payload.empty() && j < record.size(); j += payload.size()) {
        record.replace(j, payload.size(), payload, 0, record.size() - j);
      }
      break;
    case 1:
      FillRecord(p, record.size(), Fill::kAllFF, 0);
      break;
    case 2:
      FillRecord(p, record.size(), Fill::kAll7F, 0);
      break;
    case 3:
      FillRecord(p, record.size(), Fill::kMaxCounts, 0);
      break;
    default: {
      // Mostly zeros with the payload laid over it somewhere: a record that
      // is empty but for a few fields packs quickly even when it is large
      // (full ones can make a megabyte of text), so the fuzzer gets through
      // many more of them; else a pattern.
      if (whole && fill % 16 == 15) {
        FillRecord(p, record.size(), static_cast<Fill>((fill >> 4) % 4), extra);
      }
      const size_t at = record.empty() ? 0 : extra % record.size();
      for (size_t j = 0; j < payload.size() && at + j < record.size(); ++j) {
        record[at + j] = payload[j];
      }
      break;
    }
  }
  return record;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzInput in(data, size);
  const Header h = ReadHeader(&in);
  const std::string payload = in.Rest();

  const int k = NextBuiltPack(h.name);
  const char* listed = kova::kPackNames[k].name;
  const std::string name = NameVariant(listed, h.flags);
  const uint32_t inLen = ChooseInLen(h.size, PackSize(k), h.extra, payload.size());
  const uint32_t outLen = ChooseOutLen(h.other, h.extra);
  const bool whole = inLen <= kCheapInput || Large(h.size);
  const std::string record =
      MakeRecord(inLen, static_cast<uint8_t>(h.flags >> 2), whole, h.extra, payload);

  const PackResult r = CallPack(name.c_str(), record, inLen, outLen, payload);
  // The copy rule takes two more calls to probe: one input in four does.
  const bool probe = (h.other & 0x30) == 0;
  const std::string v = PackViolation(k, record, inLen, outLen, r, payload, probe);
  if (!v.empty()) Fail("pack", listed, v);
  return 0;
}
