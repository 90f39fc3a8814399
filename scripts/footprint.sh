#!/usr/bin/env bash
# Measures the library's footprint for the native build and/or cross targets and
# prints the tables of docs/embedded.md: stripped size, largest stack frames
# (-fstack-usage), NEEDED libraries, and heap used per call (tools/footprint).
#   scripts/footprint.sh [native] [arm-linux-gnueabihf] [aarch64-linux-gnu] [s390x-linux-gnu]
# Builds the library alone in build-footprint-<target>/ (preset footprint-<target>:
# RelWithDebInfo, as shipped, with -fstack-usage).
set -euo pipefail
cd "$(dirname "$0")/.."
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(native)
cross=()
for t in "${targets[@]}"; do
  [ "$t" = native ] || cross+=("$t")
done
scripts/setup.sh footprint "${cross[@]}" >&2
for t in "${targets[@]}"; do
  cc=cc
  strip=strip
  run=()
  if [ "$t" != native ]; then
    cc=$t-gcc
    strip=$t-strip
    case "$t" in
      arm-linux-gnueabihf) run=(qemu-arm) ;;
      aarch64-linux-gnu)   run=(qemu-aarch64) ;;
      s390x-linux-gnu)     run=(qemu-s390x) ;;
    esac
  fi
  build=build-footprint-$t
  cmake --preset "footprint-$t" >/dev/null
  cmake --build --preset "footprint-$t" -j"$(nproc)" >/dev/null
  libdir=$build/apps/common/src/app_s2j
  lib=$(readlink -f "$libdir/libapp_s2j.so")
  "$strip" -o "$build/libapp_s2j.stripped" "$lib"

  echo "### $t"
  echo
  echo "- stripped \`libapp_s2j.so.1\`: $(stat -c %s "$build/libapp_s2j.stripped") bytes" \
       "(text $(size -A "$build/libapp_s2j.stripped" | awk '$1==".text"{print $2}') bytes," \
       "rodata $(size -A "$build/libapp_s2j.stripped" | awk '$1==".rodata"{print $2}') bytes)"
  echo "- NEEDED: $(readelf -d "$lib" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | tr '\n' ' ')"
  echo "- largest stack frames (bytes, -fstack-usage):"
  echo
  # .su lines: FILE:LINE:COLUMN:FUNCTION<tab>BYTES<tab>static|dynamic|bounded
  cat "$libdir"/CMakeFiles/app_s2j.dir/*.su | LC_ALL=C sort -t$'\t' -k2,2nr > "$build/stack.txt"
  sed -n "1,5p" "$build/stack.txt" | sed "s|:)\t|:(variadic)\t|" |
    sed 's|^\(.*/\)\{0,1\}\([^/:]*\):\([0-9]*\):[0-9]*:\(.*\)\t\([0-9]*\)\t\(.*\)$|  - \5 (\6): `\4`, \2:\3|'
  echo
  "$cc" -std=c99 -O2 -Wall -Wextra -Werror -I apps/common/src/app_s2j tools/footprint/heap_per_call.c \
    -L "$libdir" -lapp_s2j -lcjson -o "$build/heap_per_call"
  LD_LIBRARY_PATH=$libdir "${run[@]}" "$build/heap_per_call" examples
  echo
done
