#!/bin/sh
# Counts the instructions of each member and handle function beyond those of the ICU call it maps
# to. Fails when a call passes its limit in instructions.txt, or its record there by more than 2, if
# the compiler and ICU are those of the table; and when an exported function is neither counted nor
# in not-counted.txt.
# usage: count-instructions.sh [--record]      --record writes the numbers into instructions.txt
set -eu
cd "$(dirname "$0")/.."

[ $# -eq 0 ] || [ "$*" = --record ] ||
  { echo "usage: benchmarks/count-instructions.sh [--record]" >&2; exit 2; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
quietly() {
  "$@" >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 2; }
}
quietly cmake --preset benchmark
quietly cmake --build --preset benchmark --target count-calls
tools/check-called.sh build/benchmark/libZRString.so \
  build/benchmark/benchmarks/CMakeFiles/count-calls.dir/Calls.cpp.o benchmarks/not-counted.txt
quietly valgrind --tool=callgrind --collect-atstart=no --callgrind-out-file="$work/out" \
  --log-file="$work/valgrind" build/benchmark/benchmarks/count-calls

# shellcheck source=/dev/null
distribution=$(. /etc/os-release && echo "${NAME%% *} ${VERSION_ID-}")
system="$distribution, $(uname -m), $(cat "$work/log")"
python3 benchmarks/judge-instructions.py "$@" "$system" "$work"
