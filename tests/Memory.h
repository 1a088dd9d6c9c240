// Memory under a test's control: what is held is counted, and an allocation may fail.
#ifndef ZRSTRING_TESTS_MEMORY_H
#define ZRSTRING_TESTS_MEMORY_H

#include <unicode/uclean.h>

#include <cstdlib>

/// The allocations of one source.
struct Memory {
  /// Lets `point` allocations pass and the next one fail, or all from there on.
  void Fail(int point, bool once) { left = point, failsOnce = once, failed = false; }

  /// Ends that. @return whether one failed
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
  int left = -1;  // -1: all that are asked for
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
