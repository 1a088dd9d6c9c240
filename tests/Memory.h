// Memory under a test's control: blocks are counted, and allocations can be made to fail.
#ifndef ZRSTRING_TESTS_MEMORY_H
#define ZRSTRING_TESTS_MEMORY_H

#include <unicode/uclean.h>

#include <cstdlib>

/// One source of memory.
struct Memory {
  /// Lets `point` allocations succeed and then one fail, or all that follow.
  void Fail(int point, bool once) { left = point, failsOnce = once, failed = false; }

  /// Lets all allocations succeed again. @return whether one failed
  bool Recover() { return left = -1, failed; }

  void* Allocate(std::size_t size) {
    ++allocations;
    if (left == 0) {
      failed = true;
      left = failsOnce ? -1 : 0;
      return nullptr;
    }
    left -= left > 0;
    void* const memory = std::malloc(size ? size : 1);
    live += memory != nullptr;
    return memory;
  }

  void Free(void* memory) {
    live -= memory != nullptr;
    std::free(memory);
  }

  long allocations = 0, live = 0;
  int left = -1;  // how many still succeed; -1: all
  bool failsOnce = false, failed = false;
};

constexpr int kFresh = 0xA5;  // what operator new's memory holds before it is written

extern Memory ownMemory;  // of operator new
inline Memory icuMemory;

inline void TakeIcuMemory() {
  UErrorCode status = U_ZERO_ERROR;
  u_setMemoryFunctions(
      nullptr, [](const void*, std::size_t size) { return icuMemory.Allocate(size); },
      [](const void*, void* memory, std::size_t size) {
        if (!memory)
          return icuMemory.Allocate(size);
        return icuMemory.left == 0 ? nullptr : std::realloc(memory, size);
      },
      [](const void*, void* memory) { icuMemory.Free(memory); }, &status);
}

#endif
