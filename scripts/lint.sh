#!/usr/bin/env bash
# clang-tidy over every source file of the project, with the release build's compile commands.
cd "$(dirname "$0")/.."
. scripts/setup.sh

log=$(mktemp)
trap 'rm -f "$log"' EXIT
git ls-files '*.cpp' | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/release >"$log" 2>&1 || {
    grep -vE 'warnings? generated|^$' "$log"
    fail "clang-tidy complains"
}
