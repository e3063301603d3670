// What the reliability harness (bad-input suite, concurrency test, fuzzers,
// benchmarks) knows about the configuration names: all of it is read from
// the dispatch tables, so a translator bound later is covered the day it is
// bound, without editing the harness.
#ifndef KOVA_TESTS_HARNESS_CATALOG_H_
#define KOVA_TESTS_HARNESS_CATALOG_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "harness/guarded_buffer.h"

namespace kova_harness {

// Buffer size used for a name whose record size the tables do not give.
constexpr uint32_t kUnknownRecordSize = 64u << 10;
// The largest buffer the harness hands over.
constexpr uint32_t kHugeBuffer = 16u << 20;

// Record size of parse name `i` / pack name `k` as the tables give it (0
// when they do not).
uint32_t ParseSize(int i);
uint32_t PackSize(int k);
// The same, or kUnknownRecordSize when the tables give none.
uint32_t ParseSizeOrDefault(int i);
uint32_t PackSizeOrDefault(int k);

// Whether the packer of pack name `k` packs an input of `inLen` bytes,
// shorter than one record, as "null" instead of refusing it: the table
// driver in array mode and the translators whose list entry says so (any
// length, none included).
bool PackAcceptsShortInput(int k, uint32_t inLen);

// Whether `name` has caller-sized records (listed in catalog.cpp): each
// begins with a uint32 size the caller sets, and the translator steps
// through the buffer by it. The bad-input suite lays that word, at the full
// record size and at a shorter one, so that such a translator is exercised
// beyond its refusal of a missing size.
bool CallerSized(const char* name);

// Indices of the names whose translator is built, in list order.
std::vector<int> BuiltParseNames();
std::vector<int> BuiltPackNames();

struct NamePair {
  int parse;  // index in the parse list
  int pack;   // index of the same name in the pack list
};
// Names built in both directions.
std::vector<NamePair> BuiltBothWays();

// A list index chosen by arbitrary bits, moved forward (wrapping) to the
// next built name so that no fuzzing time is spent on names that refuse at
// once. When no name of the list is built the index is kept.
int NextBuiltParse(uint32_t any);
int NextBuiltPack(uint32_t any);

// The same for names built in both directions, chosen by parse list index;
// {-1, -1} when there is none.
NamePair NextBuiltBothWays(uint32_t any);

// `name` made usable in a test's name (letters, digits and '_').
std::string TestLabel(const char* name);

// Ways of filling a record handed to a packer.
enum class Fill : uint8_t {
  kZero,
  kAllFF,
  kAll7F,
  kMaxCounts,  // every aligned 32-bit word 0x7FFFFFFF
  kRandom,     // bytes of a fixed-seed generator
  kCount
};
void FillRecord(uint8_t* p, size_t n, Fill fill, uint32_t seed);

// Records that hold a pointer to a caller-owned buffer beside its length
// (the rule buffer of the analysis rule list, for one). A record filled with
// arbitrary bytes must have such a pointer aimed at a real buffer of the
// length the record announces; the translator is then held to that length.
// The table is in record_pointers.cpp, one line per pointer field, ended by
// a line with a null name.
struct RecordPointer {
  const char* name;        // configuration name as the lists spell it
  uint32_t pointerOffset;  // offset of the pointer within one record
  uint32_t countOffset;    // offset of the uint32 count beside it
  uint32_t unitSize;       // bytes per counted unit (1 for a length in bytes)
};
extern const RecordPointer kRecordPointers[];

// Zeroes the pointer fields of configuration `name` in every whole record
// of [records, records + length): what is left depends on the call alone,
// not on where the pointed buffers happen to live.
void ClearPointerFields(const char* name, uint8_t* records, size_t length, uint32_t recordSize);

// The buffers that the pointer fields of some records were aimed at. What
// they take is bounded whatever the records hold and however many records
// the caller's buffer has room for: one buffer holds at most kMaxBytes, all
// buffers of one Attach at most kMaxTotalBytes in at most kMaxBuffers
// blocks. A record past those bounds, or whose count is 0, gets the count 0
// and a pointer at one empty guarded buffer, so that it still points at
// memory the call may not touch.
class PointedBuffers {
 public:
  static constexpr uint32_t kMaxBytes = 1u << 20;
  static constexpr uint32_t kMaxTotalBytes = 4u << 20;
  static constexpr size_t kMaxBuffers = 64;

  // For every pointer field of configuration `name`, in every whole record
  // of [records, records + length) with stride `recordSize`: takes the count
  // the record holds (or `count` when it is not negative), cuts it to the
  // bounds above, writes it back, and aims the pointer at a guarded buffer
  // of that many units, filled with `content` repeated (zeros when empty).
  void Attach(const char* name, uint8_t* records, size_t length, uint32_t recordSize, int64_t count,
              const std::string& content);
  bool GuardsIntact() const;
  bool empty() const { return buffers_.empty(); }
  // Bytes of every attached buffer, in order (for comparing two runs).
  std::string Contents() const;

 private:
  std::vector<std::unique_ptr<GuardedBuffer>> buffers_;
  size_t totalBytes_ = 0;
  GuardedBuffer* empty_ = nullptr;  // the one empty buffer, once a record needs it
};

}  // namespace kova_harness

#endif  // KOVA_TESTS_HARNESS_CATALOG_H_
