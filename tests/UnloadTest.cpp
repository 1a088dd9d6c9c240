// Loads and unloads the library again and again, and looks for what stays behind.
#include <ZRString/ZRStringHandles.h>
#include <gtest/gtest.h>
#include <unicode/coll.h>
#include <unicode/locid.h>

#include "Memory.h"

// Each system has its own functions to load and unload a library.
#ifdef _WIN32
#include <windows.h>
#define ZR_LIBRARY "ZRString.dll"
static void* Load() { return reinterpret_cast<void*>(LoadLibraryA(ZR_LIBRARY)); }
static bool IsLoaded() { return GetModuleHandleA(ZR_LIBRARY) != nullptr; }
static void Unload(void* library) { FreeLibrary(static_cast<HMODULE>(library)); }
static void* Symbol(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}
#else
#include <dlfcn.h>
static void* Load() { return dlopen(ZRSTRING_LIBRARY, RTLD_NOW | RTLD_LOCAL); }
static bool IsLoaded() { return dlopen(ZRSTRING_LIBRARY, RTLD_NOW | RTLD_NOLOAD) != nullptr; }
static void Unload(void* library) { dlclose(library); }
static void* Symbol(void* library, const char* name) { return dlsym(library, name); }
#endif

namespace {

template <typename Function>
Function* Find(void* library, const char* name) {
  return reinterpret_cast<Function*>(Symbol(library, name));
}

int Collated(void* library) {
  const auto create =
      Find<decltype(ZRStringCreateFromCString)>(library, "ZRStringCreateFromCString");
  const auto compare = Find<decltype(ZRStringICompare)>(library, "ZRStringICompare");
  const auto destroy = Find<decltype(ZRStringDestroy)>(library, "ZRStringDestroy");
  ZRStringRef__* left = nullptr;
  ZRStringRef__* right = nullptr;
  ZRLong result = 9;
  create("\xE4", 0, 1, &left);
  create("b", 0, 1, &right);
  compare(left, 0, -1, right, 0, -1, 3, &result);
  destroy(left);
  destroy(right);
  return result;
}

}  // namespace

// The collator and a locale with a keyword allocate ICU memory. If a clean-up missed one of them,
// blocks would be left after each round.
TEST(Unload, RunsTheCleanUpsAndReallyUnloads) {
  UErrorCode status = U_ZERO_ERROR;
  TakeIcuMemory();
  icu::Locale::setDefault(icu::Locale("de@collation=phonebook"), status);
  delete icu::Collator::createInstance(status);  // loads the data that ICU then keeps
  ASSERT_TRUE(U_SUCCESS(status));
  long blocksAfterFirst = 0;
  for (int round = 0; round < 50; ++round) {
    SCOPED_TRACE(round);
    void* const library = Load();
    ASSERT_NE(library, nullptr);
    const long before = heap.live;
    ASSERT_EQ(Collated(library), -1);
    EXPECT_GT(heap.live, before);
    Unload(library);
    ASSERT_FALSE(IsLoaded());
    if (round == 0)
      blocksAfterFirst = heap.live;
    EXPECT_EQ(heap.live, blocksAfterFirst);
  }
}
