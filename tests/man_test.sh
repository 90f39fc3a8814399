#!/usr/bin/env bash
# The manual pages against what they describe: app_s2j(1) names every command
# and option of the tool, taken from the tool's own usage (app_s2j --help),
# and app_s2j(3) every family of the public header, taken from its comment
# on the families (the members of a type T).  Both render
# through man without a warning.
# usage: man_test.sh TOOL MAN1 MAN3 HEADER
set -u
tool=$1
man1=$2
man3=$3
header=$4
. "$(dirname "$0")/shell_checks.sh"
scratch_dir

# Rendered as plain text, wide enough that no synopsis line is broken.
render() { LC_ALL=C.UTF-8 MANWIDTH=250 man -l "$1" 2>"$tmp/warnings" | col -b -x; }
render_checked() {
  render "$1" > "$2"
  LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$1" 2>>"$tmp/warnings" >/dev/null
  if [ -s "$tmp/warnings" ]; then fail "$1 renders with warnings"; cat "$tmp/warnings"; else ok; fi
  [ "$(grep -c . "$2")" -gt 20 ] && ok || fail "$1 renders to almost nothing"
}
render_checked "$man1" "$tmp/man1.txt"
render_checked "$man3" "$tmp/man3.txt"

# Commands: the lines "  NAME  summary" of the usage.
"$tool" --help > "$tmp/help" 2>&1 || fail "app_s2j --help exits $?"
commands=$(sed -n 's/^  \([a-z][a-z-]*\)  .*/\1/p' "$tmp/help")
[ "$(echo "$commands" | grep -c .)" -ge 7 ] && ok || fail "too few commands in app_s2j --help: $commands"
for c in $commands; do
  grep -q -E "^ *app_s2j $c( |$)" "$tmp/man1.txt" && ok || fail "app_s2j(1) has no synopsis line for '$c'"
  grep -q -E "^ {7}$c( |$)" "$tmp/man1.txt" && ok || fail "app_s2j(1) does not describe the command '$c'"
done
# Options: every --option of the usage's synopsis lines, and --help itself.
options=$(grep -o -E -- '--[a-z][a-z-]*' "$tmp/help" | sort -u)
for o in $options --help; do
  grep -q -e "$o" "$tmp/man1.txt" && ok || fail "app_s2j(1) does not mention the option $o"
done
# Exit statuses named by the usage.
for s in $(grep -A3 -i '^exit status' "$tmp/help" | grep -o -E '\b[0-9]\b' | sort -u); do
  sed -n '/^EXIT STATUS/,/^[A-Z]/p' "$tmp/man1.txt" | grep -q -E "^ +$s\b" && ok ||
    fail "app_s2j(1) does not explain exit status $s"
done

# Families: every member of T that the header's comment on the families
# documents (struct_to_json_T, j2s_T_with_len, json_to_struct_GetTKeyword, ...).
families=$(grep -E '^ \*   [a-zA-Z]' "$header" |
  grep -o -E '\b[A-Za-z0-9_]*_(Get)?T(Keyword|_with_len)?\(' | sed 's/($//' | sort -u)
[ "$(echo "$families" | grep -c .)" -ge 19 ] && ok || fail "too few families read from $header: $families"
for f in $families cJSON_CreateInt cJSON_AddIntToObject cJSON_IsInt; do
  grep -q -w -e "$f" "$tmp/man3.txt" && ok || fail "app_s2j(3) does not name the family $f"
done
# The parts a caller needs: statuses, diagnostics, ownership, integer items, threads.
for s in 0 -1 -2 -7 -15; do
  sed -n '/^RETURN VALUE/,/^[A-Z]/p' "$tmp/man3.txt" | grep -q -E "^ +$s\b" && ok || fail "app_s2j(3) lacks status $s"
done
for section in DIAGNOSTICS OWNERSHIP "INTEGER ITEMS" THREADS; do
  grep -q -x "$section" "$tmp/man3.txt" && ok || fail "app_s2j(3) has no section $section"
done

finish man_test
