#!/usr/bin/env bash
# Compares the exports of a shared library (ELF or PE) with the promised ones, in both directions. A
# name that came after 1.0.0 is followed by its symbol version.
# usage: check-exports.sh LIBRARY [--update]
# --update first writes exports-cpp.txt, from a library for Linux. exports-plain.txt is written by
# hand.
set -euo pipefail
export LC_ALL=C
here=$(dirname "$0")

[[ -f ${1-} && ${2---update} = --update && $# -le 2 ]] ||
  { echo "usage: tests/check-exports.sh LIBRARY [--update]" >&2; exit 2; }
long=long unpromised='^$' unversioned='^$'
if [ "$(head -c 2 "$1")" = MZ ]; then
  exported=$(objdump -p "$1" | sed -n '/Name Pointer\] Table/,/^$/s/^\t\[.* //p')
  # Windows exports no names of types: programs reach them through the type information.
  unpromised='^typeinfo name for ' unversioned=' ZRSTRING_.*'
else
  # A unique symbol, which no file promises, would keep the library in the process after dlclose.
  exported=$(nm -D --defined-only "$1" |
    sed -E '/ A /d; s/@+ZRSTRING_1$//; s/@+/ /; s/.* u /unique_/; s/^\w* . //')
  # The interface's 32-bit integers are int where long is wider.
  readelf -h "$1" | grep -q ELF32 || long=int
fi

# The members of the vector depend on the standard library: one name represents all.
exported=$(c++filt <<< "$exported" |
  sed -E "s/\<unsigned $long\>/ZRULong/g; s/\<$long\>/ZRLong/g; s/__cxx11:://g
    s/^std::vector<ZRString\*, std::allocator<ZRString\*> >::.*/std::vector<ZRString*>::*/" |
  sort -u)
[ "${2-}" != --update ] || grep -vxE '\w+( ZRSTRING_.*)?' <<< "$exported" > "$here/exports-cpp.txt"
promised=$(sort "$here"/exports-{plain,cpp}.txt)
if ! diff <(grep -v "$unpromised" <<< "$promised" | sed "s/$unversioned//") - <<< "$exported"; then
  echo "'<' is promised and not exported, '>' is exported and not promised" >&2
  exit 1
fi
[ "$(grep -v ' ZRSTRING_' <<< "$promised" | cksum)" = "4059438372 15772" ] || {
  echo "the names of 1.0.0 changed: a new one belongs in the newest node of platform/Elf.map" >&2
  exit 1
}
diff <(sed -nE 's/^(ZRSTRING_\S+) \{/\1/p' "$here/../platform/Elf.map") \
  <(sed -nE 's/^ \(symver\)(\S+) .*/\1/p' "$here/../tools/debian/libzrstring1.symbols") ||
  { echo "'<' lacks a line in tools/debian/libzrstring1.symbols" >&2; exit 1; }
echo "$(wc -l <<< "$exported") exports, as promised"
