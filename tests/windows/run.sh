#!/usr/bin/env bash
# Makes the packages for Windows, or the one that is named, and runs their tests and those of the
# build behind them under Wine, or the tests that arguments for ctest select. Takes minutes and must
# be run as root: Wine runs in a separate Debian system in $ZRSTRING_CACHE
# (~/.cache/zrstring-windows), which is made anew when Debian has another Wine.
# usage: tests/windows/run.sh [i686|x86_64 [CTEST-ARGUMENT...]]
# shellcheck disable=SC2016 # what the shell in the namespace expands
set -euo pipefail
top=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../..")
. "$top/tools/steps.inc.sh"
case ${1:-} in
  '') "$0" i686; exec "$0" x86_64 ;;
  i686) export WINEARCH=win32 ;;
  x86_64) export WINEARCH=win64 ;;
  *) die "the architectures are i686 and x86_64" ;;
esac
. "$top/tools/bare-debian.inc.sh"
"$top/tools/install-packages.sh" bzip2 clang lld python3 unicode-data
cache=$(realpath -m "${ZRSTRING_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/zrstring-windows}")
version=$(LC_ALL=C apt-cache policy wine64 | sed -n 's/^  Candidate: //p')
export top wine_root=$cache/wine-$version build=$top/build/windows-$1

make_root() {
  [ ! -e "$wine_root" ] || return 0
  say "Wine: installing it ($version)"
  rm -rf --one-file-system "$cache"/wine-*
  logged "$cache/wine.log" make_debian "$(sed -n 's/VERSION_CODENAME=//p' /etc/os-release)" \
    "$wine_root.new" --architectures=amd64,i386 --include=wine,wine64,wine32:i386
  mv "$wine_root.new" "$wine_root"
}
mkdir -p "$cache"
(flock 9 && make_root) 9> "$cache/wine.lock"

"$top/tools/windows/make-packages.sh" "$1" -DZRSTRING_BUILD_TESTS=ON -DZRSTRING_BUILD_EXAMPLES=ON \
  -DCMAKE_CROSSCOMPILING_EMULATOR="$top/tests/windows/wine.sh"

say "testing: $1"
export WINEPREFIX=$build/wine WINEDEBUG=-all DISPLAY=
# Without its debugger, Wine terminates a program that crashes, with a status other than 0.
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe,winedbg.exe='
rm -rf "$WINEPREFIX"
mkdir "$WINEPREFIX"
# Processes and mounts in there end with it, and the rest of the machine never sees the mounts. Of
# this machine's files, Windows programs see the checkout. Wine's services are started first, since
# they hold the output of the program that starts them.
unshare --pid --fork --mount-proc bash -ec '
  mkdir -p "$wine_root$top"
  mount --bind "$top" "$wine_root$top"
  mount --rbind /dev "$wine_root/dev"
  mount -t proc proc "$wine_root/proc"
  (chroot "$wine_root" wineserver -p; chroot "$wine_root" wineboot) > "$build/logs/wine.log" 2>&1
  ctest --test-dir "$build" -j "$(nproc)" --no-tests=error --output-on-failure \
    --output-junit tests.xml "$@"
  exit' ctest "${@:2}"
grep -q 'skipped="0"' "$build/tests.xml" || die "a test was skipped; none should be"
