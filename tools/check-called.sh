#!/usr/bin/env bash
# Fails unless an object file calls every function that a library exports, but for those that match
# one of the patterns in a file: what is not meant to be in that file's table. Also fails for a
# pattern that matches nothing.
# usage: check-called.sh LIBRARY OBJECT PATTERNS
set -euo pipefail
export LC_ALL=C

missing=$(comm -23 \
  <(nm -D --defined-only "$1" | awk '$2 == "T" || $2 == "W" { print $3 }' | sed 's/@.*//' | sort -u) \
  <(nm --undefined-only "$2" | awk '{ print $2 }' | sort -u) | c++filt)
patterns=$(grep -v '^#' "$3")
while read -r pattern; do
  grep -qE -- "$pattern" <<<"$missing" || { echo "$3: nothing matches '$pattern'" >&2; failed=1; }
done <<<"$patterns"
if grep -vE -f <(cat <<<"$patterns") <<<"$missing" >&2; then
  echo "not called in ${2##*/}, nor listed in ${3##*/}: the functions above" >&2
  failed=1
fi
exit "${failed-0}"
