#!/usr/bin/env bash
# Installs what one job on libapp_s2j needs on Debian (run as root), and no
# more, skipping the package manager when everything is already there.
#   scripts/setup.sh [test]              the build and the whole test suite (scripts/test.sh, plain or
#                                        --sanitize): GoogleTest, man-db (the manual pages are checked),
#                                        python3-jsonschema, and Node.js with ajv for the schema check
#   scripts/setup.sh examples            the build of the tool over examples/ (scripts/run-examples.sh)
#   scripts/setup.sh valgrind            the default build and valgrind (workflow preset valgrind)
#   scripts/setup.sh tsan                the threads test under ThreadSanitizer (workflow preset tsan)
#   scripts/setup.sh fuzz                libFuzzer with clang (scripts/fuzz.sh)
#   scripts/setup.sh coverage            the test suite and gcovr (scripts/coverage.sh)
#   scripts/setup.sh bench               Google Benchmark and valgrind (scripts/bench-counts.sh)
#   scripts/setup.sh chart               Google Benchmark and gnuplot (scripts/perf-chart.sh)
#   scripts/setup.sh size                the library alone (scripts/lib-size.sh)
#   scripts/setup.sh footprint [TRIPLET...]  the library alone, natively or for these targets: their
#                                        cross compilers, cJSON and qemu-user (scripts/footprint.sh)
#   scripts/setup.sh cross TRIPLET...    the test suite cross-built for these targets and run under
#                                        qemu-user: their cross compilers, cJSON and GoogleTest
#                                        through multiarch (scripts/cross-test.sh)
#   scripts/setup.sh package [TRIPLET]   the Debian packaging tools (debhelper, dpkg-dev, lintian,
#                                        man-db); with a TRIPLET, its cross compilers, cJSON and
#                                        pkg-config wrapper for cross packages (scripts/package.sh)
#   scripts/setup.sh package-check       the packaging tools and the suite's build dependencies
#                                        (scripts/package.sh --check)
# Jobs can be combined (scripts/setup.sh bench chart). TRIPLET is one of the
# targets of cmake/toolchains/: arm-linux-gnueabihf, aarch64-linux-gnu, s390x-linux-gnu.
set -euo pipefail
usage="jobs: test examples valgrind tsan fuzz coverage bench chart size footprint cross package package-check;"
usage="$usage targets (with footprint, cross, package): arm-linux-gnueabihf aarch64-linux-gnu s390x-linux-gnu"
# What every build needs: the compilers, CMake, binutils and cJSON.
packages=(cmake make gcc g++ pkg-config binutils libcjson-dev)
jobs=()
triplets=()
for arg in "$@"; do
  case "$arg" in
    test|examples|valgrind|tsan|fuzz|coverage|bench|chart|size|footprint|cross|package|package-check) jobs+=("$arg") ;;
    arm-linux-gnueabihf|aarch64-linux-gnu|s390x-linux-gnu) triplets+=("$arg") ;;
    *) echo "setup: unknown argument $arg ($usage)" >&2; exit 2 ;;
  esac
done
[ ${#jobs[@]} -gt 0 ] || jobs=(test)
tests=no        # the whole test suite, Node.js and ajv included
targets=()      # what each target needs beside its compilers and cJSON, by job
for job in "${jobs[@]}"; do
  case "$job" in
    test) tests=yes ;;
    examples|tsan) packages+=(libgtest-dev) ;;
    valgrind) packages+=(libgtest-dev valgrind) ;;
    fuzz) packages+=(clang-14 libclang-rt-14-dev) ;;
    coverage) tests=yes; packages+=(gcovr) ;;
    bench) packages+=(libbenchmark-dev valgrind python3) ;;
    chart) packages+=(libbenchmark-dev gnuplot-nox python3) ;;
    size) ;;
    # The toolchain files run what they build under qemu-user.
    footprint) targets+=(qemu-user) ;;
    cross) tests=yes; targets+=(qemu-user "libgtest-dev:ARCH") ;;
    # The package build runs nothing of the target; dh_auto_configure needs
    # the target's pkg-config wrapper.
    package) packages+=(debhelper dpkg-dev lintian man-db); targets+=("pkgconf:ARCH") ;;
    package-check) packages+=(debhelper dpkg-dev lintian man-db libgtest-dev python3-jsonschema) ;;
  esac
done
if [ ${#triplets[@]} -gt 0 ] && [ ${#targets[@]} -eq 0 ]; then
  echo "setup: a target goes with footprint, cross or package ($usage)" >&2
  exit 2
fi
if [[ " ${jobs[*]} " == *" cross "* ]] && [ ${#triplets[@]} -eq 0 ]; then
  echo "setup: cross needs a target ($usage)" >&2
  exit 2
fi
if [ "$tests" = yes ]; then
  packages+=(libgtest-dev python3-jsonschema man-db)
  # Node.js for the schema check (tests/schema), from Debian when the machine has none.
  command -v node >/dev/null || packages+=(nodejs)
  command -v npm >/dev/null || packages+=(npm)
fi
foreign=()
for t in "${triplets[@]}"; do
  case "$t" in
    arm-linux-gnueabihf) arch=armhf ;;
    aarch64-linux-gnu) arch=arm64 ;;
    s390x-linux-gnu) arch=s390x ;;
  esac
  foreign+=("$arch")
  packages+=("gcc-$t" "g++-$t" "binutils-$t" "libcjson-dev:$arch" "libstdc++6:$arch" "${targets[@]//ARCH/$arch}")
done
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
schema=$(dirname "$0")/../tests/schema
if [ "$tests" = yes ] &&
   { [ ! -d "$schema/node_modules" ] || [ "$schema/node_modules" -ot "$schema/package-lock.json" ]; }; then
  (cd "$schema" && npm ci --no-audit --no-fund && touch node_modules)
fi
