#ifndef ZRSTRING_EXAMPLES_COMMANDLINE_H
#define ZRSTRING_EXAMPLES_COMMANDLINE_H

#include <ZRString/ZRStringInterop.h>

#include <string>
#include <vector>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// After windows.h.
#include <shellapi.h>
#endif

/// The arguments after the program's name, as UTF-8.
inline std::vector<std::string> Arguments([[maybe_unused]] int argc, [[maybe_unused]] char** argv) {
#ifdef _WIN32
  // Those of main() are in the system's code page, which has few characters.
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; wide && i < count; ++i)
    arguments.push_back(ToUtf8(FromWide(wide[i])));
  LocalFree(wide);
  return arguments;
#else
  return std::vector<std::string>(argv + (argc > 0), argv + argc);
#endif
}

#endif
