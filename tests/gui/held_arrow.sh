#!/bin/bash
# An arrow of a micro scroll bar is held, and a message box comes up: the bar stops, and the box has the mouse.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

field_is_shown() {
    import -window root "$work/start.png" 2>/dev/null
    read -r x y w h <<<"$(find_fields "$work/start.png")"
    [ -n "$h" ]
}

start_server
"$gallery" >"$work/out" 2>"$work/err" &
program=$!
wait_for "the field" field_is_shown
# The upper arrow of the bar that is glued to the field's right end.
xdotool mousemove $((x + w + h / 2)) $((y + h / 4))
sleep 0.2
xdotool mousedown 1
sleep 1
import -window root "$work/held.png"
xdotool key Return
wait_for "the question" [ -s "$work/out" ]
# Twenty steps of an arrow that is still held.
sleep 1
import -window root "$work/asked.png"
xdotool mouseup 1
sleep 0.2
xdotool key Return
timeout 30 tail --pid="$program" -f /dev/null || fail "the box does not end with Enter"
wait "$program" || fail "the program ended with $?: $(<"$work/err")"
program=
{ read -r asked && read -r answered; } <"$work/out" || fail "the program printed '$(<"$work/out")'"
[ "$asked" != 1997-02-14 ] || fail "the held arrow did not run"
[ "$asked" = "$answered" ] || fail "the arrow ran on behind the box, from $asked to $answered"
echo "passed: the arrow ran to $asked and stopped there"
