/* Looks up all the plain functions, calls some, and reads the library's version. Needs no C
 * library. It is linked through ZRString.lib; or, with LOAD defined, only loads the library. */
#include <ZRString/ZRStringHandles.h>

typedef void* Handle;
__declspec(dllimport) Handle __stdcall LoadLibraryExA(const char*, Handle, unsigned long);
__declspec(dllimport) Handle __stdcall GetModuleHandleA(const char*);
__declspec(dllimport) Handle __stdcall GetProcAddress(Handle, const char*);
__declspec(dllimport) int __stdcall FreeLibrary(Handle);
__declspec(dllimport) unsigned long __stdcall GetLastError(void);
__declspec(dllimport) void __stdcall ExitProcess(unsigned);
int __stdcall GetFileVersionInfoA(const char*, unsigned long, unsigned long, void*);
int __stdcall VerQueryValueA(const void*, const char*, void*, unsigned*);
int __cdecl printf(const char*, ...);

#ifdef LOAD
#define LINKED(name) 0
#else
#define LINKED(name) (Handle) name
#endif

static int IsExported(Handle library, const char* name, Handle linked) {
  const Handle found = GetProcAddress(library, name);
  if (found != 0 && (linked == 0 || linked == found))
    return 1;
  printf("FAILED: %s\n", name);
  return 0;
}

static int Run(Handle library, const char* path) {
  int functions = 0;
  ZRStringRef__* string = 0;
  ZRLong status, length = 0;
  if (library == 0) {
    printf("FAILED: error %lu when loading %s\n", GetLastError(), path);
    return 1;
  }
#define X(name) functions += IsExported(library, #name, LINKED(name));
#include "plain-names.h"
#undef X
#define CALL(name) ((__typeof__(name)*)GetProcAddress(library, #name))
  status = CALL(ZRStringCreateFromCString)("abc\x80", 0, 4, &string);
  status |= CALL(ZRStringGetLength)(string, &length);
  status |= CALL(ZRStringDestroy)(string);
  printf("%d functions, status %d, length %d\n", functions, (int)status, (int)length);
#ifdef LOAD
  {
    char info[4096];
    const char* version = 0;
    unsigned size;
    if (GetFileVersionInfoA(path, 0, sizeof info, info) &&
        VerQueryValueA(info, "\\StringFileInfo\\040904B0\\FileVersion", &version, &size))
      printf("version %s\n", version);
    if (FreeLibrary(library) && GetModuleHandleA("ZRString.dll") == 0)
      printf("unloaded\n");
  }
#endif
  return 0;
}

#ifdef LOAD
/* Loads it as Python does: LOAD_LIBRARY_SEARCH_DEFAULT_DIRS | LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR. */
int main(int argc, char** argv) {
  return argc == 2 ? Run(LoadLibraryExA(argv[1], 0, 0x1100), argv[1]) : 2;
}
#else
void __cdecl Start(void) { ExitProcess(Run(GetModuleHandleA("ZRString.dll"), "ZRString.dll")); }
#endif
