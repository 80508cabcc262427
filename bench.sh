#!/usr/bin/env bash
# Builds and runs the measurements: a line a figure, name, value and unit separated by tabs.
cd "$(dirname "$0")"
. scripts/setup.sh >&2

install_missing "${PACKAGES[@]}" >&2
build release usmira-bench >&2
exec build/release/bench/usmira-bench "$@"
