# Cross-compiling for 64-bit Windows with Debian's MinGW-w64 (package
# g++-mingw-w64-x86-64-posix).
#
#   cmake -S . -B build/windows-x86_64 \
#         -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-x86_64.cmake \
#         -DCMAKE_FIND_ROOT_PATH="ICU-PREFIX;GOOGLETEST-PREFIX"
#
# platform/test-on-windows.sh does this, building those two prefixes first.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The "posix" flavour is the one whose standard library has std::thread and
# std::mutex; the unsuffixed names may point to the other one.
set(CMAKE_C_COMPILER   x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER  x86_64-w64-mingw32-windres)

# Whatever is linked or included comes from the prefixes given on the command
# line or from the compiler itself, never from the system doing the building;
# programs, on the other hand, have to run here.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
