#!/usr/bin/env bash
# Draws docs/performance-throughput.svg, the chart at the top of
# docs/performance.md: MB/s of writing and reading 1024 VideoEncodeParameter
# records for the library, cJSON alone and hand-written cJSON code.
#   scripts/perf-chart.sh              runs the throughput benchmarks (release
#                                      build in build-bench/, preset bench),
#                                      then draws
#   scripts/perf-chart.sh BENCH.json   draws from Google Benchmark's JSON output
#                                      (for example build-bench/throughput.json,
#                                      which scripts/bench-counts.sh leaves)
set -euo pipefail
cd "$(dirname "$0")/.."
if [ $# -eq 0 ]; then
  scripts/setup.sh chart >&2
  cmake --preset bench >/dev/null
  cmake --build --preset bench -j2 --target s2j_bench >&2
  build-bench/bench/s2j_bench --benchmark_filter='^VideoEncode1024/' --benchmark_repetitions=5 \
      --benchmark_report_aggregates_only=true --benchmark_out=build-bench/throughput.json \
      --benchmark_out_format=json >&2
  set -- build-bench/throughput.json
fi
data="$(mktemp)"
trap 'rm -f "$data"' EXIT
scripts/throughput.py data "$1" >"$data"
gnuplot <<GNUPLOT
set terminal svg size 760,420 font "sans,13" background rgb "white"
set output "docs/performance-throughput.svg"
set title "1024 VideoEncodeParameter records: MB/s of JSON text (x86-64, -O2; higher is better)"
set style data histograms
set style histogram clustered gap 1
set style fill solid 0.85 border -1
set boxwidth 0.9
set logscale y 10
set yrange [1:*]
set ylabel "MB/s (log scale)"
set grid ytics
set key top right
set xtics nomirror
plot "$data" using 2:xtic(1) title "libapp\\\\_s2j" linecolor rgb "#1f77b4", \
     "" using 3 title "cJSON alone" linecolor rgb "#7f7f7f", \
     "" using 4 title "hand-written cJSON code" linecolor rgb "#ff7f0e", \
     "" using (\$0-0.25):(\$2*1.35):(sprintf("%.0f", \$2)) with labels notitle, \
     "" using (\$0):(\$3*1.35):(sprintf("%.0f", \$3)) with labels notitle, \
     "" using (\$0+0.25):(\$4*1.35):(sprintf("%.0f", \$4)) with labels notitle
GNUPLOT
echo "perf-chart: docs/performance-throughput.svg from $1" >&2
