#!/usr/bin/env bash
# Size of the stripped libapp_s2j.so.1 of the release build (-O2), per
# section, with the largest contributors: what the size budget is measured on.
#   scripts/lib-size.sh        (builds the library alone in build-release/, preset release:
#                               the flags of the benchmarks' build, preset bench)
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh size >&2
cmake --preset release >/dev/null
cmake --build --preset release -j2 >&2
lib=build-release/apps/common/src/app_s2j/libapp_s2j.so.1.0.0
stripped="$(mktemp)"
trap 'rm -f "$stripped"' EXIT
strip -o "$stripped" "$lib"
bytes=$(stat -c %s "$stripped")
echo "stripped libapp_s2j.so.1: $bytes bytes ($(( (bytes + 1023) / 1024 )) KiB; budget 200 KiB = 204800 bytes)"
echo "exported symbols: $(nm -D --defined-only "$lib" | wc -l)"
echo
echo "| section | bytes |"
echo "|---|--:|"
size -A "$stripped" | awk 'NR > 2 && $2 > 0 && $1 != "Total" { printf "| %s | %d |\n", $1, $2 }'
echo
echo "Largest symbols (bytes, kind: t code, r read-only data, d read-only data that is relocated):"
nm -S -t d --size-sort -C "$lib" | tail -12 | while read -r _ size kind name; do
  printf '  %6d %s %s\n' "$((10#$size))" "$kind" "$name"
done
echo
nm -S -t d -C "$lib" | awk '{ k = tolower($3); n[k]++; b[k] += $2 }
  END { printf "By kind: code %d symbols, %d bytes; relocated data %d, %d bytes; read-only data %d, %d bytes\n",
        n["t"], b["t"], n["d"], b["d"], n["r"], b["r"] }'
