#!/bin/bash
# A form of a date, a time and a number in a real window, filled by the keyboard alone and then by the mouse: both must come to
# the same picture. The clock is switched by the mouse too.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

printf 'iTime=1\r\niTLZero=1\r\nsTime=:\r\n' >>"$CVUTIL32_HOME/win.ini"

shoot() { # <name>
    import -window "$window" "$work/$1.png" 2>/dev/null
}

# Starts the gallery with a page and waits for its fields; sets `window` and `fields`: lines "x y w h" by rows.
start_gallery() { # <page> <number of fields>
    "$gallery" --page "$1" >"$work/out" 2>"$work/err" &
    program=$!
    local try
    for try in {1..100}; do
        kill -0 "$program" 2>/dev/null || fail "the gallery ended at once: $(<"$work/err")"
        window=$(xdotool search --onlyvisible --name '^CVUTIL32$' 2>/dev/null | head -1 || true)
        if [ -n "$window" ] && shoot start; then
            # Pieces of the list of pages are wider or lower than a field.
            mapfile -t fields < <(find_fields "$work/start.png" | awk '$3 < 95 && $4 > 15' | sort -n -k2,2 -k1,1)
            [ "${#fields[@]}" != "$2" ] || return 0
        fi
        sleep 0.1
    done
    fail "the page '$1' does not show $2 fields within ten seconds"
}

end_gallery() {
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
    program=
}

point() { # <x> <y>
    xdotool mousemove --window "$window" "$1" "$2"
    sleep 0.1
}

click() { # <x> <y>
    point "$1" "$2"
    xdotool click 1
    sleep 0.2
}

keys() {
    xdotool key --delay 20 "$@"
    sleep 0.3
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
answer() { # <name>
    local x y w h
    read -r x y w h <<<"${fields[$minutes]}"
    sleep 0.3
    shoot "$1"
    convert "$work/$1.png" -crop "180x$((h + 4))+$((x + w + 24))+$((y - 2))" +repage "$work/$1-answer.png"
}

same() { # <name> <name>
    compare -metric AE "$work/$1-answer.png" "$work/$2-answer.png" null: 2>/dev/null
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
keys BackSpace 4 Up
answer stepped
same typed stepped || fail "44 and Up do not give 45"
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
answer clicked
same typed clicked || fail "the mouse came to another form than the keyboard"

# The other clock, and back: what the page reads is the same time.
shoot twentyfour
read -r x y w h <<<"${fields[1]}"
click $((x - 110)) $((y + 4 * h))
answer twelve
same typed twelve || fail "the clock has changed the time"
grep -qi 'iTime=0' "$CVUTIL32_HOME/win.ini" || fail "the settings still say 24 hours"
read -r x y w h <<<"${fields[$time]}"
for name in twentyfour twelve; do
    convert "$work/$name.png" -crop "${w}x$((h - 7))+${x}+${y}" +repage "$work/$name-field.png"
done
! compare -metric AE "$work/twentyfour-field.png" "$work/twelve-field.png" null: 2>/dev/null ||
    fail "the field does not follow the clock"
end_gallery
echo "passed: date, time and number by keyboard and by mouse"
