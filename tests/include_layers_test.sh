#!/usr/bin/env bash
# The library's headers include only headers of lower layers (no cycle, the
# registry on top), and no source of the shared library includes the
# registry.  Run on the library's directory, and on a copy with a header
# that includes one above it, which must fail naming both.
# usage: include_layers_test.sh LIBRARY_SOURCE_DIR
set -u
src=$1
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
. "$(dirname "$0")/shell_checks.sh"

# Each header's layer, lowest first.
layer_of() {
  case "$1" in
    app_s2j_types.h | s2j_model.h | s2j_family_table.h | s2j_export.h | s2j_typelist.h | s2j_messages.h) echo 0 ;;
    app_s2j.h) echo 1 ;;
    s2j_int.h) echo 2 ;;
    s2j_layout.h | s2j_keys.h | s2j_codec.h | s2j_write.h | s2j_text_reader.h) echo 3 ;;
    s2j_record_defs.h) echo 4 ;;
    s2j_families.h) echo 5 ;;
    s2j_files.h) echo 6 ;;
    registry.h) echo 7 ;;
    *) echo "" ;;
  esac
}

# Prints one line per include that does not point down; status 1 if any.
check_layers() {
  local dir=$1 bad=0 h name mine inc theirs
  for h in "$dir"/*.h; do
    name=$(basename "$h")
    mine=$(layer_of "$name")
    if [ -z "$mine" ]; then echo "$name is in no layer"; bad=1; continue; fi
    for inc in $(sed -n 's/^#include "\([^"]*\)".*/\1/p' "$h"); do
      theirs=$(layer_of "$inc")
      if [ -z "$theirs" ] || [ "$theirs" -ge "$mine" ]; then
        echo "$name includes $inc, which is not below it"; bad=1
      fi
    done
  done
  for c in "$dir"/*.cpp; do
    case "$(basename "$c")" in registry.cpp | registry_tree.cpp) continue ;; esac
    if grep -q '^#include "registry.h"' "$c"; then echo "$(basename "$c") includes registry.h"; bad=1; fi
  done
  return $bad
}

out=$(check_layers "$src"); rc=$?
expect_eq "$rc" "0" "the library's headers"
expect_eq "$out" "" "the library's headers: nothing reported"

mkdir "$tmp/lib"
cp "$src"/*.h "$src"/*.cpp "$tmp/lib/"
sed -i 's/^#include "s2j_model.h"$/#include "s2j_model.h"\n#include "registry.h"/' "$tmp/lib/s2j_keys.h"
out=$(check_layers "$tmp/lib"); rc=$?
expect_eq "$rc" "1" "a header that includes the registry"
expect_eq "$out" "s2j_keys.h includes registry.h, which is not below it" "a header that includes the registry: message"

cp "$src"/s2j_keys.h "$tmp/lib/"
touch "$tmp/lib/s2j_new.h"
out=$(check_layers "$tmp/lib"); rc=$?
expect_eq "$rc" "1" "a header in no layer"
expect_eq "$out" "s2j_new.h is in no layer" "a header in no layer: message"

rm "$tmp/lib/s2j_new.h"
sed -i 's/^#include "s2j_codec.h"$/#include "registry.h"/' "$tmp/lib/s2j_codec.cpp"
out=$(check_layers "$tmp/lib"); rc=$?
expect_eq "$rc" "1" "a source of the shared library that includes the registry"
expect_eq "$out" "s2j_codec.cpp includes registry.h" "a library source that includes the registry: message"

finish include_layers_test
