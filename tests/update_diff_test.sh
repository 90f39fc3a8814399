#!/usr/bin/env bash
# Tests of `app_s2j update` (a keyed update request applied to a file, the
# file replaced whole) and `app_s2j diff` (records and fields that differ).
# usage: update_diff_test.sh TOOL EXAMPLES_DIR
set -u
tool=$1
examples=$2
. "$(dirname "$0")/shell_checks.sh"
scratch_dir

inode() { stat -c %i "$1"; }
# Files in the scratch directory other than the ones named.
others() { (cd "$1" && shift && ls -A | grep -vxF "$(printf '%s\n' "$@")"); }

cron="$examples/CrontabParameter.json"
mkdir "$tmp/u"
cp "$cron" "$tmp/u/tasks.json"
printf '[{"Index":3,"Enable":1,"Command":"/bin/true"},{"Index":7,"Enable":1}]' > "$tmp/req.json"
want_listing='Index=3:
  Enable: 0 -> 1
  Command: "/sbin/reboot" -> "/bin/true"'

# --dry-run names the record by its key and each field OLD -> NEW, and
# writes nothing.
before=$(inode "$tmp/u/tasks.json")
expect_output "update --dry-run" 0 "$want_listing
$tmp/u/tasks.json: 1 update applied, 1 of 3 records would change; nothing written (--dry-run)" \
  "$tool" update CrontabParameter "$tmp/u/tasks.json" "$tmp/req.json" --dry-run
cmp -s "$tmp/u/tasks.json" "$cron" && ok || fail "update --dry-run changed the file"
expect_eq "$(inode "$tmp/u/tasks.json")" "$before" "update --dry-run keeps the file"
expect_eq "$(others "$tmp/u" tasks.json)" "" "update --dry-run leaves no other file"

# The update: the same listing, the file replaced by a new one (a new
# inode), no file left beside it, and the text the library writes.
chmod 640 "$tmp/u/tasks.json"
expect_output "update" 0 "$want_listing
$tmp/u/tasks.json: 1 update applied, 1 of 3 records changed; written" \
  "$tool" update CrontabParameter "$tmp/u/tasks.json" "$tmp/req.json"
[ "$(inode "$tmp/u/tasks.json")" != "$before" ] && ok || fail "update did not replace the file by a new one"
expect_eq "$(others "$tmp/u" tasks.json)" "" "update leaves no temporary file"
expect_eq "$(stat -c %a "$tmp/u/tasks.json")" "640" "update keeps the file's permission bits"
"$tool" print CrontabParameter "$tmp/u/tasks.json" > "$tmp/printed.json"
printf '%s' "$(cat "$tmp/printed.json")" > "$tmp/printed-no-newline.json"
cmp -s "$tmp/u/tasks.json" "$tmp/printed-no-newline.json" && ok || \
  fail "the updated file is not the library's text without a final newline, as s2f_array writes it"
expect_contains "$(cat "$tmp/u/tasks.json")" '"Command":	"/bin/true"' "the updated file holds the new value"
expect_eq "$(grep -c '"Index"' "$tmp/u/tasks.json")" "3" "the updated file keeps every record"

# A request that changes nothing leaves the file as it was.
before=$(inode "$tmp/u/tasks.json")
cp "$tmp/u/tasks.json" "$tmp/saved.json"
expect_output "an update that changes nothing" 0 \
  "$tmp/u/tasks.json: 1 update applied, no record changed; the file is left as it was" \
  "$tool" update CrontabParameter "$tmp/u/tasks.json" "$tmp/req.json"
expect_eq "$(inode "$tmp/u/tasks.json")" "$before" "an update that changes nothing keeps the file"

# The count is the library's: two elements of one key count twice; the
# request may come from standard input.
out=$(printf '[{"Index":1,"Hour":"5"},{"Index":1,"Hour":"6"}]' |
  "$tool" update CrontabParameter "$tmp/u/tasks.json" - 2>&1); rc=$?
expect_eq "$rc" "0" "update from standard input"
expect_eq "$out" 'Index=1:
  Hour: "3" -> "6"
'"$tmp/u/tasks.json: 2 updates applied, 1 of 3 records changed; written" "two elements of one key count twice"

# The library refuses the request: its diagnostic, exit 1, the file kept.
cp "$tmp/u/tasks.json" "$tmp/saved.json"
before=$(inode "$tmp/u/tasks.json")
out=$(printf '[{"Index":2,"Enable":0},{"Enable":1}]' | "$tool" update CrontabParameter "$tmp/u/tasks.json" - 2>&1)
rc=$?
expect_eq "$rc" "1" "an element without its key"
expect_contains "$out" "The keyword is not contained in an object of the json array!" "the library's diagnostic"
refusal="app_s2j: standard input: j2s_array_update_CrontabParameter refuses the request: status -2;"
expect_contains "$out" "$refusal $tmp/u/tasks.json is left as it was" "the refusal is named"
cmp -s "$tmp/u/tasks.json" "$tmp/saved.json" && ok || fail "a refused request changed the file"
expect_eq "$(inode "$tmp/u/tasks.json")" "$before" "a refused request keeps the file"
printf '[{"Index":2,"Enable":"yes"}]' > "$tmp/wrong.json"
expect_run "a member of the wrong type" 1 "json_to_struct_CrontabParameter failed!" \
  "$tool" update CrontabParameter "$tmp/u/tasks.json" "$tmp/wrong.json"
expect_contains "$out" "refuses the request: status -1" "the reader's status"
printf '[{"Index":2,' > "$tmp/cut.json"
expect_run "a request that does not parse" 1 "refuses the request: status -2" \
  "$tool" update CrontabParameter "$tmp/u/tasks.json" "$tmp/cut.json"
cmp -s "$tmp/u/tasks.json" "$tmp/saved.json" && ok || fail "a refused request changed the file"

# A write that fails (no room: a file size limit of 0) leaves the old file
# whole and no new file beside it.
before=$(inode "$tmp/u/tasks.json")
printf '[{"Index":3,"Enable":0}]' > "$tmp/req0.json"
out=$(trap '' XFSZ; ulimit -f 0; "$tool" update CrontabParameter "$tmp/u/tasks.json" "$tmp/req0.json" 2>&1); rc=$?
expect_eq "$rc" "1" "a failed write"
expect_contains "$out" "app_s2j: cannot write the new file '" "a failed write: the message"
expect_contains "$out" "/.tasks.json." "a failed write: the new file's name"
expect_contains "$out" ": File too large; '$tmp/u/tasks.json' is left as it was" "a failed write: the reason"
cmp -s "$tmp/u/tasks.json" "$tmp/saved.json" && ok || fail "a failed write changed the old file"
expect_eq "$(inode "$tmp/u/tasks.json")" "$before" "a failed write keeps the old file"
expect_eq "$(others "$tmp/u" tasks.json)" "" "a failed write leaves no new file"

# A symbolic link is followed: the file it names is replaced, the link stays.
ln -s tasks.json "$tmp/u/link.json"
out=$("$tool" update CrontabParameter "$tmp/u/link.json" "$tmp/req0.json" 2>&1); rc=$?
expect_eq "$rc" "0" "update through a symbolic link"
[ -L "$tmp/u/link.json" ] && ok || fail "the symbolic link was replaced"
expect_contains "$(cat "$tmp/u/tasks.json")" '"Enable":	0,
		"Minute":	"30"' "the linked file is updated"
rm "$tmp/u/link.json"

# Types without the keyed update, wrong usage, files that cannot be used.
out=$("$tool" update DeviceInfo "$examples/DeviceInfo.json" "$tmp/req.json" 2>&1); rc=$?
expect_eq "$rc" "2" "a type without the update"
want="app_s2j: DeviceInfo has no keyed update (j2s_array_update_DeviceInfo);"
want+=" app_s2j types lists the types that have j2s_array_update"
expect_eq "$out" "$want" "a type without the update: the message"
expect_run "FILE - is wrong usage" 2 "FILE is written back, so it must name a file, not -" \
  "$tool" update CrontabParameter - "$tmp/req.json" < "$cron"
expect_run "update without REQUEST" 2 "'update' takes TYPE, FILE and REQUEST" \
  "$tool" update CrontabParameter "$tmp/u/tasks.json"
expect_output "update of a missing file" 1 "app_s2j: cannot read '$tmp/u/missing.json': No such file or directory" \
  "$tool" update CrontabParameter "$tmp/u/missing.json" "$tmp/req.json"
expect_output "update with a missing request" 1 "app_s2j: cannot read '$tmp/missing.json': No such file or directory" \
  "$tool" update CrontabParameter "$tmp/u/tasks.json" "$tmp/missing.json"
mkfifo "$tmp/fifo"
expect_output "update of a FIFO" 1 "app_s2j: '$tmp/fifo' is not a regular file; update writes its file back" \
  timeout 20 "$tool" update CrontabParameter "$tmp/fifo" "$tmp/req.json"
printf '{"Index":1}' > "$tmp/object.json"
expect_run "update of a file that does not load" 1 \
  "app_s2j: $tmp/object.json: not a valid CrontabParameter array: status -2" \
  "$tool" update CrontabParameter "$tmp/object.json" "$tmp/req.json"
printf '[]' > "$tmp/empty.json"
expect_output "update of an empty array" 1 \
  "app_s2j: $tmp/empty.json: the array is empty; there is no record to update" \
  "$tool" update CrontabParameter "$tmp/empty.json" "$tmp/req.json"
expect_eq "$(cat "$tmp/empty.json")" "[]" "an empty array is left as it was"

# diff: nothing for a file and itself, or the same records written otherwise.
expect_output "diff of a file with itself" 0 "" \
  "$tool" diff CrontabParameter "$cron" "$cron"
"$tool" print CrontabParameter "$cron" --compact > "$tmp/compact.json"
expect_output "diff of the same records written otherwise" 0 "" \
  "$tool" diff CrontabParameter "$cron" - < "$tmp/compact.json"

# A changed field, a removed and an added record, matched by key whatever
# their order.
cat > "$tmp/b.json" <<'JSON'
[{"Index":4,"Enable":1,"Command":"/bin/new"},
 {"Index":3,"Enable":0,"Minute":"30","Hour":"4","Day":"1","Month":"*","Weekday":"*","Command":"/sbin/reboot"},
 {"Index":1,"Enable":0,"Minute":"0","Hour":"3","Day":"*","Month":"*","Weekday":"*",
  "Command":"/usr/sbin/logrotate /etc/logrotate.conf"}]
JSON
expect_output "diff of files that differ" 1 "Index=1:
  Enable: 1 -> 0
only in $cron: Index=2
only in $tmp/b.json: Index=4" \
  "$tool" diff CrontabParameter "$cron" "$tmp/b.json"

# Two keys name a record by both.
cat > "$tmp/osd-a.json" <<'JSON'
[{"Channel":1,"Index":1,"Visible":1},{"Channel":1,"Index":2,"Visible":1}]
JSON
cat > "$tmp/osd-b.json" <<'JSON'
[{"Channel":1,"Index":2,"Visible":0},{"Channel":2,"Index":1,"Visible":1}]
JSON
expect_output "diff of a type with two keys" 1 "only in $tmp/osd-a.json: Channel=1 Index=1
Channel=1 Index=2:
  Visible: 1 -> 0
only in $tmp/osd-b.json: Channel=2 Index=1" \
  "$tool" diff VideoOutputOSDParameter "$tmp/osd-a.json" "$tmp/osd-b.json"

# Records of equal keys are matched in turn.
printf '[{"Index":5,"Hour":"1"},{"Index":5,"Hour":"2"}]' > "$tmp/twins-a.json"
printf '[{"Index":5,"Hour":"1"},{"Index":5,"Hour":"3"},{"Index":5}]' > "$tmp/twins-b.json"
out=$("$tool" diff CrontabParameter "$tmp/twins-a.json" "$tmp/twins-b.json" 2>&1); rc=$?
expect_eq "$out" 'Index=5:
  Hour: "2" -> "3"
only in '"$tmp/twins-b.json"': Index=5' "diff: records of equal keys in turn"

# Single records, and arrays of a type without keys, by position.
printf '{"ProductModel":"A","SerialNumber":"1"}' > "$tmp/dev-a.json"
printf '{"ProductModel":"B","SerialNumber":"1"}' > "$tmp/dev-b.json"
expect_output "diff of single records" 1 'the record:
  ProductModel: "A" -> "B"' \
  "$tool" diff DeviceInfo "$tmp/dev-a.json" "$tmp/dev-b.json"
printf '[{"UserName":"a"},{"UserName":"b"}]' > "$tmp/users-a.json"
printf '[{"UserName":"a"},{"UserName":"c"},{"UserName":"d"}]' > "$tmp/users-b.json"
out=$("$tool" diff CreateUserParameter "$tmp/users-a.json" "$tmp/users-b.json" 2>&1); rc=$?
expect_eq "$rc" "1" "diff of arrays by position"
expect_eq "$out" 'record 2:
  UserName: "b" -> "c"
only in '"$tmp/users-b.json"': record 3' "diff of arrays by position: the listing"
printf '{"UserName":"a"}' > "$tmp/user.json"
expect_output "diff of an array and a record" 1 "$tmp/users-a.json holds a record array, $tmp/user.json one record" \
  "$tool" diff CreateUserParameter "$tmp/users-a.json" "$tmp/user.json"

# Files that cannot be read or do not load; wrong usage.
expect_output "diff with a missing file" 1 "app_s2j: cannot read '$tmp/missing.json': No such file or directory" \
  "$tool" diff CrontabParameter "$cron" "$tmp/missing.json"
expect_run "diff with a file that does not load" 1 \
  "app_s2j: $tmp/object.json: not a valid CrontabParameter array: status -2" \
  "$tool" diff CrontabParameter "$tmp/object.json" "$cron"
expect_run "diff of standard input with itself" 2 "only one of A and B can be -" \
  "$tool" diff CrontabParameter - - < "$cron"
expect_run "diff with one file" 2 "'diff' takes TYPE, A and B" "$tool" diff CrontabParameter "$cron"
out=$("$tool" diff NoSuchType "$cron" "$cron" 2>&1); rc=$?
expect_eq "$rc" "2" "diff of an unknown type"

finish update_diff
