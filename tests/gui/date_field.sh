#!/bin/bash
# A date field in a real window: keys and clicks go to the X server, and what the window shows is read back from it.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

# Starts the gallery and waits until it shows its fields; sets `window` and the first field's x y w h.
start_gallery() {
    "$gallery" >"$work/out" 2>"$work/err" &
    program=$!
    local try
    for try in {1..100}; do
        kill -0 "$program" 2>/dev/null || fail "the gallery ended at once: $(<"$work/err")"
        window=$(xdotool search --onlyvisible --name '^CVUTIL32$' 2>/dev/null | head -1 || true)
        if [ -n "$window" ] && shoot start && [ "$(find_fields "$work/start.png" | wc -l)" = 2 ]; then
            read -r x y w h <<<"$(find_fields "$work/start.png")"
            return
        fi
        sleep 0.1
    done
    fail "the gallery does not show two fields within ten seconds"
}

shoot() { # <name>
    import -window "$window" "$work/$1.png" 2>/dev/null
}

point() { # <x> <y>
    xdotool mousemove --window "$window" "$1" "$2"
    sleep 0.1
}

keys() {
    xdotool key --delay 20 "$@"
    sleep 0.4
}

# Clicks into the first field, brings it to the first of January so that the keys that follow mean the same on every day of
# the year, and types a date.
type_date() { # <mmddyy>
    point $((x + 2)) $((y + h / 2))
    xdotool click 1
    sleep 0.2
    keys Home Right 1 Home 0 Right Right Right 1 Left Left Left 0
    keys Home $(sed 's/./& /g' <<<"$1")
}

# The characters of the field alone: the caret under them may blink.
characters() { # <name>
    convert "$work/$1.png" -crop "${w}x$((h - 7))+${x}+${y}" +repage "$work/$1-field.png"
}

same() { # <name> <name>
    compare -metric AE "$work/$1-field.png" "$work/$2-field.png" null: 2>/dev/null
}

# Presses a key that ends the dialog; sets `answer` and `code`.
end_with() { # <key>
    xdotool key "$1"
    code=0
    timeout 10 tail --pid="$program" -f /dev/null || fail "the gallery does not end after $1"
    wait "$program" || code=$?
    program=
    answer=$(<"$work/out")
    [ ! -s "$work/err" ] || fail "the gallery said: $(<"$work/err")"
}

start_server
start_gallery
type_date 021497
shoot typed
characters typed
# The upper arrow of the bar that is glued to the field's right end; the caret stands on the year.
point $((x + w + h / 2)) $((y + h / 4))
xdotool mousedown 1
sleep 1
xdotool mouseup 1
sleep 0.4
shoot held
characters held
! same typed held || fail "holding the arrow does not change what the field shows"
end_with Return
[ "$code" = 0 ] || fail "OK ended with $code"
[[ "$answer" =~ ^[0-9]{4}-02-14$ ]] || fail "after typing 02/14/97 and holding the arrow, OK printed '$answer'"
year=${answer%%-*}
# One step 400 milliseconds after the press, one every 50 from then on, one at the release. A machine that lags makes it fewer,
# or the second longer.
[ "$year" -ge 2000 ] && [ "$year" -le 2030 ] || fail "the year ran from 1997 to $year in a second"

# The same date, typed this time, must look the same.
start_gallery
type_date "0214${year:2}"
shoot again
characters again
same held again || fail "the field did not show $answer after the arrow was held"
end_with Return
[ "$answer" = "$year-02-14" ] || fail "typing 02/14/${year:2} gave '$answer'"

start_gallery
end_with Escape
[ "$code" = 1 ] && [ -z "$answer" ] || fail "Cancel ended with $code and printed '$answer'"
echo "passed: typed 1997-02-14, held the arrow until $year-02-14"
