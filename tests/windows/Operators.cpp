// Lets all DLLs use this program's operator new and delete. They import the C++ library's: a jump
// to this program's replaces the first instructions of the two that its other forms call.
#include <windows.h>

#include <cstring>
#include <new>
#include <string>

template <typename Function>
static bool Redirect(const char* name, Function* target) {
  void* const code =
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("libstdc++-6.dll"), name));
  const std::string address(reinterpret_cast<const char*>(&target), sizeof target);
  // mov rax, target; jmp rax, or the same with eax
  const std::string jump = (sizeof target == 8 ? "\x48\xB8" : "\xB8") + address + "\xFF\xE0";
  DWORD protection = 0;
  return code && VirtualProtect(code, jump.size(), PAGE_EXECUTE_READWRITE, &protection) &&
         std::memcpy(code, jump.data(), jump.size()) &&
         VirtualProtect(code, jump.size(), protection, &protection);
}

static const bool redirected =
    Redirect<void*(std::size_t)>(sizeof(void*) == 8 ? "_Znwy" : "_Znwj", operator new) &&
    Redirect<void(void*)>("_ZdlPv", operator delete);
