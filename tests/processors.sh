#!/usr/bin/env bash
# Cross-builds the library and its in-process tests for 64-bit ARM (aarch64) and for the big-endian
# s390x, or the one that is named, and runs them under QEMU. Takes minutes. Installs the Debian
# packages that are missing; those of the other processors are unpacked below build/, not installed.
# usage: tests/processors.sh [aarch64|s390x]
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
. "$top/tools/steps.sh"

build() {
  local system=$folder/system compiler=$processor-linux-gnu
  rm -rf "$folder"
  mkdir "$folder"
  mmdebstrap --variant=extract --architectures="${processor/aarch64/arm64}" \
    --include=libgtest-dev,libicu-dev --keyring=/usr/share/keyrings/debian-archive-keyring.gpg \
    "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$system" "$("$top/tools/debian-mirror")"
  cmake --preset release -S "$top" -B "$folder/zrstring" -DZRSTRING_BUILD_EXAMPLES=OFF \
    -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR="$processor" \
    -DCMAKE_C_COMPILER="$compiler-gcc" -DCMAKE_CXX_COMPILER="$compiler-g++" \
    -DCMAKE_FIND_ROOT_PATH="$system" -DCMAKE_FIND_ROOT_PATH_MODE_{LIBRARY,INCLUDE,PACKAGE}=ONLY \
    -DCMAKE_EXE_LINKER_FLAGS="-Wl,-rpath-link,$system/usr/lib/$processor-linux-gnu" \
    -DCMAKE_CROSSCOMPILING_EMULATOR="qemu-$processor-static;-L;$system"
  cmake --build "$folder/zrstring"
}

[[ ${1:-s390x} =~ ^(aarch64|s390x)$ ]] || die "the processors are aarch64 and s390x"
"$top/tools/install-packages.sh" bzip2 cmake debian-archive-keyring g++-aarch64-linux-gnu \
  g++-s390x-linux-gnu mmdebstrap ninja-build python3 qemu-user-static unicode-data
for processor in ${1:-aarch64 s390x}; do
  folder=$top/build/$processor
  say "$processor: building"
  logged "$folder.log" build
  say "$processor: testing"
  # The tests of GoogleTest, the programs of the reference pages, and the exported names.
  ctest --test-dir "$folder/zrstring" -R '\.|^docs-|^Exports$' -j "$(nproc)" --output-on-failure \
    --no-tests=error
done
