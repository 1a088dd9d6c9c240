#!/usr/bin/env bash
# Unpacks the package for Windows into an empty folder and uses it as its README says: from C++ with
# MinGW, from C with Microsoft's ABI (clang and lld), and loaded at run time.
# usage: package.sh BUILD-FOLDER i686|x86_64 VERSION
set -euo pipefail
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
top=$(cd "$tests/../.." && pwd -P)
. "$top/tools/steps.inc.sh"
build=$1 arch=$2 version=$3
bits=64 gcc=seh stdcall=
[ "$arch" != i686 ] || bits=32 gcc=dw2 stdcall=-mrtd
work=$build/tests/windows/work
package=$work/zrstring-$version-win$bits
bin=$package/bin

# build_with OPTION...: builds the outside project.
build_with() {
  logged consumer.log cmake -G Ninja -S "$tests/consumer" -B "$@"
  logged consumer.log nice cmake --build "$1"
}

say "the files of the package"
rm -rf "$work"
mkdir -p "$work"
cd "$work"
cmake -E tar xf "$build/${package##*/}.zip"
diff <(sed "s/GCC/$gcc/" "$tests/files.txt") \
  <(cd "$package" && find . -type f ! -path './include/*' ! -path '*/common-licenses/*' \
    -printf '%P\n' | LC_ALL=C sort) ||
  die "the files of the package ('<' is missing, '>' is too much)"
[ "$(find "$package" -type f -printf '%T@\n' | sort -u | wc -l)" = 1 ] || die "not one date"
! "$arch-w64-mingw32-objdump" -p "$bin"/{icu*,ZRString}.dll |
  grep -P 'Time/Date stamp\s+(?!0$)\S' || die "a DLL has the time of its linking"
while read -r text; do
  [ -s "$package/licenses/$text.txt" ] || die "$text.txt is missing"
done < <(grep -oh 'common-licenses/[-.A-Za-z0-9]*[A-Za-z0-9]' "$package"/licenses/*.txt)

say "C++ programs, through find_package"
build_with mingw --toolchain "$top/cmake/mingw-$arch.cmake" -DCMAKE_FIND_ROOT_PATH="$package"
"$top/docs/check-page.py" "$top/docs/index.md" "$tests/wine.sh" "$bin/road.exe"
for program in "$bin"/vector*.exe; do logged program.log "$tests/wine.sh" "$program"; done

say "the examples"
for example in wordlist lookup; do
  printf '#!/bin/sh\nexec "%s" "%s" "$@"\n' "$tests/wine.sh" "$bin/$example.exe" > "$example"
  chmod +x "$example"
done
TMPDIR=$work ARGUMENTS=UTF-8 python3 "$top/tests/examples/programs_test.py" "$work"

say "a program that only loads the library, from its own folder"
"$tests/wine.sh" mingw/load.exe "${bin//\//\\}\\ZRString.dll" |
  diff --strip-trailing-cr <(echo "$version") -

say "a C program with Microsoft's ABI, through find_package and ZRString.lib"
build_with microsoft -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_PREFIX_PATH="$package" \
  -DCMAKE_C_COMPILER=clang -DCMAKE_C_COMPILER_TARGET="$arch-pc-windows-msvc" \
  -DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY -DCMAKE_C_FLAGS="$stdcall" \
  -DCMAKE_EXE_LINKER_FLAGS='-fuse-ld=lld -Wl,/nodefaultlib,/safeseh:no,/entry:Start' \
  -DCMAKE_C_STANDARD_LIBRARIES="/usr/$arch-w64-mingw32/lib/libkernel32.a" \
  -DCMAKE_RUNTIME_OUTPUT_DIRECTORY="$bin"
grep -q '/ZRString\.lib' microsoft/build.ninja || die "find_package did not choose ZRString.lib"
logged program.log "$tests/wine.sh" "$bin/linked.exe"

say "every DLL of the package, missing"
for dll in "$bin"/*.dll; do
  mv "$dll" missing.dll
  ! WINEDEBUG=err+module "$tests/wine.sh" "$bin/road.exe" > missing.txt 2>&1 ||
    die "${dll##*/} is not needed"
  grep -o "Library ${dll##*/} .*not found" missing.txt || die "${dll##*/}: $(cat missing.txt)"
  mv missing.dll "$dll"
done
