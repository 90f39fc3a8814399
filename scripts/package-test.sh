#!/usr/bin/env bash
# Builds the Debian packages and tests them on this machine (as root): installs
# both with apt-get, builds examples/c-consumer against /usr and runs it, then
# removes the packages again. See tests/package_test.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/package.sh
tests/package_test.sh "$PWD" build-deb/packages/libapp-s2j1_*.deb build-deb/packages/libapp-s2j-dev_*.deb
