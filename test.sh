#!/usr/bin/env bash
# Installs what is missing, builds Usmira and runs all its tests.
cd "$(dirname "$0")"
. scripts/setup.sh

install_missing "${PACKAGES[@]}"
build release
say "Testing"
ctest --preset release
say "All tests passed"
