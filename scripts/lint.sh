#!/usr/bin/env bash
# scripts/lint.sh [FILE...]: clang-tidy over every source file of the project, or over these, with
# the release build's compile commands. A file that was found good is not looked at again until it,
# a header that it reads, its command, the rules or clang-tidy change: finding that out takes a
# twentieth of the time.
cd "$(dirname "$0")/.."
. scripts/setup.sh

log=$(mktemp)
trap 'rm -f "$log"' EXIT
# clang cannot read what gcc has precompiled. And so it finds the files that use what they do not
# include, which the build no longer does.
mkdir -p build/lint
sed 's| -Winvalid-pch -include [^ ]*/cmake_pch\.hxx||' build/release/compile_commands.json \
    >build/lint/compile_commands.json

good=${XDG_CACHE_HOME:-$HOME/.cache}/usmira-lint
mkdir -p "$good"
find "$good" -type f -mtime +60 -delete
rules=$(cat .clang-tidy <(clang-tidy --version) | sha256sum)

# fingerprint FILE: of all that clang-tidy would see of it, comments too, which can tell it to keep
# quiet. Nothing when it cannot be had.
fingerprint() {
    local command text
    command=$(awk -v file="\"file\": \"$PWD/$1\"" 'index($0, "\"command\": ") { command = $0 }
        index($0, file) { print command; exit }' build/lint/compile_commands.json |
        sed -e 's/^ *"command": "//' -e 's/",$//' -e 's/\\"/"/g' -e 's/ -o [^ ]* -c / -E -C /' \
            -e 's/^[^ ]*ccache //' -e 's/^[^ ]*/clang++/')
    [ -n "$command" ] || return 0
    text=$(eval "$command" 2>/dev/null | sha256sum) || return 0
    echo "$rules$command$text" | sha256sum | cut -d' ' -f1
}

# lint_one FILE
lint_one() {
    local print
    print=$(set -o pipefail && fingerprint "$1")
    [ -n "$print" ] && [ -e "$good/$print" ] && return
    clang-tidy --quiet -p build/lint "$1" && [ -n "$print" ] && : >"$good/$print"
}
export -f fingerprint lint_one
export good rules

{ [ $# -gt 0 ] && printf '%s\n' "$@" || git ls-files '*.cpp'; } | xargs -P "$(nproc)" -I{} bash -c 'lint_one "$0"' {} >"$log" 2>&1 || {
    grep -vE 'warnings? generated|^$' "$log"
    fail "clang-tidy complains"
}
