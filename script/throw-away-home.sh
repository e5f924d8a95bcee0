# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# Source this file to run Selvane in a throw-away home, away from the user's own files and applications.

home= # the throw-away home, once there is one

# The session is the fourth field after the process's name.
sessionOf() {
    local stat
    read -r stat 2>/dev/null <"/proc/$1/stat" || return 0
    # shellcheck disable=SC2086 # split into fields
    set -- ${stat##*) }
    echo "${4:-}"
}

# What the tour has opened: processes with an executable in its home, or with its home and a session of their
# own, which this script's other children don't have.
openProcesses() {
    local entry pid mine
    mine=$(sessionOf $$)
    for entry in /proc/[0-9]*; do
        pid=${entry#/proc/}
        if [[ $(readlink "$entry/exe" 2>/dev/null) == "$home"/* ]] ||
            { grep -qzxF "HOME=$home" "$entry/environ" 2>/dev/null && [[ $(sessionOf "$pid") != "$mine" ]]; }; then
            echo "$pid"
        fi
    done
}
nothingIsOpen() { [[ -z $(openProcesses) ]]; }

waitUntil() {
    local try
    for ((try = 0; try < 100; try++)); do
        "$@" && return
        sleep 0.1
    done
    return 1
}

# Ends whatever was opened and removes the home, unless SELVANE_DEMO_KEEP=1 is set.
leaveThrowAwayHome() {
    local status=$? pid
    trap '' INT TERM
    [[ -n $home ]] || exit "$status"
    for pid in $(openProcesses); do kill -TERM "$pid" 2>/dev/null || true; done
    waitUntil nothingIsOpen ||
        for pid in $(openProcesses); do kill -KILL "$pid" 2>/dev/null || true; done
    if [[ ${SELVANE_DEMO_KEEP:-} == 1 ]]; then
        printf '\nThe throw-away home is kept: %s\n' "$home"
    else
        rm -rf "$home"
    fi
    exit "$status"
}

# Creates the home and makes everything after this use it. An installed Claude Desktop stays visible.
enterThrowAwayHome() {
    trap leaveThrowAwayHome EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    home=$(cd "$(mktemp -d "${TMPDIR:-/tmp}/selvane-tour.XXXXXX")" && pwd -P)
    script/sample-home "$home"

    unset CLAUDE_CONFIG_DIR
    unset CLAUDE_LAUNCHER_ROOT CLAUDE_LAUNCHER_DEFAULT_DIR CLAUDE_LAUNCHER_DEFAULT_JSON CLAUDE_LAUNCHER_DESKTOP_DIR
    export HOME=$home XDG_CONFIG_HOME=$home/.config XDG_DATA_HOME=$home/.local/share
    export XDG_CACHE_HOME=$home/.cache XDG_STATE_HOME=$home/.local/state
    export LC_ALL=C.UTF-8 # unzip and friends print names with accents as they are
}

# Installs a small program that behaves like Claude Desktop as far as Selvane can see, as an application folder
# with a desktop entry. It hides a real Claude Desktop and needs no display.
installStandIn() {
    local folder=$home/.local/lib/claude-desktop
    unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
    export XDG_RUNTIME_DIR=$home/.run XDG_DATA_DIRS=$XDG_DATA_HOME
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    mkdir -p "$folder" "$XDG_DATA_HOME/applications"
    cp build/release/claude-desktop-stand-in "$folder/claude-desktop"
    cat >"$XDG_DATA_HOME/applications/com.anthropic.Claude.desktop" <<END
[Desktop Entry]
Type=Application
Name=Claude
Exec="$folder/claude-desktop" --password-store=basic %U
Terminal=false
END
}

# The process ids of the copies of Claude Desktop that, according to Selvane, belong to this home.
openCopies() {
    selvane desktop-status | sed -n "s|^aperto pid=\([0-9]*\)\tdati=$home/.*|\1|p"
}

# Closes every copy as its user would, and no other process.
closeCopies() {
    local pid ours
    ours=" $(openProcesses | tr '\n' ' ')"
    for pid in $(openCopies); do
        [[ $ours != *" $pid "* ]] || kill -TERM "$pid"
    done
    waitUntil nothingIsOpen
}
