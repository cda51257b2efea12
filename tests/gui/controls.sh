#!/bin/bash
# The pages Buttons and Lists in a real window, by keys and by mouse. What counts is read back from the window: places of the page
# must change, or must look again as they did before.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"

# Places are counted from the dialog's corner; they hold for the dialog font that the layer brings.
start_gallery() { # <page>
    "$gallery" --page "$1" >"$work/out" 2>"$work/err" &
    program=$!
    size=
    wait_for "the page $1" page_is_shown
    [ "$size" = 497x379 ] || skip "the dialog is $size: another font"
}
# What is shown in the end may come in pieces: it counts when it is of the right size, or stays as it is.
page_is_shown() {
    local former=$size
    gallery_stands && shoot start || return 1
    read -r size left top <<<"$(convert "$work/start.png" -trim -format '%wx%h %X %Y' info: 2>/dev/null)"
    [ "$size" = 497x379 ] || { sleep 2 && [ -n "$size" ] && [ "$size" = "$former" ]; }
}

end_gallery() {
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
    program=
}

look() { # <place> <name>
    local w h x y
    IFS='x+' read -r w h x y <<<"$1"
    shoot && crop now "${w}x${h}+$((left + x))+$((top + y))" "$2"
}

# Waits until a place looks as it did in a picture, or no longer does.
await() { # <same|other> <place> <name> <complaint>
    wait_for "$4" looks "$1" "$2" "$3"
}
looks() { # <same|other> <place> <name>
    look "$2" seen || return 1
    if same "$3" seen; then [ "$1" = same ]; else [ "$1" = other ]; fi
}

point() { # <x> <y>
    xdotool mousemove --window "$window" $((left + $1)) $((top + $2))
}

start_server

start_gallery Buttons
clicks=200x12+140+117 face=48x34+140+56 clock=60x60+140+255
look "$clicks" none
look "$face" raised
look "$clock" blank
point 163 73
xdotool mousedown 1
await other "$face" raised "a pressed button does not look pressed"
look "$face" pressed
point 163 200
await other "$face" pressed "the button stays pressed when the mouse has left it"
point 163 73
await same "$face" pressed "the button is not pressed again when the mouse returns"
point 163 200
await other "$face" pressed "the button stays pressed when the mouse has left it again"
look "$face" left
xdotool mouseup 1
# Input is worked off in its order: when Tab has taken the focus away, the release is over.
xdotool key Tab
await other "$face" left "Tab does not leave the button"
look "$clicks" off
same none off || fail "a release beside the button is a click"
xdotool key shift+Tab space
await other "$clicks" none "space does not press the button"
look "$clicks" one
point 163 73
xdotool click 1
await other "$clicks" one "the mouse does not press the button"
xdotool key alt+s
await other "$clock" blank "the animation does not start"
look "$clock" playing
await other "$clock" playing "the animation stands still"
xdotool key alt+t
await same "$clock" blank "the animation does not stop"
end_gallery

start_gallery Lists
ticked=150x14+132+187 combo=150x16+238+273
look "$ticked" three
look "$combo" unfocused
point 138 62
xdotool click 1
await other "$ticked" three "a click does not tick"
xdotool key space
await same "$ticked" three "space does not take the tick away"
xdotool key alt+m
await other "$combo" unfocused "Alt+M does not lead to the combo box"
xdotool key Tab
await same "$combo" unfocused "the combo box is highlighted without the focus"
# The list covers what is below it, and gives it back.
below=150x60+238+290
look "$below" covered
xdotool key alt+m alt+Down
await other "$below" covered "Alt+Down does not drop the list"
xdotool key Escape
await same "$below" covered "what was under the list is not drawn again"
end_gallery
echo "passed: buttons and lists by keys and mouse"
