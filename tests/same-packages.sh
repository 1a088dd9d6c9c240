#!/usr/bin/env bash
# Makes the packages for Debian, Windows and Python, or those that are named, twice: here, and in a
# copy of the sources, three days later. Compares them byte for byte. Installs the Debian packages
# that are missing. Takes a minute; the first time, those for Windows take half an hour more.
# usage: tests/same-packages.sh [debian|windows|python]...
set -euo pipefail
top=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
. "$top/tools/steps.inc.sh"
cd "$top"  # the names of the packages are patterns

version=$(sed -n 's/^project(ZRString VERSION \([0-9.]*\).*/\1/p' "$top/CMakeLists.txt")
declare -A commands=(
  [debian]=tools/debian/make-packages.sh
  [windows]=tools/windows/make-packages.sh
  [python]='tools/install-packages.sh python3
    rm -rf build/python
    mkdir -p build/python
    cd python
    python3 -Bc "import zrstring_build as package
for make in package.build_wheel, package.build_sdist: make(\"../build/python\")"')
declare -A packages=(
  [debian]="build/packages/{libzrstring{1,1-dbgsym,-dev},python3-zrstring}_$version-*.deb"
  [windows]="build/windows-{i686/zrstring-$version-win32,x86_64/zrstring-$version-win64}.zip"
  [python]="build/python/zrstring-$version{-py3-none-any.whl,.tar.gz}")

for kind; do
  [[ $kind =~ ^(debian|windows|python)$ ]] || die "the packages are debian, windows and python"
done
"$top/tools/install-packages.sh" faketime
copy=$(mktemp -d "${TMPDIR:-/var/tmp}/zrstring.XXXXXX")
trap 'rm -rf "$copy"' EXIT
copy_project "$copy"
# A cache of compiled files would hide what depends on the folder. The copy has no commit.
unset CMAKE_C_COMPILER_LAUNCHER CMAKE_CXX_COMPILER_LAUNCHER
SOURCE_DATE_EPOCH=$("$top/tools/source-date.sh")
export SOURCE_DATE_EPOCH
[ $# -gt 0 ] || set -- debian windows python
for kind; do
  say "$kind: making the packages twice"
  logs=$top/build/same-packages
  logged "$logs/$kind.log" env -C "$top" bash -ec "${commands[$kind]}"
  logged "$logs/$kind-later.log" env -C "$copy" faketime -f +3d bash -ec "${commands[$kind]}"
  for package in $(eval "printf '%s\n' ${packages[$kind]}"); do
    cmp "$top/$package" "$copy/$package" || die "$package is missing or differs"
    say "the same: $package"
  done
done
