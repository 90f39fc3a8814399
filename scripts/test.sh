#!/usr/bin/env bash
# Sets up, builds and runs the whole test suite through ctest.
#   scripts/test.sh             the normal build (build/)
#   scripts/test.sh --sanitize  AddressSanitizer + UndefinedBehaviorSanitizer (build-sanitize/)
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
preset=default
[ "${1:-}" = "--sanitize" ] && preset=sanitize
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j"$(nproc)"
ctest --preset "$preset" -j"$(nproc)"
