#!/bin/sh
# scripts/throughput.py on a Google Benchmark JSON output of known figures:
# the medians are taken (not the means), the table and the chart's data are
# exact, and a run without one of the six figures is refused.
set -eu
script="$1"
dir="$(mktemp -d)"
trap 'rm -rf "$dir"' EXIT
entry() {  # name aggregate bytes_per_second
  printf '{"name": "%s_%s", "run_name": "%s", "aggregate_name": "%s", "bytes_per_second": %s}' "$1" "$2" "$1" "$2" "$3"
}
{
  echo '{"context": {}, "benchmarks": ['
  entry VideoEncode1024/s2j/lib mean 1.0e9; echo ,
  entry VideoEncode1024/s2j/lib median 4.5e9; echo ,
  entry VideoEncode1024/s2j/floor median 5.0e7; echo ,
  entry VideoEncode1024/s2j/peer median 4.0e7; echo ,
  entry VideoEncode1024/j2s/lib median 2.0e8; echo ,
  entry VideoEncode1024/j2s/floor median 1.0e8; echo ,
  entry VideoEncode1024/j2s/peer median 8.0e7; echo ,
  entry DeviceTime/s2j/lib median 9.9e9
  echo ']}'
} >"$dir/bench.json"
cat >"$dir/table.want" <<'TABLE'
| 1024 VideoEncodeParameter | lib MB/s | floor MB/s | peer MB/s | lib/floor | lib/peer |
|---|--:|--:|--:|--:|--:|
| writing (s2j) | 4500 | 50 | 40 | 90.0 | 112.5 |
| reading (j2s) | 200 | 100 | 80 | 2.0 | 2.5 |
TABLE
cat >"$dir/data.want" <<'DATA'
# call lib floor peer (MB/s)
writing 4500.0 50.0 40.0
reading 200.0 100.0 80.0
DATA
"$script" table "$dir/bench.json" >"$dir/table.got"
diff -u "$dir/table.want" "$dir/table.got"
"$script" data "$dir/bench.json" >"$dir/data.got"
diff -u "$dir/data.want" "$dir/data.got"
{
  echo '{"benchmarks": ['
  entry VideoEncode1024/s2j/lib median 4.5e9
  echo ']}'
} >"$dir/short.json"
if "$script" table "$dir/short.json" >/dev/null 2>"$dir/err"; then
  echo "a run without every figure was accepted" >&2
  exit 1
fi
grep -q "no figures for s2j/floor, s2j/peer, j2s/lib, j2s/floor, j2s/peer" "$dir/err"
echo "throughput_test: ok"
