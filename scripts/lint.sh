#!/usr/bin/env bash
# scripts/lint.sh [FILE...]: clang-tidy over every source file but those of the tests and those for
# Windows, or over these; comes after the release build. What takes its time are the headers of Qt. So a dozen files are
# read as if they were one, in an eighth of the time; those that do not go together are read one by
# one.
cd "$(dirname "$0")/.."
. scripts/setup.sh

work=$PWD/build/lint
rm -rf "$work"
mkdir -p "$work"
# One command for all: what the build gives to any of them, but for what only forbids. What Qt
# generates is not ours.
flags="-std=c++20 -fPIC $(grep -oE ' (-D[^ ]+|-I[^ ]+|-isystem [^ ]+)' \
    build/release/compile_commands.json | grep -v NO_CAST | sort -u | tr -d '\n' |
    sed -e 's/\\\\\\"/\\"/g' -e 's/-I\([^ ]*_autogen\)/-isystem \1/g')"

# Deals the files out to batches that define nothing of the same name. Some names that clash lie in
# headers and are not seen here.
deal='
    function deal(    batch, name, fits) {
        for (batch = 1; size[batch] > 0; ++batch) {
            fits = size[batch] < 12
            for (name in names)
                fits = fits && !((batch, name) in taken)
            if (fits)
                break
        }
        ++size[batch]
        for (name in names)
            taken[batch, name]
        delete names
        printf "#define main main_%d\n#include \"%s/%s\" // NOLINT\n#undef main\n", size[batch], root, file \
            >(work "/batch-" batch ".cpp")
    }
    FNR == 1 && NR > 1 { deal() }
    FNR == 1 { file = FILENAME; unnamed = 0 }
    /^namespace$/ { unnamed = 1 }
    /^} \/\/ namespace$/ { unnamed = 0 }
    /^(using|class|struct|enum) / {
        sub(/^using .*::|^enum class|^[a-z]+/, "")
        match($0, /[A-Za-z_0-9]+/)
        names[substr($0, RSTART, RLENGTH)]
        next
    }
    /^QTEST_/ { next }
    /^[A-Za-z]/ && (unnamed || /\(/) && match($0, /[A-Za-z_][A-Za-z_0-9:~]*(\(| =|\{|;|\[)/) {
        names[substr($0, RSTART, RLENGTH - 1)]
    }
    END { deal() }'
if [ $# -gt 0 ]; then printf '%s\n' "$@"; else git ls-files '*.cpp' ':!tests' ':!*Windows*.cpp'; fi |
    xargs awk -v work="$work" -v root="$PWD" "$deal"

tidy() { eval "clang-tidy --quiet '$1' -- $flags" 2>&1; }

# lint BATCH
lint() {
    local log file
    if ! log=$(tidy "$1") && grep -q 'clang-diagnostic-error' <<<"$log"; then
        log=
        for file in $(sed -n 's/^#include "\(.*\)".*/\1/p' "$1"); do
            log+=$(tidy "$file")
        done
    fi
    ! grep -vE 'warnings? (generated|treated)|^$' <<<"$log"
}
export -f tidy lint
export flags

printf '%s\n' "$work"/batch-*.cpp | xargs -P "$(nproc)" -I{} bash -c 'lint "$0"' {} ||
    fail "clang-tidy complains"
