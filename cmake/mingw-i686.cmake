# Cross-compiling for 32-bit Windows with Debian's g++-mingw-w64-i686-posix:
#
#   cmake -S . -B build/windows-i686 -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-i686.cmake \
#     -DCMAKE_FIND_ROOT_PATH="ICU-PREFIX;GOOGLETEST-PREFIX"
#
# tools/windows/make-packages.sh does this, building those two prefixes first.
set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
