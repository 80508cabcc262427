#!/usr/bin/env bash
# Installs what is missing, builds Usmira and opens it.
#   ./run.sh [--vnc] [adventure.usm]
# Without an adventure it opens your copy of the bundled sample. --vnc shows the editor to a VNC
# viewer, for machines without a screen: only through the loopback, with a password made for the run.
caller=$PWD
cd "$(dirname "$0")"
. scripts/setup.sh
. scripts/vnc.sh

vnc=no
if [ "${1:-}" = --vnc ]; then
    vnc=yes
    shift
fi
[ $# -le 1 ] || fail "usage: ./run.sh [--vnc] [adventure.usm]"

# The sample itself stays whole: the author gets a copy to play with, made once.
sample_copy() {
    local folder
    folder=$(command -v xdg-user-dir >/dev/null && xdg-user-dir DOCUMENTS || true)
    # Without a documents folder the command names the home folder, which is no place for a copy.
    if [ "$folder" = "$HOME" ] || [ ! -d "$folder" ] || [ ! -w "$folder" ]; then
        folder=${XDG_DATA_HOME:-$HOME/.local/share}/Usmira
    fi
    mkdir -p "$folder"
    local copy
    copy="$folder/$(basename "$(ls resources/samples/*.usm)")"
    [ -e "$copy" ] || cp resources/samples/*.usm "$copy"
    printf '%s' "$copy"
}

[ $vnc = no ] || PACKAGES+=("${VNC_PACKAGES[@]}")
install_missing "${PACKAGES[@]}"
build release usmira

if [ $# -eq 1 ]; then
    case $1 in /*) adventure=$1 ;; *) adventure=$caller/$1 ;; esac
    [ -f "$adventure" ] || fail "there is no file $adventure"
else
    adventure=$(sample_copy)
fi

if [ $vnc = yes ]; then
    say "Opening $adventure"
    vnc_show build/release/src/app/usmira "$adventure"
    exit
fi
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
    fail "Usmira is built, but there is no display to show it on. Run ./run.sh on a desktop, or
./run.sh --vnc and connect a VNC viewer as it says."
fi
say "Opening $adventure"
exec build/release/src/app/usmira "$adventure"
