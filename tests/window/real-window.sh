#!/usr/bin/env bash
# The application in a real X window, driven by the keyboard the way a person would: two clips
# and a text file on the command line, Ctrl+Return, Ctrl+Q answered No and then Yes.
# Run under an X server of its own (ctest starts it through xvfb-run), with no window manager:
# the app has to hand the keyboard around itself.
#
# Usage: real-window.sh ORVALE_BINARY
# ORVALE_WINDOW_SHOTS=DIR saves the root screen and the results screen there as PNGs.
set -uo pipefail
orvale=$1
log=/dev/null  # the application's log file, once it is there
limit=60  # seconds any one step may take
sandbox=$(mktemp -d)
app=""

finish() {
    local status=$?
    if [ -n "$app" ] && running; then
        kill -9 "$app"
    fi
    if [ "$status" -ne 0 ] && [ "$log" != /dev/null ]; then
        echo "--- the application's log" >&2
        grep -v '^[ {}]' "$log" | tail -n 40 >&2
    fi
    rm -rf "$sandbox"
}
trap finish EXIT

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

# Polls the condition every tenth of a second for at most $limit seconds.
wait_for() {
    local what=$1
    shift
    local deadline=$((SECONDS + limit))
    until "$@"; do
        [ "$SECONDS" -lt "$deadline" ] || fail "waited ${limit} s for $what"
        sleep 0.1
    done
}

export HOME="$sandbox/home"
export XDG_CONFIG_HOME="$HOME/.config" XDG_DATA_HOME="$HOME/.local/share"
export XDG_CACHE_HOME="$HOME/.cache" XDG_RUNTIME_DIR="$sandbox/runtime"
# No maker's site, no crash server, and no session bus: nothing leaves this sandbox.
unset ORVALE_MAKER_SITE ORVALE_CRASH_SERVER WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
export DBUS_SESSION_BUS_ADDRESS="unix:path=$sandbox/no-bus"
mkdir -p "$HOME" "$sandbox/media" && mkdir -m 0700 "$XDG_RUNTIME_DIR"
log_folder="$XDG_DATA_HOME/Logs/Orvale"
work_folder="$XDG_DATA_HOME/Containers/com.brightfold.Orvale"
output="$HOME/Orvale Kesto Output"

for name in first second; do
    ffmpeg -hide_banner -nostdin -loglevel error \
        -f lavfi -i "testsrc=size=320x240:rate=25:duration=1" -f lavfi -i "sine=duration=1" \
        -c:v libx264 -preset ultrafast -pix_fmt yuv420p -c:a aac -shortest \
        -y "$sandbox/media/$name.mp4" || fail "cannot make the clips"
done
echo "not a video" > "$sandbox/media/notes.txt"

"$orvale" "$sandbox/media/first.mp4" "$sandbox/media/second.mp4" "$sandbox/media/notes.txt" \
    > "$sandbox/console" 2>&1 &
app=$!

visible_windows() { xdotool search --onlyvisible --name '^Orvale$' 2> /dev/null; }
# The main window is the widest; alerts are small sheets on it.
main_window() {
    local id width widest=0
    for id in $(visible_windows); do
        width=$(xdotool getwindowgeometry --shell "$id" | sed -n 's/^WIDTH=//p')
        if [ "${width:-0}" -gt "$widest" ]; then
            widest=$width
            window=$id
        fi
    done
    [ "$widest" -gt 0 ]
}
count_windows() { [ "$(visible_windows | wc -l)" -eq "$1" ]; }
logged() { grep -qF -- "$1" "$log"; }
log_exists() {
    local files=("$log_folder"/*.log)
    [ -f "${files[0]}" ] && log=${files[0]}
}
has_focus() { [ "$(xdotool getwindowfocus 2> /dev/null)" = "$1" ]; }
mp4s_in_output() { [ "$(find "$output" -name '*.mp4' 2> /dev/null | wc -l)" -eq 2 ]; }
# A child that has ended stays a zombie until it is waited for.
running() {
    local state
    state=$(sed 's/.*) //' "/proc/$app/stat" 2> /dev/null | cut -d ' ' -f 1)
    [ -n "$state" ] && [ "$state" != Z ]
}
ended() { ! running; }
shot() {
    [ -n "${ORVALE_WINDOW_SHOTS:-}" ] || return 0
    mkdir -p "$ORVALE_WINDOW_SHOTS" && import -window root "$ORVALE_WINDOW_SHOTS/$1.png"
}

wait_for "the window" main_window
wait_for "the log file" log_exists
wait_for "the two rows" logged "2 file(s) joined the list, 2 in all"
wait_for "the refusal of the text file" logged "File(s) not supported: notes.txt"
wait_for "the refusal's alert" count_windows 2
shot root-screen

# Every sheet takes the keyboard and gives it back to the window when it closes; the window
# manager that would do that elsewhere is missing here.
alert=$(visible_windows | grep -vx "$window")
wait_for "the alert to take the keyboard" has_focus "$alert"
xdotool key Return
wait_for "the alert to close" count_windows 1
wait_for "the keyboard back in the window" has_focus "$window"

xdotool key ctrl+Return
wait_for "the end of the job" logged "Local encode ended: 2 completed, 0 failed"
wait_for "two MP4s in $output" mp4s_in_output
wait_for "the results screen" logged "Results shown: 2 "
if [ -n "${ORVALE_WINDOW_SHOTS:-}" ]; then
    sleep 1  # for the picture only: the screen slides in
fi
shot results

xdotool key ctrl+q
wait_for "the quit question" count_windows 2
question=$(visible_windows | grep -vx "$window")
wait_for "the question to take the keyboard" has_focus "$question"
xdotool key Escape
wait_for "the question to close" count_windows 1
# No: Ctrl+Q reaches the window again.
wait_for "the keyboard back in the window" has_focus "$window"
running || fail "Orvale ended after No"

xdotool key ctrl+q
wait_for "the quit question again" count_windows 2
question=$(visible_windows | grep -vx "$window")
wait_for "the question to take the keyboard" has_focus "$question"
xdotool key Return  # "Yes" is the default button
wait_for "Orvale to end" ended
wait "$app"
status=$?
app=""
[ "$status" -eq 0 ] || fail "exit status $status"

# Only the work folder's own lock file may stay.
leftovers=$(find "$work_folder" -mindepth 1 ! -name .lock 2> /dev/null)
[ -z "$leftovers" ] || fail "left in the work folder: $leftovers"
logged "Orvale terminated" || fail "no 'Orvale terminated' in the log"
echo "real window: rows, encode, refusal, No, Yes and a clean exit"
