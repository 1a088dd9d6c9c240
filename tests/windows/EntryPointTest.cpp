// The DLL's entry point is not called when threads start and end.
#include <gtest/gtest.h>
#include <windows.h>
#include <winternl.h>

extern "C" NTSTATUS NTAPI LdrFindEntryForAddress(const void* address, LDR_DATA_TABLE_ENTRY** entry);

/// Whether the system's loader calls a library's entry point for threads.
static bool IsCalledForThreads(const char* library) {
  LDR_DATA_TABLE_ENTRY* entry = nullptr;
  LdrFindEntryForAddress(GetModuleHandleA(library), &entry);
  // The public header does not name the two fields after the full name: base name and flags.
  const auto* const flags = reinterpret_cast<const ULONG*>(&entry->FullDllName + 2);
  constexpr ULONG kDontCallForThreads = 0x40000;
  return !(*flags & kDontCallForThreads);
}

// The C++ library does get the calls, which shows that the test looks at the right flag.
TEST(EntryPoint, IsNotCalledForThreads) {
  EXPECT_FALSE(IsCalledForThreads("ZRString.dll"));
  EXPECT_TRUE(IsCalledForThreads("libstdc++-6.dll"));
}
