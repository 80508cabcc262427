#!/usr/bin/env bash
# Makes every file call of every command go wrong, in every way: some minutes.
# scripts/faults.sh --every 20 takes every twentieth call, and is what continuous integration runs.
cd "$(dirname "$0")/.."
. scripts/setup.sh

install_missing "${PACKAGES[@]}"
build release usmira-faults
say "Making file calls go wrong"
build/release/tests/faults/usmira-faults --threads "$(nproc)" "$@"
