#!/bin/bash
# Browsing in a real window by the keyboard alone: a folder three levels down, and three files. Each time the page must look as it
# does when the expected text is typed into the field. (By the mouse: tests/controls/native/browse_input_test.cpp.)
source "$(dirname "$0")/common.sh"
need Xvfb xdotool import convert compare
"$gallery" --page Browse --capture "$work/page.png" >/dev/null 2>&1 || skip "the gallery has no page Browse"

mkdir -p "$CVUTIL32_HOME"/drive_c/WINDOWS "$CVUTIL32_HOME"/drive_c/walk/one/two/three
touch "$CVUTIL32_HOME"/drive_c/walk/{a,b,c}.txt
unset CVUTIL32_DISPLAY WAYLAND_DISPLAY
program=
server=
cleanup() {
    [ -z "$program" ] || kill "$program" 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
}
trap cleanup EXIT

start_server() {
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" 2>"$work/server.log" &
    server=$!
    local try
    for try in {1..100}; do
        [ ! -s "$work/display" ] || break
        kill -0 "$server" 2>/dev/null || fail "Xvfb does not start: $(tail -1 "$work/server.log")"
        sleep 0.1
    done
    DISPLAY=:$(<"$work/display")
    export DISPLAY
}

shoot() { # <name>
    import -window "$window" "$work/$1.png" 2>/dev/null
}

start_gallery() {
    "$gallery" --page Browse >"$work/out" 2>"$work/err" &
    program=$!
    local try
    for try in {1..100}; do
        kill -0 "$program" 2>/dev/null || fail "the gallery ended at once: $(<"$work/err")"
        window=$(xdotool search --onlyvisible --name '^CVUTIL32$' 2>/dev/null | head -1 || true)
        if [ -n "$window" ] && shoot start; then
            sleep 0.5
            return 0
        fi
        sleep 0.1
    done
    fail "the gallery shows no window within ten seconds"
}

keys() {
    xdotool key --delay 30 "$@"
    sleep 0.5
}

text() { # <what to type>
    xdotool type --delay 30 "$1"
    sleep 0.4
}

# Goes to a field by its mnemonic, empties it, types a text, and takes a picture without caret and selection.
typed() { # <mnemonic> <text> <picture>
    keys "alt+$1"
    keys Home shift+End Delete
    text "$2"
    keys Tab
    shoot "$3"
}

# Opens the dialog of the button behind a field.
browse() { # <mnemonic>
    keys "alt+$1"
    keys Tab
    keys space
    sleep 0.5
}

same() { # <picture> <picture>
    compare -metric AE "$work/$1.png" "$work/$2.png" null: 2>/dev/null
}

start_server
start_gallery

# The folder, by the keyboard: the drive, then the names.
typed o 'c:\walk\one\two\three' folder-expected
keys alt+o Home shift+End Delete
browse o
keys Down Right
text wa
keys Right Right Right Right Right Right
shoot folder-dialog
keys Return
shoot folder-chosen
same folder-expected folder-chosen || fail "the folder chosen by the keyboard does not stand in the field"

# Three files: the list is reached by the mnemonics of what stands before it.
typed i 'C:\walk;a.txt;b.txt;c.txt' files-expected
keys alt+i Home shift+End Delete
text 'C:\walk'
browse i
keys shift+Tab
keys Home Down shift+Down shift+Down
shoot files-dialog
keys Return
shoot files-chosen
# The page tells of one notification before and one after; the field alone is compared.
field() { # <picture>
    convert "$work/$1.png" -crop "${geometry}" +repage "$work/$1-field.png"
}
convert "$work/folder-expected.png" "$work/files-expected.png" -compose difference -composite -threshold 0 -trim \
    -format '%wx%h%O' info: >"$work/geometry"
geometry=$(<"$work/geometry")
field files-expected
field files-chosen
same files-expected-field files-chosen-field || fail "the files chosen do not stand in the field"
echo passed
