#!/usr/bin/env bash
# Compares the exports of a shared library (ELF or PE) with the promised ones, in both directions.
# usage: check-exports.sh [--update] LIBRARY
# --update writes exports-cpp.txt, from a library for Linux. exports-plain.txt is written by hand.
set -euo pipefail
export LC_ALL=C
here=$(dirname "$0")
update=
[ "$1" != --update ] || { update=1; shift; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cp "$here/exports-cpp.txt" "$work/promised-cpp"
if [ "$(head -c 2 "$1")" = MZ ]; then
  objdump -p "$1" | awk '
    /^\[Ordinal\/Name Pointer\] Table/ { inside = 1; next }
    NF == 0                            { inside = 0 }
    inside                             { print $NF }' | sort -u > "$work/exported"
  # Windows exports no names of types: programs reach them through the type information.
  sed -i '/^typeinfo name for /d' "$work/promised-cpp"
  long=long
else
  nm -D --defined-only "$1" | awk '$2 != "A" { sub(/@.*/, "", $3); print $3 }' |
    sort -u > "$work/exported"
  if nm -D "$1" | grep ' u ' >&2; then
    echo "unique symbols keep the library in the process after dlclose" >&2
    exit 1
  fi
  # The interface's 32-bit integers are int where long is wider.
  case $(readelf -h "$1") in *ELF32*) long=long ;; *) long=int ;; esac
fi
[ -s "$work/exported" ] || { echo "no exports were read from $1" >&2; exit 1; }

compare() {  # WHAT PROMISED ACTUAL
  if ! diff "$2" "$3"; then
    echo "$1: '<' is promised and missing, '>' is exported and not promised" >&2
    exit 1
  fi
}

# Which members of the vector there are depends on the standard library: one name stands for all.
compare "plain names" "$here/exports-plain.txt" <(grep -v '^_Z' "$work/exported")
grep '^_Z' "$work/exported" | c++filt |
  sed -E "s/\<unsigned $long\>/ZRULong/g; s/\<$long\>/ZRLong/g; s/__cxx11:://g" |
  sed -E 's/^std::vector<ZRString\*, std::allocator<ZRString\*> >::.*/std::vector<ZRString*>::*/' |
  sort -u > "$work/exported-cpp"
[ -z "$update" ] || cp "$work/exported-cpp" "$here/exports-cpp.txt"
[ -n "$update" ] || compare "C++ names" "$work/promised-cpp" "$work/exported-cpp"
echo "$(wc -l < "$work/exported") exports, as promised"
