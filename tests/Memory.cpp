// Replaces operator new. On Linux the library uses this one too, on Windows only after
// ReplaceOperators() has patched what the DLL imports.
#include "Memory.h"

#include <cstring>
#include <new>

Memory ownMemory;

void* operator new(std::size_t size) {
  if (void* const memory = ownMemory.Allocate(size))
    return std::memset(memory, kFresh, size);
  throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  void* const memory = ownMemory.Allocate(size);
  return memory ? std::memset(memory, kFresh, size) : nullptr;
}

void* operator new[](std::size_t size) { return operator new(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return operator new(size, std::nothrow);
}

void operator delete(void* memory) noexcept { ownMemory.Free(memory); }
void operator delete(void* memory, std::size_t) noexcept { ownMemory.Free(memory); }
void operator delete[](void* memory) noexcept { ownMemory.Free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { ownMemory.Free(memory); }
