#!/bin/bash
# An arrow of a micro scroll bar is held, and a message box comes up: the bar stops, and the box has the mouse.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

find_window() { # <title>: sets `window`
    local try
    for try in {1..100}; do
        kill -0 "$program" 2>/dev/null || fail "the program ended at once: $(<"$work/err")"
        window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -1 || true)
        [ -z "$window" ] || return 0
        sleep 0.1
    done
    fail "no window '$1' within ten seconds"
}

start_server
"$gallery" >"$work/out" 2>"$work/err" &
program=$!
find_window Held
for try in {1..100}; do
    import -window "$window" "$work/start.png" 2>/dev/null && [ -n "$(find_fields "$work/start.png")" ] && break
    sleep 0.1
done
read -r x y w h <<<"$(find_fields "$work/start.png")"
# The upper arrow of the bar that is glued to the field's right end.
xdotool mousemove --window "$window" $((x + w + h / 2)) $((y + h / 4))
sleep 0.2
xdotool mousedown 1
sleep 1
xdotool key Return
find_window Question
sleep 1
import -window root "$work/asked.png"
xdotool mouseup 1
sleep 0.2
xdotool key Return
timeout 10 tail --pid="$program" -f /dev/null || fail "the box does not end with Enter"
wait "$program" || fail "the program ended with $?: $(<"$work/err")"
program=
read -r asked answered <"$work/out"
[ "$asked" != 1997-02-14 ] || fail "the held arrow did not run"
[ "$asked" = "$answered" ] || fail "the arrow ran on behind the box, from $asked to $answered"
echo "passed: the arrow ran to $asked and stopped there"
