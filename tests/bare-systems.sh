#!/usr/bin/env bash
# On a bare Debian 12 and a bare Debian 13, or the one that is named: follows "Install it" of the
# README to the letter, then runs ./run-example and ./run-tests there, each twice. Takes half
# an hour and must be run as root.
# usage: tests/bare-systems.sh [bookworm|trixie]
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
. "$top/tools/steps.sh"
. "$top/tools/bare-debian.sh"
. "$top/tests/pages.sh"

# The system in $1 has only what the README names when the README's programs are built and run.
install_and_use() {
  local root=$1
  copy_project "$root/project"
  readme_block c > "$root/project/program.c"
  readme_block cpp > "$root/project/program.cpp"
  {
    echo 'set -ex; cd /project; sudo() { "$@"; }; apt-get() { command apt-get -y -q "$@"; }'
    echo 'apt-get update'
    sed -n '/^## Install it/,/^    sudo ldconfig/s/^    //p' "$top/README.md"
    # shellcheck disable=SC2016 # expanded in there
    echo 'apt-get install pkg-config
      cc program.c $(pkg-config --cflags --libs zrstring) -o c-program
      c++ -std=c++17 program.cpp $(pkg-config --cflags --libs zrstring) -o cpp-program
      ./c-program > c.txt; ./cpp-program > cpp.txt
      cmake --build build/install --target uninstall
      [ -z "$(find /usr/local -name "*ZRString*")" ]'
  } > "$root/install.sh"
  in_debian "$root" bash /install.sh
  for output in c.txt cpp.txt; do readme_block text | diff - "$root/project/$output"; done
}

case $* in
  '') set -- bookworm trixie ;;
  bookworm | trixie) ;;
  *) die "the systems are bookworm and trixie" ;;
esac
for codename in "$@"; do
  root=$work/$codename logs=$top/build/bare-systems/$codename
  say "$codename: making the system"
  logged "$logs/make.log" make_debian "$codename" "$root"

  cp -a "$root" "$root-install"
  say "$codename: the README's \"Install it\""
  logged "$logs/install.log" install_and_use "$root-install"

  copy_project "$root/project"
  for run in first second; do
    for command in ./run-example ./run-tests; do
      started=$SECONDS
      logged "$logs/$command-$run.log" in_debian "$root" env -C /project "$command"
      say "$codename: $command, $run run: $((SECONDS - started)) s"
      grep -E 'tests passed|is entry|NOT ' "$logs/$command-$run.log" || true
    done
  done
done
