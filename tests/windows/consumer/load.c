/* Only loads the library, as Python does, and prints its version. UnloadTest.cpp does the rest. */
#include <stdio.h>
#include <windows.h>

int main(int argc, char** argv) {
  const DWORD flags = LOAD_LIBRARY_SEARCH_DEFAULT_DIRS | LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR;
  char info[4096], *version;
  UINT size;
  if (argc != 2 || !LoadLibraryExA(argv[1], NULL, flags) ||
      !GetFileVersionInfoA(argv[1], 0, sizeof info, info) ||
      !VerQueryValueA(info, "\\StringFileInfo\\040904B0\\FileVersion", (void**)&version, &size))
    return (int)GetLastError();
  puts(version);
  return 0;
}
