# Cross-compiling for 64-bit Windows with Debian's g++-mingw-w64-x86-64-posix:
#
#   cmake -S . -B build/windows-x86_64 -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-x86_64.cmake \
#     -DCMAKE_FIND_ROOT_PATH="ICU-PREFIX;GOOGLETEST-PREFIX"
#
# tools/windows/make-packages.sh does this, building those two prefixes first.
set(CMAKE_SYSTEM_PROCESSOR x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
