#!/usr/bin/env bash
# Deterministic counts of the benchmark workloads: per workload and call, the
# instructions executed (callgrind) and the heap allocations (count, bytes)
# of the library, the floor (cJSON alone) and the peer (hand-written cJSON
# code), side by side, as a Markdown table on stdout; then, in the same run,
# the throughput of writing and reading 1024 VideoEncodeParameter records
# (Google Benchmark, MB/s), whose JSON output stays in
# build-bench/throughput.json for scripts/perf-chart.sh.
#   scripts/bench-counts.sh [repetitions]     (default 10; counts are per call)
# Builds the release configuration (-O2) with the benchmarks in build-bench/
# (preset bench).
set -euo pipefail
cd "$(dirname "$0")/.."
reps="${1:-10}"
scripts/setup.sh bench >&2
cmake --preset bench >/dev/null
cmake --build --preset bench -j2 >&2
out="$(mktemp -d)"
trap 'rm -rf "$out"' EXIT
TMPDIR="$out" valgrind --tool=callgrind --callgrind-out-file="$out/cg" \
    build-bench/bench/s2j_counts "$reps" >"$out/allocs" 2>"$out/valgrind.log" ||
    { cat "$out/valgrind.log" >&2; exit 1; }
for f in "$out"/cg.*; do
  awk '/^desc: Trigger: Client Request: /{l=$5} /^summary:/{s=$2} END{if (l != "") print l, s}' "$f"
done >"$out/instr"
echo "Instructions and allocations per call (callgrind, $reps repetitions each);"
echo "ratios are the library's instructions over the floor's and the peer's."
echo
awk -v reps="$reps" '
  FNR == NR { split($1, k, "/"); ir[$1] = $2 / reps; next }
  FNR == 1 { next }
  { key = $1 "/" $2 "/" $3; al[key] = $4 " / " $5
    if (!($1 "/" $2 in seen)) { seen[$1 "/" $2] = 1; order[++n] = $1 "/" $2 } }
  END {
    print "| workload | call | lib instr | floor instr | peer instr | lib/floor | lib/peer" \
          " | lib allocs / bytes | floor allocs / bytes | peer allocs / bytes |"
    print "|---|---|--:|--:|--:|--:|--:|--:|--:|--:|"
    for (i = 1; i <= n; ++i) {
      w = order[i]; split(w, p, "/")
      l = ir[w "/lib"]; f = ir[w "/floor"]; q = ir[w "/peer"]
      rf = (f > 0) ? sprintf("%.2f", l / f) : "-"
      rp = (q > 0) ? sprintf("%.2f", l / q) : "-"
      fs = (f > 0) ? sprintf("%d", f) : "-"
      printf "| %s | %s | %d | %s | %d | %s | %s | %s | %s | %s |\n", p[1], p[2], l, fs, q, rf, rp,
             al[w "/lib"], (w "/floor" in al) ? al[w "/floor"] : "-", al[w "/peer"]
    }
  }' "$out/instr" "$out/allocs"
echo
echo "Throughput (Google Benchmark, CPU time, median of 5 repetitions):"
echo
build-bench/bench/s2j_bench --benchmark_filter='^VideoEncode1024/' --benchmark_repetitions=5 \
    --benchmark_report_aggregates_only=true --benchmark_out=build-bench/throughput.json \
    --benchmark_out_format=json >/dev/null
scripts/throughput.py table build-bench/throughput.json
