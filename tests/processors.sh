#!/usr/bin/env bash
# Cross-builds the library and its in-process tests for 64-bit ARM (aarch64) and for the big-endian
# s390x, or the one that is named, and runs them under QEMU. Takes minutes. Installs the Debian
# packages that are missing; ICU for those processors is unpacked below build/, not installed.
# usage: tests/processors.sh [aarch64|s390x]
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
. "$top/tools/steps.sh"

# unpack_icu PROCESSOR: unpacks Debian's ICU for PROCESSOR, and what it needs, in $folder/system.
unpack_icu() {
  local architecture=$1
  case $1 in aarch64) architecture=arm64 ;; esac
  rm -rf "$folder/system"
  mmdebstrap --variant=extract --architectures="$architecture" --include=libicu-dev \
    --keyring=/usr/share/keyrings/debian-archive-keyring.gpg \
    "$codename" "$folder/system" "$("$top/tools/debian-mirror")"
}

build() {
  local processor=$1
  local switches=(-G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_SYSTEM_NAME=Linux
    -DCMAKE_SYSTEM_PROCESSOR="$processor" -DCMAKE_C_COMPILER="$processor-linux-gnu-gcc"
    -DCMAKE_CXX_COMPILER="$processor-linux-gnu-g++"
    -DCMAKE_FIND_ROOT_PATH="$folder/system;$folder/googletest"
    "-DCMAKE_FIND_ROOT_PATH_MODE_"{LIBRARY,INCLUDE,PACKAGE}"=ONLY"
    -DCMAKE_EXE_LINKER_FLAGS="-Wl,-rpath-link,$folder/system/usr/lib/$processor-linux-gnu"
    -DCMAKE_CROSSCOMPILING_EMULATOR="qemu-$processor-static;-L;$folder/system")
  cmake "${switches[@]}" -S /usr/src/googletest -B "$folder/googletest-build" -DBUILD_GMOCK=OFF \
    -DCMAKE_INSTALL_PREFIX="$folder/googletest"
  cmake --build "$folder/googletest-build" --target install
  cmake "${switches[@]}" -S "$top" -B "$folder/zrstring" -DZRSTRING_WARNINGS_AS_ERRORS=ON \
    -DZRSTRING_BUILD_EXAMPLES=OFF
  cmake --build "$folder/zrstring"
}

case $* in
  '') set -- aarch64 s390x ;;
  aarch64 | s390x) ;;
  *) die "the processors are aarch64 and s390x" ;;
esac
"$top/tools/install-packages.sh" bzip2 cmake debian-archive-keyring g++-aarch64-linux-gnu \
  g++-s390x-linux-gnu googletest mmdebstrap ninja-build python3 qemu-user-static unicode-data
# shellcheck source=/dev/null
codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
for processor in "$@"; do
  folder=$top/build/$processor
  say "$processor: unpacking ICU"
  logged "$folder/icu.log" unpack_icu "$processor"
  say "$processor: building"
  logged "$folder/build.log" build "$processor"
  say "$processor: testing"
  # The tests of GoogleTest, the programs of the reference pages, and the exported names.
  ctest --test-dir "$folder/zrstring" -R '\.|^docs-|^Exports$' -j "$(nproc)" --output-on-failure \
    --no-tests=error
done
