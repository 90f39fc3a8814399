#!/usr/bin/env bash
# Sets up, cross-builds and runs the whole test suite for one target under
# qemu-user (as root on Debian; see cmake/toolchains/ and docs/embedded.md).
#   scripts/cross-test.sh arm-linux-gnueabihf   32-bit ARM, hard float
#   scripts/cross-test.sh aarch64-linux-gnu     64-bit ARM
#   scripts/cross-test.sh s390x-linux-gnu       64-bit big-endian
# Builds in build-<target>/ (the preset named after the target).
set -euo pipefail
cd "$(dirname "$0")/.."
target=${1:-}
if [ ! -f "cmake/toolchains/$target.cmake" ] || [ "$target" = debian-cross ]; then
  targets=$(cd cmake/toolchains && ls | grep -v debian-cross | sed 's/\.cmake$//' | tr '\n' ' ')
  echo "usage: scripts/cross-test.sh TARGET   (TARGET: $targets)" >&2
  exit 2
fi
scripts/setup.sh cross "$target"
cmake --preset "$target" >/dev/null
cmake --build --preset "$target" -j"$(nproc)"
ctest --preset "$target" -j"$(nproc)"
