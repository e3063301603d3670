// Memory blocks the library hands out and takes back itself: event records,
// rule records and the entries of allocated lists. They come from the global
// operator new, zeroed, so that a program that replaces it (to count, to
// limit, to find leaks) sees them as it sees every other allocation.
#ifndef KOVA_COMMON_BASE_ALLOCATION_H_
#define KOVA_COMMON_BASE_ALLOCATION_H_

#include <cstddef>
#include <cstring>
#include <new>

namespace kova {

// `n` zero bytes aligned for any record, or nullptr when there is no memory.
inline void* AllocateZeroed(size_t n) {
  void* p = ::operator new(n, std::nothrow);
  if (p != nullptr) std::memset(p, 0, n);
  return p;
}

// Gives back a block of AllocateZeroed (nullptr does nothing).
inline void ReleaseBlock(void* p) { ::operator delete(p); }

}  // namespace kova

#endif  // KOVA_COMMON_BASE_ALLOCATION_H_
