#!/usr/bin/env bash
# A field table that leaves out a member fails the build with a message that
# names the type, also where the member would sit in padding (a uint16_t
# beside another, a uint16_t before a 32-bit member), and the same holds for
# a keyword record that holds a member that is not a key.  Each case compiles
# a copy of the real table with one row taken out; the copy as it is compiles.
# usage: table_check_test.sh CXX LIBRARY_SOURCE_DIR [COMPILER_FLAG...]
set -u
cxx=$1
src=$2
shift 2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
. "$(dirname "$0")/shell_checks.sh"

compile() { "$cxx" -std=c++17 -fsyntax-only -Wall -Wextra -Werror "$@" -I"$src" "$tmp/tu.cpp" > "$tmp/err" 2>&1; }

# without FILE TYPE MEMBER: the table of TYPE in FILE with MEMBER's row taken out.
without() {
  local file=$1 type=$2 member=$3
  grep -q "S2J_FIELD($type, $member," "$src/$file" || fail "$file has no row $type.$member"
  grep -v "S2J_FIELD($type, $member," "$src/$file" > "$tmp/tu.cpp"
  compile "${flags[@]}"; rc=$?
  expect_eq "$rc" "1" "$type without $member: the build fails"
  expect_contains "$(cat "$tmp/err")" "$type: field table leaves out a member of the struct" \
    "$type without $member: message"
}

flags=("$@")
for file in rec_streaming.cpp rec_media.cpp rec_network.cpp; do
  cp "$src/$file" "$tmp/tu.cpp"
  compile "${flags[@]}"; rc=$?
  expect_eq "$rc" "0" "$file as it is compiles"
  [ "$rc" -eq 0 ] || cat "$tmp/err"
done

without rec_streaming.cpp RtspServerParameter RtspOverHttpPort
without rec_media.cpp VideoInputParameter ScanningFrequencyDecimal
without rec_network.cpp NetworkLANParameter MTUSize
# A member that the layout replay sees too: both messages.
without rec_network.cpp NetworkLANParameter MACAddress
expect_contains "$(cat "$tmp/err")" "NetworkLANParameter: field table does not match the struct member for member" \
  "NetworkLANParameter without MACAddress: layout message"

# A keyword record with a member in the padding between two keys.
keyword_tu() {
  cat > "$tmp/tu.cpp" <<TU
#include "s2j_internal.h"
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
compile "${flags[@]}"; rc=$?
expect_eq "$rc" "0" "a keyword record of the keys alone compiles"
[ "$rc" -eq 0 ] || cat "$tmp/err"
keyword_tu "uint16_t Extra;"
compile "${flags[@]}"; rc=$?
expect_eq "$rc" "1" "a keyword record with a member that is not a key: the build fails"
expect_contains "$(cat "$tmp/err")" "ProbeKeyword: keyword record holds a member that is not a key" \
  "a keyword record with a member that is not a key: message"

finish
