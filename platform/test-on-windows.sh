#!/bin/bash
#
# Builds ZRString, its tests and its examples for Windows on a Debian 12
# machine and runs them under Wine.  Starting from a bare system it installs
# the tools, cross-builds ICU and GoogleTest with Debian's MinGW-w64, sets up
# a 32-bit Wine in a folder of its own, builds the project through its CMake
# files, runs everything and prints a summary.
#
# ICU, GoogleTest and Wine are kept in a cache folder, so only the first run
# takes its time.  A part counts as ready once its stamp is written, which is
# the last thing done for it: an interrupted run is picked up again by the
# next one.
#
# Most functions are called through logged(), which shellcheck cannot follow,
# and dpkg and apt have variables of their own.
# shellcheck disable=SC2317,SC2016

set -euo pipefail

usage() {
    cat <<'USAGE'
Usage: platform/test-on-windows.sh [--arch i686|x86_64|both]
       platform/test-on-windows.sh --exec i686|x86_64 PROGRAM [ARGUMENT...]

  --arch  what to build and run: 32-bit Windows, 64-bit Windows or, which is
          the default, the one after the other
  --exec  run one Windows program the way the tests are run; PROGRAM has to
          lie inside this checkout

Must be run as root on Debian 12.  What is built outside the project is kept
in $ZRSTRING_CACHE (default: ${XDG_CACHE_HOME:-~/.cache}/zrstring-windows).
USAGE
}

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
self=$top/platform/$(basename "${BASH_SOURCE[0]}")
cache=${ZRSTRING_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/zrstring-windows}
logs=$cache/logs
wine_root=$cache/wine-i386
jobs=$(nproc)
started=$SECONDS
summary=()
failed=0

say()  { printf '[%4ds] %s\n' "$((SECONDS - started))" "$*"; }
die()  { printf 'test-on-windows: %s\n' "$*" >&2; exit 1; }
note() { summary+=("$*"); }
fail() { summary+=("FAILED: $*"); failed=1; }

# logged LOG SENTENCE COMMAND...: runs the command with its output going to
# LOG.  If it fails, shows the end of LOG and stops with SENTENCE.  The
# subshell gets its own "set -e", which a condition around it would disarm.
logged() {
    local log=$1 sentence=$2 status
    shift 2
    mkdir -p "$(dirname "$log")"
    set +e
    (set -e; "$@") >"$log" 2>&1 </dev/null
    status=$?
    set -e
    if [ "$status" -ne 0 ]; then
        echo "--- the last lines of $log:" >&2
        tail -n 30 "$log" >&2
        echo "---" >&2
        die "$sentence (exit status $status)"
    fi
}

# ready PART KEY: whether PART was completed, and for this KEY (the versions
# it was made from).  Anything else is made anew or resumed.
ready() { [ -f "$cache/$1.done" ] && [ "$(cat "$cache/$1.done")" = "$2" ]; }
stamp() { printf '%s\n' "$2" >"$cache/$1.done"; }

# Removes a folder of the cache, never reaching through a mount point.
remove_tree() {
    case $1 in "$cache"/?*) ;; *) die "refusing to remove $1" ;; esac
    if cut -d' ' -f5 /proc/self/mountinfo | grep -qF "$1/"; then
        die "something is mounted below $1; unmount it first"
    fi
    rm -rf --one-file-system "$1"
}

version_of() { dpkg-query -W -f '${Version}' "$1"; }

# --- tools ------------------------------------------------------------------

apt_get() {
    DEBIAN_FRONTEND=noninteractive \
        apt-get -q -o DPkg::Lock::Timeout=600 "$@"
}

install_packages() {
    apt_get update
    apt_get install -y --no-install-recommends "$@"
}

# missing PACKAGE...: prints those which are not installed.
missing() {
    local package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null |
            grep -qx installed || echo "$package"
    done
}

install_tools() {
    local wanted absent
    wanted=(g++ make cmake ninja-build python3 dpkg-dev debootstrap googletest
            ca-certificates debian-archive-keyring)
    case $arches in *i686*)   wanted+=(g++-mingw-w64-i686-posix) ;; esac
    case $arches in *x86_64*) wanted+=(g++-mingw-w64-x86-64-posix) ;; esac
    mapfile -t absent < <(missing "${wanted[@]}")
    if [ "${#absent[@]}" -eq 0 ]; then
        say "tools: all installed"
        return
    fi
    say "tools: installing ${absent[*]}"
    logged "$logs/tools.log" "the tools could not be installed" \
        install_packages "${absent[@]}"
}

# The Debian mirror this machine itself is set up with.
find_mirror() {
    local mirrors
    mirrors=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' \
        'Origin: Debian' "Release: $codename" 'Component: main')
    if [ -z "$mirrors" ]; then
        logged "$logs/update.log" "the package lists could not be fetched" \
            apt_get update
        mirrors=$(apt-get indextargets --format '$(REPO_URI)' \
            'Created-By: Packages' 'Origin: Debian' "Release: $codename" \
            'Component: main')
    fi
    mirror=${mirrors%%$'\n'*}
    [ -n "$mirror" ] ||
        die "apt on this machine knows no Debian mirror with $codename main"
}

# --- ICU --------------------------------------------------------------------

icu_switches=(--disable-samples --disable-tests --disable-extras
              --disable-layoutex --disable-icuio)

# Debian's source package, fetched with lists of its own: the machine's apt
# configuration stays as it is.
fetch_icu_source() {
    local part=$cache/icu-source.part
    remove_tree "$part"
    mkdir -p "$part/lists/partial" "$part/cache/archives/partial"
    echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg]" \
        "$mirror $codename main" >"$part/sources.list"
    local own=(-o Dir::Etc::sourcelist="$part/sources.list"
               -o Dir::Etc::sourceparts=-
               -o Dir::State::lists="$part/lists"
               -o Dir::Cache="$part/cache"
               -o APT::Sandbox::User=root)
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
        logged "$logs/icu-source.log" "ICU's sources could not be fetched" \
            fetch_icu_source
        stamp icu-source \
            "$(dpkg-parsechangelog -l "$cache/icu-source/debian/changelog" -S Version)"
    fi
    icu_version=$(cat "$cache/icu-source.done")
}

# icu_make FOLDER COMPILER-PREFIX COMPILER-SUFFIX SWITCH...
# Goes on where an interrupted build stopped.
icu_make() {
    local folder=$1 prefix=$2 suffix=$3
    shift 3
    mkdir -p "$folder"
    cd "$folder"
    if ! [ -f configured ]; then
        CC=${prefix}gcc$suffix CXX=${prefix}g++$suffix \
            ../icu-source/source/configure "${icu_switches[@]}" "$@"
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
    logged "$logs/icu-host.log" "ICU did not build for this machine" \
        icu_make "$cache/icu-host" "" ""
    stamp icu-host "$key"
}

icu_make_windows() {
    local arch=$1
    icu_make "$cache/icu-build-$arch" "$arch-w64-mingw32-" -posix \
        --host="$arch-w64-mingw32" --with-cross-build="$cache/icu-host" \
        --prefix="$cache/$arch/icu" --disable-tools
    remove_tree "$cache/$arch/icu"
    make install
    # For i686 the icudt72.dll installed is the empty stub that the other DLLs
    # were linked against, and the library with the data is libicudt72.dll;
    # for x86_64 the one with the data has the right name at once.
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
    if ready "icu-$arch" "$key"; then
        say "ICU for $arch: at hand"
        return
    fi
    icu_for_this_machine
    if [ -f "$cache/icu-$arch.done" ]; then
        remove_tree "$cache/icu-build-$arch"
    fi
    say "ICU $icu_version: building for $arch (some minutes)"
    logged "$logs/icu-$arch.log" "ICU did not build for $arch" \
        icu_make_windows "$arch"
    stamp "icu-$arch" "$key"
}

# --- GoogleTest -------------------------------------------------------------

compiler_version() { version_of "g++-mingw-w64-${1/_/-}-posix"; }

make_googletest() {
    local arch=$1 build=$cache/googletest-build-$1
    remove_tree "$build"
    remove_tree "$cache/$arch/googletest"
    cmake -G Ninja -S /usr/src/googletest -B "$build" \
        -DCMAKE_TOOLCHAIN_FILE="$top/cmake/mingw-$arch.cmake" \
        -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_INSTALL_PREFIX="$cache/$arch/googletest"
    nice cmake --build "$build"
    cmake --install "$build"
}

googletest_for_windows() {
    local arch=$1 key
    key="$(version_of googletest), $arch $(compiler_version "$arch")"
    if ready "googletest-$arch" "$key"; then
        say "GoogleTest for $arch: at hand"
        return
    fi
    say "GoogleTest: building for $arch"
    logged "$logs/googletest-$arch.log" "GoogleTest did not build for $arch" \
        make_googletest "$arch"
    stamp "googletest-$arch" "$key"
}

# --- Wine -------------------------------------------------------------------

# What happens inside the 32-bit system happens in a mount namespace of its
# own: whatever is mounted there vanishes with the last process in it, and no
# mount is ever visible to the rest of the machine.
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

# The machine's way to the mirror (proxies and the like) holds for the 32-bit
# system as well.
make_wine_base() {
    local proxy
    remove_tree "$wine_root"
    proxy=$(apt-config dump --format '%v' Acquire::http::Proxy)
    if [ -n "$proxy" ]; then export http_proxy=$proxy; fi
    unshare --mount --propagation private debootstrap --arch=i386 \
        --variant=minbase \
        --keyring=/usr/share/keyrings/debian-archive-keyring.gpg \
        "$codename" "$wine_root" "$mirror"
    apt-config dump Acquire |
        grep -E '^Acquire::(https?::|Check-|Retries)' \
            >"$wine_root/etc/apt/apt.conf.d/90acquire" || true
}

make_wine32() {
    in_wine_root 0 env DEBIAN_FRONTEND=noninteractive PATH="$PATH" sh -ec '
        apt-get -q update
        apt-get -q install -y --no-install-recommends wine32 wine
        apt-get clean'
}

# 64-bit systems have no 32-bit Wine among their own packages: it comes as a
# small 32-bit system in the cache.
wine_for_i686() {
    if [ -f "$cache/wine-i686.done" ]; then
        say "Wine for i686: at hand"
        return
    fi
    if ! [ -f "$cache/wine-base.done" ]; then
        find_mirror
        say "Wine: making a 32-bit system for it"
        logged "$logs/wine-base.log" "the 32-bit system could not be made" \
            make_wine_base
        stamp wine-base "$codename"
    fi
    say "Wine: installing its 32-bit part there"
    logged "$logs/wine-i686.log" "Wine's 32-bit part could not be installed" \
        make_wine32
    stamp wine-i686 "$(chroot "$wine_root" dpkg-query -W -f '${Version}' wine32)"
}

# Where there is none to be had, the 64-bit build is compiled only.
wine_for_x86_64() {
    if have_wine x86_64; then
        say "Wine for x86_64: at hand"
        return
    fi
    say "Wine: installing its 64-bit part"
    mkdir -p "$logs"
    if ! { apt_get update &&
           apt_get install -y --no-install-recommends wine64
         } >"$logs/wine-x86_64.log" 2>&1 </dev/null; then
        say "Wine for x86_64 could not be installed, see $logs/wine-x86_64.log"
    fi
}

# with_wine ARCH COMMAND...: runs a command of Wine's.  Without its debugger
# Wine ends a crashing program with a non-zero exit status, with it by 0.
with_wine() {
    local arch=$1 prefix=$cache/wineprefix-$1 settings
    shift
    mkdir -p "$prefix"
    settings=(WINEPREFIX="$prefix" WINEDEBUG=-all HOME="$prefix"
              "WINEDLLOVERRIDES=mscoree,mshtml,winemenubuilder.exe,winedbg.exe="
              "WINEPATH=${WINEPATH:-}")
    case $arch in
        i686)
            in_wine_root 2 "$top" "$prefix" env -C "$PWD" -u DISPLAY \
                PATH=/usr/lib/wine:/usr/bin:/bin "${settings[@]}" \
                WINELOADER=/usr/lib/wine/wine \
                WINESERVER=/usr/lib/wine/wineserver32 "$@" ;;
        x86_64)
            env -u DISPLAY "${settings[@]}" PATH="/usr/lib/wine:$PATH" \
                WINELOADER=/usr/lib/wine/wine64 \
                WINESERVER=/usr/lib/wine/wineserver64 "$@" ;;
    esac
}

# run_program ARCH PROGRAM [ARGUMENT...].  The exit status alone proves
# nothing: Wine can report success without having run the program.  Callers
# look for something that the program itself wrote.
run_program() {
    local arch=$1 loader=wine
    shift
    if [ "$arch" = x86_64 ]; then loader=wine64; fi
    with_wine "$arch" "/usr/lib/wine/$loader" "$@"
}

# The first start writes the prefix; that is kept apart from the tests.
set_up_prefix() {
    local arch=$1
    if [ -f "$cache/wineprefix-$arch.done" ]; then return; fi
    say "Wine: first start for $arch"
    remove_tree "$cache/wineprefix-$arch"
    logged "$logs/wineprefix-$arch.log" "Wine did not start for $arch" \
        timeout -k 10 300 "$self" --exec "$arch" wineboot --init
    logged "$logs/wineprefix-$arch.log" "Wine did not settle for $arch" \
        with_wine "$arch" timeout 120 "$(server_of "$arch")" -w
    stamp "wineprefix-$arch" ready
}

have_wine() {
    case $1 in
        i686) [ -f "$cache/wine-i686.done" ] ;;
        *)    [ -x /usr/lib/wine/wine64 ] ;;
    esac
}

server_of() {
    case $1 in
        i686) echo /usr/lib/wine/wineserver32 ;;
        *)    echo /usr/lib/wine/wineserver64 ;;
    esac
}

# Ends the servers of our own prefixes, which linger for a few seconds.
stop_wine() {
    local arch
    for arch in $arches; do
        if [ -d "$cache/wineprefix-$arch" ] && have_wine "$arch"; then
            with_wine "$arch" "$(server_of "$arch")" -k >/dev/null 2>&1 || true
        fi
    done
}

# --- the project ------------------------------------------------------------

build_of() { echo "$top/build/windows-$1"; }

# Everything the programs load besides ZRString.dll goes into one folder.
copy_runtime() {
    local arch=$1 run=$2 icu=$cache/$1/icu/bin name file
    local compiler=$arch-w64-mingw32-g++-posix
    local unwinder=libgcc_s_seh-1.dll
    if [ "$arch" = i686 ]; then unwinder=libgcc_s_dw2-1.dll; fi
    rm -rf "$run"
    mkdir -p "$run"
    for name in libstdc++-6.dll "$unwinder" libwinpthread-1.dll; do
        file=$("$compiler" -print-file-name="$name")
        if [ "$file" = "$name" ]; then
            echo "$compiler knows no $name"
            return 1
        fi
        cp "$file" "$run/"
    done
    cp "$icu/icuuc72.dll" "$icu/icuin72.dll" "$icu/icudt72.dll" "$run/"
}

configure_project() {
    local arch=$1 build
    build=$(build_of "$arch")
    cmake -G Ninja -S "$top" -B "$build" \
        -DCMAKE_TOOLCHAIN_FILE="$top/cmake/mingw-$arch.cmake" \
        -DCMAKE_FIND_ROOT_PATH="$cache/$arch/icu;$cache/$arch/googletest" \
        -DCMAKE_CROSSCOMPILING_EMULATOR="$self;--exec;$arch" \
        -DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST \
        -DCMAKE_BUILD_TYPE=Release \
        -DZRSTRING_BUILD_TESTS=ON \
        -DZRSTRING_BUILD_EXAMPLES=ON \
        -DZRSTRING_BUILD_BENCHMARKS=OFF
}

build_project() {
    local arch=$1 build
    build=$(build_of "$arch")
    say "ZRString: building for $arch"
    logged "$build/logs/runtime.log" "the DLLs for $arch are incomplete" \
        copy_runtime "$arch" "$build/run"
    logged "$build/logs/configure.log" "CMake could not configure for $arch" \
        configure_project "$arch"
    logged "$build/logs/build.log" "ZRString did not build for $arch" \
        cmake --build "$build" --parallel "$jobs"
    find "$build" -path "$build/run" -prune -o -path '*/CMakeFiles' -prune -o \
        -type f \( -name '*.dll' -o -name '*.exe' \) \
        -exec cp -t "$build/run" {} +
    if ! [ -f "$build/run/ZRString.dll" ]; then
        die "the build for $arch made no ZRString.dll"
    fi
}

# --- running ----------------------------------------------------------------

# exec_program ARCH PROGRAM [ARGUMENT...]: the --exec option.
exec_program() {
    local arch=$1 build
    build=$(build_of "$arch")
    have_wine "$arch" || die "no Wine for $arch yet: run --arch $arch first"
    # The 32-bit system has none of this machine's files but the checkout.
    case $PWD/ in "$top"/*) ;; *) cd "$top" ;; esac
    WINEPATH="Z:${build//\//\\}\\run;Z:${build//\//\\}"
    run_program "$@"
}

# xml_count ATTRIBUTE FILE: a number from the outermost element.
xml_count() {
    sed -n "s/^<testsuites .*\b$1=\"\([0-9]*\)\".*/\1/p" "$2"
}

run_tests() {
    local arch=$1 build status=0 tests failures disabled skipped
    build=$(build_of "$arch")
    local run=$build/run xml=$build/run/tests.xml log=$build/logs/tests.log
    say "tests: running for $arch"
    rm -f "$xml"
    cd "$run"
    timeout -k 10 1200 "$self" --exec "$arch" "$run/zrstring-tests.exe" \
        --gtest_output=xml:tests.xml >"$log" 2>&1 </dev/null || status=$?
    cd "$top"
    # Only the program itself writes this file, and only when it got to its
    # end.
    if ! [ -s "$xml" ] || [ -z "$(xml_count tests "$xml")" ]; then
        tail -n 30 "$log" >&2
        fail "$arch: the tests left no results (exit status $status, see $log)"
        return
    fi
    tests=$(xml_count tests "$xml")
    failures=$(xml_count failures "$xml")
    failures=$((failures + $(xml_count errors "$xml")))
    disabled=$(xml_count disabled "$xml")
    skipped=$(grep -c '<testcase .*result="skipped"' "$xml" || true)
    local ran=$((tests - disabled - skipped))
    local counts="$ran tests run, $((ran - failures)) passed, $failures failed"
    if [ "$((disabled + skipped))" -gt 0 ]; then
        counts+=", $disabled disabled, $skipped skipped"
    fi
    if [ "$failures" -gt 0 ]; then
        grep -E '^\[  FAILED  \]' "$log" | sort -u >&2 || true
        fail "$arch: $counts (see $log)"
    elif [ "$status" -ne 0 ]; then
        fail "$arch: $counts, but the program ended with exit status $status"
    elif [ "$ran" -eq 0 ]; then
        fail "$arch: the test program contains no tests"
    else
        note "$arch: $counts"
    fi
}

# run_example ARCH NAME EXPECTED ARGUMENT...: EXPECTED is a line (a regular
# expression) which the program has to print.
run_example() {
    local arch=$1 name=$2 expected=$3 build run log status=0
    build=$(build_of "$arch")
    run=$build/run
    log=$build/logs/example-$name.log
    shift 3
    cd "$run"
    timeout -k 10 120 "$self" --exec "$arch" "$run/$name.exe" "$@" \
        >"$log" 2>&1 </dev/null || status=$?
    cd "$top"
    if [ "$status" -eq 0 ] && tr -d '\r' <"$log" | grep -Eq -e "$expected"; then
        note "$arch: example $name ran"
    else
        tail -n 30 "$log" >&2
        fail "$arch: example $name (exit status $status, see $log)"
    fi
}

run_examples() {
    local arch=$1 run
    run=$(build_of "$arch")/run
    say "examples: running for $arch"
    printf '%s\n' cherry apple banana >"$run/words.txt"
    run_example "$arch" wordlist banana words.txt --find banana
    run_example "$arch" lookup banana words.txt banana
}

# --- the export table -------------------------------------------------------

# exported_names ARCH DLL: all names in the DLL's export table.
exported_names() {
    "$1-w64-mingw32-objdump" -p "$2" | awk '
        /^\[Ordinal\/Name Pointer\] Table/ { inside = 1; next }
        inside && NF == 0                  { exit }
        inside                             { print $NF }'
}

# The names without C++ decoration are what C programs and those loading the
# DLL at run time rely on: compared with the list, both ways.
check_exports() {
    local arch=$1 build list=$top/tests/exports-plain.txt
    build=$(build_of "$arch")
    if ! [ -f "$list" ]; then
        fail "$arch: exports not compared, there is no tests/exports-plain.txt"
        return
    fi
    say "exports: comparing for $arch"
    exported_names "$arch" "$build/run/ZRString.dll" |
        grep -v -e '^_Z' -e '^?' | LC_ALL=C sort >"$build/exports-found.txt" || true
    tr -d '\r' <"$list" | sed '/^$/d' |
        LC_ALL=C sort >"$build/exports-expected.txt"
    local absent surplus
    absent=$(LC_ALL=C comm -13 "$build/exports-found.txt" "$build/exports-expected.txt")
    surplus=$(LC_ALL=C comm -23 "$build/exports-found.txt" "$build/exports-expected.txt")
    if [ -n "$absent" ]; then
        fail "$arch: not exported under their plain names:" "${absent//$'\n'/ }"
    fi
    if [ -n "$surplus" ]; then
        fail "$arch: exported but not on the list:" "${surplus//$'\n'/ }"
    fi
    if [ -z "$absent$surplus" ]; then
        note "$arch: all $(wc -l <"$build/exports-expected.txt") plain names" \
            "exported, no others"
    fi
}

# --- the whole --------------------------------------------------------------

do_architecture() {
    local arch=$1
    icu_for_windows "$arch"
    googletest_for_windows "$arch"
    "wine_for_$arch"
    build_project "$arch"
    check_exports "$arch"
    if have_wine "$arch"; then
        set_up_prefix "$arch"
        run_tests "$arch"
        run_examples "$arch"
    else
        note "$arch: compiled, NOT RUN (no Wine for it)"
    fi
}

arches="i686 x86_64"
mode='test'
while [ "$#" -gt 0 ]; do
    case $1 in
        --arch)
            case ${2:-} in
                i686|x86_64) arches=$2 ;;
                both)        ;;
                *)           usage >&2; exit 2 ;;
            esac
            shift 2 ;;
        --exec)
            case ${2:-} in i686|x86_64) ;; *) usage >&2; exit 2 ;; esac
            [ "$#" -ge 3 ] || { usage >&2; exit 2; }
            mode='exec'
            shift
            break ;;
        -h|--help) usage; exit 0 ;;
        *)         usage >&2; exit 2 ;;
    esac
done

[ "$(id -u)" -eq 0 ] || die "must be run as root (it installs packages and" \
    "runs Wine in a system of its own)"
# shellcheck source=/dev/null
codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-unknown}")
[ "$codename" = bookworm ] || die "made for Debian 12 (bookworm), this is $codename"

mkdir -p "$cache"
cache=$(cd "$cache" && pwd -P)
logs=$cache/logs
wine_root=$cache/wine-i386

if [ "$mode" = exec ]; then
    exec_program "$@"
    exit
fi

[ -f "$top/CMakeLists.txt" ] || die "there is no CMakeLists.txt in $top"
exec 9>"$cache/lock"
if ! flock -n 9; then
    say "waiting for another run using the same cache"
    flock 9
fi
trap stop_wine EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

install_tools
icu_source
for arch in $arches; do
    do_architecture "$arch"
done

echo
echo "Summary, after $((SECONDS - started)) s:"
printf '  %s\n' "${summary[@]}"
exit "$failed"
