# Sourced by run.sh: shows a program to VNC viewers of this machine, for machines without a screen.
# Only the loopback is listened to, behind a password made for this run: viewers elsewhere come
# through ssh. Expects scripts/setup.sh.

VNC_PACKAGES=(tigervnc-standalone-server tigervnc-tools xauth openbox)

port_is_taken() {
    (exec 3<>"/dev/tcp/127.0.0.1/$1" || exec 3<>"/dev/tcp/::1/$1") 2>/dev/null
}

first_free_port() {
    local port
    for ((port = 5900; port < 5950; ++port)); do
        port_is_taken "$port" || break
    done
    printf '%s' "$port"
}

# A VNC password has eight characters and no more; those that look alike are left out.
new_password() {
    local letters
    letters=$(head -c 512 /dev/urandom | tr -dc 'a-km-np-z2-9')
    printf '%s' "${letters:0:8}"
}

vnc_stop() {
    local job
    for job in $(jobs -p); do
        kill "$job" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    rm -rf "$vnc_folder"
}

# Starts the virtual screen on $1, the port, behind $2, the password, and sets DISPLAY.
vnc_screen() {
    local cookie number
    export XAUTHORITY=$vnc_folder/authority
    (umask 077 && : >"$XAUTHORITY" && vncpasswd -f <<<"$2" >"$vnc_folder/password")
    # The server takes every cookie of the file, whatever display stands beside it.
    cookie=$(mcookie)
    xauth -q -f "$XAUTHORITY" add :0 . "$cookie"
    mkfifo "$vnc_folder/display"
    setsid Xtigervnc -displayfd 3 -auth "$XAUTHORITY" -nolisten tcp -rfbport "$1" -localhost=1 \
        -SecurityTypes VncAuth -PasswordFile "$vnc_folder/password" -AlwaysShared=1 \
        -desktop Usmira -geometry 1280x900 -depth 24 \
        3>"$vnc_folder/display" >"$vnc_folder/log" 2>&1 &
    if ! read -r -t 30 number <"$vnc_folder/display"; then
        cat "$vnc_folder/log" >&2
        fail "the VNC server did not start on port $1"
    fi
    export DISPLAY=:$number
    xauth -q -f "$XAUTHORITY" add "$DISPLAY" . "$cookie"
}

# vnc_show COMMAND...: returns when the command has ended, and leaves nothing behind.
vnc_show() {
    local port password
    vnc_folder=$(mktemp -d) # nobody else may enter it
    trap vnc_stop EXIT
    # When the connection to this machine breaks, the author's window stays for the next viewer.
    trap '' HUP
    trap 'exit 1' INT TERM
    port=$(first_free_port)
    password=$(new_password)
    vnc_screen "$port" "$password"
    setsid openbox >"$vnc_folder/openbox.log" 2>&1 &
    say "VNC: port $port of this machine only, password $password"
    say "From elsewhere: ssh -L $port:localhost:$port $(hostname), then a viewer on localhost:$port"
    # In the background, so that a signal ends the wait and with it the run.
    env -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb "$@" &
    wait $!
}
