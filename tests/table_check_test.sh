#!/usr/bin/env bash
# A field table that leaves out a member fails the build with a message that
# names the type, also where the member would sit in padding (a uint16_t
# beside another, a uint16_t before a 32-bit member); so do a row repeated, a
# row out of order and a misspelt member, a keyword record that holds a member
# that is not a key, two keys equal but for letter case, and a line added to or
# taken from an instantiation list.
# Each case compiles a copy of a real source file with one change; the copies
# as they are compile.
# usage: table_check_test.sh CXX LIBRARY_SOURCE_DIR [COMPILER_FLAG...]
set -u
cxx=$1
src=$2
shift 2
. "$(dirname "$0")/shell_checks.sh"
scratch_dir

compile() { "$cxx" -std=c++17 -fsyntax-only -Wall -Wextra -Werror "$@" -I"$src" "$tmp/tu.cpp" > "$tmp/err" 2>&1; }

# row_ops FILE OPS...: FILE with rows taken out, repeated or moved; an op is
# "drop T.M", "twice T.M" or "after T.M T.N" (row M moved after row N).  A row
# runs from its S2J_FIELD( line to the line that ends in "),".
row_ops() {
  local file=$1
  shift
  awk -v ops="$*" '
    BEGIN { n = split(ops, w, " ") }
    function row_of(line,   i, t) {
      for (i = 1; i <= n; ++i) if (w[i] != "drop" && w[i] != "twice" && w[i] != "after") {
        t = w[i]; sub(/\./, ", ", t)
        if (index(line, "S2J_FIELD(" t ",")) return w[i]
      }
      return ""
    }
    function act(name, text,   i) {
      for (i = 1; i <= n; ++i) {
        if (w[i] == "drop" && w[i + 1] == name) return ""
        if (w[i] == "twice" && w[i + 1] == name) return text text
        if (w[i] == "after" && w[i + 1] == name) { held = text; return "" }
        if (w[i] == "after" && w[i + 2] == name) return text held
      }
      return text
    }
    cur == "" { cur = row_of($0); buf = "" }
    cur != "" { buf = buf $0 "\n"; if ($0 ~ /\),$/) { printf "%s", act(cur, buf); cur = "" }; next }
    { print }
  ' "$src/$file"
}

# without FILE TYPE MEMBER: the table of TYPE in FILE with MEMBER's row taken out.
without() {
  local file=$1 type=$2 member=$3
  grep -q "S2J_FIELD($type, $member," "$src/$file" || fail "$file has no row $type.$member"
  row_ops "$file" drop "$type.$member" > "$tmp/tu.cpp"
  fails "$type without $member" "$type: field table does not list every member once"
}

# compiles WHAT: the copy in $tmp/tu.cpp compiles (else the compiler's words follow).
compiles() {
  compile "${flags[@]}"; rc=$?
  expect_eq "$rc" "0" "$1"
  [ "$rc" -eq 0 ] || cat "$tmp/err"
}

# fails WHAT MESSAGE: the copy in $tmp/tu.cpp fails to compile with MESSAGE.
fails() {
  compile "${flags[@]}"; rc=$?
  expect_eq "$rc" "1" "$1: the build fails"
  expect_contains "$(cat "$tmp/err")" "$2" "$1: message"
}

flags=("$@")
for file in rec_streaming.cpp rec_media.cpp rec_network.cpp; do
  cp "$src/$file" "$tmp/tu.cpp"
  compiles "$file as it is compiles"
done

without rec_streaming.cpp RtspServerParameter RtspOverHttpPort
without rec_media.cpp VideoInputParameter ScanningFrequencyDecimal
without rec_network.cpp NetworkLANParameter MTUSize
# A member that the layout replay sees too: both messages.
without rec_network.cpp NetworkLANParameter MACAddress
expect_contains "$(cat "$tmp/err")" "NetworkLANParameter: field table does not match the struct member for member" \
  "NetworkLANParameter without MACAddress: layout message"

# A row repeated, two rows swapped, a member misspelt.
row_ops rec_network.cpp twice NetworkLANParameter.MACAddress > "$tmp/tu.cpp"
fails "NetworkLANParameter with MACAddress twice" "NetworkLANParameter: field table does not list every member once"
expect_contains "$(cat "$tmp/err")" "NetworkLANParameter: field table does not match the struct member for member" \
  "NetworkLANParameter with MACAddress twice: layout message"
row_ops rec_network.cpp after NetworkLANParameter.MACAddress NetworkLANParameter.MTUSize > "$tmp/tu.cpp"
cmp -s "$src/rec_network.cpp" "$tmp/tu.cpp" && fail "the swap changed nothing"
fails "NetworkLANParameter with MACAddress after MTUSize" \
  "NetworkLANParameter: field table does not match the struct member for member"
sed "s/S2J_FIELD(NetworkLANParameter, MACAddress,/S2J_FIELD(NetworkLANParameter, MacAddress,/" \
  "$src/rec_network.cpp" > "$tmp/tu.cpp"
fails "NetworkLANParameter with MacAddress" "MacAddress"

# A line added above an instantiation list, or inside it.
for list in app_s2j.cpp:6:472 file2struct_def.cpp:115:318; do
  IFS=: read -r file first last <<< "$list"
  cp "$src/$file" "$tmp/tu.cpp"
  compiles "$file as it is compiles"
  sed '1i // one more line' "$src/$file" > "$tmp/tu.cpp"
  fails "$file with a line above the list" "the instantiation list must begin on line $first"
  sed "$((first + 4))i // one more line" "$src/$file" > "$tmp/tu.cpp"
  fails "$file with a line inside the list" "the instantiation list must end on line $last"
done

# A keyword record with a member in the padding between two keys.
keyword_tu() {
  cat > "$tmp/tu.cpp" <<TU
#include "s2j_record_defs.h"
struct Probe { uint16_t Id; uint32_t Number; char Name[8]; };
struct ProbeKeyword { uint16_t Id; $1 uint32_t Number; };
static constexpr s2j::Field Probe_fields[] = {
    S2J_FIELD(Probe, Id, "n"), S2J_FIELD(Probe, Number, "n"), S2J_FIELD(Probe, Name, "n"),
};
static constexpr s2j::Key Probe_keys[] = {S2J_KEY(Probe, Id), S2J_KEY(Probe, Number)};
S2J_RECORD_KEYWORD(Probe)
TU
}
keyword_tu ""
compiles "a keyword record of the keys alone compiles"
keyword_tu "uint16_t Extra;"
fails "a keyword record with a member that is not a key" \
  "ProbeKeyword: keyword record holds other members than the keys"

# Two keys equal but for letter case: one member of a text would be the
# match of both fields.
twins_tu() {
  cat > "$tmp/tu.cpp" <<TU
#include "s2j_record_defs.h"
struct Twins { uint32_t Port; uint32_t $1; };
static constexpr s2j::Field Twins_fields[] = {S2J_FIELD(Twins, Port, "n"), S2J_FIELD(Twins, $1, "n")};
S2J_RECORD(Twins)
TU
}
twins_tu "Ports"
compiles "a table whose keys differ compiles"
twins_tu "port"
fails "a table with the keys Port and port" "Twins: two keys are equal but for letter case"

finish
