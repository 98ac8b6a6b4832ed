#!/bin/bash
# show-in-virtual-screen.sh PROGRAM PICTURE: starts Pourbook on a screen of its own, saves a picture of that screen
# and closes the window as a person would. Exit status 0 means: the window came, and the program ended with 0.
set -euo pipefail

program=$1
picture=$2
title='^Tipplewise Pourbook$'
work=$(mktemp -d)
log=$work/log
declare -a started=()

Cleanup() {
    # The last one first: the program and the window manager before the screen they use.
    local index
    for ((index = ${#started[@]} - 1; index >= 0; index--)); do
        kill "${started[index]}" 2>/dev/null || true
    done
    rm -rf "$work"
}
# Bash itself may remark on a process that is already gone.
trap 'Cleanup 2>/dev/null' EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

Fail() {
    printf '%s\n' "$*" >&2
    cat "$log" >&2
    exit 1
}

# Start COMMAND...: in the background, its words in the log, its process id in $!.
Start() {
    "$@" >>"$log" 2>&1 &
    started+=("$!")
}

# EndedFirst PROCESS OTHER: waits until one of the two ends and tells whether it was the first.
EndedFirst() {
    local ended
    wait -n -p ended "$1" "$2" || true
    [[ $ended == "$1" ]]
}

# IsPainted WINDOW: a window that has just been mapped has a handful of colours at most, and one that is still being
# filled differs from one picture to the next.
lastLook=
IsPainted() {
    local look before=$lastLook
    look=$(import -window "$1" png:- | identify -format '%k %#' png:-) || return
    lastLook=$look
    [[ $look == "$before" ]] && ((${look%% *} > 16))
}

touch "$log"
mkfifo "$work/ready"
exec 3<>"$work/ready"

Start Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp
read -r -t 30 -u 3 number || Fail "The virtual screen did not start:"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

# Debian's own settings, because Alt+F4 below has to mean what it means there.
Start openbox --config-file /etc/xdg/openbox/rc.xml --startup "sh -c 'echo started >\"$work/ready\"'"
read -r -t 30 -u 3 || Fail "The window manager did not start:"

Start "$program"
programId=$!
Start timeout 60 xdotool search --sync --onlyvisible --name "$title"
searchId=$!
if EndedFirst "$programId" "$searchId"; then
    Fail "The program ended before its window came:"
fi

for ((tries = 0; tries < 100; tries++)); do
    window=$(xdotool search --onlyvisible --name "$title" | head -n 1) || true
    [[ $window ]] && IsPainted "$window" && break
    sleep 0.1
done
import -window root "$picture"
((tries < 100)) || Fail "The window of the program did not come up, or stayed empty. See $picture. It said:"
echo "Screenshot: $picture"

timeout 10 xdotool windowfocus --sync "$window" key --clearmodifiers alt+F4 ||
    Fail "The window did not take the keyboard. The program said:"
Start sleep 30
if ! EndedFirst "$programId" "$!"; then
    Fail "The program did not end when its window was closed. It said:"
fi
wait "$programId" || Fail "The program ended with exit status $?. It said:"
