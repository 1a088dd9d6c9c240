// Loads and unloads the library again and again, and looks for what stays behind.
#include <ZRString/ZRStringHandles.h>
#include <gtest/gtest.h>
#include <unicode/coll.h>
#include <unicode/locid.h>

#include <atomic>
#include <thread>

#include "Memory.h"

// Each system has its own functions to load and unload a library.
#ifdef _WIN32
#include <windows.h>
static HMODULE Load() { return LoadLibraryA("ZRString.dll"); }
static bool IsLoaded() { return GetModuleHandleA("ZRString.dll"); }
static const auto Unload = FreeLibrary;
static const auto Symbol = GetProcAddress;
#else
#include <dlfcn.h>
static void* Load() { return dlopen(ZRSTRING_LIBRARY, RTLD_NOW | RTLD_LOCAL); }
static bool IsLoaded() { return dlopen(ZRSTRING_LIBRARY, RTLD_NOW | RTLD_NOLOAD); }
static const auto Unload = dlclose;
static const auto Symbol = dlsym;
#endif

/// A function of the library that was loaded.
#define ZR_FUNCTION(name) \
  reinterpret_cast<decltype(&name)>(reinterpret_cast<void*>(Symbol(library, #name)))

// The collator and a locale with a keyword allocate ICU memory. If a clean-up missed one of them,
// or both threads made a collator, blocks would be left after each round.
TEST(Unload, RunsTheCleanUpsAndReallyUnloads) {
  UErrorCode status = U_ZERO_ERROR;
  TakeIcuMemory();
  icu::Locale::setDefault(icu::Locale("de@collation=phonebook"), status);
  delete icu::Collator::createInstance(status);  // loads the data that ICU then keeps
  long blocks = 0;
  for (int round = 0; round < 50; ++round) {
    const auto library = Load();
    ASSERT_NE(library, nullptr);
    const long before = heap.live;
    std::atomic<int> waiting{2};
    const auto collate = [&] {
      ZRStringRef__* text = nullptr;
      ZRLong result = 9;
      ZR_FUNCTION(ZRStringCreateFromCString)("\xE4 b", 0, 3, &text);
      --waiting;
      while (waiting > 0)
        continue;  // until both threads are at their first use of the collator
      ZR_FUNCTION(ZRStringICompare)(text, 0, 1, text, 2, 1, 3, &result);
      ZR_FUNCTION(ZRStringDestroy)(text);
      EXPECT_EQ(result, -1) << "ZRStringICompare, collated";
    };
    std::thread other(collate);
    collate();
    other.join();
    EXPECT_GT(heap.live, before);
    Unload(library);
    ASSERT_FALSE(IsLoaded());
    EXPECT_TRUE(round == 0 || heap.live == blocks) << heap.live - blocks;
    blocks = heap.live;
  }
}
