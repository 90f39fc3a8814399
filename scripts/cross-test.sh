#!/usr/bin/env bash
# Sets up, cross-builds and runs the whole test suite for one target under
# qemu-user (as root on Debian; see cmake/toolchains/ and docs/embedded.md).
#   scripts/cross-test.sh arm-linux-gnueabihf   32-bit ARM, hard float
#   scripts/cross-test.sh aarch64-linux-gnu     64-bit ARM
#   scripts/cross-test.sh s390x-linux-gnu       64-bit big-endian
# Builds in build-<target>/.
set -euo pipefail
cd "$(dirname "$0")/.."
target=${1:-}
if [ ! -f "cmake/toolchains/$target.cmake" ] || [ "$target" = debian-cross ]; then
  echo "usage: scripts/cross-test.sh TARGET   (TARGET: $(cd cmake/toolchains && ls | grep -v debian-cross | sed 's/\.cmake$//' | tr '\n' ' '))" >&2
  exit 2
fi
scripts/setup.sh "$target"
build=build-$target
cmake -S . -B "$build" -DCMAKE_TOOLCHAIN_FILE="cmake/toolchains/$target.cmake" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" -j"$(nproc)"
ctest --test-dir "$build" -j"$(nproc)" --output-on-failure
