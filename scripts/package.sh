#!/usr/bin/env bash
# Builds the Debian packages libapp-s2j1 and libapp-s2j-dev with CPack
# (as root on Debian: runs the set-up first).
#   scripts/package.sh           for this machine            -> build-deb/packages/*.deb
#   scripts/package.sh TARGET    cross, e.g. arm-linux-gnueabihf -> build-deb-TARGET/packages/*.deb
# The library is configured for /usr, so it goes to the multiarch directory
# /usr/lib/<triplet>, as Debian's own libraries do.
set -euo pipefail
cd "$(dirname "$0")/.."
target=${1:-}
cross=()
build=build-deb
if [ -n "$target" ]; then
  [ -f "cmake/toolchains/$target.cmake" ] && [ "$target" != debian-cross ] || { echo "package: unknown target $target" >&2; exit 2; }
  # GNUInstallDirs picks the multiarch directory only for native builds.
  cross=(-DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/toolchains/$target.cmake" -DCMAKE_INSTALL_LIBDIR="lib/$target")
  build=build-deb-$target
  scripts/setup.sh "$target"
else
  scripts/setup.sh
fi
cmake -S . -B "$build" "${cross[@]}" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr \
  -DAPP_S2J_TESTS=OFF -DAPP_S2J_TOOLS=OFF >/dev/null
cmake --build "$build" -j"$(nproc)" --target app_s2j
rm -f "$build"/packages/*.deb
(cd "$build" && cpack >/dev/null)
ls "$PWD/$build"/packages/*.deb
