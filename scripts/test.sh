#!/usr/bin/env bash
# Sets up, builds and runs the whole test suite through ctest.
#   scripts/test.sh             the normal build (preset default, build/)
#   scripts/test.sh --sanitize  AddressSanitizer + UndefinedBehaviorSanitizer (preset sanitize, build-sanitize/)
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh test
preset=default
[ "${1:-}" = "--sanitize" ] && preset=sanitize
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j"$(nproc)"
ctest --preset "$preset" -j"$(nproc)"
