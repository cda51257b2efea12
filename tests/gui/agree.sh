#!/bin/bash
# A person who does not wait: a window is minimised, chosen, left, sized, dragged and clicked in any order, from outside and
# by keys, while its program or the manager stands still at times. After each handful the program and the window manager must
# agree on whether it is minimised, whether it has the keyboard and how large it is:
#   agree.sh <gallery> <folder> <desktop_windows> [<handfuls> [<seed>]]
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"
source "$(dirname "$0")/frame.sh"
command -v openbox >/dev/null || skip "openbox is not installed"
handfuls=${4:-30}
RANDOM=${5:-1}

last() { # <pattern>: the last line that the program has told of these
    grep -E "$1" "$work/out" | tail -1
}
agree() {
    local x y width height
    if is_iconic 2>/dev/null; then
        [ "$(last '^(size|minimised)')" = minimised ]
        return
    fi
    read -r x y width height <<<"$(place_of Frame)"
    [ "$(last '^(size|minimised)')" = "size $((width - 8)) $((height - 27))" ] || return 1
    if has_focus Frame; then
        [ "$(last '^(active|inactive)')" = active ]
    else
        [ "$(last '^(active|inactive)')" = inactive ]
    fi
}
# The window may be gone from the desktop, or another one in front: then nothing happens.
act() {
    local x y width height
    did+=" $1"
    case "$1" in
    minimise) xdotool windowminimize "$frame" ;;
    choose) wmctrl -a Frame ;;
    leave) wmctrl -a 'CVUTIL32 Gallery' ;;
    size) wmctrl -r Frame -e "0,$((100 + RANDOM % 300)),$((100 + RANDOM % 300)),$((300 + RANDOM % 200)),$((300 + RANDOM % 200))" ;;
    click) click $((200 + RANDOM % 300)) $((200 + RANDOM % 300)) ;;
    drag)
        read -r x y width height <<<"$(place_of Frame)"
        [ -z "${height:-}" ] || drag $((x + 100)) $((y + 12)) $((x + 130)) $((y + 22))
        ;;
    key) ! has_focus Frame || xdotool key m ;;
    ask) ! has_focus Frame || xdotool key b ;;
    answer) ! has_focus Question || xdotool key Return ;;
    wait) sleep "0.0$((RANDOM % 9))" ;;
    stop) kill -STOP "$program" ;;
    stall) kill -STOP "$manager" ;;
    esac 2>/dev/null || true
}
answered() {
    [ "$(grep -c asking "$work/out")" != "$(grep -c answered "$work/out")" ] || return 0
    wmctrl -a Question 2>/dev/null || wmctrl -a Frame || true
    ! has_focus Question || xdotool key Return
    return 1
}

start_server 1280x1024
start_manager
start
frame=$(window_of Frame)
"$gallery" >/dev/null 2>&1 &
other=$!
wait_for "the gallery" gallery_stands
wmctrl -a Frame
await_focus Frame
whats=(minimise choose choose leave size click drag key ask answer wait stop stall)
for ((handful = 1; handful <= handfuls; ++handful)); do
    did=
    for each in 1 2 3 4 5; do
        act "${whats[RANDOM % ${#whats[@]}]}"
    done
    kill -CONT "$program" "$manager"
    wait_for "the answer" answered
    wait_for "after$did in handful $handful, the program and the manager to agree" agree
done
kill "$other"
wait "$other" 2>/dev/null || true
echo "passed $handfuls handfuls"
