# shell_checks.sh - counting checks for the shell tests; source it.
#   ok / fail MESSAGE            count a check
#   expect_eq GOT WANT WHAT      equal texts
#   expect_contains GOT PART WHAT
#   check WHAT COMMAND...        the command succeeds (its output is shown when
#                                not; needs $tmp, a scratch directory)
#   finish [NAME]                print the counts; status 0 when nothing failed
#   scratch_dir                  $tmp: a fresh directory, removed at exit
#   expect_run WHAT RC PART COMMAND...
#                                the command exits with RC and its output
#                                (both streams) holds PART; leaves $out, $rc
#   expect_output WHAT RC TEXT COMMAND...
#                                the same, with the output exactly TEXT
#   check_generated FILE HOW COMMAND...
#                                exit 0 when FILE is what COMMAND writes now;
#                                else 1, saying "FILE is out of date: HOW"
passed=0
failed=0
ok() { passed=$((passed + 1)); }
fail() { failed=$((failed + 1)); echo "FAIL: $*"; }
expect_eq() { if [ "$1" == "$2" ]; then ok; else fail "$3: got [$1] want [$2]"; fi; }
expect_contains() { case "$1" in *"$2"*) ok ;; *) fail "$3: [$1] lacks [$2]" ;; esac; }
check() { local what=$1; shift; if "$@" >"${tmp:?}/out" 2>&1; then ok; else fail "$what"; cat "$tmp/out"; fi; }
finish() {
  echo "${1:+$1: }$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
}
scratch_dir() {
  tmp=$(mktemp -d)
  trap 'rm -rf "$tmp"' EXIT
}
expect_run() { run_and_expect contains "the message" "$@"; }
expect_output() { run_and_expect eq "the output" "$@"; }
# run_and_expect eq|contains LABEL WHAT RC TEXT COMMAND...: the two above.
run_and_expect() {
  local how=$1 label=$2 what=$3 want=$4 text=$5
  shift 5
  out=$("$@" 2>&1)
  rc=$?
  expect_eq "$rc" "$want" "$what"
  "expect_$how" "$out" "$text" "$what: $label"
}
check_generated() {
  local file=$1 how=$2
  shift 2
  scratch_dir
  if ! "$@" > "$tmp/fresh"; then
    echo "$* failed" >&2
    exit 1
  fi
  if ! cmp -s "$tmp/fresh" "$file"; then
    echo "$file is out of date: $how" >&2
    diff -u "$file" "$tmp/fresh" | head -40
    exit 1
  fi
  echo "$file is up to date"
}
