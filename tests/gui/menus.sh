#!/bin/bash
# The menus of text fields and of the window, with a real mouse and real keys; the middle button. Places are looked for on the
# whole screen, so that it makes no difference which window shows the dialog.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

shoot() { # [<name>]
    timeout 60 import -window root "$work/${1:-now}.png" 2>/dev/null
}

# The three fields of the page Browse, from the top: lines "x y w h".
find_long_fields() {
    shoot || return 1
    mapfile -t fields < <(convert "$work/now.png" -fill black +opaque white -define connected-components:verbose=true \
        -define connected-components:area-threshold=300 -connected-components 4 null: |
        sed -nE 's/^ *[0-9]+: ([0-9]+)x([0-9]+)\+([0-9]+)\+([0-9]+) [^ ]+ [0-9]+ (gray\(255\)|srgb\(255,255,255\)|white).*/\3 \4 \1 \2/p' |
        awk '$3 > 235 && $3 < 300 && $4 > 12 && $4 < 26' | sort -n -k2)
    [ "${#fields[@]}" = 3 ]
}

# A place in a field: <number> <pixels from its left>; sets x and y.
in_field() {
    local w h
    read -r x y w h <<<"${fields[$1]}"
    x=$((x + $2)) y=$((y + h / 2))
}
click() { # <number> <pixels> [<button>]
    local x y
    in_field "$1" "$2"
    xdotool mousemove "$x" "$y" click "${3:-1}"
}
# Where the text of a field is, without the place of a caret before it.
strip() { # <number>
    local x y w h
    read -r x y w h <<<"${fields[$1]}"
    echo "90x14+$((x + 8))+$((y + 1))"
}

# Waits until a place looks as it did in a picture, or no longer does.
await() { # <same|other> <place> <name> <complaint>
    wait_for "$4" looks "$1" "$2" "$3"
}
looks() { # <same|other> <place> <name>
    shoot && crop now "$2" seen || return 1
    if same "$3" seen; then [ "$1" = same ]; else [ "$1" = other ]; fi
}
look() { # <place> <name>
    shoot && crop now "$1" "$2"
}

start_server
"$gallery" --page Browse >"$work/out" 2>"$work/err" &
program=$!
wait_for "three empty fields" find_long_fields
look "$(strip 2)" empty

# Text by keys, selected by keys; the menu keeps it selected.
click 0 20
xdotool key --delay 20 a b c space d e f
await other "$(strip 0)" empty "typing"
look "$(strip 0)" plain
xdotool key shift+Home
await other "$(strip 0)" plain "the selection"
look "$(strip 0)" selected
in_field 0 150
menu=60x90+$((x + 4))+$((y + 4))
look "$menu" without
click 0 150 3
await other "$menu" without "the menu of the right button"
look "$(strip 0)" while-open
same selected while-open || fail "the selection does not look the same while the menu is open"
xdotool key c
await same "$menu" without "Copy puts the menu away"

# Pasted by the menu that the keyboard opens.
click 1 20
in_field 1 5
menu=60x90+$((x + 4))+$((y + 12))
look "$menu" without
xdotool key shift+F10
await other "$menu" without "the menu of Shift+F10"
xdotool key p
await same "$menu" without "Paste puts the menu away"
# Drops the focus where no caret stands in a text: then all fields with this text look alike.
xdotool key Tab
await other "$(strip 1)" empty "the text is pasted"
look "$(strip 1)" pasted

# What was selected last is inserted by the middle button; the clipboard has nothing to do with it.
click 1 20
xdotool key End shift+ctrl+Left
wait_for "the word is selected" place_is_new "$(strip 1)" pasted
look "$(strip 1)" word
click 2 20 2
await other "$(strip 2)" empty "the middle button inserts"
xdotool key Tab
look "$(strip 2)" inserted
xdotool key shift+Tab ctrl+a
wait_for "all is selected" place_is_new "$(strip 2)" inserted empty
xdotool key shift+Insert Tab
await same "$(strip 2)" pasted "the clipboard still holds what was copied"

# The window moves by the keys of its menu.
before=${fields[0]}
xdotool key alt+space m Left Left Left Up Up Return
read -r left top _ <<<"$before"
moved() {
    find_moved && read -r x y _ <<<"${fields[0]}" && [ "$x" = $((left - 24)) ] && [ "$y" = $((top - 16)) ]
}
# Texts cut the fields into pieces; the place is known by the letters of the first one.
find_moved() {
    shoot && crop now "90x14+$((left - 24 + 8))+$((top - 16 + 1))" seen && same pasted seen &&
        fields[0]="$((left - 24)) $((top - 16)) 0 0"
}
wait_for "the window is moved by arrows" moved
kill "$program" 2>/dev/null || true
wait "$program" 2>/dev/null || true
program=
echo "passed: menus by keys and mouse, the middle button, moving by arrows"
