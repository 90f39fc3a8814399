#!/usr/bin/env bash
# Tests of the app_s2j command-line tool over the shipped examples.
# usage: tool_test.sh TOOL EXAMPLES_DIR
set -u
tool=$1
examples=$2
. "$(dirname "$0")/shell_checks.sh"
scratch_dir

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
expect_run "no command" 2 "usage: app_s2j types" "$tool"
expect_run "unknown command" 2 "unknown command 'frobnicate'" "$tool" frobnicate
out=$("$tool" check DeviceInfo 2>&1); rc=$?
expect_eq "$rc" "2" "check without file"
out=$("$tool" --help); rc=$?
expect_eq "$rc" "0" "--help"
expect_contains "$out" "print TYPE FILE [--compact]" "--help text"

# Every command answers --help with its synopsis and exit status 0, and
# every command that takes arguments rejects an unknown option with 2.
commands=$("$tool" --help |
  sed -n 's/^ *\(usage:\)\{0,1\} *app_s2j \([a-z]*\) .*/\2/p; s/^ *\(usage:\)\{0,1\} *app_s2j \([a-z]*\)$/\2/p' |
  grep -v '^$' | sort -u)
expect_eq "$(echo $commands)" "check diff print reference schema template types update validate" \
  "the usage lists every command"
for c in $commands; do
  out=$("$tool" "$c" --help); rc=$?
  expect_eq "$rc" "0" "$c --help"
  expect_contains "$out" "usage: app_s2j $c" "$c --help synopsis"
  out=$("$tool" "$c" DeviceInfo --no-such-option 2>&1); rc=$?
  expect_eq "$rc" "2" "$c rejects an unknown option"
done

# Unknown type, missing file.
expect_run "unknown type" 2 "unknown record type 'NoSuchType'" "$tool" check NoSuchType "$examples/DeviceInfo.json"
expect_run "missing file" 1 "cannot read '$tmp/missing.json': No such file or directory" \
  "$tool" check DeviceInfo "$tmp/missing.json"

# A document that does not load: the library's diagnostic and its status.
printf '{"ProductModel": 5}' > "$tmp/bad.json"
expect_run "wrong member type" 1 "json_to_struct_DeviceInfo failed!" "$tool" check DeviceInfo "$tmp/bad.json"
expect_contains "$out" "status -1" "status shown"
printf '{"ProductModel": ' > "$tmp/cut.json"
expect_run "truncated text" 1 "status -2" "$tool" print DeviceInfo "$tmp/cut.json"
# The shape is the one the type's families read.
expect_run "an array of a single-record type is rejected, as f2s_DeviceInfo rejects it" \
  1 "not a valid DeviceInfo: status -2" \
  "$tool" check DeviceInfo "$examples/CrontabParameter.json"
printf '{"Index":1,"Enable":1}' > "$tmp/cron-object.json"
expect_run "an object of an array type is rejected, as f2s_array_CrontabParameter rejects it" \
  1 "not a valid CrontabParameter array: status -2" \
  "$tool" check CrontabParameter "$tmp/cron-object.json"
printf '\f[{"Index":1}]' > "$tmp/formfeed.json"
out=$("$tool" check CrontabParameter "$tmp/formfeed.json" 2>&1); rc=$?
expect_eq "$rc" "0" "a form feed before the array is a blank to the library"
expect_eq "$out" "$tmp/formfeed.json: valid CrontabParameter array, 1 record" "form feed: the library's count"
printf '{"Name":"a"}' > "$tmp/user.json"
expect_eq "$("$tool" check CreateUserParameter "$tmp/user.json" 2>&1)" "$tmp/user.json: valid CreateUserParameter" \
  "a type of both shapes reads an object"
printf '[{"Name":"a"}]' > "$tmp/users.json"
expect_eq "$("$tool" check CreateUserParameter "$tmp/users.json" 2>&1)" \
  "$tmp/users.json: valid CreateUserParameter array, 1 record" "a type of both shapes reads an array"

# The input is read once: standard input, a pipe, a FIFO.
f="$examples/DeviceInfo.json"
expect_eq "$("$tool" check DeviceInfo - < "$f" 2>&1)" "-: valid DeviceInfo" "check of standard input as -"
expect_eq "$(cat "$f" | "$tool" check DeviceInfo /dev/stdin 2>&1)" "/dev/stdin: valid DeviceInfo" \
  "check of a pipe through /dev/stdin"
out=$("$tool" check DeviceInfo <(cat "$f") 2>&1); rc=$?
expect_eq "$rc" "0" "check of a process substitution"
"$tool" print DeviceInfo - < "$f" > "$tmp/p.json"
cmp -s "$tmp/p.json" "$f" && ok || fail "print of standard input differs from the example"
mkfifo "$tmp/fifo"
(cat "$examples/CrontabParameter.json" > "$tmp/fifo") &
out=$(timeout 20 "$tool" check CrontabParameter "$tmp/fifo" 2>&1); rc=$?
wait
expect_eq "$rc" "0" "check of a FIFO ends"
expect_eq "$out" "$tmp/fifo: valid CrontabParameter array, 3 records" "check of a FIFO"

# A directory is named with the reason.
out=$("$tool" check DeviceInfo "$tmp" 2>&1); rc=$?
expect_eq "$rc" "1" "check of a directory"
expect_eq "$out" "app_s2j: cannot read '$tmp': Is a directory" "a directory: the reason"

# The library's parse diagnostic, on its own line and cut to 200 bytes.
{ printf '{"ProductModel": "'; head -c 300000 /dev/zero | tr '\0' 'x'; } > "$tmp/long.json"
"$tool" check DeviceInfo "$tmp/long.json" > /dev/null 2> "$tmp/err"; rc=$?
expect_eq "$rc" "1" "an unparsable long file"
longest=$(awk '{ if (length($0) > n) n = length($0) } END { print n + 0 }' "$tmp/err")
[ "$(wc -c < "$tmp/err")" -lt 2000 ] && ok || fail "the diagnostic of a long file is $(wc -c < "$tmp/err") bytes"
[ "$longest" -lt 260 ] && ok || fail "a diagnostic line of $longest bytes"
expect_contains "$(cat "$tmp/err")" "cJSON_Parse(" "the library's parse diagnostic is shown"
expect_contains "$(cat "$tmp/err")" "more bytes)" "the cut is named"
grep -q "^app_s2j: $tmp/long.json: not a valid DeviceInfo: status -2" "$tmp/err" && ok || \
  fail "the tool's line does not begin a line: $(cat "$tmp/err")"

# The version, from the public header's macros.
header=$(dirname "$0")/../apps/common/src/app_s2j/app_s2j.h
version=$(sed -n 's/^#define APP_S2J_VERSION_STRING "\(.*\)"/\1/p' "$header")
[ -n "$version" ] && ok || fail "no version string in $header"
out=$("$tool" --version); rc=$?
expect_eq "$rc" "0" "--version"
expect_eq "$out" "app_s2j $version (libapp_s2j $version)" "--version names the version"
expect_contains "$("$tool" --help)" "app_s2j --version" "the usage names --version"

# Memory follows the input: 600 KB of empty elements of a type of 2 KB
# records load under a limit far below the records' size, and running out
# of memory is exit 1 with a message.  (AddressSanitizer reserves more
# address space than any such limit allows.)
if ldd "$tool" 2>/dev/null | grep -q libasan; then
  echo "memory limits not checked: the tool is built with AddressSanitizer"
elif [ -n "${APP_S2J_EMULATOR:-}" ]; then
  echo "memory limits not checked: the tool runs under an emulator, which needs more address space itself"
else
  { printf '['; for i in $(seq 1 200); do printf '{},%.0s' $(seq 1 1000); done; printf '{}]'; } > "$tmp/empties.json"
  out=$(ulimit -v 120000; "$tool" check VideoOutputScreenSplitParameter "$tmp/empties.json" 2>&1); rc=$?
  expect_eq "$rc" "0" "check of 200001 empty elements under a 120 MB limit"
  expect_eq "$out" "$tmp/empties.json: valid VideoOutputScreenSplitParameter array, 200001 records" \
    "check of 200001 empty elements"
  out=$(ulimit -v 120000; "$tool" print VideoOutputScreenSplitParameter "$tmp/empties.json" --compact 2>&1 | wc -l)
  expect_eq "$out" "1" "print of 200001 empty elements under a 120 MB limit"
  head -c 150000000 /dev/zero > "$tmp/huge.json"
  out=$(ulimit -v 120000; "$tool" check DeviceInfo "$tmp/huge.json" 2>&1); rc=$?
  rm -f "$tmp/huge.json"
  expect_eq "$rc" "1" "out of memory is exit 1"
  expect_eq "$out" "app_s2j: out of memory" "out of memory: the message"
fi
printf '[]' > "$tmp/empty.json"
out=$("$tool" check CrontabParameter "$tmp/empty.json" 2>&1); rc=$?
expect_eq "$rc" "0" "empty array checks"
out=$("$tool" print CrontabParameter "$tmp/empty.json" 2>&1); rc=$?
expect_eq "$rc" "1" "empty array does not print"

finish
