// A heap buffer with guard zones on both sides, handed to the exported
// functions as a caller's record or text buffer.
//
// The data starts 64-byte aligned, as a caller's record would be. Each guard
// zone holds a known byte and, in AddressSanitizer builds, is poisoned, so a
// read or write past either end is reported at the faulting instruction;
// GuardsIntact() still catches stray writes in builds without the sanitizer.
#ifndef KOVA_TESTS_HARNESS_GUARDED_BUFFER_H_
#define KOVA_TESTS_HARNESS_GUARDED_BUFFER_H_

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define KOVA_HARNESS_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KOVA_HARNESS_ASAN 1
#endif
#endif
#ifdef KOVA_HARNESS_ASAN
#include <sanitizer/asan_interface.h>
#endif

namespace kova_harness {

class GuardedBuffer {
 public:
  static constexpr size_t kGuard = 64;
  static constexpr uint8_t kGuardByte = 0xE7;

  explicit GuardedBuffer(size_t size, uint8_t fill = 0) : size_(size) {
    total_ = (size + 2 * kGuard + 63) / 64 * 64;
    base_ = Blocks().Take(total_);
    data_ = base_ + kGuard;
    std::memset(base_, kGuardByte, total_);
    std::memset(data_, fill, size_);
    Poison(true);
  }
  ~GuardedBuffer() {
    Poison(false);
    Blocks().Give(base_, total_);
  }
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;

  uint8_t* data() { return data_; }
  const uint8_t* data() const { return data_; }
  char* chars() { return reinterpret_cast<char*>(data_); }
  size_t size() const { return size_; }

  void Fill(uint8_t b) { std::memset(data_, b, size_); }

  // True when no byte of either guard zone changed.
  bool GuardsIntact() const {
    Poison(false);
    bool ok = true;
    for (const uint8_t* p = base_; p < data_; ++p) ok = ok && *p == kGuardByte;
    for (const uint8_t* p = data_ + size_; p < base_ + total_; ++p) ok = ok && *p == kGuardByte;
    Poison(true);
    return ok;
  }

  // True when every byte of the data equals `b`.
  bool AllEqual(uint8_t b) const {
    return size_ == 0 || (data_[0] == b && std::memcmp(data_, data_ + 1, size_ - 1) == 0);
  }

 private:
  void Poison(bool on) const {
#ifdef KOVA_HARNESS_ASAN
    const size_t tail = total_ - kGuard - size_;
    if (on) {
      ASAN_POISON_MEMORY_REGION(base_, kGuard);
      ASAN_POISON_MEMORY_REGION(data_ + size_, tail);
    } else {
      ASAN_UNPOISON_MEMORY_REGION(base_, total_);
    }
#else
    (void)on;
#endif
  }

  // A few freed blocks kept per thread for the next buffer of the same
  // size: the suites call translators of large records thousands of times,
  // and fresh pages for each call cost more than the call. At most kBlocks
  // blocks of at most kLargestBlock bytes each are kept; anything else is
  // freed at once, so what the cache holds never grows with the calls.
  class BlockCache {
   public:
    static constexpr size_t kBlocks = 8;
    static constexpr size_t kLargestBlock = 4u << 20;

    ~BlockCache() {
      for (const Block& b : blocks_) Free(b.base);
    }
    uint8_t* Take(size_t total) {
      for (size_t i = 0; i < blocks_.size(); ++i) {
        if (blocks_[i].total != total) continue;
        uint8_t* base = blocks_[i].base;
        blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(i));
        return base;
      }
      return static_cast<uint8_t*>(::operator new(total, kAlignment));
    }
    void Give(uint8_t* base, size_t total) {
      if (total > kLargestBlock) {
        Free(base);
        return;
      }
      if (blocks_.size() == kBlocks) {
        Free(blocks_.front().base);
        blocks_.erase(blocks_.begin());
      }
      blocks_.push_back({base, total});
    }

   private:
    // Aligned operator new rather than aligned_alloc, which the Windows C
    // runtime lacks.
    static constexpr std::align_val_t kAlignment{64};
    static void Free(uint8_t* base) { ::operator delete(base, kAlignment); }

    struct Block {
      uint8_t* base;
      size_t total;
    };
    std::vector<Block> blocks_;
  };
  static BlockCache& Blocks() {
    thread_local BlockCache cache;
    return cache;
  }

  uint8_t* base_ = nullptr;
  uint8_t* data_ = nullptr;
  size_t size_ = 0;
  size_t total_ = 0;
};

}  // namespace kova_harness

#endif  // KOVA_TESTS_HARNESS_GUARDED_BUFFER_H_
