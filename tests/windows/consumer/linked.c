/* Linked through ZRString.lib and without a C library. Exits with the number of failures. */
#include <ZRString/ZRStringHandles.h>

__declspec(dllimport) void* __stdcall GetModuleHandleA(const char*);
__declspec(dllimport) void* __stdcall GetProcAddress(void*, const char*);

int __cdecl Start(void) {
  ZRLong(__cdecl* const getLength)(ZRStringRef__*, ZRLong*) = ZRStringGetLength;
  void* const library = GetModuleHandleA("ZRString.dll");
  ZRStringRef__* string = 0;
  ZRLong length = 0;
  int failures = 0;
#define ZR_ROW(name, ...) failures += GetProcAddress(library, #name) != (void*)name;
#include "../../HandleRows.inc"
  failures += ZRStringCreateFromCString("abc\x80", 0, 4, &string) != 0;
  failures += getLength(string, &length) != 0 || length != 4;
  failures += ZRStringDestroy(string) != 0;
  return failures;
}
