#!/usr/bin/env bash
# Unpacks the package for Windows into an empty folder and uses it as its README says: from C++ with
# MinGW, from C with Microsoft's ABI (clang and lld-link), and loaded at run time. Everything runs
# in a Wine that was never used before.
#
# ctest starts it with ARCH, VERSION and BUILD, the build folder, in the environment.
set -euo pipefail
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
top=$(cd "$tests/../.." && pwd -P)
. "$top/tools/steps.sh"
work=$BUILD/tests/windows/work
bits=64 gcc=seh stdcall=
[ "$ARCH" != i686 ] || bits=32 gcc=dw2 stdcall=-mrtd
name=zrstring-$VERSION-win$bits
package=$work/$name
export WINEPREFIX=$work/prefix

run() { "$tests/wine" "$ARCH" "$@" 2>&1 | tr -d '\r'; }

say "unpacking $name.zip"
rm -rf "$work"
mkdir -p "$work"/{apart,wrappers}
cd "$work"
cmake -E tar xf "$BUILD/$name.zip"
(cd "$package" && find . -type f ! -path './include/*' -printf '%P\n') | LC_ALL=C sort > found.txt
sed "s/GCC/$gcc/" "$tests/files.txt" | diff - found.txt ||
  die "the files of the package ('<' is missing, '>' is too much)"

say "C++ programs, through find_package"
logged consumer.log cmake -S "$tests/consumer" -B consumer --toolchain "$top/cmake/mingw-$ARCH.cmake" \
  -DCMAKE_FIND_ROOT_PATH="$package" -DPLAIN_NAMES="$BUILD/tests/windows"
logged consumer.log nice cmake --build consumer
run consumer/bin/road.exe > no-dlls.txt && die "a program runs without the DLLs beside it"
cp "$package"/bin/*.dll consumer/bin/
"$top/docs/check-output.py" "$top/docs/index.md" "$tests/wine" "$ARCH" consumer/bin/road.exe
for program in consumer/bin/vector*.exe; do
  run "$program" | diff "$top/tests/install/cpp/vector.txt" - || die "$program"
done

say "the examples"
for example in wordlist lookup; do
  printf '#!/bin/sh\nLC_ALL=C.UTF-8 exec "%s" %s "%s" "$@"\n' "$tests/wine" "$ARCH" \
    "$work/consumer/bin/$example.exe" > "wrappers/$example"
  chmod +x "wrappers/$example"
done
TMPDIR=$work ARGUMENTS=UTF-8 "$top/tests/check-examples.sh" wrappers

say "a C program with Microsoft's ABI, through find_package and ZRString.lib"
logged microsoft.log cmake -G Ninja -S "$tests/microsoft" -B microsoft -DARCH="$ARCH" \
  -DCMAKE_C_FLAGS="$stdcall" -DCMAKE_PREFIX_PATH="$package" -DPLAIN_NAMES="$BUILD/tests/windows"
logged microsoft.log cmake --build microsoft
grep -q '/ZRString\.lib' microsoft/build.ninja || die "find_package did not choose ZRString.lib"
cp microsoft/linked.exe consumer/bin/
calls="$(wc -l < "$top/tests/exports-plain.txt") functions, status 0, length 4"
run consumer/bin/linked.exe | diff <(echo "$calls") -

say "a program that only loads the library, from its own folder"
mv consumer/bin/load.exe apart/
run apart/load.exe "${package//\//\\}\\bin\\ZRString.dll" |
  diff <(printf '%s\n' "$calls" "version $VERSION" unloaded) -

say "every DLL of the package, missing"
for dll in "$package"/bin/*.dll; do
  name=$(basename "$dll")
  mv "consumer/bin/$name" apart/
  ! WINEDEBUG=err+module run consumer/bin/road.exe > missing.txt || die "$name is not needed"
  grep -o "Library $name .*not found" missing.txt || die "no message says that $name is missing"
  mv "apart/$name" consumer/bin/
done
