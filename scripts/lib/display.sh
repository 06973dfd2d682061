# shellcheck shell=bash
# Drives the real program on a virtual display: the screen, the window manager, the simulated robot,
# the user's hands, and the cleaning up at the end. Source it after `set -euo pipefail`; it only
# defines functions and these variables.

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
home=       # the temporary folder of this session, removed at the end: make_home
diary=      # what the simulated robot writes of itself
out=        # the folder for pictures, where the diary is copied at the end: use_out
patience=60 # seconds that wait_for waits at least
started=()  # processes that end with the script
last=       # the latest of them
on_display= # not empty once there is a display of our own

# A script defines this function anew if it has more to clean up. The processes have ended by then,
# the temporary folder is still there.
clean_up() { :; }

# The end of every script that has called make_home, however it comes about.
finish() {
    local status=$?
    trap - EXIT
    set +e
    if [ "$status" -ne 0 ] && [ -n "$on_display" ] && [ -n "$out" ]; then
        picture failure && echo "The screen at the failure: $out/failure.png" >&2
    fi
    if [ ${#started[@]} -gt 0 ]; then
        kill "${started[@]}" 2>/dev/null
        # True as long as one of them is there.
        for _ in $(seq 100); do
            kill -0 "${started[@]}" 2>/dev/null || break
            sleep 0.1
        done
        kill -0 "${started[@]}" 2>/dev/null && kill -9 "${started[@]}" 2>/dev/null
        wait "${started[@]}" 2>/dev/null
    fi
    [ -z "$out" ] || [ ! -e "$diary" ] || cp "$diary" "$out/"
    clean_up
    rm -rf --one-file-system "$home"
    exit "$status"
}

# use_home FOLDER: a temporary folder that is there already.
use_home() {
    home=$1
    diary=$home/diary.txt
    trap finish EXIT
}

use_out() { # FOLDER
    mkdir -p "$1"
    out=$(realpath "$1")
}

make_home() {
    use_home "$(mktemp -d)"
    export XDG_RUNTIME_DIR=$home
}

# on_own_bus ARGUMENT...: starts the script again with these arguments, with a home and on a session
# bus of its own. What a screen reader learns of windows goes over that bus and over a second one,
# whose socket lies in XDG_RUNTIME_DIR: two sessions at once must not share them.
on_own_bus() {
    if [ -n "${LUMBRA_HOME:-}" ]; then
        use_home "$LUMBRA_HOME"
        unset LUMBRA_HOME
        return
    fi
    make_home
    export LUMBRA_HOME=$home XDG_RUNTIME_DIR=$home/.session QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    exec dbus-run-session -- "$0" "$@" 2> >(grep -v '^dbus-daemon' >&2)
}

# start COMMAND...: in the background, as long as the script runs; its process number is in $last.
start() {
    "$@" &
    last=$!
    started+=("$last")
}

# start_screen WIDTHxHEIGHT [OPTION...]: a screen without a window manager; the options are Xvfb's.
start_screen() {
    local number
    # A pipe whose both ends are ours: Xvfb writes the display's number into it once it is ready.
    exec 7<> <(:)
    start Xvfb -displayfd 7 -screen 0 "$1x24" -nolisten tcp -noreset "${@:2}" >/dev/null 2>&1
    if ! read -r -t 60 -u 7 number; then
        echo "Xvfb does not start" >&2
        return 1
    fi
    exec 7<&-
    export DISPLAY=:$number
    on_display=yes
}

# start_display WIDTHxHEIGHT [OPTION...]: a screen with a window manager, so that windows are
# activated as on a desktop; the options are openbox's.
start_display() {
    start_screen "$1"
    start openbox "${@:2}" >/dev/null 2>&1
}

# A plain ground, and no automatic repetition: a key that is held long is pressed once.
plain_desktop() {
    xsetroot -solid '#cfd6dd'
    xset r off
}

# use_look SCALE [THEME]: magnifies programs as a fine screen does (1, 1.5, 2 ...); the theme, light
# or dark, gives the desktop's colours.
use_look() {
    export QT_SCALE_FACTOR=$1
    [ -n "${2:-}" ] || return 0
    # A copy, since settings are written beside it.
    cp -r "$project/tests/day/$2" "$home/desktop"
    export XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 XDG_CONFIG_HOME=$home/desktop
}

# start_robot PROGRAM FOLDER PORT [OPTION...]: the simulated robot on a line that FOLDER/COMPORT
# leads to.
start_robot() {
    start "$1" --cartella "$2" --porta "$3" "${@:4}" >/dev/null
    wait_for "the robot's line" test -e "$2/COM$3"
}

# wait_for WHAT COMMAND...: until the command succeeds; fails after $patience seconds.
wait_for() {
    local what=$1
    shift
    for _ in $(seq $((10 * patience))); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    echo "Waited in vain: $what" >&2
    return 1
}

ended() { ! kill -0 "$1"; } # PROCESS

# picture NAME: of the whole screen.
picture() { import -window root "$out/$1.png"; }

# did TEXT [TIMES]: whether the robot's diary says so by now.
did() { [ "$(grep -cF -- "$1" "$diary")" -ge "${2:-1}" ]; }

# window PATTERN: the number of the newest shown window with such a title.
window() { xdotool search --onlyvisible --name "$1" | tail -n 1; }

in_front() { [ "$(xdotool getactivewindow getwindowname)" = "$1" ]; } # TITLE

click() { xdotool mousemove --window "$1" "$2" "$3" click "${4:-1}"; } # WINDOW X Y [BUTTON]

# hold key NAME TEXT TIMES [PICTURE], hold mouse BUTTON TEXT TIMES [PICTURE]: a key or a mouse
# button, held until the robot's diary says TEXT so many times; the picture is taken meanwhile.
# A release that comes while the console still waits for the robot leaves the key latched, and the
# next press only frees it: then it is pressed again, as a user does.
hold() {
    for _ in $(seq 10); do
        xdotool "$1down" "$2"
        for _ in $(seq 20); do
            did "$3" "$4" && break
            sleep 0.1
        done
        [ -z "${5:-}" ] || picture "$5"
        xdotool "$1up" "$2"
        did "$3" "$4" && return 0
    done
    echo "$1 $2 did nothing: $3" >&2
    return 1
}
