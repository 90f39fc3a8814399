#!/usr/bin/env bash
# Installs the packages libapp-s2j1, libapp-s2j-dev and app-s2j-tools with
# apt-get on this machine, checks what they put where, builds the example
# consumer against /usr through pkg-config and through find_package and runs
# it, includes the header in both spellings, runs the tool and both manual
# pages through man, then removes the packages and checks that nothing of them
# is left.  Needs root; changes /usr while it runs, so it is not part of the
# ctest suite (scripts/package-test.sh runs it).
# usage: package_test.sh SOURCE_DIR RUNTIME_DEB DEV_DEB TOOLS_DEB
set -u
src=$1
runtime_deb=$(readlink -f "$2")
dev_deb=$(readlink -f "$3")
tools_deb=$(readlink -f "$4")
tmp=$(mktemp -d)
. "$(dirname "$0")/shell_checks.sh"

runtime=$(dpkg-deb -f "$runtime_deb" Package)
dev=$(dpkg-deb -f "$dev_deb" Package)
tools=$(dpkg-deb -f "$tools_deb" Package)
version=$(dpkg-deb -f "$runtime_deb" Version)
for p in "$runtime" "$dev" "$tools"; do
  if dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "installed"; then
    echo "package_test: $p is already installed here; not touching it" >&2; exit 2
  fi
done
cleanup() {
  DEBIAN_FRONTEND=noninteractive apt-get purge -y -qq "$tools" "$dev" "$runtime" >/dev/null 2>&1
  rm -rf "$tmp"
}
trap cleanup EXIT

# The packages follow the one version of app_s2j.h.
header=$src/apps/common/src/app_s2j/app_s2j.h
want_version=$(sed -n 's/^#define APP_S2J_VERSION_STRING "\(.*\)"$/\1/p' "$header")
major=${want_version%%.*}
expect_eq "${version%%-*}" "$want_version" "package version"
expect_eq "$runtime" "libapp-s2j$major" "runtime package name"
expect_eq "$dev" "libapp-s2j-dev" "development package name"
expect_eq "$tools" "app-s2j-tools" "tool package name"
for deb in "$runtime_deb" "$dev_deb" "$tools_deb"; do
  expect_eq "$(dpkg-deb -f "$deb" Version)" "$version" "version of $(basename "$deb")"
done
expect_eq "$(dpkg-deb -f "$runtime_deb" Multi-Arch)" "same" "Multi-Arch of $runtime"
expect_eq "$(dpkg-deb -f "$dev_deb" Multi-Arch)" "same" "Multi-Arch of $dev"
expect_contains "$(dpkg-deb -f "$runtime_deb" Depends)" "libcjson1" "$runtime Depends"
expect_contains "$(dpkg-deb -f "$dev_deb" Depends)" "$runtime (= $version)" "$dev Depends"
expect_contains "$(dpkg-deb -f "$tools_deb" Depends)" "$runtime (>= " "$tools Depends"
# The shlibs and symbols the runtime package gives its users.
dpkg-deb --ctrl-tarfile "$runtime_deb" | tar -x -C "$tmp" ./shlibs ./symbols ./triggers 2>/dev/null
expect_eq "$(cat "$tmp/shlibs" 2>/dev/null)" "libapp_s2j $major $runtime (>= $want_version)" "$runtime shlibs"
committed=$src/apps/common/src/app_s2j/app_s2j.symbols
expect_eq "$(grep -c '@Base' "$tmp/symbols" 2>/dev/null)" "$(grep -c -v '^#' "$committed")" \
  "symbols in $runtime"
expect_contains "$(cat "$tmp/triggers" 2>/dev/null)" "activate-noawait ldconfig" "$runtime ldconfig trigger"

check "apt-get installs the three packages" \
  env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "$runtime_deb" "$dev_deb" "$tools_deb"
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH 2>/dev/null || gcc -print-multiarch)
lib=/usr/lib/$multiarch/libapp_s2j.so.$major
for f in "$lib" "/usr/lib/$multiarch/libapp_s2j.so" \
         /usr/include/app_s2j/app_s2j.h /usr/include/app_s2j/app_s2j_types.h \
         "/usr/lib/$multiarch/pkgconfig/app_s2j.pc" "/usr/lib/$multiarch/cmake/app_s2j/app_s2jConfig.cmake" \
         /usr/bin/app_s2j /usr/share/man/man1/app_s2j.1.gz /usr/share/man/man3/app_s2j.3.gz \
         "/usr/share/doc/$runtime/copyright" "/usr/share/doc/$runtime/changelog.gz"; do
  [ -e "$f" ] && ok || fail "installed $f"
done
dpkg -L "$runtime" | grep -q -E '\.h$|pkgconfig|cmake|/bin/' && fail "runtime package carries other files" || ok
readelf -d "$lib" | grep -q 'SONAME.*\[libapp_s2j.so.'"$major"'\]' && ok || fail "soname of $lib"
readelf -S "$lib" | grep -q -E '\.debug_info|\.comment' && fail "$lib is not stripped" || ok
readelf -d "$lib" | grep -q -E 'FLAGS.*BIND_NOW|FLAGS_1.*NOW' && ok || fail "$lib is not linked with -z now"
readelf -l "$lib" | grep -q GNU_RELRO && ok || fail "$lib has no RELRO segment"
expect_eq "$(pkg-config --modversion app_s2j 2>&1)" "$version" "pkg-config --modversion app_s2j"

# The example consumer against /usr, found without any search path.
. "$src/tests/schedule_request_checks.sh"
mkdir -p "$tmp/mk"
check "examples/c-consumer builds with make and pkg-config against /usr" \
  make -C "$tmp/mk" -f "$src/examples/c-consumer/Makefile" VPATH="$src/examples/c-consumer"
ldd "$tmp/mk/schedule_request" 2>&1 |
  grep -q -E "libapp_s2j.so.$major => (/usr)?/lib/$multiarch/libapp_s2j.so.$major" && ok ||
  fail "schedule_request does not load $lib"
schedule_request_checks "schedule_request (pkg-config, /usr)" "$tmp/mk/schedule_request"
check "examples/c-consumer configures with find_package against /usr" \
  cmake -S "$src/examples/c-consumer" -B "$tmp/ebuild"
check "examples/c-consumer builds with CMake against /usr" cmake --build "$tmp/ebuild"
schedule_request_checks "schedule_request (CMake, /usr)" "$tmp/ebuild/schedule_request"
check "tests/consumer (both include spellings) builds with CMake against /usr" \
  sh -c "cmake -S '$src/tests/consumer' -B '$tmp/cbuild' && cmake --build '$tmp/cbuild'"

# The tool and the manual pages.
out=$(app_s2j --help 2>&1)
expect_contains "$out" "app_s2j check TYPE FILE" "app_s2j --help from /usr/bin"
out=$(app_s2j check DeviceInfo "$src/examples/DeviceInfo.json" 2>&1); rc=$?
expect_eq "$rc" "0" "app_s2j check DeviceInfo examples/DeviceInfo.json"
out=$(MANWIDTH=80 man app_s2j 2>&1); rc=$?
expect_eq "$rc" "0" "man app_s2j exit status"
expect_contains "$out" "APP_S2J(1)" "man app_s2j"
expect_contains "$out" "app_s2j validate" "man app_s2j"
out=$(MANWIDTH=80 man 3 app_s2j 2>&1); rc=$?
expect_eq "$rc" "0" "man 3 app_s2j exit status"
expect_contains "$out" "APP_S2J(3)" "man 3 app_s2j"
expect_contains "$out" "j2s_array_update_T" "man 3 app_s2j"

# Removal leaves nothing behind.
check "apt-get removes the three packages" \
  env DEBIAN_FRONTEND=noninteractive apt-get purge -y -qq "$tools" "$dev" "$runtime"
[ ! -e "$lib" ] && [ ! -e /usr/include/app_s2j ] && [ ! -e /usr/bin/app_s2j ] &&
  [ ! -e /usr/share/man/man1/app_s2j.1.gz ] && [ ! -e /usr/share/man/man3/app_s2j.3.gz ] &&
  [ ! -e "/usr/lib/$multiarch/cmake/app_s2j" ] && ok || fail "files left after removal"

finish package_test
