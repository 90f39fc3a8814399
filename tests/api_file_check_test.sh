#!/usr/bin/env bash
# The check of the generated files fails on a changed copy of the header or
# of the export list, with the message that tells how to write them again,
# and passes on an exact copy.
# usage: api_file_check_test.sh CHECK_SCRIPT GENERATOR TEMPLATE
set -u
check=$1
generator=$2
template=$3
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
. "$(dirname "$0")/shell_checks.sh"

# shellcheck disable=SC2086
${APP_S2J_EMULATOR:-} "$generator" header "$template" > "$tmp/fresh.h" || fail "the generator failed"
# shellcheck disable=SC2086
${APP_S2J_EMULATOR:-} "$generator" symbols > "$tmp/fresh.symbols" || fail "the generator failed"
grep -q -x 'int j2s_DeviceInfo(const char \*json_str, DeviceInfo \*struct_ptr);' "$tmp/fresh.h" && ok ||
  fail "the header does not declare j2s_DeviceInfo written out"

# An exact copy passes, silently on stderr.
cp "$tmp/fresh.h" "$tmp/app_s2j.h"
"$check" "$generator" "$tmp/app_s2j.h" header "$template" > "$tmp/out" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "0" "exact copy"
expect_eq "$(cat "$tmp/err")" "" "exact copy is silent on stderr"

# A prototype taken out of the header (a member added to a list since).
grep -v '^int j2s_DeviceInfo(' "$tmp/fresh.h" > "$tmp/app_s2j.h"
"$check" "$generator" "$tmp/app_s2j.h" header "$template" > "$tmp/out" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "1" "a prototype missing"
expect_eq "$(cat "$tmp/err")" \
  "$tmp/app_s2j.h is out of date: run 'cmake --build BUILD --target api-files' and commit it" \
  "a prototype missing: message"

# A symbol added to the export list by hand.
{ cat "$tmp/fresh.symbols"; echo "s2j_NoSuchType"; } > "$tmp/app_s2j.symbols"
"$check" "$generator" "$tmp/app_s2j.symbols" symbols > "$tmp/out" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "1" "a symbol added"
expect_eq "$(cat "$tmp/err")" \
  "$tmp/app_s2j.symbols is out of date: run 'cmake --build BUILD --target api-files' and commit it" \
  "a symbol added: message"

finish
