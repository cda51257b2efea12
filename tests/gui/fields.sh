#!/bin/bash
# A form of a date, a time and a number in a real window, filled by the keyboard alone and then by the mouse: both must come to
# the same picture. The clock is switched by the mouse too.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

printf 'iTime=1\r\niTLZero=1\r\nsTime=:\r\n' >>"$CVUTIL32_HOME/win.ini"

# Starts the gallery with a page and waits for its fields; sets `window` and `fields`: lines "x y w h" by rows.
start_gallery() { # <page> <number of fields>
    "$gallery" --page "$1" >"$work/out" 2>"$work/err" &
    program=$!
    wait_for "the page '$1' with $2 fields" fields_are_shown "$2"
    crop start "$(strip $date)" date-without
    crop start "$(strip $time)" time-without
}
fields_are_shown() { # <number>
    gallery_stands && shoot start || return 1
    # Pieces of the list of pages are wider or lower than a field.
    mapfile -t fields < <(find_fields "$work/start.png" | awk '$3 < 95 && $4 > 15' | sort -n -k2,2 -k1,1)
    [ "${#fields[@]}" = "$1" ]
}

end_gallery() {
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
    program=
}

click() { # <x> <y>
    xdotool mousemove --window "$window" "$1" "$2" click 1
}

keys() {
    xdotool key --delay 20 "$@"
}

# The foot of a field, where the triangle stands while it has the focus.
strip() { # <number>
    local x y w h
    read -r x y w h <<<"${fields[$1]}"
    echo "${w}x6+${x}+$((y + h - 6))"
}

# Input is worked off in its order: when the focus has gone to the date and on to the time, all that came before is done.
settle() {
    keys alt+d
    wait_for "the focus in the date" place_is_new "$(strip $date)" date-without
    keys Tab
    wait_for "the focus in the time" place_is_new "$(strip $time)" time-without
}

digits() { # <text>
    keys $(sed 's/./& /g' <<<"$1")
}

# The field's end that is nearer: by its number among the fields and a pixel from its left.
field() { # <number> <pixels>
    local x y w h
    read -r x y w h <<<"${fields[$1]}"
    click $((x + $2)) $((y + h / 2))
}

arrow() { # <number> <up|down>
    local x y w h
    read -r x y w h <<<"${fields[$1]}"
    [ "$2" = up ] && click $((x + w + h / 2)) $((y + h / 4)) || click $((x + w + h / 2)) $((y + h - h / 4))
}

# What the page has read from the fields: the text beside the last field.
answer_place() {
    local x y w h
    read -r x y w h <<<"${fields[$minutes]}"
    echo "180x$((h + 4))+$((x + w + 24))+$((y - 2))"
}
answer() { # <name>
    settle
    shoot && crop now "$(answer_place)" "$1"
}
await_answer() { # <name> <complaint>
    settle
    wait_for "$2" place_is "$(answer_place)" "$1"
}

date=2 time=3 minutes=4
start_server

# By the keyboard: Alt+D leads to the date, Tab goes on. The first of January first, so that the digits mean the same on
# every day of the year.
start_gallery "Date and time" 5
keys alt+d Home Right 1 Home 0 Right Right Right 1 Left Left Left 0
keys Home
digits 021497
keys Tab Home
digits 130500
keys Tab
digits 45
answer typed
# The arrow keys reach the same from one beside it.
keys alt+d Tab Tab End BackSpace 4 Up
await_answer typed "44 and Up do not give 45"
end_gallery

# By the mouse, from another form.
start_gallery "Date and time" 5
keys alt+d Home Right 1 Home 0 Right Right Right 1 Left Left Left 0
keys Home
digits 021397
keys Tab Home
digits 120600
keys Tab
digits 44
answer before
! same typed before || fail "another form looks the same"
field $date 26
arrow $date up
field $time 4
arrow $time up
field $time 26
arrow $time down
arrow $minutes up
await_answer typed "the mouse came to another form than the keyboard"

# The other clock, and back: what the page reads is the same time.
read -r x y w h <<<"${fields[$time]}"
letters=${w}x$((h - 7))+${x}+${y}
crop now "$letters" twentyfour
read -r x y w h <<<"${fields[1]}"
click $((x - 110)) $((y + 4 * h))
wait_for "the clock of twelve hours" place_is_new "$letters" twentyfour
await_answer typed "the clock has changed the time"
grep -qi 'iTime=0' "$CVUTIL32_HOME/win.ini" || fail "the settings still say 24 hours"
end_gallery
echo "passed: date, time and number by keyboard and by mouse"
