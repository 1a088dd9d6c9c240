# What the two toolchain files for Debian's MinGW-w64 share. They set CMAKE_SYSTEM_PROCESSOR and
# include this.
set(CMAKE_SYSTEM_NAME Windows)

# The "posix" flavour is the one whose standard library has std::thread and std::mutex; the
# unsuffixed names may point to the other one.
set(CMAKE_C_COMPILER ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-windres)

# Whatever is linked or included comes from the prefixes given on the command line or from the
# compiler itself, never from the system doing the building; programs have to run here.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
