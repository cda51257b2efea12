#!/bin/bash
# A program with which nobody does anything, in a real window with a blinking caret: it wakes up to blink and for nothing else. What is
# counted is how often its threads go to sleep, which a busy machine does not make more. On the way, what the blinking looks like
# in a window of the screen's size and in one that shows it smaller.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

seconds=10

shoot() { # <name>
    import -window "$window" "$work/$1.png" 2>/dev/null
}

start_server
"$gallery" >"$work/out" 2>"$work/err" &
program=$!
for try in {1..100}; do
    kill -0 "$program" 2>/dev/null || fail "the gallery ended at once: $(<"$work/err")"
    window=$(xdotool search --onlyvisible --name '^CVUTIL32$' 2>/dev/null | head -1 || true)
    if [ -n "$window" ] && shoot start && [ "$(find_fields "$work/start.png" | wc -l)" = 2 ]; then
        read -r x y w h <<<"$(find_fields "$work/start.png")"
        break
    fi
    sleep 0.1
done
[ -n "${x:-}" ] || fail "the gallery does not show two fields within ten seconds"

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

xdotool mousemove --window "$window" $((x + 2)) $((y + h / 2))
sleep 0.2
xdotool click 1
blinks "in a window of the screen's size"

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

xdotool windowsize --sync "$window" 600 450
sleep 0.5
blinks "in a small window"
read -r width height <<<"$(identify -format '%w %h' "$work/again.png")"
[ "$width" = 600 ] && [ "$height" = 450 ] || fail "the window is $width by $height"
kill "$program"
wait "$program" 2>/dev/null || true
program=
echo "passed: $count wake-ups and $used hundredths of a second of processor in $seconds seconds"
