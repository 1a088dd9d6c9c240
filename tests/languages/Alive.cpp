// Preloaded: writes to the file $ALIVE how many objects `operator new` made and how many are alive.
// All the time, because programs in Go end without calling destructors.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <new>

static int* const counts = [] {
  const int file = open(std::getenv("ALIVE"), O_RDWR | O_CREAT, 0600);
  if (file < 0 || ftruncate(file, 2 * sizeof(int)) != 0)
    std::abort();
  return static_cast<int*>(mmap(nullptr, 2 * sizeof(int), PROT_WRITE, MAP_SHARED, file, 0));
}();

void* operator new(std::size_t size) {
  __atomic_add_fetch(&counts[0], 1, __ATOMIC_RELAXED);
  __atomic_add_fetch(&counts[1], 1, __ATOMIC_RELAXED);
  return std::malloc(size);
}

void operator delete(void* pointer) noexcept {
  __atomic_sub_fetch(&counts[1], pointer ? 1 : 0, __ATOMIC_RELAXED);
  std::free(pointer);
}
