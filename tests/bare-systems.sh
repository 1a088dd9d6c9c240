#!/usr/bin/env bash
# Tries the project on a bare Debian 12 and a bare Debian 13, in 20 minutes. Must be run as root.
#   install   follows "Install it" of the README to the letter and builds the README's programs
#   packages  makes the Debian packages twice, has lintian check them, and installs them elsewhere
#   run       runs ./run-example and ./run-tests, each twice
# usage: tests/bare-systems.sh [bookworm|trixie [install|packages|run]]
# shellcheck disable=SC2016 # what the shells in there expand
set -euo pipefail
top=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
. "$top/tools/steps.inc.sh"
[[ "${1:-trixie} ${2:-run}" =~ ^(bookworm|trixie)\ (install|packages|run)$ ]] ||
  die "usage: tests/bare-systems.sh [bookworm|trixie [install|packages|run]]"
. "$top/tools/bare-debian.inc.sh"
. "$top/tests/pages.inc.sh"

check_install() {
  cp -a "$bare" "$bare-install"
  copy_project "$bare-install/project"
  write_programs "$bare-install/project"
  in_debian "$bare-install" bash -exo pipefail -c 'cd /project
    sudo() { "$@"; }
    apt-get() { command apt-get -y -q "$@"; }
    apt-get update
    . <(sed -n "/^## Install it/,/^    sudo ldconfig/s/^    //p" README.md)
    apt-get install pkg-config
    cc readme.c $(pkg-config --cflags --libs zrstring) -o program
    ./program | diff readme.txt -
    c++ -std=c++17 readme.cpp $(pkg-config --cflags --libs zrstring) -o program
    ./program | diff readme.txt -
    apt-get install --no-install-recommends devscripts
    [ "$(hardening-check /usr/local/lib/libZRString.so.1 |
      grep -cE "(Stack protected|Read-only relocations|Immediate binding): yes")" = 3 ]
    cmake --build build/install --target uninstall
    [ -z "$(find /usr/local -name "*ZRString*")" ]'
}

# check_files PACKAGE COMPONENT: PACKAGE holds the files of COMPONENT.
check_files() {
  {
    installed_files "$2" /usr "lib/$multiarch" release
    printf "share/doc/$1/%s\n" changelog.Debian.gz changelog.gz copyright
  } | sed 's|^|./usr/|' | sort |
    diff - <(dpkg-deb --fsys-tarfile "$packages/$1"_*.deb | tar -t | grep -v '/$' | sort)
}

# add_packages ROOT PACKAGE...: installs packages of Debian and, named ./FILE, those made here.
add_packages() {
  cp "$packages"/*.* "$1/"
  in_debian "$1" sh -ec 'apt-get -q update; apt-get -q install -y --no-install-recommends $*' \
    sh "${@:2}"
}

check_packages() {
  set -x
  local maker=$bare-maker user=$bare-user runner=$bare-runner root packages multiarch
  for root in "$maker" "$user" "$runner"; do cp -a "$bare" "$root"; done
  copy_project "$maker/project"
  in_debian "$maker" /project/tests/same-packages.sh debian
  packages=$maker/project/build/packages
  multiarch=$(in_debian "$maker" dpkg-architecture -qDEB_HOST_MULTIARCH)
  check_files libzrstring1 Runtime
  check_files libzrstring-dev Development
  dpkg-deb -f "$packages"/libzrstring1_*.deb Depends | grep -E 'libicu[0-9]+ .*libstdc\+\+6'
  add_packages "$maker" lintian
  in_debian "$maker" sh -c 'lintian --allow-root --fail-on error,warning /*.changes'

  # With the packages and a C compiler, but without ICU's headers, a program can be built.
  write_programs "$user"
  add_packages "$user" './libzrstring1_*' './libzrstring-dev_*' gcc libc6-dev pkg-config
  [ ! -e "$user/usr/include/unicode" ]
  in_debian "$user" sh -c 'cc -std=c99 /road.c -o /road $(pkg-config --cflags --libs zrstring)'
  in_debian "$user" /road | diff "$user/road.txt" -

  # It runs with libzrstring1 alone.
  add_packages "$runner" './libzrstring1_*'
  [ ! -e "$runner/usr/include/ZRString" ]
  cp "$user/road" "$runner/"
  in_debian "$runner" /road | diff "$user/road.txt" -

  # Python needs that and python3-zrstring, which leaves nothing when it is removed.
  add_packages "$runner" './python3-zrstring_*'
  in_debian "$runner" python3 -c 'import zrstring; print(zrstring.String("ab") + "c")' |
    grep -qx abc
  in_debian "$runner" apt-get -q purge -y python3-zrstring
  [ -z "$(find "$runner/usr" -name '*zrstring*' ! -name '*libzrstring1*')" ]

  # With libzrstring1-dbgsym, GDB shows the strings of a program that was built with -g.
  add_packages "$user" './libzrstring1-dbgsym_*' g++ gdb
  cp "$top/tests/debugger/Samples.cpp" "$user/"
  in_debian "$user" sh -ec 'c++ -g -std=c++17 /Samples.cpp -lZRString -o /samples
    gdb -q -batch -ex "break Stop" -ex run -ex up -ex "info locals" /samples' > "$work/locals"
  grep -F 'shared = "shared" (length 6, holders 3)' "$work/locals"
  grep -F 'emptyText = "" (length 0, holders 1)' "$work/locals"
}

check_run() {
  copy_project "$bare/project"
  for command in run-example run-tests run-example run-tests; do
    time in_debian "$bare" "/project/$command"
  done
}

for codename in ${1:-bookworm trixie}; do
  bare=$work/$codename logs=$top/build/bare-systems/$codename
  logged "$logs/make.log" make_debian "$codename" "$bare"
  for check in ${2:-install packages run}; do
    say "$codename: $check"
    logged "$logs/$check.log" "check_$check"
    grep -E 'tests passed|is entry|NOT |^real' "$logs/$check.log" || true
  done
  # shellcheck source=/dev/null
  [ $# -gt 1 ] || root=$bare tested "$(. "$bare/etc/os-release" &&
    echo "${NAME%% *} ${VERSION_ID-}, $(uname -m | tr _ -)")" \
    'on a bare system: installation, Debian packages, run-example, run-tests' \
    "$bare"/project/build/{release,clang}
done
