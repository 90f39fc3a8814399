#!/usr/bin/env bash
# The version is stated once, in app_s2j.h; everything that carries it agrees:
# the header's macros among themselves, the library's file name and soname,
# the pkg-config file, the CMake package version file, the manual pages, and
# debian/ (changelog, package names, symbols file).
# usage: version_test.sh SOURCE_DIR LIBRARY PC_FILE CONFIG_VERSION_FILE MAN1 MAN3
set -u
src=$1
lib=$2
pc=$3
config_version=$4
man1=$5
man3=$6
. "$(dirname "$0")/shell_checks.sh"

header=$src/apps/common/src/app_s2j/app_s2j.h
macro() { sed -n "s/^#define APP_S2J_VERSION_$1 \(.*\)$/\1/p" "$header"; }
major=$(macro MAJOR)
minor=$(macro MINOR)
patch=$(macro PATCH)
version=$major.$minor.$patch
[[ "$major" =~ ^[0-9]+$ && "$minor" =~ ^[0-9]+$ && "$patch" =~ ^[0-9]+$ ]] && ok ||
  fail "app_s2j.h: MAJOR/MINOR/PATCH are '$major' '$minor' '$patch'"
expect_eq "$(macro STRING)" "\"$version\"" "APP_S2J_VERSION_STRING"

# The library.
expect_eq "$(basename "$(readlink -f "$lib")")" "libapp_s2j.so.$version" "the library's file name"
expect_eq "$(readelf -d "$lib" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')" "libapp_s2j.so.$major" "soname"

# pkg-config and CMake.
expect_eq "$(sed -n 's/^Version: //p' "$pc")" "$version" "app_s2j.pc Version"
expect_eq "$(sed -n 's/^set(PACKAGE_VERSION "\(.*\)")$/\1/p' "$config_version")" "$version" "app_s2jConfigVersion.cmake"

# The manual pages' footers.
for m in "$man1" "$man3"; do
  expect_eq "$(sed -n 's/^\.TH .* "libapp_s2j \([^"]*\)".*/\1/p' "$m")" "$version" "$(basename "$m") footer"
done

# Debian: the changelog's newest entry, the runtime package named after the
# soname, and the symbols file for that soname and package.
expect_eq "$(sed -n '1s/^libapp-s2j (\([^)-]*\)[^)]*).*/\1/p' "$src/debian/changelog")" "$version" \
  "debian/changelog version"
grep -q -x "Package: libapp-s2j$major" "$src/debian/control" && ok || fail "debian/control has no libapp-s2j$major"
grep -q -x "Depends: libapp-s2j$major (= \${binary:Version})," "$src/debian/control" && ok ||
  fail "libapp-s2j-dev does not depend on libapp-s2j$major of its own version"
symbols=$src/debian/libapp-s2j$major.symbols
[ -f "$symbols" ] && ok || fail "no $symbols"
expect_eq "$(head -n 1 "$symbols" 2>/dev/null)" "libapp_s2j.so.$major libapp-s2j$major #MINVER#" "symbols file header"

finish version_test
