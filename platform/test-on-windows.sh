#!/usr/bin/env bash
# Cross-builds ZRString for Windows on Debian 12, runs its tests and examples under Wine and
# compares them with the same ones run here. Starting from a bare system it installs the tools,
# builds ICU and GoogleTest with Debian's MinGW-w64 and sets up a 32-bit Wine in a folder of its
# own.
#
# Those are kept in a cache folder, so only the first run takes its time. A part counts as ready
# once its stamp is written, which is the last thing done for it: an interrupted run is picked up
# again by the next one.
#
# Most functions are called through logged(), which shellcheck cannot follow; dpkg, apt and Wine
# have variables of their own.
# shellcheck disable=SC2317,SC2016
set -euo pipefail

usage() {
  cat << 'USAGE'
usage: platform/test-on-windows.sh [--arch i686|x86_64|both]
       platform/test-on-windows.sh --exec i686|x86_64 PROGRAM [ARGUMENT...]

  --arch  what to build and run: 32-bit Windows, 64-bit Windows or, which is the default, the one
          after the other
  --exec  run one Windows program the way the tests are run; it has to lie inside this checkout

Must be run as root on Debian 12. What is built outside the project is kept in $ZRSTRING_CACHE
(default: ${XDG_CACHE_HOME:-~/.cache}/zrstring-windows).
USAGE
}

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
self=$top/platform/$(basename "${BASH_SOURCE[0]}")
jobs=$(nproc)
locale=fr_FR.UTF-8  # of every program, here and under Wine: ICU takes its default locale from it
summary=()
failed=0

say() { printf '[%4ds] %s\n' "$SECONDS" "$*"; }
die() {
  printf 'test-on-windows: %s\n' "$*" >&2
  exit 1
}
note() { summary+=("$*"); }
fail() {
  summary+=("FAILED: $*")
  failed=1
}

# logged LOG SENTENCE COMMAND...: runs the command with its output going to LOG. If it fails, shows
# the end of LOG and stops with SENTENCE. The subshell gets its own "set -e", which a condition
# around it would disarm.
logged() {
  local log=$1 sentence=$2 status
  shift 2
  mkdir -p "$(dirname "$log")"
  set +e
  (set -e; "$@") > "$log" 2>&1 < /dev/null
  status=$?
  set -e
  if [ "$status" -ne 0 ]; then
    tail -n 30 "$log" >&2
    die "$sentence (exit status $status, see $log)"
  fi
}

# ready PART KEY: whether PART was completed, and for this KEY (the versions it was made from).
# Anything else is made anew or resumed.
ready() { [ -f "$cache/$1.done" ] && [ "$(cat "$cache/$1.done")" = "$2" ]; }
stamp() { printf '%s\n' "$2" > "$cache/$1.done"; }

# Removes a folder of the cache, never reaching through a mount point.
remove_tree() {
  case $1 in "$cache"/?*) ;; *) die "refusing to remove $1" ;; esac
  if cut -d' ' -f5 /proc/self/mountinfo | grep -qF "$1/"; then
    die "something is mounted below $1; unmount it first"
  fi
  rm -rf --one-file-system "$1"
}

version_of() { dpkg-query -W -f '${Version}' "$1"; }
compiler_version() { version_of "g++-mingw-w64-${1/_/-}-posix"; }

# --- tools ----------------------------------------------------------------------------------------

install_tools() {
  local arch wanted=(binutils bzip2 ca-certificates cmake debian-archive-keyring debootstrap
    dpkg-dev g++ googletest libgtest-dev libicu-dev make ninja-build python3 unicode-data wfrench)
  for arch in $arches; do
    wanted+=("g++-mingw-w64-${arch/_/-}-posix")
  done
  "$top/tools/install-packages.sh" "${wanted[@]}"
}

apt_get() { DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=600 "$@"; }

# The Debian mirror that this machine itself is set up with.
find_mirror() {
  local query=(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian'
    "Release: $codename" 'Component: main')
  mirror=$("${query[@]}")
  if [ -z "$mirror" ]; then
    logged "$logs/update.log" "the package lists could not be fetched" apt_get update
    mirror=$("${query[@]}")
  fi
  mirror=${mirror%%$'\n'*}
  [ -n "$mirror" ] || die "apt on this machine knows no Debian mirror with $codename main"
}

# --- ICU ------------------------------------------------------------------------------------------

# Debian's source package, fetched with lists of its own: the machine's apt configuration stays as
# it is.
fetch_icu_source() {
  local part=$cache/icu-source.part
  remove_tree "$part"
  mkdir -p "$part/lists/partial" "$part/cache/archives/partial"
  echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $mirror $codename main" \
    > "$part/sources.list"
  local own=(-o Dir::Etc::sourcelist="$part/sources.list" -o Dir::Etc::sourceparts=-
    -o Dir::State::lists="$part/lists" -o Dir::Cache="$part/cache" -o APT::Sandbox::User=root)
  apt_get "${own[@]}" update
  cd "$part"
  apt_get "${own[@]}" source icu
  remove_tree "$cache/icu-source"
  mv "$part/icu-72."*/ "$cache/icu-source"
  cd "$cache"
  remove_tree "$part"
}

icu_source() {
  if ! [ -f "$cache/icu-source.done" ]; then
    find_mirror
    say "ICU: fetching Debian's sources"
    logged "$logs/icu-source.log" "ICU's sources could not be fetched" fetch_icu_source
    stamp icu-source "$(dpkg-parsechangelog -l "$cache/icu-source/debian/changelog" -S Version)"
  fi
  icu_version=$(cat "$cache/icu-source.done")
}

# icu_make FOLDER COMPILER-PREFIX COMPILER-SUFFIX SWITCH...: goes on where an interrupted build
# stopped.
icu_make() {
  local folder=$1 prefix=$2 suffix=$3
  shift 3
  mkdir -p "$folder"
  cd "$folder"
  if ! [ -f configured ]; then
    CC=${prefix}gcc$suffix CXX=${prefix}g++$suffix ../icu-source/source/configure \
      --disable-samples --disable-tests --disable-extras --disable-layoutex --disable-icuio "$@"
    touch configured
  fi
  nice make -j"$jobs"
}

# The data is compiled by ICU's own tools, which have to run here.
icu_for_this_machine() {
  local key
  key="$icu_version, g++ $(version_of g++)"
  if ready icu-host "$key"; then return; fi
  if [ -f "$cache/icu-host.done" ]; then remove_tree "$cache/icu-host"; fi
  say "ICU $icu_version: building the tools for this machine (some minutes)"
  logged "$logs/icu-host.log" "ICU did not build for this machine" icu_make "$cache/icu-host" "" ""
  stamp icu-host "$key"
}

icu_make_windows() {
  local arch=$1
  icu_make "$cache/icu-build-$arch" "$arch-w64-mingw32-" -posix --host="$arch-w64-mingw32" \
    --with-cross-build="$cache/icu-host" --prefix="$cache/$arch/icu" --disable-tools
  remove_tree "$cache/$arch/icu"
  make install
  # For i686 the icudt72.dll installed is the empty stub that the other DLLs were linked against,
  # and the library with the data is libicudt72.dll; for x86_64 the data has the right name at once.
  cd "$cache/$arch/icu/bin"
  if [ -f libicudt72.dll ]; then mv -f libicudt72.dll icudt72.dll; fi
  if [ "$(stat -c %s icudt72.dll)" -lt 10000000 ]; then
    echo "icudt72.dll has no data in it"
    return 1
  fi
}

icu_for_windows() {
  local arch=$1 key
  key="$icu_version, $arch $(compiler_version "$arch")"
  if ready "icu-$arch" "$key"; then return; fi
  icu_for_this_machine
  if [ -f "$cache/icu-$arch.done" ]; then remove_tree "$cache/icu-build-$arch"; fi
  say "ICU $icu_version: building for $arch (some minutes)"
  logged "$logs/icu-$arch.log" "ICU did not build for $arch" icu_make_windows "$arch"
  stamp "icu-$arch" "$key"
}

# --- GoogleTest -----------------------------------------------------------------------------------

make_googletest() {
  local arch=$1 build=$cache/googletest-build-$1
  remove_tree "$build"
  remove_tree "$cache/$arch/googletest"
  cmake -G Ninja -S /usr/src/googletest -B "$build" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$top/cmake/mingw-$arch.cmake" \
    -DCMAKE_INSTALL_PREFIX="$cache/$arch/googletest"
  nice cmake --build "$build"
  cmake --install "$build"
}

googletest_for_windows() {
  local arch=$1 key
  key="$(version_of googletest), $arch $(compiler_version "$arch")"
  if ready "googletest-$arch" "$key"; then return; fi
  say "GoogleTest: building for $arch"
  logged "$logs/googletest-$arch.log" "GoogleTest did not build for $arch" make_googletest "$arch"
  stamp "googletest-$arch" "$key"
}

# --- Wine -----------------------------------------------------------------------------------------

# in_wine_root COUNT FOLDER... COMMAND...: runs a command inside the 32-bit system, with COUNT
# folders of this machine visible there. That happens in a mount namespace of its own: whatever is
# mounted vanishes with the last process in it, and is never visible to the rest of the machine.
in_wine_root() {
  unshare --mount --propagation private bash -c '
    set -eu
    root=$1 count=$2
    shift 2
    mount -t proc proc "$root/proc"
    mount --bind /dev "$root/dev"
    while [ "$count" -gt 0 ]; do
      mkdir -p "$root$1"
      mount --bind "$1" "$root$1"
      shift
      count=$((count - 1))
    done
    exec chroot "$root" "$@"' in_wine_root "$wine_root" "$@"
}

# The machine's way to the mirror (proxies and the like) holds for the 32-bit system as well.
make_wine_base() {
  local proxy
  remove_tree "$wine_root"
  proxy=$(apt-config dump --format '%v' Acquire::http::Proxy)
  if [ -n "$proxy" ]; then export http_proxy=$proxy; fi
  unshare --mount --propagation private debootstrap --arch=i386 --variant=minbase \
    --keyring=/usr/share/keyrings/debian-archive-keyring.gpg "$codename" "$wine_root" "$mirror"
  apt-config dump Acquire | grep -E '^Acquire::(https?::|Check-|Retries)' \
    > "$wine_root/etc/apt/apt.conf.d/90acquire" || true
}

make_wine32() {
  in_wine_root 0 env DEBIAN_FRONTEND=noninteractive PATH="$PATH" sh -ec '
    apt-get -q update
    apt-get -q install -y --no-install-recommends wine32 wine
    apt-get clean'
}

# 64-bit systems have no 32-bit Wine among their own packages: it comes as a small 32-bit system in
# the cache.
wine_for_i686() {
  if have_wine i686; then return; fi
  if ! [ -f "$cache/wine-base.done" ]; then
    find_mirror
    say "Wine: making a 32-bit system for it"
    logged "$logs/wine-base.log" "the 32-bit system could not be made" make_wine_base
    stamp wine-base "$codename"
  fi
  say "Wine: installing its 32-bit part there"
  logged "$logs/wine-i686.log" "Wine's 32-bit part could not be installed" make_wine32
  stamp wine-i686 "$(chroot "$wine_root" dpkg-query -W -f '${Version}' wine32)"
}

# Where there is none to be had, the 64-bit build is compiled only.
wine_for_x86_64() { have_wine x86_64 || "$top/tools/install-packages.sh" wine64 || true; }

have_wine() {
  case $1 in
    i686) [ -f "$cache/wine-i686.done" ] ;;
    *)    [ -x /usr/lib/wine/wine64 ] ;;
  esac
}

# with_wine ARCH COMMAND...: runs a command that finds Wine in $WINELOADER and $WINESERVER. Without
# its debugger Wine ends a crashing program with a non-zero exit status, with it by 0.
with_wine() {
  local arch=$1 prefix=$cache/wineprefix-$1 run settings
  run=$(build_of "$arch")/run
  shift
  mkdir -p "$prefix"
  settings=(-u DISPLAY WINEPREFIX="$prefix" HOME="$prefix" WINEDEBUG=-all LC_ALL="$locale"
    "WINEDLLOVERRIDES=mscoree,mshtml,winemenubuilder.exe,winedbg.exe=" WINEPATH="Z:${run//\//\\}")
  case $arch in
    i686)
      in_wine_root 2 "$top" "$prefix" env -C "$PWD" "${settings[@]}" PATH=/usr/bin:/bin \
        WINELOADER=/usr/lib/wine/wine WINESERVER=/usr/lib/wine/wineserver32 "$@" ;;
    x86_64)
      env "${settings[@]}" \
        WINELOADER=/usr/lib/wine/wine64 WINESERVER=/usr/lib/wine/wineserver64 "$@" ;;
  esac
}

# wine ARCH PROGRAM [ARGUMENT...]: the exit status alone proves nothing, Wine can report success
# without having run the program. Callers look for something that the program itself wrote.
wine() {
  local arch=$1
  shift
  with_wine "$arch" timeout -k 10 1200 sh -c 'exec "$WINELOADER" "$@"' sh "$@"
}

# The first start writes the prefix; that is kept apart from the tests.
set_up_prefix() {
  local arch=$1
  if [ -f "$cache/wineprefix-$arch.done" ]; then return; fi
  say "Wine: first start for $arch"
  remove_tree "$cache/wineprefix-$arch"
  logged "$logs/wineprefix-$arch.log" "Wine did not start for $arch" with_wine "$arch" \
    timeout -k 10 300 sh -c '"$WINELOADER" wineboot --init && "$WINESERVER" -w'
  stamp "wineprefix-$arch" ready
}

# Starts the background of our prefix, once for all programs: otherwise it comes and goes with each
# of them, and what it has to say stands between what they print.
start_wine() {
  logged "$logs/wine-$1.log" "Wine did not start for $1" with_wine "$1" timeout -k 10 300 sh -c '
    "$WINESERVER" -k && "$WINESERVER" -w
    "$WINESERVER" -p && "$WINELOADER" cmd /c exit'
}

stop_wine() {
  local arch
  for arch in $arches; do
    if [ -d "$cache/wineprefix-$arch" ] && have_wine "$arch"; then
      with_wine "$arch" sh -c '"$WINESERVER" -k' > /dev/null 2>&1 || true
    fi
  done
}

# --- the project ----------------------------------------------------------------------------------

# ARCH is also "linux" from here on: the same sources built for this machine, to compare with.
build_of() { echo "$top/build/windows-$1"; }
suffix_of() { [ "$1" = linux ] || echo .exe; }

configure() {
  local arch=$1 switches=()
  if [ "$arch" != linux ]; then
    switches=(-DCMAKE_TOOLCHAIN_FILE="$top/cmake/mingw-$arch.cmake"
      -DCMAKE_FIND_ROOT_PATH="$cache/$arch/icu;$cache/$arch/googletest"
      -DCMAKE_CROSSCOMPILING_EMULATOR="$self;--exec;$arch")
  fi
  # What CMake remembers of their places may be of another cache folder.
  cmake -U 'ICU_*' -U GTest_DIR -G Ninja -S "$top" -B "$(build_of "$arch")" \
    -DCMAKE_BUILD_TYPE=Release -DZRSTRING_WARNINGS_AS_ERRORS=ON \
    -DZRSTRING_BUILD_TESTS=ON -DZRSTRING_BUILD_EXAMPLES=ON \
    -DZRSTRING_BUILD_BENCHMARKS=OFF "${switches[@]}"
}

# Everything that runs goes into one folder, under Windows with all that it loads.
gather() {
  local arch=$1 build run suffix name file
  build=$(build_of "$arch")
  run=$build/run
  suffix=$(suffix_of "$arch")
  rm -rf "$run"
  mkdir -p "$run"
  cp "$build"/tests/zrstring-*tests"$suffix" "$build"/examples/{wordlist,lookup}"$suffix" \
    "$build"/docs/docs-*"$suffix" "$run/"
  iconv -f UTF-8 -t WINDOWS-1252 /usr/share/dict/french > "$run/words.txt"
  if [ "$arch" = linux ]; then return; fi
  cp "$build/ZRString.dll" "$cache/$arch/icu/bin"/{icuuc72,icuin72,icudt72}.dll "$run/"
  for name in libstdc++-6.dll "libgcc_s_$([ "$arch" = i686 ] && echo dw2 || echo seh)-1.dll" \
    libwinpthread-1.dll; do
    file=$("$arch-w64-mingw32-g++-posix" -print-file-name="$name")
    cp "$file" "$run/"
  done
}

build_project() {
  local arch=$1 logs
  logs=$(build_of "$arch")/logs
  say "ZRString: building for $arch"
  logged "$logs/configure.log" "CMake could not configure for $arch" configure "$arch"
  # A test program that the project no longer has would still lie there and be run.
  rm -f "$(build_of "$arch")"/tests/zrstring-*tests"$(suffix_of "$arch")"
  logged "$logs/build.log" "ZRString did not build for $arch" \
    cmake --build "$(build_of "$arch")" --parallel "$jobs"
  logged "$logs/gather.log" "the programs for $arch are incomplete" gather "$arch"
}

# start ARCH NAME [ARGUMENT...]: runs a program of the project in the folder where it lies.
start() (
  arch=$1 name=$2
  shift 2
  cd "$(build_of "$arch")/run"
  if [ "$arch" = linux ]; then
    exec env LC_ALL="$locale" timeout -k 10 1200 "./$name" "$@"
  fi
  wine "$arch" "$PWD/$name.exe" "$@"
)

# --- what is seen in the library's file -----------------------------------------------------------

# compare EXPECTED FOUND SENTENCE: in both directions.
compare() {
  if diff "$1" "$2"; then
    note "$3"
  else
    fail "not so: $3 ('<' above is missing, '>' is too much)"
  fi
}

# The names without C++ decoration are what C programs and those loading the DLL at run time rely
# on. The decorated ones show that ZRLong is `long` here. Names of types are not exported for
# Windows: they are reached through the type information.
check_exports() {
  local arch=$1 build tests=$top/tests
  build=$(build_of "$arch")
  "$arch-w64-mingw32-objdump" -p "$build/run/ZRString.dll" | awk '
    /^\[Ordinal\/Name Pointer\] Table/ { inside = 1; next }
    NF == 0                            { inside = 0 }
    inside                             { print $NF }' | LC_ALL=C sort > "$build/exports.txt"
  grep '^_Z' "$build/exports.txt" | c++filt |
    sed -E 's/\<unsigned long\>/ZRULong/g; s/\<long\>/ZRLong/g; s/__cxx11:://g
      s/^std::vector<ZRString\*, std::allocator<ZRString\*> >::.*/std::vector<ZRString*>::*/' |
    LC_ALL=C sort -u > "$build/exports-cpp.txt"
  compare "$tests/exports-plain.txt" <(grep -v '^_Z' "$build/exports.txt") \
    "$arch: the $(wc -l < "$tests/exports-plain.txt") plain names are exported, and no others"
  compare <(grep -v '^typeinfo name for ' "$tests/exports-cpp.txt") "$build/exports-cpp.txt" \
    "$arch: the $(wc -l < "$build/exports-cpp.txt") C++ names are exported, ZRLong as long"
}

# That the system heeds the call is shown by a test.
check_entry_point() {
  local arch=$1 dll slot
  dll=$(build_of "$arch")/run/ZRString.dll
  slot=$("$arch-w64-mingw32-nm" "$dll" |
    sed -nE 's/^0*([0-9a-f]+) . __imp_+DisableThreadLibraryCalls(@4)?$/\1/p')
  if [ -n "$slot" ] && "$arch-w64-mingw32-objdump" -p "$dll" |
    grep -w DisableThreadLibraryCalls > /dev/null && "$arch-w64-mingw32-objdump" -d "$dll" |
    sed -n '/<_*DllMain[@0-9]*>:/,/^$/p' | grep -E "call .*\<(0x)?$slot\>" > /dev/null; then
    note "$arch: DllMain calls DisableThreadLibraryCalls, which is imported"
  else
    fail "$arch: DllMain does not call DisableThreadLibraryCalls"
  fi
}

# --- what is seen when it runs --------------------------------------------------------------------

# Tests that only one side has, and why.
interposing="Linux only: it puts a function before one of ICU's, which Windows has no way to do"
declare -A one_sided=(
  [ProcessCollator.IsMadeOnceForTheFirstDefaultLocaleAndTriedAgainAfterFailure]=$interposing
  [Normalize.LeavesTheStringWhenIcuFails]=$interposing
  [EntryPoint.IsNotCalledForThreads]="Windows only: there is no entry point on Linux")

# Runs each test program, which writes its results itself, and only when it gets to its end; puts
# the names of the tests that passed into a file. A skipped test is not one.
run_tests() {
  local arch=$1 build program name xml log status tests
  build=$(build_of "$arch")
  say "tests: running for $arch"
  : > "$build/passed.txt"
  for program in "$build/run"/zrstring-*tests"$(suffix_of "$arch")"; do
    name=$(basename "$program" .exe)
    xml=$build/run/$name.xml
    log=$build/logs/$name.log
    status=0
    ZRSTRING_NORMALIZATION_DATA=$build/tests/NormalizationTest.txt \
      start "$arch" "$name" "--gtest_output=xml:$name.xml" > "$log" 2>&1 < /dev/null || status=$?
    tests=none
    if [ -f "$xml" ]; then
      # A test that failed has its failures inside, so its element does not end here.
      sed -nE 's#^ *<testcase name="([^"]*)".* result="completed".* classname="([^"]*)" />.*#\2.\1#p
        ' "$xml" > "$build/passed-now.txt"
      cat "$build/passed-now.txt" >> "$build/passed.txt"
      tests=$(sed -nE 's/^<testsuites tests="([0-9]+)".*/\1/p' "$xml")
    fi
    if [ "$tests" = none ] || [ "$status" -ne 0 ] ||
      [ "$tests" -eq 0 ] || [ "$tests" -ne "$(wc -l < "$build/passed-now.txt")" ]; then
      grep -E '^\[  (FAILED|SKIPPED) ' "$log" | sort -u >&2 || tail -n 30 "$log" >&2
      fail "$arch: $name: not every test passed ($tests in its results," \
        "exit status $status, see $log)"
    fi
  done
  LC_ALL=C sort -o "$build/passed.txt" "$build/passed.txt"
  note "$arch: $(wc -l < "$build/passed.txt") tests passed"
}

compare_tests() {
  local arch=$1 name
  while read -r name; do
    if [ -n "${one_sided[$name]:-}" ]; then
      note "$arch: $name: ${one_sided[$name]}"
    else
      fail "$arch: $name passed on one side only"
    fi
  done < <(LC_ALL=C comm -3 "$(build_of linux)/passed.txt" "$(build_of "$arch")/passed.txt" |
    tr -d '\t')
}

# same ARCH STATUS WHAT NAME [ARGUMENT...]: a run that has to print the same here and under Wine and
# to end in STATUS; its times may differ.
same() {
  local arch=$1 expected=$2 what=$3 side status printed
  shift 3
  for side in linux "$arch"; do
    status=0
    printed=$(build_of "$side")/logs/$1.txt
    start "$side" "$@" > "$printed" 2>&1 < /dev/null || status=$?
    sed -i -E 's/\r$//; s/ +[0-9.]+ ms$//' "$printed"
    if [ "$status" != "$expected" ] || ! [ -s "$printed" ]; then
      tail -n 30 "$printed" >&2
      fail "$arch: $what ($side): exit status $status instead of $expected," \
        "$(wc -c < "$printed") bytes printed"
      return
    fi
  done
  compare "$(build_of linux)/logs/$1.txt" "$printed" "$arch: $what prints the same as on Linux"
}

# The examples, and the programs whose output stands in the documentation.
run_examples() {
  local arch=$1 side program
  say "examples: running for $arch"
  for side in linux "$arch"; do rm -f "$(build_of "$side")/run/list"; done
  same "$arch" 0 "wordlist on $(wc -l < "$(build_of "$arch")/run/words.txt") words" \
    wordlist words.txt --save list --find maison
  if cmp "$(build_of linux)/run/list" "$(build_of "$arch")/run/list"; then
    note "$arch: the $(stat -c %s "$(build_of "$arch")/run/list") bytes it saves are those of Linux"
  else
    fail "$arch: wordlist saves other bytes than on Linux"
  fi
  same "$arch" 0 "wordlist on what it saved" wordlist --load list --find maisonnn
  same "$arch" 2 "wordlist on a missing file" wordlist missing.txt
  same "$arch" 0 "lookup" lookup words.txt maison
  same "$arch" 2 "lookup in a missing file" lookup missing.txt maison
  for program in "$(build_of linux)"/run/docs-*; do
    same "$arch" 0 "${program##*/}" "${program##*/}"
  done
}

# --- the whole ------------------------------------------------------------------------------------

do_architecture() {
  local arch=$1
  icu_for_windows "$arch"
  googletest_for_windows "$arch"
  "wine_for_$arch"
  build_project "$arch"
  note "$arch: built without warnings"
  check_exports "$arch"
  check_entry_point "$arch"
  if ! have_wine "$arch"; then
    note "$arch: compiled, NOT RUN (no Wine for it)"
    return
  fi
  set_up_prefix "$arch"
  start_wine "$arch"
  run_tests "$arch"
  compare_tests "$arch"
  run_examples "$arch"
}

arches="i686 x86_64"
case ${1:-} in
  '') ;;
  --arch)
    case ${2:-} in
      i686 | x86_64) arches=$2 ;;
      both) ;;
      *) usage >&2; exit 2 ;;
    esac
    [ "$#" -eq 2 ] || { usage >&2; exit 2; } ;;
  --exec)
    case ${2:-} in i686 | x86_64) ;; *) usage >&2; exit 2 ;; esac
    [ "$#" -ge 3 ] || { usage >&2; exit 2; } ;;
  -h | --help) usage; exit 0 ;;
  *) usage >&2; exit 2 ;;
esac

[ "$(id -u)" -eq 0 ] ||
  die "must be run as root (it installs packages and runs Wine in a system of its own)"
# shellcheck source=/dev/null
codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-unknown}")
[ "$codename" = bookworm ] || die "made for Debian 12 (bookworm), this is $codename"

cache=${ZRSTRING_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/zrstring-windows}
mkdir -p "$cache"
cache=$(cd "$cache" && pwd -P)
logs=$cache/logs
wine_root=$cache/wine-i386

if [ "${1:-}" = --exec ]; then
  shift
  have_wine "$1" || die "no Wine for $1 yet: run --arch $1 first"
  # The 32-bit system has none of this machine's files but the checkout.
  case $PWD/ in "$top"/*) ;; *) cd "$top" ;; esac
  wine "$@"
  exit
fi

exec 9> "$cache/lock"
if ! flock -n 9; then
  say "waiting for another run using the same cache"
  flock 9
fi
trap stop_wine EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

install_tools
icu_source
build_project linux
run_tests linux
for arch in $arches; do
  do_architecture "$arch"
done

echo
echo "Summary, after $SECONDS s:"
printf '  %s\n' "${summary[@]}"
exit "$failed"
