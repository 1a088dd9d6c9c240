#!/usr/bin/env bash
#
# Installs a build of ZRString and uninstalls it; installs it, moves it elsewhere, and uses it there
# as outside projects do: compares the installed files with files.txt, builds and runs a C++ project
# through find_package and a C project through pkg-config, and compiles every public header alone.
# Makes the sources part of another project.
#
# ctest starts it with what it needs in the environment: BUILD, the build folder; CONFIG, its build
# type; LIBDIR, its folder of libraries below the prefix; CMAKE, CC, CXX and CXXFLAGS.

set -euo pipefail
unset DESTDIR PKG_CONFIG_PATH LD_LIBRARY_PATH CPATH LIBRARY_PATH

tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
work=$BUILD/tests/install/work
prefix=$work/moved
top=$(cd "$tests/../.." && pwd -P)
failures=0

. "$top/tools/steps.sh"
. "$top/tests/pages.sh"
fail() {
  printf 'FAILED: %s\n' "$*"
  failures=$((failures + 1))
}

install_into() {
  "$CMAKE" --install "$BUILD" ${CONFIG:+--config "$CONFIG"} --prefix "$@" > "$work/install.log" || {
    cat "$work/install.log"
    exit 1
  }
}

# compare_files PREFIX COMPONENTS: the files below PREFIX with those that files.txt lists for
# COMPONENTS, a regular expression.
compare_files() {
  local config=${CONFIG:-noconfig}
  sed -nE "s#^($2) ##p" "$tests/files.txt" |
    sed -e "s|/PREFIX/|$1/|" -e "s|\<LIBDIR/|$LIBDIR/|" -e "s|CONFIG|${config,,}|" |
    LC_ALL=C sort > "$work/expected"
  (cd "$1" && find . ! -type d -printf '%P\n') | LC_ALL=C sort > "$work/found"
  diff -u "$work/expected" "$work/found" || fail "the files of $2 differ from files.txt"
}

# dynamic ENTRY FILE: the values of a kind of entry in a file's dynamic section.
dynamic() { readelf -d "$2" | sed -nE "s/.*\(($1)\).*\[(.*)\]/\2/p"; }

# run_program PROGRAM EXPECTED: checks that PROGRAM prints the contents of the file EXPECTED, and
# that it needs this library but not ICU.
run_program() {
  local program=$1 expected=$2 needed
  LD_LIBRARY_PATH=$prefix/$LIBDIR "$program" > "$work/output" || fail "$program ended with status $?"
  diff -u "$expected" "$work/output" || fail "the output of $program"
  needed=$(dynamic NEEDED "$program")
  grep -qx 'libZRString\.so\.1' <<< "$needed" || fail "$program does not need libZRString.so.1"
  ! grep -i icu <<< "$needed" || fail "$program was linked with ICU"
}

# compile_alone HEADER COMPILER OPTION...: compiles a file that includes only HEADER, and checks
# that HEADER includes none of ICU.
compile_alone() {
  local header=$1 unit=$work/alone.cpp
  shift
  case $* in *-std=c99*) unit=$work/alone.c ;; esac
  printf '#include <%s>\n' "$header" > "$unit"
  if ! "$@" -I "$prefix/include" -Wall -Wextra -Werror -fsyntax-only "$unit" ||
    ! "$@" -I "$prefix/include" -E "$unit" > "$work/preprocessed"; then
    fail "$header alone: $*"
  elif grep -m 3 'unicode/' "$work/preprocessed"; then
    fail "$header includes a header of ICU"
  fi
}

rm -rf "$work"
mkdir -p "$work"
road_output > "$work/road.txt"
[ -s "$work/road.txt" ] || fail "docs/index.md has no output"

say "the installed files"
install_into "$work/runtime" --component Runtime
compare_files "$work/runtime" Runtime
install_into "$work/installed"
compare_files "$work/installed" 'Runtime|Development'
"$CMAKE" --build "$BUILD" --target uninstall > "$work/uninstall.log" || fail "uninstalling"
find "$work/runtime" "$work/installed" \( ! -type d -o -name ZRString -o -path '*/auto-load/*' \) \
  > "$work/left"
[ ! -s "$work/left" ] || fail "uninstalling left $(cat "$work/left")"
install_into "$work/installed"
mv "$work/installed" "$prefix"
[ -z "$(dynamic 'RPATH|RUNPATH' "$prefix/$LIBDIR/libZRString.so.1.0.0")" ] ||
  fail "the library has an RPATH or RUNPATH"
! grep -rF "$BUILD" "$prefix/$LIBDIR/cmake" "$prefix/$LIBDIR/pkgconfig" ||
  fail "the installed files name the build folder"

say "a C++ project, through find_package"
if "$CMAKE" -S "$tests/cpp" -B "$work/cpp" -DCMAKE_PREFIX_PATH="$prefix" \
  -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_CXX_FLAGS="$CXXFLAGS -Wall -Wextra -Werror" \
  > "$work/cpp.log" 2>&1 &&
  "$CMAKE" --build "$work/cpp" >> "$work/cpp.log" 2>&1; then
  grep -q "^ZRString_DIR:.*=$prefix/" "$work/cpp/CMakeCache.txt" ||
    fail "another ZRString was found than the installed one"
  run_program "$work/cpp/road" "$work/road.txt"
  for standard in 17 20 23; do
    run_program "$work/cpp/vector$standard" "$tests/cpp/vector.txt"
  done
else
  cat "$work/cpp.log"
  fail "the C++ project"
fi

say "a C project, through pkg-config"
export PKG_CONFIG_LIBDIR=$prefix/$LIBDIR/pkgconfig
cp -r "$tests/c" "$work/c"
if make -C "$work/c" CC="$CC" SNIPPETS="$top/docs/snippets" > "$work/c.log" 2>&1; then
  run_program "$work/c/road" "$work/road.txt"
else
  cat "$work/c.log"
  fail "the C project"
fi
printf '#include <ZRString/ZRVersion.h>\nZR_VERSION_STRING\n' > "$work/version.c"
# shellcheck disable=SC2046 # several options
"$CC" -E -P $(pkg-config --cflags zrstring) "$work/version.c" > "$work/version.txt"
grep -qxF "\"$(pkg-config --modversion zrstring)\"" "$work/version.txt" ||
  fail "ZRVersion.h and zrstring.pc: $(cat "$work/version.txt")"

say "the programs of the README"
readme_block text > "$work/readme.txt"
readme_block cpp > "$work/readme.cpp"
readme_block c > "$work/readme.c"
# shellcheck disable=SC2046,SC2086 # several options
if "$CXX" $CXXFLAGS -std=c++17 "$work/readme.cpp" -o "$work/readme-cpp" \
  $(pkg-config --cflags --libs zrstring) &&
  "$CC" -std=c99 "$work/readme.c" -o "$work/readme-c" $(pkg-config --cflags --libs zrstring); then
  run_program "$work/readme-cpp" "$work/readme.txt"
  run_program "$work/readme-c" "$work/readme.txt"
else
  fail "the programs of the README"
fi

say "the examples in the headers"
header_examples > "$work/examples.cpp"
[ "$(grep -c '^{$' "$work/examples.cpp")" = 3 ] || fail "a class has no example"
# shellcheck disable=SC2046,SC2086 # several options
if "$CXX" $CXXFLAGS -std=c++17 -Wall -Wextra -Werror "$work/examples.cpp" -o "$work/examples" \
  $(pkg-config --cflags --libs zrstring); then
  run_program "$work/examples" /dev/null
else
  fail "the examples in the headers"
fi

say "as part of another project"
if "$CMAKE" -S "$tests/parent" -B "$work/parent" -DBUILD_SHARED_LIBS=OFF \
  -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_INSTALL_PREFIX="$work/parents" > "$work/parent.log" 2>&1 &&
  "$CMAKE" --install "$work/parent" >> "$work/parent.log" 2>&1; then
  [ "$(grep -c 'BUILD_SHARED_LIBS=OFF' "$work/parent.log")" = 1 ] ||
    fail "BUILD_SHARED_LIBS=OFF is not answered once"
  [ ! -e "$work/parents" ] || fail "ZRString installs itself with another project"
else
  cat "$work/parent.log"
  fail "the project that contains ZRString"
fi

say "the public headers"
for header in ZRString/ZRTypes.h ZRString/ZRStringHandles.h; do
  compile_alone "$header" "$CC" -std=c99 -pedantic
done
while read -r header; do
  for standard in c++17 c++20 c++2b; do
    # shellcheck disable=SC2086 # several options
    compile_alone "$header" "$CXX" $CXXFLAGS -std=$standard -pedantic
  done
done < <(cd "$prefix/include" && find . -name '*.h' -printf '%P\n')

say "$failures failed"
[ "$failures" -eq 0 ]
