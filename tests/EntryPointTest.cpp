// Windows only: what loading the DLL does to the process.
#include <ZRString/ZRString.h>
#include <gtest/gtest.h>
#include <unicode/uvernum.h>
#include <windows.h>
#include <winternl.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <type_traits>

static_assert(sizeof(long) == 4 && std::is_same_v<ZRLong, long> &&
              std::is_same_v<ZRULong, unsigned long>);

namespace {

using EntryPoint = BOOL(WINAPI*)(HINSTANCE, DWORD, LPVOID);

/// The system loader's entry for a library in this process.
LDR_DATA_TABLE_ENTRY* LoadedLibrary(const char* name) {
  const HMODULE module = GetModuleHandleA(name);
  LIST_ENTRY* const list = &NtCurrentTeb()->ProcessEnvironmentBlock->Ldr->InMemoryOrderModuleList;
  for (LIST_ENTRY* link = list->Flink; link != list; link = link->Flink) {
    auto* const entry = CONTAINING_RECORD(link, LDR_DATA_TABLE_ENTRY, InMemoryOrderLinks);
    if (entry->DllBase == module)
      return entry;
  }
  throw std::runtime_error(name);
}

/// Counts the thread notifications to a library's entry point. Use one object at a time.
class ThreadCalls {
 public:
  explicit ThreadCalls(const char* library) : field_(LoadedLibrary(library)->Reserved3[0]) {
    calls = 0;
    original = reinterpret_cast<EntryPoint>(field_);
    field_ = reinterpret_cast<void*>(Entry);
  }
  ~ThreadCalls() { field_ = reinterpret_cast<void*>(original); }
  ThreadCalls(const ThreadCalls&) = delete;
  ThreadCalls& operator=(const ThreadCalls&) = delete;

  int While(int threads) const {
    for (int i = 0; i < threads; ++i)
      std::thread([] {}).join();
    return calls;
  }

 private:
  static BOOL WINAPI Entry(HINSTANCE instance, DWORD reason, LPVOID reserved) {
    calls += reason == DLL_THREAD_ATTACH || reason == DLL_THREAD_DETACH;
    return original(instance, reason, reserved);
  }

  static std::atomic<int> calls;
  static EntryPoint original;
  void*& field_;  // the loader entry's pointer to the entry point, unnamed in the public header
};

std::atomic<int> ThreadCalls::calls;
EntryPoint ThreadCalls::original;

}  // namespace

// Only Windows has entry points. ICU's library does get the notifications, which shows that the
// test can see them.
TEST(EntryPoint, IsNotCalledForThreads) {
  const ZRString string("a", 0, 1);  // makes the linker keep the library
  EXPECT_EQ(ThreadCalls("icuuc" U_ICU_VERSION_SHORT ".dll").While(5), 10);
  EXPECT_EQ(ThreadCalls("ZRString.dll").While(5), 0);
}
