#!/usr/bin/env bash
# Installs what building and testing libapp_s2j needs on Debian (run as root),
# skipping the package manager when everything is already there.
set -euo pipefail
packages=(cmake make gcc g++ pkg-config binutils libcjson-dev libgtest-dev)
# Extra tools: --fuzz (libFuzzer with clang), --valgrind (memory checking).
for arg in "$@"; do
  case "$arg" in
    --fuzz) packages+=(clang-14 libclang-rt-14-dev) ;;
    --valgrind) packages+=(valgrind) ;;
  esac
done
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "setup: installing ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

# scripts/setup.sh --bench: also what the benchmarks and their counts need.
if [ "${1:-}" = "--bench" ]; then
  bench_missing=()
  for p in libbenchmark-dev valgrind; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || bench_missing+=("$p")
  done
  if [ ${#bench_missing[@]} -gt 0 ]; then
    echo "setup: installing ${bench_missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${bench_missing[@]}"
  fi
fi
