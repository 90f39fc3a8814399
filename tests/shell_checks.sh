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
expect_run() {
  local what=$1 want=$2 part=$3
  shift 3
  out=$("$@" 2>&1)
  rc=$?
  expect_eq "$rc" "$want" "$what"
  expect_contains "$out" "$part" "$what: the message"
}
