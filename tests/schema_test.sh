#!/usr/bin/env bash
# Tests of `app_s2j schema` through the tool: the documents it prints, its
# help, and the exit status and message of every usage error.
# usage: schema_test.sh TOOL
set -u
tool=$1
. "$(dirname "$0")/shell_checks.sh"
scratch_dir

synopsis='usage: app_s2j schema TYPE [--update] | schema --all
(app_s2j schema --help tells more)'

# A type's document: formatted, closed by a newline, nothing on stderr.
"$tool" schema DeviceTime > "$tmp/out" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "0" "schema DeviceTime"
expect_eq "$(cat "$tmp/err")" "" "schema DeviceTime is silent on stderr"
expect_eq "$(head -c 2 "$tmp/out" | od -An -c | tr -d ' ')" '{\n' "document starts formatted"
expect_eq "$(tail -c 2 "$tmp/out" | od -An -c | tr -d ' ')" '}\n' "document ends with a newline"
out=$(cat "$tmp/out")
expect_contains "$out" '"$id":	"urn:app-s2j:DeviceTime"' "id of a type"
expect_contains "$out" '"minimum":	-2147483648' "int32 minimum written exactly"
expect_contains "$out" '"maximum":	4294967295' "uint32 maximum written exactly"

expect_run "schema --update" 0 '"$id":	"urn:app-s2j:CrontabParameter:update"' "$tool" schema CrontabParameter --update
expect_contains "$out" '"required":	["Index"]' "update requires the key"

"$tool" schema --all > "$tmp/all" 2> "$tmp/err"; rc=$?
expect_eq "$rc" "0" "schema --all"
expect_eq "$(cat "$tmp/err")" "" "schema --all is silent on stderr"
types=$("$tool" types | wc -l)
ids=$(grep -v '"urn:app-s2j:all"' "$tmp/all" | grep -c '"$id":	"urn:app-s2j:[A-Za-z]*"')
expect_eq "$ids" "$types" "--all holds one document per type"
updates=$("$tool" types | grep -c 'c2s_array_update')
ids=$(grep -c '"$id":	"urn:app-s2j:[A-Za-z]*:update"' "$tmp/all")
expect_eq "$ids" "$updates" "--all holds one update document per keyed type"

# Help.
out=$("$tool" schema --help); rc=$?
expect_eq "$rc" "0" "schema --help"
expect_eq "$(echo "$out" | head -1)" "usage: app_s2j schema TYPE [--update] | schema --all" "help synopsis"
expect_contains "$out" "duplicate keys" "help tells the known limits"
out=$("$tool" --help); rc=$?
expect_contains "$out" "app_s2j schema TYPE [--update] | schema --all" "command list names schema"

# Usage errors: exit 2, the reason, then the synopsis; nothing on stdout.
usage_case() {
  local want=$1; shift
  "$tool" schema "$@" > "$tmp/out" 2> "$tmp/err"; local rc=$?
  expect_eq "$rc" "2" "schema $* exits 2"
  expect_eq "$(cat "$tmp/err")" "$want" "schema $* message"
  expect_eq "$(cat "$tmp/out")" "" "schema $* prints no document"
}
usage_case "app_s2j: 'schema' takes a TYPE, or --all
$synopsis"
usage_case "app_s2j: unknown option '--frob'
$synopsis" DeviceInfo --frob
usage_case "app_s2j: 'schema' takes one TYPE
$synopsis" DeviceInfo DeviceTime
usage_case "app_s2j: --all takes no TYPE
$synopsis" --all DeviceInfo
usage_case "app_s2j: --all already holds every update schema; drop --update
$synopsis" --all --update
no_update="app_s2j: DeviceInfo has no keyed update (c2s_array_update); --update applies only to the types"
no_update="$no_update whose families in 'app_s2j types' include it"
usage_case "$no_update
$synopsis" DeviceInfo --update
usage_case "app_s2j: unknown record type 'NoSuchType' (app_s2j types lists them)" NoSuchType

finish schema
