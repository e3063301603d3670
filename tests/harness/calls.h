// One call of an exported function in guarded buffers, and the rules every
// translator keeps whatever it is given. The bad-input suite, the
// concurrency test and the fuzzers all judge calls with these verdicts.
#ifndef KOVA_TESTS_HARNESS_CALLS_H_
#define KOVA_TESTS_HARNESS_CALLS_H_

#include <cstdint>
#include <string>

namespace kova_harness {

// Byte a buffer is filled with to see whether a call wrote anything.
constexpr uint8_t kUntouched = 0xA5;

struct ParseResult {
  int ret = 0;
  uint32_t retLen = 0;       // starts at 0
  bool guardsIntact = true;  // the record's, the text's, every pointed buffer's; text unchanged
  bool untouched = true;     // the record buffer still holds what it held before the call
  int64_t sizeWord = -1;     // the size word the records were given, -1 for none
  std::string bytes;         // with keepBytes: the record buffer, then every pointed buffer
};

struct ParseOptions {
  uint8_t prefill = 0;          // byte the record buffer is filled with
  int64_t pointedCount = 4096;  // units of each buffer a pointer field is aimed at
  int64_t sizeWord = -1;        // when not negative: the leading uint32 of the first 64
                                // records, as callers of records that carry their own
                                // size set it
  bool keepBytes = false;       // fill ParseResult::bytes
};

// KOVA_ParseData(name, copy of `text` in a buffer of exactly its length,
// buffer of `outLen` bytes prepared as `o` says). Pointer fields of the
// records (see RecordPointer) are aimed at zeroed buffers first.
ParseResult CallParse(const char* name, const char* text, uint32_t outLen,
                      const ParseOptions& o = ParseOptions());

struct PackResult {
  int ret = 0;
  bool guardsIntact = true;  // the text buffer's, the record's and every pointed buffer's
  bool clean = true;         // the text buffer is all zero or untouched
  bool terminated = false;   // a NUL lies within outLen
  std::string text;          // bytes up to the NUL, or all outLen bytes
};

// KOVA_PacketData(name, the first `inLen` bytes of `record`, text buffer of
// `outLen` bytes filled with kUntouched). The record is copied into a
// guarded buffer of exactly `inLen` bytes; pointer fields are aimed at
// buffers holding `pointed` (repeated) with the count the record holds.
PackResult CallPack(const char* name, const std::string& record, uint32_t inLen, uint32_t outLen,
                    const std::string& pointed = std::string());

// What a parse call broke of the rules every translator keeps; "" when
// nothing. `i` is the parse list index of the name called. Records that
// carry their own size are sized by the caller: given a size word that fits
// the buffer, a buffer below the full record is theirs to accept.
std::string ParseViolation(int i, const std::string& text, uint32_t outLen, const ParseResult& r);
// The same for pack name `k` (an input whose leading uint32 is a size from
// 1 to `inLen` may be a caller-sized record, which such a packer accepts
// below the full record size). A successful pack that fills its buffer
// exactly without a NUL is judged by calling again with one byte more; with
// `probeCopyRule`, any other successful pack is called again with buffers
// of the text's exact length and one byte more, which must refuse cleanly
// (or, under the "at most" copy rule, fill without NUL) and succeed.
std::string PackViolation(int k, const std::string& record, uint32_t inLen, uint32_t outLen,
                          const PackResult& r, const std::string& pointed = std::string(),
                          bool probeCopyRule = true);

struct EventResult {
  int ret = 0;
  uint32_t calls = 0;     // callbacks received
  uint64_t digest = 0;    // of every callback's arguments and record bytes, in order
  std::string violation;  // first broken rule of the callback contract; "" when none
};

// KOVA_ParseAnalyzerEventData (or, with `byCallback`, KOVA_ParseDataByCallback)
// on a copy of `text` in a buffer of exactly its length plus the NUL. The
// callback reads every byte of each record it is given and of the entries
// its lists point at (the digest takes their contents, not their
// addresses), and checks that an event record has its code's size and no
// list counts more entries than it holds. For analyzer events it also holds
// the contract: at most 128 events, a null record exactly when its size is
// 0, the reserved pointer null and its size 0.
EventResult CallEvents(const std::string& text, uint32_t len, bool byCallback);
// The same on the caller's own text, not a copy.
EventResult CallEventsInPlace(const char* text, uint32_t len, bool byCallback);

// A hash of `n` bytes, chained onto `h`.
uint64_t Digest(const void* p, size_t n, uint64_t h = 14695981039346656037ull);

}  // namespace kova_harness

#endif  // KOVA_TESTS_HARNESS_CALLS_H_
