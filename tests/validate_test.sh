#!/usr/bin/env bash
# Tests of `app_s2j validate` over the hand-made corpus in tests/validate-corpus:
# every file <Type>.<case>.json (read with --update when <case> starts with
# "update.") prints exactly its <Type>.<case>.expected (the findings, the
# verdict and "exit N"), and its verdict on acceptance agrees with the
# library's as `app_s2j check` reports it.  Then the command's usage.
# usage: validate_test.sh TOOL CORPUS_DIR [--regenerate]
#   --regenerate writes the .expected files anew (review the diff!)
set -u
tool=$1
corpus=$2
regenerate=${3:-}
. "$(dirname "$0")/shell_checks.sh"
scratch_dir

cd "$corpus" || exit 1
count=0
for f in *.json; do
  count=$((count + 1))
  type=${f%%.*}
  case $f in "$type".update.*) mode=--update ;; *) mode= ;; esac
  out=$("$tool" validate "$type" "$f" $mode 2>&1); rc=$?
  actual=$(printf '%s\nexit %s' "$out" "$rc")
  expected_file=${f%.json}.expected
  if [ "$regenerate" == "--regenerate" ]; then printf '%s\n' "$actual" > "$expected_file"; fi
  if [ ! -f "$expected_file" ]; then
    fail "$f has no $expected_file (write it with: $0 TOOL CORPUS --regenerate, then review it)"
    continue
  fi
  if [ "$actual" == "$(cat "$expected_file")" ]; then ok; else
    fail "$f: output differs from $expected_file:"; diff <(printf '%s\n' "$actual") "$expected_file"
  fi
  # The verdict on acceptance is the library's.
  if [ -z "$mode" ]; then
    "$tool" check "$type" "$f" > /dev/null 2>&1; check_rc=$?
    if [ "$check_rc" == 1 ]; then want=1; else want=not-1; fi
    if [ "$rc" == 1 ]; then got=1; else got=not-1; fi
    expect_eq "$got" "$want" "$f: validate exit $rc, check exit $check_rc"
  fi
done
[ "$count" -ge 20 ] && ok || fail "the corpus holds only $count files"
for e in *.expected; do [ -f "${e%.expected}.json" ] && ok || fail "$e has no document"; done
cd - > /dev/null

# Usage.
out=$("$tool" validate --help); rc=$?
expect_eq "$rc" "0" "validate --help"
expect_contains "$out" "usage: app_s2j validate TYPE FILE... [--update] [--quiet] [--json]" "validate --help synopsis"
expect_contains "$out" "Exit status: 0 the library reads the file exactly as written" "validate --help exit statuses"
out=$("$tool" validate 2>&1); rc=$?
expect_eq "$rc" "2" "validate without arguments"
expect_eq "$out" "app_s2j: 'validate' takes TYPE and FILE
usage: app_s2j validate TYPE FILE... [--update] [--quiet] [--json]
(app_s2j validate --help tells more)" "validate without arguments message"
out=$("$tool" validate NoSuchType "$corpus/DeviceInfo.good.json" 2>&1); rc=$?
expect_eq "$rc" "2" "validate unknown type"
expect_eq "$out" "app_s2j: unknown record type 'NoSuchType' (app_s2j types lists them)" "unknown type message"
out=$("$tool" validate deviceinfo "$corpus/DeviceInfo.good.json" 2>&1); rc=$?
expect_eq "$rc" "2" "validate a type spelt in other letter case"
expect_eq "$out" "app_s2j: unknown record type 'deviceinfo'; did you mean 'DeviceInfo'?" "type in other case message"
expect_run "validate unknown option" 2 "app_s2j: unknown option '--strict'" \
  "$tool" validate DeviceInfo "$corpus/DeviceInfo.good.json" --strict
expect_run "--update on a type without keyed update" \
  2 "app_s2j: DeviceInfo has no keyed update; --update does not apply" \
  "$tool" validate DeviceInfo "$corpus/DeviceInfo.good.json" --update
out=$("$tool" validate DeviceInfo "$tmp/missing.json" 2>&1); rc=$?
expect_eq "$rc" "1" "validate a missing file"
expect_eq "$out" "app_s2j: cannot read '$tmp/missing.json': No such file or directory" "missing file message"
out=$("$tool" validate StreamingInputUseCount "$corpus/StreamingInputUseCount.short-lists.json" --quiet); rc=$?
expect_eq "$rc" "0" "--quiet keeps the exit status"
expect_eq "$out" "$corpus/StreamingInputUseCount.short-lists.json: valid StreamingInputUseCount" \
  "--quiet leaves out notes"
# Standard input, and the findings as JSON.
out=$("$tool" validate VideoEncodeParameter - < "$corpus/VideoEncodeParameter.width-as-text.json"); rc=$?
expect_eq "$rc" "1" "validate from standard input"
expect_contains "$out" "-: error: [3].Width: expected an integer, found a string (\"640\")" "stdin is named -"
out=$("$tool" validate StreamingInputUseCount "$corpus/StreamingInputUseCount.short-lists.json" --json --quiet); rc=$?
expect_eq "$rc" "0" "--json keeps the exit status"
expect_eq "$out" "{
	\"file\":	\"$corpus/StreamingInputUseCount.short-lists.json\",
	\"type\":	\"StreamingInputUseCount\",
	\"shape\":	\"record\",
	\"records\":	1,
	\"verdict\":	\"valid\",
	\"findings\":	[]
}" "--json --quiet: the verdict without notes"
# A file that cannot be read is still one JSON object, its error the reason.
out=$("$tool" validate DeviceInfo "$tmp" --json 2> "$tmp/err"); rc=$?
expect_eq "$rc" "1" "--json of a directory"
expect_eq "$out" "{
	\"file\":	\"$tmp\",
	\"type\":	\"DeviceInfo\",
	\"shape\":	\"record\",
	\"records\":	0,
	\"verdict\":	\"rejected\",
	\"findings\":	[{
			\"level\":	\"error\",
			\"place\":	\"\",
			\"text\":	\"cannot read '$tmp': Is a directory\"
		}]
}" "--json of a directory: one object"
expect_eq "$(cat "$tmp/err")" "app_s2j: cannot read '$tmp': Is a directory" "--json of a directory: stderr"
out=$("$tool" validate DeviceInfo "$tmp/missing.json" --json 2> /dev/null | grep -c '"verdict":	"rejected"')
expect_eq "$out" "1" "--json of a missing file: one object"
# Several files: each reported, one summary, the worst exit status.
cd "$corpus" || exit 1
out=$("$tool" validate DeviceInfo DeviceInfo.good.json DeviceInfo.string-too-long.json); rc=$?
expect_eq "$rc" "3" "valid and altered files: exit 3"
expect_eq "$(printf '%s\n' "$out" | tail -1)" "2 files: 1 valid, 1 accepted but not as written, 0 rejected" \
  "the summary of two files"
out=$("$tool" validate DeviceInfo DeviceInfo.good.json DeviceInfo.top-level-string.json \
      DeviceInfo.string-too-long.json); rc=$?
expect_eq "$rc" "1" "a rejected file among others: exit 1"
expect_eq "$(printf '%s\n' "$out" | tail -1)" "3 files: 1 valid, 1 accepted but not as written, 1 rejected" \
  "the summary of three files"
expect_eq "$(printf '%s\n' "$out" | grep -c ': valid DeviceInfo$')" "1" "each file has its verdict"
out=$("$tool" validate DeviceInfo DeviceInfo.good.json "$tmp/missing.json" 2> /dev/null); rc=$?
expect_eq "$rc" "1" "an unreadable file among others: exit 1"
expect_eq "$(printf '%s\n' "$out" | tail -1)" "2 files: 1 valid, 0 accepted but not as written, 1 rejected" \
  "an unreadable file counts as rejected"
out=$("$tool" validate DeviceInfo DeviceInfo.good.json DeviceInfo.good.json); rc=$?
expect_eq "$rc" "0" "valid files: exit 0"
out=$("$tool" validate DeviceInfo DeviceInfo.good.json DeviceInfo.string-too-long.json --json); rc=$?
expect_eq "$rc" "3" "several files as JSON: the worst exit status"
expect_eq "$(printf '%s\n' "$out" | grep -c '^{')" "2" "several files as JSON: one object each"
out=$("$tool" validate DeviceInfo - - < DeviceInfo.good.json 2>&1); rc=$?
expect_eq "$rc" "2" "standard input twice"
expect_contains "$out" "standard input (-) can be read only once" "standard input twice: message"
cd - > /dev/null
# Findings go to standard output, nothing to standard error.
"$tool" validate VideoEncodeParameter "$corpus/VideoEncodeParameter.width-as-text.json" > /dev/null 2> "$tmp/err"
expect_eq "$(cat "$tmp/err")" "" "validate writes nothing to stderr"

finish validate
