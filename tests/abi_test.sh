#!/usr/bin/env bash
# The library's ABI: the dynamic symbols it defines are exactly the committed
# list (one name a line, sorted), and its soname carries the major version.
# A symbol added or lost fails here until the list is updated on purpose:
#   nm -D --defined-only build/apps/common/src/app_s2j/libapp_s2j.so | awk '{print $3}' | LC_ALL=C sort \
#     > apps/common/src/app_s2j/app_s2j.symbols
# usage: abi_test.sh LIBRARY SYMBOL_LIST SONAME
set -u
lib=$1
list=$2
want_soname=$3
status=0
exported=$(nm -D --defined-only "$lib" | awk 'NF == 3 {print $3}' | LC_ALL=C sort)
committed=$(grep -v '^#' "$list" | LC_ALL=C sort)
if [ "$exported" != "$committed" ]; then
  echo "FAIL: exported symbols differ from $list (< committed, > exported):"
  diff <(echo "$committed") <(echo "$exported") | grep '^[<>]' | head -40
  status=1
fi
# Versioned symbols would need a versioned list: none are defined.
if readelf -V "$lib" | grep -q 'Version definition'; then
  echo "FAIL: the library defines symbol versions"; status=1
fi
soname=$(readelf -d "$lib" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
[ "$soname" = "$want_soname" ] || { echo "FAIL: soname is '$soname', want '$want_soname'"; status=1; }
n=$(echo "$committed" | grep -c .)
[ "$status" -eq 0 ] && echo "ok: $n symbols as committed, soname $soname"
exit $status
