#!/usr/bin/env bash
# Every C snippet of README.md and docs/*.md (each ```c block, a whole
# program) compiles as C99 with warnings as errors against the public
# headers and the built library, and runs with exit status 0 in a directory
# holding info.json and tasks.json (copies of the examples).
# usage: doc_snippets_test.sh CC SOURCE_DIR LIBRARY_FILE [FLAG...]
# A cross build sets APP_S2J_EMULATOR, which runs the target's programs.
set -u
read -r -a run <<< "${APP_S2J_EMULATOR:-}"
cc=$1
src=$2
lib=$(cd "$(dirname "$3")" && pwd)/$(basename "$3")
shift 3
. "$(dirname "$0")/shell_checks.sh"
scratch_dir

count=0
for doc in "$src/README.md" "$src"/docs/*.md; do
  # One file per block: snippet-N.c.
  awk -v dir="$tmp" -v base="$(basename "$doc" .md)" '
    /^```c$/ { n++; out = dir "/" base "-" n ".c"; inside = 1; next }
    /^```/ { inside = 0; next }
    inside { print > out }' "$doc"
done
for c in "$tmp"/*.c; do
  [ -f "$c" ] || continue
  count=$((count + 1))
  name=$(basename "$c" .c)
  if "$cc" -std=c99 -Wall -Wextra -Werror "$@" -I "$src/apps/common/src/app_s2j" -o "$tmp/$name" "$c" "$lib" \
       -lcjson 2> "$tmp/$name.err"; then ok; else fail "$name does not compile:"; cat "$tmp/$name.err"; continue; fi
  mkdir -p "$tmp/run-$name"
  cp "$src/examples/DeviceInfo.json" "$tmp/run-$name/info.json"
  cp "$src/examples/CrontabParameter.json" "$tmp/run-$name/tasks.json"
  out=$(cd "$tmp/run-$name" && LD_LIBRARY_PATH="$(dirname "$lib")" "${run[@]}" "$tmp/$name" 2>&1); rc=$?
  expect_eq "$rc" "0" "$name runs: $out"
done
[ "$count" -ge 1 ] && ok || fail "no C snippet found"
# The README's program prints the record it read and what it updated.
out=$(cd "$tmp/run-README-1" && LD_LIBRARY_PATH="$(dirname "$lib")" "${run[@]}" "$tmp/README-1" 2>&1)
expect_contains "$out" '"ProductModel":' "the README program prints the record"
expect_contains "$out" "1 of 3 tasks updated" "the README program updates one task"
expect_contains "$(cat "$tmp/run-README-1/tasks.json")" '"Enable":	0' "the README program writes the tasks back"
finish snippets
