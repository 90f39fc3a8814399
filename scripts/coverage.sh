#!/usr/bin/env bash
# Line and branch coverage of the library's sources (apps/common/src/app_s2j/)
# by the test suite: builds with gcc --coverage at -O0 in build-coverage/
# (preset coverage; counters updated atomically, as the threads test runs the
# library from eight threads at once), runs the suite as the default test
# preset does (every test but the valgrind label; its output in
# build-coverage/coverage-ctest.log), then prints gcovr's table per source
# file and the summary of lines and branches.
#   scripts/coverage.sh
# The figures are those of libapp_s2j.so's own objects. A second summary also
# counts app_s2j_internal, the static library the tests link, which compiles
# the integer items, the field tables and the registry once more: the tests'
# calls to the integer functions reach that copy. The reference build of the
# tree path (app_s2j_tree) is left out.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh coverage
cmake --preset coverage >/dev/null
cmake --build --preset coverage -j"$(nproc)"
# Counts of an earlier run would add up with this one's.
find build-coverage -name '*.gcda' -delete
log=build-coverage/coverage-ctest.log
ctest --preset coverage -j"$(nproc)" >"$log" 2>&1 ||
  { tail -40 "$log" >&2; echo "coverage: the suite failed; see $log" >&2; exit 1; }
grep -E '^[0-9]+% tests passed' "$log"
objects=build-coverage/apps/common/src/app_s2j/CMakeFiles
echo
echo "== Coverage of libapp_s2j.so by the test suite (gcov, -O0):"
gcovr --root . --filter 'apps/common/src/app_s2j/' --print-summary "$objects/app_s2j.dir"
echo
echo "== The same with the tests' static copy of its sources (app_s2j_internal):"
# gcovr replaces the file given to --output (a device too), so its table
# goes to a file of the build tree.
gcovr --root . --filter 'apps/common/src/app_s2j/' --print-summary --output build-coverage/coverage-with-internal.txt \
  "$objects/app_s2j.dir" "$objects/app_s2j_internal.dir"
