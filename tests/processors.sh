#!/usr/bin/env bash
# Cross-builds the library and its in-process tests for 64-bit ARM (aarch64) and for the big-endian
# s390x, or the one that is named, and runs them under QEMU. Takes minutes. Installs the Debian
# packages that are missing; ICU for those processors is unpacked below build/, not installed.
# usage: tests/processors.sh [aarch64|s390x]
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
. "$top/tools/steps.sh"

# fetch_icu ARCHITECTURE FOLDER: unpacks ICU as this release of Debian has it for ARCHITECTURE.
fetch_icu() {
  local fetched=$2/fetched codename icu
  # shellcheck source=/dev/null
  codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
  rm -rf "$2"
  mkdir -p "$fetched/lists/partial" "$fetched/archives/partial"
  echo "deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] \
$("$top/tools/debian-mirror") $codename main" > "$fetched/sources.list"
  : > "$fetched/status"
  local apt=(-q -o APT::Architecture="$1" -o APT::Architectures="$1" -o APT::Sandbox::User=root
    -o Dir::Etc::SourceList="$fetched/sources.list" -o Dir::Etc::SourceParts=-
    -o Dir::State="$fetched" -o Dir::State::status="$fetched/status" -o Dir::Cache="$fetched")
  apt-get "${apt[@]}" update
  icu=$(apt-cache "${apt[@]}" depends libicu-dev | sed -n 's/.*Depends: \(libicu[0-9]*\)$/\1/p')
  cd "$fetched"
  apt-get "${apt[@]}" download libicu-dev "$icu"
  for package in "$fetched"/*.deb; do dpkg-deb -x "$package" "$2"; done
}

build() {
  local processor=$1 folder=$top/build/$1
  local libraries=$folder/icu/usr/lib/$1-linux-gnu
  local switches=(-G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_SYSTEM_NAME=Linux
    -DCMAKE_SYSTEM_PROCESSOR="$processor" -DCMAKE_C_COMPILER="$processor-linux-gnu-gcc"
    -DCMAKE_CXX_COMPILER="$processor-linux-gnu-g++"
    -DCMAKE_FIND_ROOT_PATH="$folder/icu;$folder/googletest"
    "-DCMAKE_FIND_ROOT_PATH_MODE_"{LIBRARY,INCLUDE,PACKAGE}"=ONLY"
    -DCMAKE_EXE_LINKER_FLAGS="-Wl,-rpath-link,$libraries"
    -DCMAKE_CROSSCOMPILING_EMULATOR="qemu-$processor-static;-L;/usr/$processor-linux-gnu;\
-E;LD_LIBRARY_PATH=$libraries")
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
  g++-s390x-linux-gnu googletest ninja-build python3 qemu-user-static unicode-data
for processor in "$@"; do
  folder=$top/build/$processor
  say "$processor: fetching ICU"
  case $processor in aarch64) architecture=arm64 ;; *) architecture=$processor ;; esac
  logged "$folder/icu.log" fetch_icu "$architecture" "$folder/icu"
  say "$processor: building"
  logged "$folder/build.log" build "$processor"
  say "$processor: testing"
  # The tests of GoogleTest, the programs of the reference pages, and the exported names.
  ctest --test-dir "$folder/zrstring" -R '\.|^docs-|^Exports$' -j "$(nproc)" --output-on-failure \
    --no-tests=error
done
