#!/usr/bin/env bash
# Tests of the app_s2j command-line tool over the shipped examples.
# usage: tool_test.sh TOOL EXAMPLES_DIR
set -u
tool=$1
examples=$2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
. "$(dirname "$0")/shell_checks.sh"

# Every type has an example; each loads, and prints back exactly as written.
types=$("$tool" types | awk '{print $1}')
expect_eq "$?" "0" "types exits 0"
[ -n "$types" ] && ok || fail "types lists nothing"
for t in $types; do
  f="$examples/$t.json"
  if [ ! -f "$f" ]; then fail "no example for $t"; continue; fi
  out=$("$tool" check "$t" "$f" 2>&1); rc=$?
  expect_eq "$rc" "0" "check $t"
  expect_contains "$out" "valid $t" "check $t output"
  "$tool" print "$t" "$f" > "$tmp/p.json" 2> "$tmp/err"; rc=$?
  expect_eq "$rc" "0" "print $t"
  if cmp -s "$tmp/p.json" "$f"; then ok; else fail "print $t differs from its example"; fi
  expect_eq "$(cat "$tmp/err")" "" "print $t is silent on stderr"
  lines=$("$tool" print "$t" "$f" --compact | wc -l)
  expect_eq "$lines" "1" "print --compact $t is one line"
done
for f in "$examples"/*.json; do
  t=$(basename "$f" .json)
  echo "$types" | grep -qx "$t" && ok || fail "example $f names no record type"
done

# The listing names the families of a type.
expect_contains "$("$tool" types | grep '^CrontabParameter ')" "c2s_array_update" "types shows families"
expect_contains "$("$tool" types | grep '^DeviceCapabilitySet ')" "f2s" "types shows file families"

# Wrong usage: exit 2 with the usage text.
out=$("$tool" 2>&1); rc=$?
expect_eq "$rc" "2" "no command"
expect_contains "$out" "usage: app_s2j types" "no command prints usage"
out=$("$tool" frobnicate 2>&1); rc=$?
expect_eq "$rc" "2" "unknown command"
expect_contains "$out" "unknown command 'frobnicate'" "unknown command message"
out=$("$tool" check DeviceInfo 2>&1); rc=$?
expect_eq "$rc" "2" "check without file"
out=$("$tool" --help); rc=$?
expect_eq "$rc" "0" "--help"
expect_contains "$out" "print TYPE FILE [--compact]" "--help text"

# Every command answers --help with its synopsis and exit status 0, and
# every command that takes arguments rejects an unknown option with 2.
commands=$("$tool" --help | sed -n 's/^ *\(usage:\)\{0,1\} *app_s2j \([a-z]*\) .*/\2/p; s/^ *\(usage:\)\{0,1\} *app_s2j \([a-z]*\)$/\2/p' | grep -v '^$' | sort -u)
expect_eq "$(echo $commands)" "check print reference schema template types validate" "the usage lists every command"
for c in $commands; do
  out=$("$tool" "$c" --help); rc=$?
  expect_eq "$rc" "0" "$c --help"
  expect_contains "$out" "usage: app_s2j $c" "$c --help synopsis"
  out=$("$tool" "$c" DeviceInfo --no-such-option 2>&1); rc=$?
  expect_eq "$rc" "2" "$c rejects an unknown option"
done

# Unknown type, missing file.
out=$("$tool" check NoSuchType "$examples/DeviceInfo.json" 2>&1); rc=$?
expect_eq "$rc" "2" "unknown type"
expect_contains "$out" "unknown record type 'NoSuchType'" "unknown type message"
out=$("$tool" check DeviceInfo "$tmp/missing.json" 2>&1); rc=$?
expect_eq "$rc" "1" "missing file"
expect_contains "$out" "cannot read '$tmp/missing.json': No such file or directory" "missing file message"

# A document that does not load: the library's diagnostic and its status.
printf '{"ProductModel": 5}' > "$tmp/bad.json"
out=$("$tool" check DeviceInfo "$tmp/bad.json" 2>&1); rc=$?
expect_eq "$rc" "1" "wrong member type"
expect_contains "$out" "json_to_struct_DeviceInfo failed!" "library diagnostic shown"
expect_contains "$out" "status -1" "status shown"
printf '{"ProductModel": ' > "$tmp/cut.json"
out=$("$tool" print DeviceInfo "$tmp/cut.json" 2>&1); rc=$?
expect_eq "$rc" "1" "truncated text"
expect_contains "$out" "status -2" "parse status shown"
out=$("$tool" check DeviceInfo "$examples/CrontabParameter.json" 2>&1); rc=$?
expect_eq "$rc" "0" "array of a single-record type is read element by element"
expect_contains "$out" "valid DeviceInfo array, 3 records" "elements read with the reader"
printf '[{"ProductModel": 1}]' > "$tmp/badarr.json"
out=$("$tool" check DeviceInfo "$tmp/badarr.json" 2>&1); rc=$?
expect_eq "$rc" "1" "array element of a wrong type"
printf '[]' > "$tmp/empty.json"
out=$("$tool" check CrontabParameter "$tmp/empty.json" 2>&1); rc=$?
expect_eq "$rc" "0" "empty array checks"
out=$("$tool" print CrontabParameter "$tmp/empty.json" 2>&1); rc=$?
expect_eq "$rc" "1" "empty array does not print"

finish
