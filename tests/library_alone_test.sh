#!/usr/bin/env bash
# The library alone needs only a compiler, CMake, pkg-config and cJSON:
# with GoogleTest and Google Benchmark made unfindable,
#  - the project configures with BUILD_TESTING=OFF (and no test is defined),
#    and without it fails with a message that names the switch;
#  - a parent project that takes it in with add_subdirectory, and turns its
#    own tests on, builds the library and only the library, and links a
#    program that includes the header in both spellings.
# usage: library_alone_test.sh SOURCE_DIR [C_COMPILER CXX_COMPILER]
set -u
src=$1
compilers=()
[ $# -ge 3 ] && compilers=(-DCMAKE_C_COMPILER="$2" -DCMAKE_CXX_COMPILER="$3")
. "$(dirname "$0")/shell_checks.sh"
scratch_dir
unfindable=(-DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON "${compilers[@]}")

check "configures with BUILD_TESTING=OFF and no GoogleTest or Google Benchmark" \
  cmake -S "$src" -B "$tmp/top" -DBUILD_TESTING=OFF "${unfindable[@]}"
[ ! -e "$tmp/top/tests" ] && ok || fail "BUILD_TESTING=OFF still configures tests/"
[ ! -e "$tmp/top/bench" ] && ok || fail "bench/ is configured without Google Benchmark"
tests=$(cd "$tmp/top" && ctest -N 2>&1 | sed -n 's/^Total Tests: //p')
expect_eq "$tests" "0" "tests defined with BUILD_TESTING=OFF"

if cmake -S "$src" -B "$tmp/top-tests" "${unfindable[@]}" > "$tmp/out" 2>&1; then
  fail "configures with tests on although GoogleTest cannot be found"
else
  expect_contains "$(cat "$tmp/out")" "configure with -DBUILD_TESTING=OFF" "message without GoogleTest"
fi

mkdir -p "$tmp/parent"
cat > "$tmp/parent/CMakeLists.txt" <<EOT
cmake_minimum_required(VERSION 3.25)
project(parent LANGUAGES C CXX)
include(CTest)
add_subdirectory("$src" app_s2j)
add_executable(both_forms both_forms.c)
target_link_libraries(both_forms PRIVATE app_s2j::app_s2j)
EOT
cat > "$tmp/parent/both_forms.c" <<'EOT'
#include <app_s2j.h>
#include <app_s2j/app_s2j.h>
#include <stdio.h>
#include <stdlib.h>
int main(void) {
    DeviceTime t;
    char *text;
    if (j2s_DeviceTime("{}", &t) != 0) return 1;
    text = s2j_DeviceTime(&t, 0);
    if (text == NULL) return 1;
    printf("%s %s\n", APP_S2J_VERSION_STRING, text);
    free(text);
    return 0;
}
EOT
check "a parent project configures with add_subdirectory" cmake -S "$tmp/parent" -B "$tmp/pbuild" "${unfindable[@]}"
check "the parent builds the library and its program" cmake --build "$tmp/pbuild" -j2
for d in tests tools bench fuzz; do
  [ ! -e "$tmp/pbuild/app_s2j/$d" ] && ok || fail "the parent's build has the subproject's $d/"
done
tests=$(cd "$tmp/pbuild" && ctest -N 2>&1 | sed -n 's/^Total Tests: //p')
expect_eq "$tests" "0" "tests the subproject adds to the parent"
out=$("$tmp/pbuild/both_forms" 2>&1)
expect_contains "$out" '{"' "the program including both spellings runs"

finish library_alone_test
