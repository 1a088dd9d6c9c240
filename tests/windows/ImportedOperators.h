#ifndef ZRSTRING_TESTS_WINDOWS_IMPORTEDOPERATORS_H
#define ZRSTRING_TESTS_WINDOWS_IMPORTEDOPERATORS_H

#include <windows.h>

#include <cstring>
#include <new>

// On Windows each module imports operator new and delete on its own.

template <typename Function>
UINT_PTR Address(Function* function) {
  return reinterpret_cast<UINT_PTR>(function);
}

/// Puts this program's operators in the place of those that the DLL imports.
inline void ReplaceOperators(const char* dll) {
  const struct {
    const char* symbol;  // a std::size_t in it is a j or, in 64 bits, a y
    UINT_PTR address;
  } operators[] = {
      {"_Znwj", Address<void*(std::size_t)>(operator new)},
      {"_Znwy", Address<void*(std::size_t)>(operator new)},
      {"_Znaj", Address<void*(std::size_t)>(operator new[])},
      {"_Znay", Address<void*(std::size_t)>(operator new[])},
      {"_ZdlPv", Address<void(void*)>(operator delete)},
      {"_ZdlPvj", Address<void(void*, std::size_t)>(operator delete)},
      {"_ZdlPvy", Address<void(void*, std::size_t)>(operator delete)},
      {"_ZdaPv", Address<void(void*)>(operator delete[])},
      {"_ZdaPvj", Address<void(void*, std::size_t)>(operator delete[])},
      {"_ZdaPvy", Address<void(void*, std::size_t)>(operator delete[])},
  };
  auto* const image = reinterpret_cast<char*>(GetModuleHandleA(dll));
  const auto* const dos = reinterpret_cast<IMAGE_DOS_HEADER*>(image);
  const auto* const headers = reinterpret_cast<IMAGE_NT_HEADERS*>(image + dos->e_lfanew);
  const auto& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(image + imports.VirtualAddress);
  for (; library->Name; ++library) {
    auto* name = reinterpret_cast<IMAGE_THUNK_DATA*>(image + library->OriginalFirstThunk);
    auto* address = reinterpret_cast<IMAGE_THUNK_DATA*>(image + library->FirstThunk);
    for (; name->u1.AddressOfData; ++name, ++address) {
      if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
        continue;
      const auto* const import =
          reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(image + name->u1.AddressOfData);
      for (const auto& row : operators) {
        if (std::strcmp(import->Name, row.symbol) != 0)
          continue;
        DWORD protection = 0;
        VirtualProtect(address, sizeof *address, PAGE_READWRITE, &protection);
        address->u1.Function = row.address;
        VirtualProtect(address, sizeof *address, protection, &protection);
      }
    }
  }
}

#endif
