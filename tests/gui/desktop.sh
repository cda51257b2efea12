#!/bin/bash
# Windows of a program among those of the desktop, without a window manager and with one: what the person does to them from outside
# and what the program does must agree. The program tells what happens to its windows.
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/window.sh"
source "$(dirname "$0")/frame.sh"

gone() { # <title>
    [ -z "$(window_of "$1")" ]
}
# Windows that no manager frames: "width x height + x + y".
has_popup() { # <geometry>
    local each
    for each in $(xwininfo -root -tree | awk '$1 ~ /^0x/ && / '"${1//+/[+]}"' / { print $1 }'); do
        xwininfo -id "$each" 2>/dev/null | grep -q 'Override Redirect State: yes' && return 0
    done
    return 1
}
has_no_popup() {
    ! has_popup "$1"
}

# What the layer does in every case. The frame is at 200, 150; its client area begins 4 and 23 pixels further.
by_the_program() {
    start
    head -1 "$work/out" | grep -qx 'screen 1280 1024 work 0 0 1280 1024' || fail "the screen is another: $(head -1 "$work/out")"
    await_place Frame '200 150 300 200'
    await_focus Frame
    click 250 200
    hears 'press 46 27'
    drag 300 165 420 105
    hears 'put 320 90'
    await_place Frame '320 90 300 200'
    click 370 140
    hears 'press 46 27'

    xdotool key p
    wait_for "a popup" has_popup 300x200+600+300
    has_focus Frame || fail "a popup takes the focus"
    xdotool key p
    wait_for "the end of the popup" has_no_popup 300x200+600+300

    xdotool key b
    hears asking
    hears inactive
    await_focus Question
    xprop -name Question WM_TRANSIENT_FOR | grep -q "# 0x" || fail "the box is not its owner's"
    click 330 250
    xdotool key Return
    hears active
    hears answered
    silent 'press 6 137' "a disabled window is pressed"
    await_focus Frame
    wait_for "the end of the box" gone Question

    xdotool key o
    hears inactive
    await_place Beside '600 500 300 200'
    wait_for "its popup" has_popup 300x200+650+450
    await_focus Beside
    xdotool key d
    hears active
    wait_for "the end of the popup of a window that goes" has_no_popup 300x200+650+450
    wait_for "the end of the window" gone Beside
    await_focus Frame
}

# The desktop becomes another one; no larger than at the start of the server.
resize() { # <width> <height>
    xrandr --newmode "$1x$2" 100 "$1" "$1" "$1" "$1" "$2" "$2" "$2" "$2" 2>/dev/null || true
    xrandr --addmode screen "$1x$2" 2>/dev/null || true
    xrandr --output screen --mode "$1x$2" || fail "the server has no mode of $1 by $2"
}

start_server 1920x1200
resize 1280 1024

by_the_program
# Nobody keeps minimised windows: a bar stays.
xdotool key m
hears minimised
await_place Frame '0 1000 160 24'
xdotool mousemove 50 1012 click --repeat 2 --delay 20 1
hears 'size 292 173'
await_place Frame '320 90 300 200'
xdotool key q
hears end
wait "$program" || fail "the program ended with $?"
program=

# A desktop becomes smaller under a window, and larger again.
start
drag 300 165 1200 965
hears 'put 1100 950'
resize 800 600
hears 'screen 800 600'
await_place Frame '500 400 300 200'
click 550 450
hears 'press 46 27'
resize 1280 1024
hears 'screen 1280 1024'
stop

# Each pixel becomes four, and the mouse meets the right one.
CVUTIL32_SCALE=2 start
head -1 "$work/out" | grep -qx 'screen 640 512 work 0 0 640 512' || fail "the scaled screen is another: $(head -1 "$work/out")"
await_place Frame '400 300 600 400'
click 501 401
hears 'press 46 27'
click 502 403
hears 'press 47 28'
drag 600 330 602 334
hears 'put 201 152'
await_place Frame '402 304 600 400'
is_sharp() {
    import -window "$(window_of Frame)" "$work/large.png"
    convert "$work/large.png" -filter point -resize 50% -filter point -resize 200% "$work/doubled.png"
    same large doubled && [ "$(identify -format %k "$work/large.png")" -gt 4 ]
}
wait_for "a sharp picture" is_sharp
stop
density() { # <dots per inch> <screen>
    xprop -root -f RESOURCE_MANAGER 8s -set RESOURCE_MANAGER "Xft.dpi: $1"
    start
    head -1 "$work/out" | grep -q "^screen $2 " || fail "with $1 dpi the screen is another: $(head -1 "$work/out")"
    stop
}
resize 1920 1200
density 192 '960 600'
resize 800 600
density 192 '800 600'
resize 1280 1024
density 144 '1280 1024'

start 200
number() {
    [ "$(xwininfo -root -tree | grep -c '"One of many"')" = "$1" ]
}
wait_for "two hundred windows" number 200
await_focus Frame
click 250 200
hears 'press 46 27'
stop
wait_for "their end" number 0
echo "passed without a manager"

command -v openbox >/dev/null || skip "openbox is not installed"
start_manager

listed() { # <title>
    wmctrl -l | grep -q " $1\$"
}
by_the_program
listed Frame || fail "the frame is not in the task list"
xdotool key p
wait_for "a popup" has_popup 300x200+600+300
[ "$(wmctrl -l | wc -l)" = 1 ] || fail "a popup is in the task list"
xdotool key p

# What the person does from outside.
wmctrl -r Frame -e 0,400,300,500,400
hears 'size 492 373'
await_place Frame '400 300 500 400'
click 450 350
hears 'press 46 27'
xdotool windowminimize "$(window_of Frame)"
hears minimised
wmctrl -a Frame
hears active
hears 'size 492 373'
xdotool key m
hears minimised
wait_for "the icon" is_iconic
wmctrl -a Frame
hears 'size 492 373'
await_focus Frame
# The manager does both what the program and what the person wants before the program looks.
kill -STOP "$manager"
xdotool key m
hears minimised
sleep 0.5
kill -STOP "$program"
kill -CONT "$manager"
until is_iconic; do
    kill -CONT "$program"
    sleep 0.1
    kill -STOP "$program"
done
wmctrl -a Frame
wait_for "the end of the icon" has_focus Frame
kill -CONT "$program"
hears 'size 492 373'
await_focus Frame
# Once more from outside: nobody still waits for an answer.
xdotool windowminimize "$(window_of Frame)"
hears minimised
wmctrl -a Frame
hears 'size 492 373'
await_focus Frame
xdotool key b
hears asking
await_focus Question
wmctrl -c Frame
wmctrl -a Frame
await_focus Question
frame=$(window_of Frame)
xdotool windowminimize "$frame"
hears minimised
wait_for "the end of the box" gone Question
wmctrl -a Frame
await_focus Question
xdotool key Return
hears answered
silent 'close frame' "a disabled window is closed"
await_focus Frame

# Another program has the keyboard for a while.
"$gallery" >/dev/null 2>&1 &
other=$!
wait_for "the gallery" gallery_stands
wmctrl -a 'CVUTIL32 Gallery'
hears inactive
wmctrl -a Frame
hears active
kill "$other"
wait "$other" 2>/dev/null || true
xdotool key p
wait_for "a popup" has_popup 300x200+600+300
kill "$manager"
wait "$manager" 2>/dev/null || true
# The keyboard is nobody's then, until the frame is clicked after it has learnt that.
click_wins_focus() {
    local x y
    read -r x y _ <<<"$(place_of Frame)" && click $((x + 50)) $((y + 50)) && sleep 0.2 && has_focus Frame
}
wait_for "the focus in the frame without the manager" click_wins_focus
xdotool key p
wait_for "the end of the popup without the manager" has_no_popup 300x200+600+300

# The desktop goes.
: >"$work/err"
kill -9 "$server"
wait "$server" 2>/dev/null || true
server=
code=0
timeout "$patience" tail --pid="$program" -f /dev/null || fail "the program outlives its desktop"
wait "$program" || code=$?
program=
[ "$code" = 1 ] || fail "without its desktop the program ended with $code"
[ "$(wc -l <"$work/err")" = 1 ] || fail "it said: $(<"$work/err")"
echo "passed with a manager"
