#include <windows.h>

/// Entry point of ZRString.dll. The library keeps nothing per thread, so the system need not call
/// it when threads come and go.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH)
    DisableThreadLibraryCalls(instance);
  return TRUE;
}
