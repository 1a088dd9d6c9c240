#include <windows.h>

#ifdef __MINGW32__
// DisableThreadLibraryCalls fails for a DLL with a TLS directory. MinGW's runtime adds one to every
// DLL unless this symbol is already defined.
extern "C" {
extern const PIMAGE_TLS_CALLBACK __dyn_tls_init_callback;
const PIMAGE_TLS_CALLBACK __dyn_tls_init_callback = nullptr;
}
#endif

/// Entry point of ZRString.dll. The library has no per-thread state, so it needs no call when
/// threads start and end.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH)
    DisableThreadLibraryCalls(instance);
  return TRUE;
}
