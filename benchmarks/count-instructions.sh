#!/bin/sh
# Counts the instructions of each member and handle function beyond those of the ICU call it maps to.
# Fails when a call passes its limit in instructions.txt, or its record there by more than 2, and when
# an exported function is neither counted nor in not-counted.txt.
# usage: count-instructions.sh [--record]      --record writes the numbers into instructions.txt
set -eu
cd "$(dirname "$0")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
quietly() {
  "$@" >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 2; }
}
quietly cmake --preset benchmark
quietly cmake --build --preset benchmark --target count-calls
tools/check-called.sh build/benchmark/libZRString.so \
  build/benchmark/benchmarks/CMakeFiles/count-calls.dir/Operations.cpp.o benchmarks/not-counted.txt
quietly valgrind --tool=callgrind --collect-atstart=no --callgrind-out-file="$work/out" \
  --log-file="$work/valgrind" build/benchmark/benchmarks/count-calls

# shellcheck source=/dev/null
distribution=$(. /etc/os-release && echo "${NAME%% *} ${VERSION_ID-}")
system="$distribution, $(uname -m), $(cat "$work/log")"
# The dumps are out.1, out.2 and so on, in the order of the calls. A line of counts: NAME|SIDE|NUMBER.
i=1
while [ -f "$work/out.$i" ]; do
  sed -n 's/^desc: Trigger: Client Request: //p; s/^summary: /|/p' "$work/out.$i" | tr -d '\n'
  echo
  i=$((i + 1))
done > "$work/counts"

awk -v here="$system" -v option="${1-}" -v calls=1000 -v table="$work/table" '
  FILENAME != "benchmarks/instructions.txt" {
    split($0, field, "|")
    if (field[2] == "icu") {
      icu = field[3]
    } else {
      counted[field[1]] = sprintf("%.0f", (field[3] - icu) / calls)
      whole[field[1]] = sprintf("%8.0f %8.0f", icu / calls, field[3] / calls)
    }
    next
  }
  function complain(text) { complaints = complaints "  " text "\n" }
  /^recorded with / {
    judging = option == "--record" || $0 == "recorded with " here
    recordedWith = $0
    $0 = option == "--record" ? "recorded with " here : $0
    printf "%8s %8s %8s %8s %8s\n", "ICU", "library", "more", "recorded", "limit"
  }
  /^[-0-9]/ { limit = $1 }
  /^ / {
    recorded = $1
    name = $0
    sub(/^ *[^ ]+ /, "", name)
    if (name in counted) {
      more = counted[name] + 0
      printf "%s %8d %8d %8s  %s\n", whole[name], more, recorded, limit, name
      if (limit != "-" && more > limit + 0)
        complain(name ": " more ", the limit is " limit)
      if (option != "--record" && more > recorded + 2)
        complain(name ": " more ", " recorded " recorded")
      if (more < recorded - 2)
        print "  fewer than recorded: --record keeps it so"
      delete counted[name]
      $0 = sprintf("%6d %s", more, name)
    } else {
      complain(name ": not counted")
    }
  }
  { print > table }
  END {
    for (name in counted)
      complain(name ": not in instructions.txt")
    if (!judging) {
      print "\nnot judged: " recordedWith ", this is " here
    } else if (complaints != "") {
      printf "\nfailed:\n%s", complaints
      exit 1
    } else {
      print "\nall within their limits" (option == "--record" ? "" : " and records")
    }
  }' "$work/counts" benchmarks/instructions.txt || failed=1
[ "${1-}" != --record ] || cp "$work/table" benchmarks/instructions.txt
exit "${failed-0}"
