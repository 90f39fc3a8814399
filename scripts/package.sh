#!/usr/bin/env bash
# Builds the Debian packages libapp-s2j1, libapp-s2j-dev and app-s2j-tools
# from debian/ with dpkg-buildpackage (debhelper), and checks them with lintian
# (as root on Debian: runs the set-up first).
#   scripts/package.sh                 for this machine         -> build-deb/*.deb
#   scripts/package.sh armhf           cross, for armhf         -> build-deb-armhf/*.deb
#   scripts/package.sh [ARCH] --check  with the test suite run inside the package build
# Without --check the build uses the nocheck profile: only the library, the
# tool and the manual pages are built.  The sources (the files git knows of,
# committed or not) are copied to BUILD/libapp-s2j, so that the packages and
# dpkg-buildpackage's other files land in BUILD and the tree stays clean.
set -euo pipefail
cd "$(dirname "$0")/.."
arch=
check=no
for arg in "$@"; do
  case "$arg" in
    --check) check=yes ;;
    armhf) arch=armhf ;;
    *) echo "package: unknown argument $arg (armhf, --check)" >&2; exit 2 ;;
  esac
done
if [ -n "$arch" ]; then
  [ "$check" = no ] || { echo "package: --check builds for this machine only" >&2; exit 2; }
  scripts/setup.sh package arm-linux-gnueabihf
  build=build-deb-$arch
elif [ "$check" = yes ]; then
  scripts/setup.sh package-check
  build=build-deb
else
  scripts/setup.sh package
  build=build-deb
fi
rm -rf "$build"
mkdir -p "$build/libapp-s2j"
git ls-files -z --cached --others --exclude-standard |
  while IFS= read -r -d '' f; do [ -e "$f" ] && printf '%s\0' "$f"; done |
  tar --null -T - -cf - | tar -xf - -C "$build/libapp-s2j"
options=(-b -us -uc)
export DEB_BUILD_OPTIONS="parallel=$(nproc)"
if [ "$check" = no ]; then
  DEB_BUILD_OPTIONS="$DEB_BUILD_OPTIONS nocheck"
  profiles=nocheck
  [ -n "$arch" ] && profiles=cross,nocheck
  options+=(-P"$profiles")
fi
[ -n "$arch" ] && options+=(-a "$arch")
(cd "$build/libapp-s2j" && dpkg-buildpackage "${options[@]}") > "$build/build.log" 2>&1 ||
  { tail -40 "$build/build.log" >&2; echo "package: dpkg-buildpackage failed; see $build/build.log" >&2; exit 1; }
# No error and no warning; informational tags and the overrides in debian/
# (each with its reason) are allowed.
lintian --fail-on error,warning --suppress-tags-from-file /dev/null "$build"/*.changes
ls "$PWD/$build"/*.deb
