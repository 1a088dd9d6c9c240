// Memory under a test's control: blocks are counted, and allocations can be made to fail.
#ifndef ZRSTRING_TESTS_MEMORY_H
#define ZRSTRING_TESTS_MEMORY_H

#include <unicode/uclean.h>

#include <atomic>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>

constexpr unsigned char kFresh = 0xA5;  // what memory holds before it is written

struct Memory {
  /// Lets `point` allocations succeed and then `count` fail.
  void Fail(long point, long count) { first = allocations + point, limit = first + count; }

  /// Lets all allocations succeed again. @return whether the first one to fail was made
  bool Recover() { return allocations > std::exchange(first, LONG_MAX); }

  void* Allocate(std::size_t size) {
    const long index = allocations++;
    void* const memory = index >= first && index < limit ? nullptr : std::malloc(size);
    live += memory != nullptr;
    return memory ? std::memset(memory, kFresh, size) : nullptr;
  }

  void Free(void* memory) {
    live -= memory != nullptr;
    std::free(memory);
  }

  std::atomic<long> allocations{0}, live{0};
  long first = LONG_MAX, limit = 0;  // the allocations that fail
};

inline Memory heap;

/// Makes ICU allocate from `heap`.
inline void TakeIcuMemory() {
  UErrorCode status = U_ZERO_ERROR;
  u_setMemoryFunctions(
      nullptr, [](const void*, std::size_t size) { return heap.Allocate(size); },
      [](const void*, void* memory, std::size_t size) { return std::realloc(memory, size); },
      [](const void*, void* memory) { heap.Free(memory); }, &status);
}

#endif
