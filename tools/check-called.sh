#!/usr/bin/env bash
# Fails unless an object file, which holds a table of calls, calls every function that a library
# exports, except those that match a pattern in a file. Also fails if a pattern matches nothing.
# usage: check-called.sh LIBRARY OBJECT PATTERNS
set -euo pipefail
export LC_ALL=C
[ $# -eq 3 ] || { echo "usage: check-called.sh LIBRARY OBJECT PATTERNS" >&2; exit 2; }

missing=$(comm -23 \
  <(nm -D --defined-only "$1" | awk '$2 ~ /^[TW]$/ { sub("@.*", "", $3); print $3 }' | sort -u) \
  <(nm --undefined-only "$2" | awk '{ print $2 }' | sort -u) | c++filt)
patterns=$(grep -v '^#' "$3") || { echo "$3 has no pattern" >&2; exit 1; }
while read -r pattern; do
  grep -qE -- "$pattern" <<<"$missing" ||
    { echo "$3: the pattern '$pattern' matches nothing and can go" >&2; failed=1; }
done <<<"$patterns"
grep -vE -f <(cat <<<"$patterns") <<<"$missing" >&2 || exit "${failed-0}"
echo "the functions above are neither called in ${2##*/} nor listed in ${3##*/}" >&2
exit 1
