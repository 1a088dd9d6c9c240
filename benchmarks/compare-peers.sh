#!/bin/sh
# Times ZRString and its peers in one run, into build/peers.json, and puts the table and the picture
# of that run into the pages. Takes three minutes; nothing else should run meanwhile.
set -eu
[ $# -eq 0 ] || { echo "compare-peers.sh: there are no options" >&2; exit 2; }
cd "$(dirname "$0")/.."

cmake --preset benchmark
cmake --build --preset benchmark --target compare-peers
processor=$(awk -F '[^:]*: ' '/^model name/ { name = $2 } /^model\t/ { model = $2 }
  END { gsub(/\(R\)/, "", name); print name " (model " model ")" }' /proc/cpuinfo)
build/benchmark/benchmarks/compare-peers --benchmark_repetitions=15 --benchmark_min_time=0.05 \
  --benchmark_enable_random_interleaving=true --benchmark_out=build/peers.json \
  --benchmark_context=processor="$processor"
python3 benchmarks/report-peers.py build/peers.json
