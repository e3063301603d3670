// What one pack call allocates is bounded by its buffers, not by the
// number of records the input holds: a pack whose text cannot fit in the
// caller's text buffer stops once that is known. Every name is packed from
// many records full of 0x7F and of 0x7FFFFFFF counts into a small and a
// large text buffer, and the peak of the call's allocations is held against
// the size of one record and outLen.
//
// The allocations are counted by the global operator new of this test
// binary, on the calling thread, while a count is open: the tree's nodes,
// the text and the records the event stream hands out (the JSON library
// keeps string values in blocks of its own, which are not counted). The
// same count makes one chosen allocation fail, to show that an event
// notification loses nothing when memory runs out half-way.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <vector>

#include "api/dispatch.h"
#include "harness/catalog.h"
#include "harness/documents.h"
#include "harness/guarded_buffer.h"
#include "kova/kova.h"

namespace {

// Each block carries its size and the count it was made under.
struct BlockHeader {
  size_t size;
  uint64_t count;
};
constexpr size_t kHeaderSize = (sizeof(BlockHeader) + alignof(std::max_align_t) - 1) /
                               alignof(std::max_align_t) * alignof(std::max_align_t);

std::atomic<uint64_t> gLastCount{0};
thread_local uint64_t tCount = 0;  // the count open on this thread, 0 for none
thread_local uint64_t tLive = 0;
thread_local uint64_t tPeak = 0;
thread_local uint64_t tMade = 0;    // allocations under the open count
thread_local uint64_t tFailAt = 0;  // the one that fails, 0 for none

void* Allocate(size_t n) noexcept {
  if (tCount != 0 && ++tMade == tFailAt) return nullptr;
  void* raw = std::malloc(n + kHeaderSize);
  if (raw == nullptr) return nullptr;
  const BlockHeader h{n, tCount};
  std::memcpy(raw, &h, sizeof h);
  if (tCount != 0) {
    tLive += n;
    tPeak = std::max(tPeak, tLive);
  }
  return static_cast<unsigned char*>(raw) + kHeaderSize;
}

void Release(void* p) noexcept {
  if (p == nullptr) return;
  void* raw = static_cast<unsigned char*>(p) - kHeaderSize;
  BlockHeader h;
  std::memcpy(&h, raw, sizeof h);
  if (h.count != 0 && h.count == tCount) tLive -= std::min(tLive, static_cast<uint64_t>(h.size));
  std::free(raw);
}

void* AllocateOrThrow(size_t n) {
  void* p = Allocate(n);
  if (p == nullptr) throw std::bad_alloc();
  return p;
}

}  // namespace

void* operator new(size_t n) { return AllocateOrThrow(n); }
void* operator new[](size_t n) { return AllocateOrThrow(n); }
void* operator new(size_t n, const std::nothrow_t&) noexcept { return Allocate(n); }
void* operator new[](size_t n, const std::nothrow_t&) noexcept { return Allocate(n); }
void operator delete(void* p) noexcept { Release(p); }
void operator delete[](void* p) noexcept { Release(p); }
void operator delete(void* p, size_t) noexcept { Release(p); }
void operator delete[](void* p, size_t) noexcept { Release(p); }
void operator delete(void* p, const std::nothrow_t&) noexcept { Release(p); }
void operator delete[](void* p, const std::nothrow_t&) noexcept { Release(p); }

namespace kova_harness {
namespace {

// Peak bytes allocated on this thread by `call`, beyond what was live before.
template <typename Call>
uint64_t PeakOf(Call call, uint64_t failAt = 0) {
  tCount = ++gLastCount;
  tLive = tPeak = tMade = 0;
  tFailAt = failAt;
  call();
  tCount = 0;
  return tPeak;
}

int KOVA_CALL Ignore(uint32_t, const void*, uint32_t, const void*, uint32_t, void*) { return 0; }

// The n-th allocation of a notification fails, for every n until a call
// makes fewer: whatever was made before it is freed by the time the call
// returns, records and their lists included. (The thread's JSON reader
// keeps the message of a number it could not convert until its next read,
// which the count takes in.)
TEST(EventMemory, AFailedAllocationLeavesNothingBehind) {
  const std::vector<SampleDocument> samples =
      LoadSampleDocuments({std::string(KOVA_SAMPLES_DIR) + "/events"});
  ASSERT_FALSE(samples.empty());
  for (const SampleDocument& s : samples) {
    for (auto* parse : {KOVA_ParseAnalyzerEventData, KOVA_ParseDataByCallback}) {
      const auto call = [&] {
        parse(s.text.c_str(), static_cast<uint32_t>(s.text.size()), Ignore, nullptr);
        parse("{}", 2, Ignore, nullptr);
      };
      PeakOf(call);  // the reader and the tables of first use, kept for good
      PeakOf(call);
      ASSERT_EQ(0u, tLive) << s.path;
      const uint64_t made = tMade;
      for (uint64_t failAt = 1; failAt <= made; ++failAt) {
        PeakOf(call, failAt);
        ASSERT_EQ(0u, tLive) << s.path << ": allocation " << failAt << " of " << made << " failed";
      }
    }
  }
}

class PackBadInputMemory : public testing::TestWithParam<int> {};

TEST_P(PackBadInputMemory, BoundedByTheBuffersNotTheRecordCount) {
  const int k = GetParam();
  if (!kova::PackBuilt(k)) return;
  const char* name = kova::kPackNames[k].name;
  const uint32_t size = PackSizeOrDefault(k);
  // As many records as 4 MiB holds, between 2 and 64: one record's tree
  // runs to about 40 times its size, so 64 of them built before the text is
  // found too long break the bound below.
  const uint32_t records = std::max<uint32_t>(2, std::min<uint32_t>(64, (4u << 20) / size));
  for (Fill fill : {Fill::kAll7F, Fill::kMaxCounts}) {
    GuardedBuffer in(static_cast<size_t>(size) * records);
    FillRecord(in.data(), in.size(), fill, 0);
    PointedBuffers pointed;
    pointed.Attach(name, in.data(), in.size(), PackSize(k), -1,
                   std::string(reinterpret_cast<const char*>(in.data()), size));
    for (uint32_t outLen : {64u, 64u << 10}) {
      GuardedBuffer out(outLen);
      const uint64_t peak = PeakOf([&] {
        KOVA_PacketData(name, in.data(), static_cast<uint32_t>(in.size()), out.chars(), outLen);
      });
      const uint64_t bound = 64 * (uint64_t{size} + outLen) + (64u << 10);
      EXPECT_LE(peak, bound) << (fill == Fill::kAll7F ? "0x7F" : "0x7FFFFFFF counts") << ", "
                             << records << " records of " << size << " bytes, outLen " << outLen;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EveryName, PackBadInputMemory,
                         testing::Range(0, static_cast<int>(kova::kPackNameCount)),
                         [](const testing::TestParamInfo<int>& info) {
                           return TestLabel(kova::kPackNames[info.param].name);
                         });

}  // namespace
}  // namespace kova_harness
