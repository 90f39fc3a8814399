#!/usr/bin/env python3
"""Throughput of the VideoEncode1024 workload from Google Benchmark's JSON output.

  throughput.py table BENCH.json   Markdown table: MB/s per call and side, and the
                                   library's speed-up over each other side
  throughput.py data BENCH.json    gnuplot data: one row per call (writing, reading),
                                   columns lib, floor, peer in MB/s
MB/s is 10^6 bytes of JSON text per second of CPU time, the median of the
repetitions when the run has them.
"""
import json
import sys

CALLS = [("s2j", "writing"), ("j2s", "reading")]
SIDES = ["lib", "floor", "peer"]


def rates(path):
    with open(path) as f:
        doc = json.load(f)
    out = {}
    for b in doc["benchmarks"]:
        name = b.get("run_name", b["name"])
        parts = name.split("/")
        if len(parts) != 3 or parts[0] != "VideoEncode1024" or "bytes_per_second" not in b:
            continue
        key = (parts[1], parts[2])
        kind = b.get("aggregate_name")
        if kind == "median" or (kind is None and key not in out):
            out[key] = b["bytes_per_second"] / 1e6
    return out


def main():
    if len(sys.argv) != 3 or sys.argv[1] not in ("table", "data"):
        sys.stderr.write(__doc__)
        return 2
    r = rates(sys.argv[2])
    missing = [f"{c}/{s}" for c, _ in CALLS for s in SIDES if (c, s) not in r]
    if missing:
        sys.stderr.write("throughput.py: no figures for " + ", ".join(missing) + "\n")
        return 1
    if sys.argv[1] == "data":
        print("# call lib floor peer (MB/s)")
        for call, label in CALLS:
            print(label, *(f"{r[(call, s)]:.1f}" for s in SIDES))
        return 0
    print("| 1024 VideoEncodeParameter | lib MB/s | floor MB/s | peer MB/s | lib/floor | lib/peer |")
    print("|---|--:|--:|--:|--:|--:|")
    for call, label in CALLS:
        lib, floor, peer = (r[(call, s)] for s in SIDES)
        print(f"| {label} ({call}) | {lib:.0f} | {floor:.0f} | {peer:.0f} | {lib / floor:.1f} | {lib / peer:.1f} |")
    return 0


if __name__ == "__main__":
    sys.exit(main())
