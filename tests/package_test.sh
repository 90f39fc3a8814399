#!/usr/bin/env bash
# Installs the runtime and development packages with apt-get on this machine,
# checks what they put where, builds the example consumer against /usr through
# pkg-config and through find_package and runs it, then removes both packages
# and checks that nothing of them is left. Needs root; changes /usr while it runs,
# so it is not part of the ctest suite (scripts/package-test.sh runs it).
# usage: package_test.sh SOURCE_DIR RUNTIME_DEB DEV_DEB
set -u
src=$1
runtime_deb=$(readlink -f "$2")
dev_deb=$(readlink -f "$3")
tmp=$(mktemp -d)
. "$(dirname "$0")/shell_checks.sh"

runtime=$(dpkg-deb -f "$runtime_deb" Package)
dev=$(dpkg-deb -f "$dev_deb" Package)
version=$(dpkg-deb -f "$runtime_deb" Version)
for p in "$runtime" "$dev"; do
  if dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "installed"; then
    echo "package_test: $p is already installed here; not touching it" >&2; exit 2
  fi
done
cleanup() {
  DEBIAN_FRONTEND=noninteractive apt-get purge -y -qq "$dev" "$runtime" >/dev/null 2>&1
  rm -rf "$tmp"
}
trap cleanup EXIT

# The version and the soname follow the one project version.
want_version=$(sed -n 's/^project(app_s2j VERSION \([0-9.]*\).*/\1/p' "$src/CMakeLists.txt")
[ "$version" = "$want_version" ] && ok || fail "package version $version, project version $want_version"
[ "$runtime" = "libapp-s2j${want_version%%.*}" ] && ok || fail "runtime package is named $runtime"
dpkg-deb -f "$runtime_deb" Depends | grep -q 'libcjson1' && ok || fail "runtime package does not depend on libcjson1"
dpkg-deb -f "$dev_deb" Depends | grep -q "$runtime (= $version)" && ok || fail "development package does not depend on $runtime (= $version)"

check "apt-get installs both packages" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "$runtime_deb" "$dev_deb"
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH 2>/dev/null || gcc -print-multiarch)
lib=/usr/lib/$multiarch/libapp_s2j.so.1
for f in "$lib" "/usr/lib/$multiarch/libapp_s2j.so" /usr/include/app_s2j/app_s2j.h /usr/include/app_s2j/app_s2j_types.h \
         "/usr/lib/$multiarch/pkgconfig/app_s2j.pc" "/usr/lib/$multiarch/cmake/app_s2j/app_s2jConfig.cmake"; do
  [ -e "$f" ] && ok || fail "installed $f"
done
dpkg -L "$runtime" | grep -q -E '\.h$|pkgconfig|cmake' && fail "runtime package carries development files" || ok
readelf -d "$lib" | grep -q 'SONAME.*\[libapp_s2j.so.'"${want_version%%.*}"'\]' && ok || fail "soname of $lib"
readelf -S "$lib" | grep -q '\.debug_info' && fail "$lib is not stripped" || ok
[ "$(pkg-config --modversion app_s2j 2>&1)" = "$version" ] && ok || fail "pkg-config --modversion app_s2j"

# The example consumer against /usr, found without any search path.
. "$src/tests/schedule_request_checks.sh"
mkdir -p "$tmp/mk"
check "examples/c-consumer builds with make and pkg-config against /usr" \
  make -C "$tmp/mk" -f "$src/examples/c-consumer/Makefile" VPATH="$src/examples/c-consumer"
ldd "$tmp/mk/schedule_request" 2>&1 | grep -q -E "libapp_s2j.so.1 => (/usr)?/lib/$multiarch/libapp_s2j.so.1" && ok ||
  fail "schedule_request does not load $lib"
schedule_request_checks "schedule_request (pkg-config, /usr)" "$tmp/mk/schedule_request"
check "examples/c-consumer configures with find_package against /usr" cmake -S "$src/examples/c-consumer" -B "$tmp/ebuild"
check "examples/c-consumer builds with CMake against /usr" cmake --build "$tmp/ebuild"
schedule_request_checks "schedule_request (CMake, /usr)" "$tmp/ebuild/schedule_request"

# Removal leaves nothing behind.
check "apt-get removes both packages" env DEBIAN_FRONTEND=noninteractive apt-get purge -y -qq "$dev" "$runtime"
[ ! -e "$lib" ] && [ ! -e /usr/include/app_s2j ] && ok || fail "files left after removal"

finish
