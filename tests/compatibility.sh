#!/usr/bin/env bash
# Checks what programs that were compiled for 1.0.0 rely on. Builds 1.0.0 from its commit, compares
# the names with the promised ones and the types of both libraries, and runs the tests of 1.0.0,
# compiled with its headers, with today's library. 1.0.0 builds on Debian 12.
set -euo pipefail
top=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
. "$top/tools/steps.inc.sh"
[ $# -eq 0 ] || die "there are no options"
work=$top/build/compatibility
old=$work/1.0.0 new=$work/today

build() {  # SOURCE FOLDER TARGET
  logged "$2.log" cmake -G Ninja -DCMAKE_BUILD_TYPE=Debug -S "$1" -B "$2"
  logged "$2.log" cmake --build "$2" --target "$3"
}

"$top/tools/install-packages.sh" abigail-tools bzip2 cmake g++ git libgtest-dev libicu-dev \
  ninja-build unicode-data
rm -rf "$work"
mkdir -p "$work/source"
git -C "$top" archive 97fe69e | tar -C "$work/source" -x || die "this checkout lacks that commit"
say "building 1.0.0 and today's library"
build "$work/source" "$old" zrstring-tests
build "$top" "$new" ZRString

"$top/tests/check-exports.sh" "$new/libZRString.so"
say "comparing types"  # without the body and its first part, which are the library's own
printf '[suppress_type]\nname_regexp = %s\ndrop = yes\n' \
  'ZRStringImplementation|ZRStringHolderCount' > "$work/suppressions"
abidiff --no-added-syms --suppressions "$work/suppressions" {"$old","$new"}/libZRString.so

say "running the tests of 1.0.0 with today's library"
bzip2 -dc /usr/share/unicode/NormalizationTest.txt.bz2 > "$work/NormalizationTest.txt"
ZRSTRING_NORMALIZATION_DATA=$work/NormalizationTest.txt LD_LIBRARY_PATH=$new \
  "$old/tests/zrstring-tests" --gtest_brief=1
