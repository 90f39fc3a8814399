#!/usr/bin/env bash
# Sets up, builds, and runs the app_s2j tool over every file in examples/:
# each is checked as its record type and validated (the library must read it
# exactly as written); then one example printed back as the library writes
# it, and the report on a broken file from tests/validate-corpus/.
# Builds the tool in build/ (preset default, the build scripts/test.sh tests).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh examples
cmake --preset default >/dev/null
cmake --build --preset default -j"$(nproc)" --target app_s2j_tool
status=0
for f in examples/*.json; do
  type=$(basename "$f" .json)
  build/tools/app_s2j check "$type" "$f" || status=1
  build/tools/app_s2j validate "$type" "$f" --quiet > /dev/null ||
    { echo "$f: not read exactly as written" >&2; status=1; }
done
echo
echo "== examples/CrontabParameter.json, as the library writes it (compact):"
build/tools/app_s2j print CrontabParameter examples/CrontabParameter.json --compact
echo
echo "== what validate says of a broken file (tests/validate-corpus/VideoEncodeParameter.width-as-text.json):"
build/tools/app_s2j validate VideoEncodeParameter tests/validate-corpus/VideoEncodeParameter.width-as-text.json || true
exit $status
