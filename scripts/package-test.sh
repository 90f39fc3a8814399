#!/usr/bin/env bash
# Builds the Debian packages (nocheck: the suite has its own run) and checks
# them with lintian, then tests them on this machine (as root): installs the
# three with apt-get, builds examples/c-consumer against /usr and runs it,
# runs the tool and its manual pages, then removes the packages again.  See
# scripts/package.sh and tests/package_test.sh.
#   scripts/package-test.sh          for this machine
#   scripts/package-test.sh armhf    also cross packages for armhf (built and
#                                    checked by lintian; not installed here)
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/package.sh
v=$(sed -n 's/^#define APP_S2J_VERSION_STRING "\(.*\)"$/\1/p' apps/common/src/app_s2j/app_s2j.h)
a=$(dpkg --print-architecture)
tests/package_test.sh "$PWD" "build-deb/libapp-s2j${v%%.*}_${v}_$a.deb" "build-deb/libapp-s2j-dev_${v}_$a.deb" \
  "build-deb/app-s2j-tools_${v}_$a.deb"
for arch in "$@"; do
  scripts/package.sh "$arch"
done
