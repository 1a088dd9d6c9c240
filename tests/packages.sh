#!/usr/bin/env bash
# On a bare Debian 12 and a bare Debian 13, or the one that is named: makes the Debian packages, has
# lintian check them, and installs and uses them on systems that have nothing else. Takes minutes
# and must be run as root.
# usage: tests/packages.sh [bookworm|trixie]
# shellcheck disable=SC2016 # what the shells and dpkg in there expand
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
. "$top/tools/steps.sh"
. "$top/tools/bare-debian.sh"
. "$top/tests/pages.sh"

# check_files PACKAGE COMPONENT: compares the files in PACKAGE with those of COMPONENT in
# install/files.txt.
check_files() {
  local libdir=lib/$multiarch
  {
    sed -nE "s|^$2 ||p" "$top/tests/install/files.txt" |
      sed -e 's|/PREFIX/|/usr/|' -e "s|\<LIBDIR/|$libdir/|" -e 's|CONFIG|release|'
    printf "share/doc/$1/%s\n" changelog.Debian.gz changelog.gz copyright
  } | sed 's|^|./usr/|' | LC_ALL=C sort > "$work/expected"
  dpkg-deb --fsys-tarfile "$packages/$1.deb" | tar -t | grep -v '/$' | LC_ALL=C sort > "$work/found"
  diff -u "$work/expected" "$work/found" || die "the files in $1"
}

# check_run ROOT: runs the first program of the reference pages and compares what it prints.
check_run() {
  in_debian "$1" /road > "$work/output" || die "the program ended with status $?"
  road_output | diff -u - "$work/output" || die "the output of the program"
}

# install_in ROOT PACKAGE...: those made here, and others of Debian's.
install_in() {
  local root=$1 package
  local -a wanted=()
  shift
  for package in "$@"; do
    if [ -f "$packages/$package.deb" ]; then
      cp "$packages/$package.deb" "$root/"
      package=/$package.deb
    fi
    wanted+=("$package")
  done
  in_debian "$root" sh -ec 'apt-get -q update; apt-get -q install -y --no-install-recommends "$@"' \
    sh "${wanted[@]}"
}

absent_in() {
  ! in_debian "$1" dpkg-query -W -f '${db:Status-Status}' "$2" 2> /dev/null | grep -qx installed ||
    die "$2 is installed, so this shows nothing"
}

# make_packages ROOT: in there, where all that building takes is installed. Each package is then there
# as $packages/NAME.deb, too.
make_packages() {
  local package
  copy_project "$1/project"
  in_debian "$1" /project/tools/debian/make-packages
  for package in "$packages"/*.deb; do cp "$package" "${package%%_*}.deb"; done
  install_in "$1" lintian
}

case $* in
  '') set -- bookworm trixie ;;
  bookworm | trixie) ;;
  *) die "the systems are bookworm and trixie" ;;
esac
for codename in "$@"; do
  maker=$work/$codename user=$work/$codename-user runner=$work/$codename-runner
  packages=$maker/project/build/packages logs=$top/build/packages-$codename
  say "$codename: making three bare systems"
  logged "$logs/make.log" make_debian "$codename" "$maker"
  cp -a "$maker" "$user"
  cp -a "$maker" "$runner"

  say "$codename: making the packages"
  logged "$logs/packages.log" make_packages "$maker"
  multiarch=$(in_debian "$maker" dpkg-architecture -qDEB_HOST_MULTIARCH)
  check_files libzrstring1 Runtime
  check_files libzrstring-dev Development
  dpkg-deb -f "$packages/libzrstring1.deb" Depends | grep -qE 'libicu[0-9]+ .*libstdc\+\+6' ||
    die "libzrstring1 does not depend on ICU and the C++ library"
  say "$codename: lintian"
  in_debian "$maker" sh -c \
    'lintian --allow-root --fail-on error,warning /project/build/packages/*.changes'

  say "$codename: building a program with the packages and a C compiler"
  logged "$logs/user.log" install_in "$user" libzrstring1 libzrstring-dev gcc libc6-dev pkg-config
  absent_in "$user" libicu-dev
  cp "$top/docs/snippets/road.c" "$user/"
  logged "$logs/compile.log" in_debian "$user" sh -c 'cc -std=c99 -pedantic -Wall -Wextra -Werror \
    $(pkg-config --cflags --libs zrstring) -o /road /road.c $(pkg-config --libs zrstring)'
  check_run "$user"

  say "$codename: running it with libzrstring1 alone"
  logged "$logs/runner.log" install_in "$runner" libzrstring1
  absent_in "$runner" libzrstring-dev
  cp "$user/road" "$runner/"
  check_run "$runner"

  say "$codename: debugging a program built with -g, with libzrstring1-dbgsym"
  logged "$logs/debug.log" install_in "$user" libzrstring1-dbgsym g++ gdb
  cp "$top/tests/debugger/Samples.cpp" "$user/"
  in_debian "$user" sh -ec 'c++ -g -std=c++17 /Samples.cpp -lZRString -o /samples
    gdb -q -batch -ex "break Stop" -ex run -ex up -ex "info locals" /samples' > "$work/locals"
  for shown in 'shared = "shared" (length 6, holders 3)' 'emptyText = "" (length 0, holders 1)'; do
    grep -qF "$shown" "$work/locals" || die "GDB shows $(cat "$work/locals")"
  done
done
say "the packages work"
