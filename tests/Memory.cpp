// Replaces operator new. On Linux the library uses this one too, on Windows only because of
// windows/Operators.cpp.
#include "Memory.h"

#include <new>

void* operator new(std::size_t size) {
  if (void* const memory = heap.Allocate(size))
    return memory;
  throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return heap.Allocate(size); }
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
  return operator new(size, tag);
}

void operator delete(void* memory) noexcept { heap.Free(memory); }
void operator delete(void* memory, std::size_t) noexcept { heap.Free(memory); }
void operator delete[](void* memory) noexcept { heap.Free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { heap.Free(memory); }
