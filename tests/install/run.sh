#!/usr/bin/env bash
# Installs a build of ZRString, copies the installed tree elsewhere and uninstalls all. Compares the
# installed files with files.txt. With the copy, builds and runs a C++ project through find_package
# and, through pkg-config, the programs of the README and the headers and one of the pages; and
# compiles every public header alone. Makes the sources part of another project.
# ctest sets BUILD, the build folder; CONFIG, its build type; LIBDIR, its folder of libraries below
# the prefix; CMAKE, CC, CXX and CXXFLAGS.
# shellcheck disable=SC2206 # CXXFLAGS is not quoted: it holds several options
set -euo pipefail
unset DESTDIR PKG_CONFIG_PATH LD_LIBRARY_PATH CPATH LIBRARY_PATH
top=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../..")
tests=$top/tests/install work=$BUILD/tests/install/work
installed=$work/installed prefix=$work/moved
export PKG_CONFIG_LIBDIR=$prefix/$LIBDIR/pkgconfig
. "$top/tools/steps.inc.sh"
. "$top/tests/pages.inc.sh"

# check_installed COMPONENTS OPTION...: installing with the OPTIONs gives the files of COMPONENTS.
check_installed() {
  logged "$work/install.log" env -C "$work" "$CMAKE" --install "$BUILD" --prefix installed \
    ${CONFIG:+--config "$CONFIG"} "${@:2}"
  diff -u <(installed_files "$1" "$installed" "$LIBDIR" "${CONFIG:-noconfig}" | sort) \
    <(find "$installed" ! -type d -printf '%P\n' | sort) || die "the files differ from files.txt"
}

# check_program PROGRAM OUTPUT: PROGRAM prints OUTPUT, a file, and needs this library but not ICU.
check_program() {
  local needed
  LD_LIBRARY_PATH=$prefix/$LIBDIR "$1" | diff -u "$2" - || die "$1 does not print $2"
  needed=$(readelf -d "$1" | grep NEEDED)
  [[ $needed == *'[libZRString.so.1]'* && ${needed,,} != *icu* ]] || die "$1 needs $needed"
}

# compile STANDARD OPTION...: compiles as an outside program that asks pkg-config for the library.
compile() {
  local compiler=("$CC")
  [[ $1 != c++* ]] || compiler=("$CXX" $CXXFLAGS)
  "${compiler[@]}" -std="$1" -x "${1%%[0-9]*}" -pedantic -Wall -Wextra -Werror \
    "${cflags[@]}" "${@:2}"
}

rm -rf "$work"
mkdir -p "$work"

say "the installed files"
check_installed Runtime --component Runtime
check_installed 'Runtime|Development'
cp -a "$installed" "$prefix"
# pkg-config quotes what it prints for a shell.
cflags=() libs=()
eval "cflags=($(pkg-config --cflags zrstring)) libs=($(pkg-config --libs zrstring))"
DESTDIR=$work/stage logged "$work/install.log" "$CMAKE" --install "$BUILD" --prefix /usr
# Other installations from this build folder stay, and so does the record of their files.
sed -i -e "\|^$work/|w $work/installed.txt" -e "\|^$work/|d" "$BUILD/installed.txt"
in_the_way=$work/stage/usr/include/ZRString/ZRTypes.h
rm "$in_the_way" && mkdir "$in_the_way"
uninstall=(env -C "$work" "$CMAKE" -P "$top/cmake/Uninstall.cmake")
! "${uninstall[@]}" > "$work/uninstall.log" 2>&1 ||
  die "uninstalling succeeds although it cannot remove $in_the_way"
grep -qxF "    $in_the_way" "$work/uninstall.log" || die "$work/uninstall.log: no file named"
rmdir "$in_the_way"
logged "$work/uninstall.log" "${uninstall[@]}"
left=$(find "$installed" "$work/stage" \
  ! -type d -o -name ZRString -o -name Velmar -o -path '*/auto-load/*')
[ -z "$left" ] || die "uninstalling left $left"
! readelf -d "$prefix/$LIBDIR/libZRString.so" | grep -E '\(R(UN)?PATH' || die "a search path is set"
! grep -rF "$BUILD" "$prefix/$LIBDIR"/{cmake,pkgconfig} || die "these name the build folder"

say "a C++ project, through find_package"
write_programs "$work"
logged "$work/cpp.log" "$CMAKE" -S "$tests/cpp" -B "$work/cpp" -DCMAKE_PREFIX_PATH="$prefix" \
  -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_CXX_FLAGS="$CXXFLAGS -Wall -Wextra -Werror"
grep -q "^ZRString_DIR:.*=$prefix/" "$work/cpp/CMakeCache.txt" || die "another ZRString was found"
logged "$work/cpp.log" "$CMAKE" --build "$work/cpp"
check_program "$work/cpp/road" "$work/road.txt"
for standard in 17 20 23; do check_program "$work/cpp/vector$standard" /dev/null; done

say "programs of the README, a page and the headers, through pkg-config"
awk '/\/ @name/ {bare = $0} /\/ @code/ {bare = ""} /\/ @\{/ && bare {print FILENAME bare; exit 1}' \
  "$top"/include/ZRString/*.h || die "a group of members has no example"
for source in readme.c readme.cpp road.c classes.cpp interop.cpp handles.c; do
  standard=c++17
  [[ $source != *.c ]] || standard='c99'
  compile $standard "$work/$source" -o "$work/$source.out" "${libs[@]}"
  check_program "$work/$source.out" "$work/${source%.*}.txt"
done
compile c99 -E -P - <<< $'#include <ZRString/ZRVersion.h>\nZR_VERSION_STRING' |
  grep -qxF "\"$(pkg-config --modversion zrstring)\"" || die "ZRVersion.h and zrstring.pc differ"

say "the public headers, each alone"
plain='/ZR(Types|StringHandles|StringUtf8)\.h$'
for header in $(cd "$prefix/include" && find . -name '*.h' -printf '%P\n'); do
  for standard in c99 c11 c2x c++17 c++20 c++2b; do
    [[ $standard == c++* || $header =~ $plain ]] || continue
    compile $standard -Wconversion -fsyntax-only -MD -MF "$work/included" - \
      <<< "#include <$header>" ||
      die "$header alone, as $standard"
    ! grep unicode/ "$work/included" || die "$header includes a header of ICU"
    [[ $header =~ $plain && -n $(command -v clang) ]] || continue
    for system in linux-gnu windows-msvc; do
      CC=clang CXX=clang++ CXXFLAGS='' compile $standard -Wconversion -fsyntax-only - \
        "--target=x86_64-pc-$system" <<< "#include <$header>" ||
        die "$header, as $standard, for $system"
    done
  done
done

say "as part of another project"
logged "$work/parent.log" "$CMAKE" -S "$tests/parent" -B "$work/parent" -DBUILD_SHARED_LIBS=OFF \
  -DCMAKE_C_COMPILER="$CC" -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_INSTALL_PREFIX="$work/parents"
[ "$(grep -c BUILD_SHARED_LIBS=OFF "$work/parent.log")" = 1 ] ||
  die "$work/parent.log must say once that BUILD_SHARED_LIBS has no effect"
logged "$work/parent-install.log" "$CMAKE" --install "$work/parent"
[ ! -e "$work/parents" ] || die "ZRString installs itself with another project"
