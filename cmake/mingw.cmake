# Included by the two toolchain files for Debian's MinGW-w64, which set CMAKE_SYSTEM_PROCESSOR.
set(CMAKE_SYSTEM_NAME Windows)

# The "posix" flavour is the one whose standard library has std::thread and std::mutex; the
# unsuffixed names may point to the other one.
set(CMAKE_C_COMPILER ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-windres)

# Libraries and headers come from the prefixes given on the command line or from the compiler, never
# from the build machine; programs come from the build machine.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
