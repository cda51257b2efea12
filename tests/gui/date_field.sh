#!/bin/bash
# A date field in a real window: keys and clicks go to the X server, and what the window shows is read back from it.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

# Starts the gallery and waits until it shows its fields; sets `window` and the first field's x y w h.
start_gallery() {
    "$gallery" >"$work/out" 2>"$work/err" &
    program=$!
    wait_for "two fields" fields_are_shown
    strip=${w}x6+${x}+$((y + h - 6))
    letters=${w}x$((h - 7))+${x}+${y}
    crop start "$strip" without
}
fields_are_shown() {
    gallery_stands && shoot start && [ "$(find_fields "$work/start.png" | wc -l)" = 2 ] || return 1
    read -r x y w h <<<"$(find_fields "$work/start.png")"
}

keys() {
    xdotool key --delay 20 "$@"
}

# Input is worked off in its order: when the triangle under the characters has gone to the first one and then to the last,
# all that came before is done. Where these are is learnt from the first click.
learn_ends() {
    keys Home
    wait_for "the triangle under the first character" place_is_new "$strip" without
    cp "$work/part.png" "$work/first.png"
    keys End
    wait_for "the triangle under the last character" place_is_new "$strip" without first
    cp "$work/part.png" "$work/last.png"
}
settle() {
    keys Home
    wait_for "the triangle back under the first character" place_is "$strip" first
    keys End
    wait_for "the triangle back under the last character" place_is "$strip" last
}

# Clicks into the first field, brings it to the first of January so that the keys that follow mean the same on every day of
# the year, and types a date.
type_date() { # <mmddyy>
    xdotool mousemove --window "$window" $((x + 2)) $((y + h / 2)) click 1
    learn_ends
    keys Home Right 1 Home 0 Right Right Right 1 Left Left Left 0
    keys Home $(sed 's/./& /g' <<<"$1")
    settle
}

# The characters of the field alone: the caret under them may blink.
characters() { # <name>
    shoot && crop now "$letters" "$1"
}

# Presses a key that ends the dialog; sets `answer` and `code`.
end_with() { # <key>
    xdotool key "$1"
    code=0
    timeout "$patience" tail --pid="$program" -f /dev/null || fail "the gallery does not end after $1"
    wait "$program" || code=$?
    program=
    answer=$(<"$work/out")
    [ ! -s "$work/err" ] || fail "the gallery said: $(<"$work/err")"
}

start_server
start_gallery
type_date 021497
characters typed
# The upper arrow of the bar that is glued to the field's right end; the caret stands on the year. Let go once it has begun to
# run, the bar steps once more.
xdotool mousemove --window "$window" $((x + w + h / 2)) $((y + h / 4)) mousedown 1
wait_for "a step of the year" place_is_new "$letters" typed
xdotool mouseup 1
settle
characters held
end_with Return
[ "$code" = 0 ] || fail "OK ended with $code"
[[ "$answer" =~ ^[0-9]{4}-02-14$ ]] || fail "after typing 02/14/97 and holding the arrow, OK printed '$answer'"
year=${answer%%-*}
[ "$year" -ge 1999 ] || fail "the year ran from 1997 to $year"

# The same year, typed this time, must look the same.
start_gallery
type_date "0214${year:2}"
characters again
same held again || fail "the field did not show $answer after the arrow was held"
end_with Return
[[ "$answer" == ??"${year:2}-02-14" ]] || fail "typing 02/14/${year:2} gave '$answer'"

start_gallery
end_with Escape
[ "$code" = 1 ] && [ -z "$answer" ] || fail "Cancel ended with $code and printed '$answer'"
echo "passed: typed 1997-02-14, held the arrow until $year-02-14"
