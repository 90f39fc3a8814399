#!/usr/bin/env bash
# Sets up, builds, and runs the app_s2j tool over every file in examples/:
# each is checked as its record type and printed back as the library writes it.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target app_s2j_tool
status=0
for f in examples/*.json; do
  type=$(basename "$f" .json)
  build/tools/app_s2j check "$type" "$f" || status=1
done
echo
echo "== examples/CrontabParameter.json, as the library writes it (compact):"
build/tools/app_s2j print CrontabParameter examples/CrontabParameter.json --compact
exit $status
