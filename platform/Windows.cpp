#include <windows.h>

#ifdef __MINGW32__
// MinGW's start-up code brings thread-local storage into every library, needed or not, unless this
// symbol of its own is there already. For a library with such storage the system refuses
// DisableThreadLibraryCalls.
extern "C" {
extern const PIMAGE_TLS_CALLBACK __dyn_tls_init_callback;
const PIMAGE_TLS_CALLBACK __dyn_tls_init_callback = nullptr;
}
#endif

/// Entry point of ZRString.dll. The library keeps nothing per thread, so the system need not call
/// it when threads come and go.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH)
    DisableThreadLibraryCalls(instance);
  return TRUE;
}
