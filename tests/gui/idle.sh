#!/bin/bash
# A program with which nobody does anything, in a real window with a blinking caret: it wakes up to blink and for nothing else. What is
# counted is how often its threads go to sleep, which a busy machine does not make more. On the way, what the blinking looks like
# where one window shows the whole screen, smaller than it is.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

seconds=10

start_server
start_gallery() { # [<display>]
    CVUTIL32_DISPLAY=${1:-} "$gallery" >"$work/out" 2>"$work/err" &
    program=$!
    wait_for "two fields" fields_are_shown
}
fields_are_shown() {
    gallery_stands && shoot start && [ "$(find_fields "$work/start.png" | wc -l)" = 2 ] || return 1
    read -r x y w h <<<"$(find_fields "$work/start.png")"
}
end_gallery() {
    kill "$program"
    wait "$program" 2>/dev/null || true
    program=
}
click_field() {
    xdotool mousemove --window "$window" $((x + 2)) $((y + h / 2))
    sleep 0.2
    xdotool click 1
}

# The caret in the field comes and goes: two pictures of it differ before long.
blinks() {
    local try
    shoot once
    for try in {1..100}; do
        shoot again
        compare -metric AE "$work/once.png" "$work/again.png" null: 2>/dev/null || return 0
        sleep 0.05
    done
    fail "the caret does not blink $1"
}

start_gallery
click_field
blinks "on the desktop"

sleeps() {
    cat /proc/"$program"/task/*/status | awk '/^voluntary/ { all += $2 } END { print all }'
}
ticks() {
    awk '{ print $14 + $15 }' /proc/"$program"/stat
}
# The first moments after input are not meant.
sleep 2
before=$(sleeps) used=$(ticks)
sleep "$seconds"
count=$(($(sleeps) - before)) used=$(($(ticks) - used))
# Two blinks a second: the thread that blinks sleeps after each, the one that shows it too, and they may wait for each other.
[ "$count" -le $((seconds * 20)) ] || fail "idle threads went to sleep $count times in $seconds seconds"
[ "$count" -ge "$seconds" ] || fail "nothing blinked"

end_gallery
start_gallery screen
click_field
window=$(window_of 'CVUTIL32 Gallery')
xdotool windowsize --sync "$window" 600 450
sleep 0.5
blinks "in a small window"
read -r width height <<<"$(identify -format '%w %h' "$work/again.png")"
[ "$width" = 600 ] && [ "$height" = 450 ] || fail "the window is $width by $height"
end_gallery
echo "passed: $count wake-ups and $used hundredths of a second of processor in $seconds seconds"
