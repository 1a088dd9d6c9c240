#!/usr/bin/env bash
# Compares what a shared library exports with what is promised, in both directions.
# usage: check-exports.sh LIBRARY
set -euo pipefail
export LC_ALL=C
here=$(dirname "$0")

exported=$(mktemp)
trap 'rm -f "$exported"' EXIT
nm -D --defined-only "$1" | awk '$2 != "A" { print $3 }' | sed 's/@.*//' | sort -u > "$exported"
[ -s "$exported" ] || { echo "no exports were read from $1" >&2; exit 1; }

# The interface's 32-bit integers are int where long is wider.
case $(readelf -h "$1") in *ELF32*) long='long' ;; *) long='int' ;; esac

compare() {  # WHAT PROMISED ACTUAL
  if ! diff "$2" "$3"; then
    echo "$1: '<' is promised and missing, '>' is exported and not promised" >&2
    exit 1
  fi
}

# The vector's members vary with the standard library; all are members of the one instantiation.
compare "plain names" "$here/exports-plain.txt" <(grep -v '^_Z' "$exported")
compare "C++ names" "$here/exports-cpp.txt" <(grep '^_Z' "$exported" | c++filt |
  sed -E "s/\<unsigned $long\>/ZRULong/g; s/\<$long\>/ZRLong/g; s/__cxx11:://g" |
  sed -E 's/^std::vector<ZRString\*, std::allocator<ZRString\*> >::.*/std::vector<ZRString*>::*/' |
  sort -u)
if nm -D "$1" | grep ' u ' >&2; then
  echo "unique symbols keep the library in the process after dlclose" >&2
  exit 1
fi
echo "$(wc -l < "$exported") exports, as promised"
