#!/usr/bin/env bash
# debian/libapp-s2j1.symbols lists exactly the symbols of the committed list
# app_s2j.symbols (which the ABI test holds the library to), each as
# NAME@Base with a version, and nothing else.
# usage: debian_symbols_test.sh DEBIAN_SYMBOLS COMMITTED_LIST
set -u
debian=$1
committed=$2
. "$(dirname "$0")/shell_checks.sh"

entries=$(grep '^ ' "$debian")
bad=$(echo "$entries" | grep -v -E '^ [A-Za-z_][A-Za-z0-9_]*@Base [0-9][0-9.~+]*$' | head -5)
[ -z "$bad" ] && ok || fail "symbol lines not of the form ' NAME@Base VERSION': $bad"
listed=$(echo "$entries" | sed 's/^ \([^@]*\)@.*/\1/' | LC_ALL=C sort)
want=$(grep -v '^#' "$committed" | LC_ALL=C sort)
if [ "$listed" = "$want" ]; then ok; else
  fail "debian symbols differ from $committed (< committed, > debian):"
  diff <(echo "$want") <(echo "$listed") | grep '^[<>]' | head -20
fi
[ "$(echo "$listed" | grep -c .)" -gt 100 ] && ok || fail "too few symbols in $debian"
# Only the header, the Build-Depends-Package field and symbol lines.
others=$(grep -v -E '^ |^\* Build-Depends-Package: libapp-s2j-dev$' "$debian" | tail -n +2)
[ -z "$others" ] && ok || fail "unexpected lines in $debian: $others"

finish debian_symbols_test
