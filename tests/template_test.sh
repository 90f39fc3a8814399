#!/usr/bin/env bash
# Tests of `app_s2j template` and of the usage of `app_s2j reference`: every
# type's template, in each shape, loads with check and prints back unchanged.
# usage: template_test.sh TOOL
set -u
tool=$1
. "$(dirname "$0")/shell_checks.sh"
scratch_dir

# TYPE SHAPE-WORD FLAG...: the template loads as SHAPE-WORD ("record" or
# "array") and print writes it back byte for byte.
round_trip() {
  local t=$1 shape=$2
  shift 2
  "$tool" template "$t" "$@" > "$tmp/t.json" 2> "$tmp/err"; local rc=$?
  expect_eq "$rc" "0" "template $t $*"
  expect_eq "$(cat "$tmp/err")" "" "template $t $* is silent on stderr"
  local want="$tmp/t.json: valid $t"
  [ "$shape" = array ] && want="$tmp/t.json: valid $t array, 1 record"
  expect_eq "$("$tool" check "$t" "$tmp/t.json" 2>&1)" "$want" "check of the template of $t $*"
  "$tool" print "$t" "$tmp/t.json" > "$tmp/p.json" 2> "$tmp/err"; rc=$?
  expect_eq "$rc" "0" "print of the template of $t $*"
  if cmp -s "$tmp/p.json" "$tmp/t.json"; then ok; else fail "print of the template of $t $* differs from it"; fi
  expect_eq "$(cat "$tmp/err")" "" "print of the template of $t $* is silent on stderr"
}

# The types whose files hold arrays: those with an array family.
"$tool" types > "$tmp/types"
count=0
while read -r t subsystem families; do
  count=$((count + 1))
  arrays=no; records=no
  case " $families" in *_array*) arrays=yes ;; esac
  case " $families " in *" s2j "*|*" c2s "*|*" j2s "*|*" f2s "*|*" s2f "*) records=yes ;; esac
  [ "$arrays" = no ] && records=yes
  if [ "$arrays" = yes ]; then round_trip "$t" array; else round_trip "$t" record; fi
  # Each shape the type's families read, and no other.
  if [ "$records" = yes ]; then round_trip "$t" record --record; else
    "$tool" template "$t" --record > /dev/null 2>&1; expect_eq "$?" "2" "template $t --record"; fi
  if [ "$arrays" = yes ]; then round_trip "$t" array --array; else
    "$tool" template "$t" --array > /dev/null 2>&1; expect_eq "$?" "2" "template $t --array"; fi
done < "$tmp/types"
[ "$count" -gt 0 ] && ok || fail "types lists nothing"

# The default shape of two known types, and the order of the flag.
"$tool" template TimeZone > "$tmp/a"
expect_eq "$(head -c 1 "$tmp/a")" "[" "an array type gives an array"
"$tool" template DeviceInfo > "$tmp/a"
expect_eq "$(head -c 1 "$tmp/a")" "{" "a single-record type gives an object"
"$tool" template --array CreateUserParameter > "$tmp/b"
expect_eq "$(head -c 1 "$tmp/b")" "[" "the flag may come before the type"
"$tool" template --record CreateUserParameter > "$tmp/b"
expect_eq "$(head -c 1 "$tmp/b")" "{" "a type of both shapes gives an object with --record"

# Wrong usage: exit 2, nothing on stdout, the reason and synopsis on stderr.
usage_case() {
  local what=$1 why=$2 synopsis=$3 cmd=$4
  shift 4
  "$tool" "$@" > "$tmp/out" 2> "$tmp/err"; local rc=$?
  expect_eq "$rc" "2" "$what: exit status"
  expect_eq "$(cat "$tmp/out")" "" "$what: nothing on stdout"
  expect_eq "$(cat "$tmp/err")" "app_s2j: $why
usage: app_s2j $synopsis
(app_s2j $cmd --help tells more)" "$what: message"
}
tsyn="template TYPE [--record|--array]"
usage_case "template without a type" "'template' takes one TYPE" "$tsyn" template template
usage_case "template with two types" "'template' takes one TYPE" "$tsyn" template template DeviceInfo TimeZone
usage_case "template with an unknown option" "unknown option '--compact'" "$tsyn" template template DeviceInfo --compact
usage_case "template with both shapes" "--record and --array exclude each other" "$tsyn" template \
  template DeviceInfo --record --array
usage_case "reference with an argument" "'reference' takes no arguments" "reference" reference reference DeviceInfo
usage_case "reference with an option" "unknown option '--all'" "reference" reference reference --all

"$tool" template NoSuchType > "$tmp/out" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "2" "template of an unknown type: exit status"
expect_eq "$(cat "$tmp/out")" "" "template of an unknown type: nothing on stdout"
expect_eq "$(cat "$tmp/err")" "app_s2j: unknown record type 'NoSuchType' (app_s2j types lists them)" \
  "template of an unknown type: message"

# --help of each command, and the command list.
for cmd in template reference; do
  "$tool" $cmd --help > "$tmp/out" 2> "$tmp/err"; rc=$?
  expect_eq "$rc" "0" "$cmd --help: exit status"
  expect_eq "$(cat "$tmp/err")" "" "$cmd --help: silent on stderr"
  expect_eq "$(head -n 1 "$tmp/out")" "usage: app_s2j $([ $cmd = template ] && echo "$tsyn" || echo reference)" \
    "$cmd --help: synopsis"
  expect_eq "$(sed -n 2p "$tmp/out")" "" "$cmd --help: blank line after the synopsis"
  [ "$(wc -l < "$tmp/out")" -gt 3 ] && ok || fail "$cmd --help: the help text follows"
done
"$tool" template DeviceInfo --help > "$tmp/out"; rc=$?
expect_eq "$rc" "0" "--help after a type"
"$tool" --help > "$tmp/out"
grep -q "^  template   " "$tmp/out" && ok || fail "the command list names template"
grep -q "^  reference  " "$tmp/out" && ok || fail "the command list names reference"

# A shape the type's families do not read.
usage_case "an array of a single-record type" \
  "DeviceInfo is read as one record, never as an array; --array does not apply" \
  "template TYPE [--record|--array]" template template DeviceInfo --array
usage_case "a record of an array type" \
  "TimeZone is read as a record array only; --record does not apply" \
  "template TYPE [--record|--array]" template template TimeZone --record

finish
