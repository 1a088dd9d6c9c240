#!/bin/sh
# Runs a Windows program, within tests/windows/run.sh: the emulator for CMake and ctest.
exec chroot "${wine_root:?}" env -C "$PWD" LC_ALL=C.UTF-8 wine "$@"
