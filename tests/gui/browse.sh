#!/bin/bash
# Browsing and answering in a real window, by the keyboard alone and by the mouse alone: a folder three levels down, a file, three
# files, a message box. The field must look as it does when the expected text is typed into it.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

mkdir -p "$CVUTIL32_HOME"/drive_c/WINDOWS "$CVUTIL32_HOME"/drive_c/walk/one/two/three
touch "$CVUTIL32_HOME"/drive_c/walk/{a,b,c}.txt

# Where the caption of the active window lies: "x y width height".
caption() {
    shoot || return 0
    convert "$work/now.png" -fill black +opaque '#000080' -define connected-components:verbose=true \
        -define connected-components:area-threshold=1500 -connected-components 4 null: |
        sed -nE 's/^ *[0-9]+: ([0-9]+)x([0-9]+)\+([0-9]+)\+([0-9]+) [^ ]+ [0-9]+ (srgb\(0,0,128\)|navy|#000080).*/\3 \4 \1 \2/p' |
        awk '$3 > 150 && $4 > 14 && $4 < 22' | head -1
}

page_is_shown() {
    gallery_stands && page=$(caption) && [ -n "$page" ]
}
page_is_active() {
    [ "$(caption)" = "$page" ]
}
dialog_is_active() {
    dialog=$(caption)
    [ -n "$dialog" ] && [ "$dialog" != "$page" ]
}
await_dialog() {
    wait_for "a dialog" dialog_is_active
}
await_page() {
    wait_for "the page" page_is_active
}

start_gallery() { # <page>
    "$gallery" --page "$1" >"$work/out" 2>"$work/err" &
    program=$!
    wait_for "the page $1" page_is_shown
}

end_gallery() {
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
    program=
}

keys() {
    xdotool key --delay 20 "$@"
}

text() { # <what to type>
    xdotool type --delay 20 "$1"
}

click() { # <x> <y> [<times>]
    xdotool mousemove --window "$window" "$1" "$2"
    xdotool click --repeat "${3:-1}" --delay 10 1
}

# Clicks in the active dialog, at a place in pixels from its client area's corner, or in the units of its template.
click_pixel() { # <x> <y> [<times>]
    local x y rest
    read -r x y rest <<<"$dialog"
    click $((x + $1)) $((y + 19 + $2)) "${3:-1}"
}
click_unit() { # <x> <y>
    click_pixel $(($1 * 6 / 4)) $(($2 * 13 / 8))
}

# changes <command...>: does something that must change the picture, and waits for that.
looks_otherwise() {
    shoot && ! same before now
}
changes() {
    shoot before
    "$@"
    wait_for "a change after '$*'" looks_otherwise
}

# A field of the page, by its number from the top: what it shows.
field() { # <number> <picture>
    local x y w h
    read -r x y w h <<<"${fields[$1]}"
    convert "$work/$2.png" -crop "${w}x${h}+${x}+${y}" +repage "$work/$2-field.png"
}

field_shows() { # <number> <picture>
    shoot && field "$1" now && same now-field "$2-field"
}

# Goes to a field by its mnemonic, empties it, and leaves a text there.
enter() { # <mnemonic> <text>
    keys "alt+$1" Home shift+End Delete
    [ -z "$2" ] || text "$2"
}

# The button behind a field: the focus shows on it.
button_place() { # <number>
    local x y w h
    read -r x y w h <<<"${fields[$1]}"
    echo "24x${h}+$((x + w + 4))+${y}"
}

# Takes the picture of a field with an expected text, without caret and selection. Input is worked off in its order: once
# the button behind the field has got the focus, lost it and got it again, all that was typed stands there.
expect() { # <number> <mnemonic> <text> <picture>
    local place
    place=$(button_place "$1")
    keys "alt+$2"
    shoot && crop now "$place" button-without
    enter "$2" "$3"
    local look=without
    for look in without with without; do
        [ "$look" = with ] && keys shift+Tab || keys Tab
        wait_for "the focus on the button behind '$3'" place_is_new "$place" "button-$look"
        crop now "$place" button-with
        [ "$look" != with ] || crop now "$place" button-without
    done
    field "$1" now
    cp "$work/now-field.png" "$work/$4-field.png"
}

chosen() { # <number> <picture> <what>
    await_page
    wait_for "$3 in the field" field_shows "$1" "$2"
    shoot "$2-$3"
}

# The button behind a field, by the keyboard or by the mouse.
press() { # <mnemonic>
    keys "alt+$1" Tab space
    await_dialog
}
press_by_mouse() { # <number of the field>
    local x y w h
    read -r x y w h <<<"${fields[$1]}"
    click $((x + w + 16)) $((y + h / 2))
    await_dialog
}

# A row of the tree of the folder dialog.
tree_row() { # <row> <level> [<times>]
    click_pixel $((60 + 20 * $2)) $((27 + 3 + 16 * $1 + 8)) "${3:-1}"
}

# A row of the file dialog's list.
file_row() { # <row>
    click_pixel 40 $((37 + 2 + 17 * $1 + 8))
}

start_server
start_gallery Browse
find_page_fields() {
    shoot
    mapfile -t fields < <(convert "$work/now.png" -fill black +opaque white -define connected-components:verbose=true \
        -define connected-components:area-threshold=1000 -connected-components 4 null: |
        sed -nE 's/^ *[0-9]+: ([0-9]+)x([0-9]+)\+([0-9]+)\+([0-9]+) [^ ]+ [0-9]+ (gray\(255\)|srgb\(255,255,255\)|white).*/\3 \4 \1 \2/p' |
        awk '$3 > 200 && $3 < 260 && $4 > 12 && $4 < 26' | sort -n -k2)
    [ "${#fields[@]}" -ge 3 ]
}
wait_for "three fields" find_page_fields
file=0 files=1 folder=2

expect $folder o 'c:\walk\one\two\three' folder
enter o ''
press o
keys Down Right
text wa
keys Right Right Right Right Right Right Return
chosen $folder folder keyboard

enter o ''
press_by_mouse $folder
changes tree_row 1 1 2
changes tree_row 2 2 2
changes tree_row 3 3 2
changes tree_row 4 4 2
changes tree_row 5 5
click_unit 138 158
chosen $folder folder mouse

# A dialog that is left leaves the field alone.
press_by_mouse $folder
keys Escape
chosen $folder folder cancel

expect $file f 'C:\walk\b.txt' file
enter f 'C:\walk'
press f
# From the name to the list.
keys shift+Tab b Return
chosen $file file keyboard

enter f 'C:\walk'
press_by_mouse $file
changes file_row 2
click_unit 247 117
chosen $file file mouse

# What is chosen takes the place of a longer text without leaving its tail.
enter f 'Q:\a\folder\that\is\not\there.txt'
press f
text 'C:\walk\b.txt'
keys Return
chosen $file file typed

expect $folder o 'c:\' root
enter o 'Q:\a\folder\that\is\not\there'
press o
keys Down Return
chosen $folder root keyboard

expect $files i 'C:\walk;a.txt;b.txt;c.txt' files
enter i 'C:\walk'
press i
keys shift+Tab Home Down shift+Down shift+Down Return
chosen $files files keyboard

enter i 'C:\walk'
press_by_mouse $files
changes file_row 1
xdotool keydown ctrl
changes file_row 2
changes file_row 3
xdotool keyup ctrl
click_unit 247 117
chosen $files files mouse
end_gallery

# The message box: its second button by each hand, and Escape between them, which must give another answer.
start_gallery Dialogs
answer() { # <picture>
    # What came back stands below the buttons that open boxes.
    local x y w h
    shoot "$1"
    read -r x y w h <<<"$page"
    convert "$work/$1.png" -crop "$((w - 200))x30+$((x + 190))+$((y + 285))" +repage "$work/$1-answer.png"
}
is_answered() { # <picture>
    answer "$1" && ! same last-answer "$1-answer"
}
# Another answer than the last one appears.
answered() { # <picture>
    await_page
    wait_for "an answer" is_answered "$1"
    cp "$work/$1-answer.png" "$work/last-answer.png"
}
answer last
keys alt+b
await_dialog
keys Tab Return
answered keyboard
keys alt+b
await_dialog
keys Escape
answered dismissed
keys alt+b
await_dialog
click_unit 180 31
answered mouse
same keyboard-answer mouse-answer || fail "the mouse gets another answer from the message box than the keyboard"
end_gallery
echo "passed: folder, file and files by keyboard and by mouse, a message box answered"
