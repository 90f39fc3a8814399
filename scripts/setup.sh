#!/usr/bin/env bash
# Installs what building and testing libapp_s2j needs on Debian (run as root),
# skipping the package manager when everything is already there.
#   scripts/setup.sh             the native build and tests (man-db: the manual pages are checked)
#   scripts/setup.sh --fuzz      also libFuzzer with clang
#   scripts/setup.sh --valgrind  also valgrind (memory checking)
#   scripts/setup.sh --bench     also Google Benchmark, valgrind and gnuplot (benchmarks, their counts
#                                and the throughput chart)
#   scripts/setup.sh --package   also the Debian packaging tools (debhelper, dpkg-dev, lintian, man-db);
#                                with a TRIPLET too, the target's pkg-config wrapper for cross packages
#   scripts/setup.sh TRIPLET...  also cross builds for these targets (see cmake/toolchains/):
#                                the cross compilers, the target's cJSON and GoogleTest
#                                through multiarch, and qemu-user to run the tests
set -euo pipefail
packages=(cmake make gcc g++ pkg-config binutils libcjson-dev libgtest-dev python3-jsonschema man-db)
foreign=()
package=no
for arg in "$@"; do
  case "$arg" in
    --fuzz) packages+=(clang-14 libclang-rt-14-dev) ;;
    --valgrind) packages+=(valgrind) ;;
    --bench) packages+=(libbenchmark-dev valgrind gnuplot-nox) ;;
    --package) package=yes; packages+=(debhelper dpkg-dev lintian man-db) ;;
    arm-linux-gnueabihf) arch=armhf ;;
    aarch64-linux-gnu) arch=arm64 ;;
    s390x-linux-gnu) arch=s390x ;;
    *) echo "setup: unknown argument $arg (--fuzz, --valgrind, --bench, --package," \
            "arm-linux-gnueabihf, aarch64-linux-gnu, s390x-linux-gnu)" >&2; exit 2 ;;
  esac
  case "$arg" in
    --*) ;;
    *) foreign+=("$arch")
       packages+=("gcc-$arg" "g++-$arg" "binutils-$arg" qemu-user
                  "libcjson-dev:$arch" "libgtest-dev:$arch" "libstdc++6:$arch") ;;
  esac
done
if [ "$package" = yes ]; then
  for arch in "${foreign[@]}"; do packages+=("pkgconf:$arch"); done
fi
# Node.js for the schema check (tests/schema), from Debian when the machine has none.
command -v node >/dev/null || packages+=(nodejs); command -v npm >/dev/null || packages+=(npm)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "setup: installing ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  for arch in "${foreign[@]}"; do
    dpkg --print-foreign-architectures | grep -qx "$arch" || dpkg --add-architecture "$arch"
  done
  # A mirror caught mid-sync for one index must not stop the set-up: apt-get
  # install below fails by itself if a package really cannot be had.
  apt-get update -qq || echo "setup: apt-get update reported errors; going on with the lists it has" >&2
  apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
# ajv for the schema check, as the lock file pins it, when missing or older than the lock file.
schema=$(dirname "$0")/../tests/schema; if [ ! -d "$schema/node_modules" ] || [ "$schema/node_modules" -ot "$schema/package-lock.json" ]; then (cd "$schema" && npm ci --no-audit --no-fund && touch node_modules); fi
