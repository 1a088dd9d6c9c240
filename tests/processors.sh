#!/usr/bin/env bash
# Cross-builds the library and its in-process tests for 64-bit ARM (aarch64), for the big-endian
# s390x and for 32-bit x86 (i386), or the one that is named, and runs them: i386 on this processor,
# the others under QEMU. Takes minutes. Installs the Debian packages that are missing; those of the
# other processors are unpacked below build/, not installed.
# usage: tests/processors.sh [aarch64|s390x|i386]
set -euo pipefail
top=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
. "$top/tools/steps.inc.sh"

build() {
  local system=$folder/system target=${processor/i386/i686}-linux-gnu
  local base=lib/$processor-linux-gnu emulator="qemu-$processor-static;-L;$system"
  [ "$processor" != i386 ] ||
    emulator="$system/lib/ld-linux.so.2;--library-path;$system/$base:$system/usr/$base"
  rm -rf "$folder"
  mkdir "$folder"
  mmdebstrap --variant=extract --architectures="${processor/aarch64/arm64}" \
    --include=libgtest-dev,libicu-dev --keyring=/usr/share/keyrings/debian-archive-keyring.gpg \
    "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$system" "$("$top/tools/debian-mirror.sh")"
  cmake --preset release -S "$top" -B "$folder/zrstring" -DZRSTRING_BUILD_EXAMPLES=OFF \
    -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR="$processor" \
    -DCMAKE_C_COMPILER="$target-gcc" -DCMAKE_CXX_COMPILER="$target-g++" \
    -DCMAKE_FIND_ROOT_PATH="$system" -DCMAKE_FIND_ROOT_PATH_MODE_{LIBRARY,INCLUDE,PACKAGE}=ONLY \
    -DCMAKE_EXE_LINKER_FLAGS="-Wl,-rpath-link,$system/usr/$base" \
    -DCMAKE_CROSSCOMPILING_EMULATOR="$emulator"
  cmake --build "$folder/zrstring"
}

[[ ${1:-s390x} =~ ^(aarch64|s390x|i386)$ ]] || die "the processors are aarch64, s390x and i386"
"$top/tools/install-packages.sh" bzip2 cmake debian-archive-keyring g++-aarch64-linux-gnu \
  g++-i686-linux-gnu g++-s390x-linux-gnu mmdebstrap ninja-build python3 qemu-user-static \
  unicode-data
for processor in ${1:-aarch64 s390x i386}; do
  folder=$top/build/$processor
  say "$processor: building"
  logged "$folder.log" build
  say "$processor: testing"
  # The tests of GoogleTest, the programs of the reference pages, and the exported names.
  ctest --test-dir "$folder/zrstring" -R '\.|^docs-|^Exports$|^OperationsAreComplete$' \
    -j "$(nproc)" --output-on-failure --no-tests=error
done
