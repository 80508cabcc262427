# Shared by run.sh, test.sh, bench.sh and the checks: installs what is missing and builds.
# Sourced with the project's folder as the current one.

set -euo pipefail

say() { printf '== %s\n' "$*"; }
fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}
trap 'fail "stopped at line $LINENO: $BASH_COMMAND"' ERR

# What the build and the program need on Debian 12.
PACKAGES=(cmake ninja-build g++ ccache qt6-base-dev qt6-svg-dev qt6-l10n-tools libqt6svg6
    libzip-dev libqpdf-dev libhyphen-dev hyphen-fr libhunspell-dev hunspell-fr-comprehensive
    mythes-fr qt6-translations-l10n breeze-icon-theme fonts-liberation fonts-dejavu-core)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "root rights are needed to install packages: become root or install sudo"
    fi
}

install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    command -v apt-get >/dev/null || fail "apt-get is missing: install ${missing[*]} by hand"
    say "Installing ${missing[*]}"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
        "${missing[@]}"
}

# Without these ccache does not keep what was compiled with a precompiled header.
export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}

# A warning fails continuous integration, and nobody else.
CMAKE_OPTIONS=(${CI:+-DUSMIRA_WERROR=ON})

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    if [ ! -f "build/$preset/build.ninja" ]; then
        say "Configuring ($preset)"
        cmake --preset "$preset" "${CMAKE_OPTIONS[@]}" >"build-$preset.log" 2>&1 ||
            { cat "build-$preset.log"; fail "cmake could not configure the build"; }
        rm -f "build-$preset.log"
    fi
    say "Building ($preset)"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
