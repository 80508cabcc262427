#!/usr/bin/env bash
# Feeds bytes that nobody has written to everything that reads files: scripts/fuzz.sh [INPUTS] [TARGET...]
# One line for each target; what it stumbles over stays in build/found.
cd "$(dirname "$0")/.."
. scripts/setup.sh

inputs=${1:-100000}
shift || true
install_missing "${PACKAGES[@]}" clang libclang-rt-14-dev
build asan usmira-fuzz

fuzz=$PWD/build/asan/fuzz/usmira-fuzz
found=$PWD/build/found
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$found"
# Where memory was given back is rarely needed, and takes half of the time.
export ASAN_OPTIONS=malloc_context_size=2:quarantine_size_mb=16 XDG_RUNTIME_DIR=$work

# fuzz_one TARGET: the seed is fixed, so that what one run finds the next one finds too.
fuzz_one() {
    local log=$work/$1.log seconds=$SECONDS
    "$fuzz" --seeds "$1" "$work/$1"
    "$fuzz" "$1" -seed=1 -runs="$inputs" -max_len="$("$fuzz" --longest "$1")" -dict=fuzz/words.dict \
        -entropic=0 -timeout=20 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="$found/$1-" "$work/$1" >"$log" 2>&1 || { tail -n 40 "$log"; return 1; }
    printf '%-10s %8s inputs in %4s s, %s, peak memory %s MB\n' "$1" \
        "$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")" $((SECONDS - seconds)) \
        "$(grep '^slowest input' "$log")" "$(sed -n 's/^stat::peak_rss_mb: *//p' "$log")"
}
export -f fuzz_one
export fuzz found work inputs

say "Fuzzing, $inputs inputs each"
printf '%s\n' "${@:-$("$fuzz" --targets)}" | xargs -P "$(nproc)" -n 1 bash -c 'fuzz_one "$0"' ||
    fail "findings are in $found; after the mend they go to tests/data/fuzz/TARGET"
