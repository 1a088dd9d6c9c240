#!/usr/bin/env bash
# Checks the promises to programs that were compiled for 1.0.0, which is built from its commit: the
# types of its functions, its classes and virtual tables are unchanged (check-exports.sh compares
# the names), and its tests, compiled with its headers, pass with today's library. Also has the
# loader refuse a program of today with the library of 1.0.0. Takes a minute on Debian 12, where
# 1.0.0 builds. Installs the Debian packages that are missing.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
. "$top/tools/steps.sh"
work=$top/build/compatibility
old=$work/1.0.0 new=$work/today

build() {  # SOURCE FOLDER TARGET
  logged "$2.log" cmake -G Ninja -DCMAKE_BUILD_TYPE=Debug -S "$1" -B "$2"
  logged "$2.log" cmake --build "$2" --target "$3"
}

"$top/tools/install-packages.sh" abigail-tools cmake g++ git libgtest-dev libicu-dev ninja-build
rm -rf "$work"
mkdir -p "$work/source"
git -C "$top" archive 97fe69e | tar -C "$work/source" -x || die "this checkout lacks that commit"
say "building 1.0.0 and today's library"
build "$work/source" "$old" zrstring-tests
build "$top" "$new" wordlist

say "comparing types"
# The body is the library's own. ZRStringHolderCount is its first part.
printf '[suppress_type]\nname_regexp = %s\ndrop = yes\n' \
  'ZRStringImplementation|ZRStringHolderCount' > "$work/suppressions"
abidiff --no-added-syms --suppressions "$work/suppressions" {"$old","$new"}/libZRString.so

say "running the tests of 1.0.0 with today's library"
LD_LIBRARY_PATH=$new "$old/tests/zrstring-tests" --gtest_brief=1

say "starting a program of today with the library of 1.0.0"
! LD_LIBRARY_PATH=$old "$new/examples/wordlist" --help 2> "$work/refusal" || die "it runs"
grep "version \`ZRSTRING_1.1' not found" "$work/refusal"
