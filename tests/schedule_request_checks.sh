# Checks of examples/c-consumer/schedule_request, sourced by the install and
# package tests after they source shell_checks.sh and set $tmp.
#   schedule_request_checks WHAT RUNNER... PROGRAM
# runs PROGRAM (through RUNNER, e.g. an emulator, if given) on a copy of
# examples/CrontabParameter.json: a keyed update is answered and saved, a
# read-only request sees the saved list, a bad request is refused.
schedule_request_checks() {
  local what=$1; shift
  local cfg=$tmp/schedule.json out rc
  cp "$src/examples/CrontabParameter.json" "$cfg"

  out=$("$@" "$cfg" '[{"Index": 3, "Enable": 1, "Hour": "5"}]' 2>&1); rc=$?
  if [ $rc -eq 0 ] && [[ $out == '{"Status":0,"Updated":1,"Tasks":[{"Index":1,'* ]] &&
     [[ $out == *'{"Index":3,"Enable":1,"Minute":"30","Hour":"5","Day":"1","Month":"*","Weekday":"*",'\
'"Command":"/sbin/reboot"}]}' ]]; then
    ok; else fail "$what answers a keyed update (exit $rc): $out"; fi

  out=$(echo "" | "$@" "$cfg" 2>&1); rc=$?
  if [ $rc -eq 0 ] && [[ $out == '{"Status":0,"Updated":0,'*'"Index":3,"Enable":1,"Minute":"30","Hour":"5",'* ]]; then
    ok; else fail "$what reads back the saved update (exit $rc): $out"; fi

  out=$("$@" "$cfg" '[{"Enable": 0}]' 2>/dev/null); rc=$?
  if [ $rc -eq 1 ] && [[ $out == '{"Status":-2,"Updated":0,'* ]]; then
    ok; else fail "$what refuses an update without its key (exit $rc): $out"; fi

  "$@" "$tmp/no-such-file.json" '[]' >/dev/null 2>&1; rc=$?
  [ $rc -eq 1 ] && ok || fail "$what fails on a missing file (exit $rc)"
}
