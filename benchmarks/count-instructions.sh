#!/bin/sh
# Counts the instructions of each member and handle function over those of the ICU call it maps to.
# Fails when a member needs more than 15 or a handle function more than 40.
set -eu

cd "$(dirname "$0")/.."
counts=$(mktemp -d)
trap 'rm -rf "$counts"' EXIT

quietly() {
  "$@" >"$counts/log" 2>&1 || { cat "$counts/log" >&2; exit 2; }
}

quietly cmake --preset benchmark
quietly cmake --build --preset benchmark --target count-calls
quietly valgrind --tool=callgrind --collect-atstart=no --callgrind-out-file="$counts/out" \
  build/benchmark/benchmarks/count-calls

# The dumps are out.1, out.2, ... in the order of the calls, ICU's before the library's.
calls=1000
i=1
while [ -f "$counts/out.$i" ]; do
  sed -n 's/^desc: Trigger: Client Request: //p; s/^summary: /|/p' "$counts/out.$i" | tr -d '\n'
  echo
  i=$((i + 1))
done | awk -F '|' -v calls="$calls" '
  BEGIN {
    limits["member"] = 15
    limits["handle"] = 40
    format = "%-68s %10s %10s %10s %6s\n"
    printf format, "call", "ICU", "library", "over ICU", "limit"
  }
  $3 == "icu" { icu = $4; next }
  {
    over = ($4 - icu) / calls
    limit = limits[$1]
    printf format, $2, icu / calls, $4 / calls, over, limit == "" ? "-" : limit
    counted++
    if (limit != "" && over > limit) {
      exceeding++
      report = report "  " $2 ": " over "\n"
    }
  }
  END {
    if (!counted) {
      print "nothing was counted"
      exit 2
    }
    if (exceeding) {
      printf "\n%d over the limit:\n%s", exceeding, report
      exit 1
    }
    print "\nall within the limits"
  }'
