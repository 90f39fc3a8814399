#!/usr/bin/env bash
# The check of the committed reference fails on a changed copy of it, with the
# message that tells how to write it again, and passes on an exact copy.
# usage: reference_doc_check_test.sh CHECK_SCRIPT TOOL DOC
set -u
check=$1
tool=$2
doc=$3
. "$(dirname "$0")/shell_checks.sh"
scratch_dir

stale="$tmp/records.md is out of date: run 'cmake --build BUILD --target records-doc' and commit docs/records.md"

"$tool" reference > "$tmp/fresh.md"

# An exact copy passes.
cp "$tmp/fresh.md" "$tmp/records.md"
"$check" "$tool" "$tmp/records.md" > "$tmp/out" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "0" "exact copy"
expect_eq "$(cat "$tmp/err")" "" "exact copy is silent on stderr"

# A note edited by hand.
sed '0,/| key 1 |/s//| |/' "$tmp/fresh.md" > "$tmp/records.md"
cmp -s "$tmp/fresh.md" "$tmp/records.md" && fail "the edit changed nothing"
"$check" "$tool" "$tmp/records.md" > "$tmp/out" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "1" "a key mark removed"
expect_eq "$(cat "$tmp/err")" "$stale" "a key mark removed: message"

# A section missing (a type added to the library since the file was written).
grep -v '^### DeviceInfo$' "$tmp/fresh.md" > "$tmp/records.md"
"$check" "$tool" "$tmp/records.md" > "$tmp/out" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "1" "a heading missing"
expect_eq "$(cat "$tmp/err")" "$stale" "a heading missing: message"

# A line added at the end; the file gone.
{ cat "$tmp/fresh.md"; echo "edited by hand"; } > "$tmp/records.md"
"$check" "$tool" "$tmp/records.md" > "$tmp/out" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "1" "a line added"
expect_eq "$(cat "$tmp/err")" "$stale" "a line added: message"
rm "$tmp/records.md"
"$check" "$tool" "$tmp/records.md" > "$tmp/out" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "1" "no file"

finish
