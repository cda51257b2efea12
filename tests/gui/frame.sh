# What the scripts share that watch desktop_windows on a desktop; sourced after window.sh. The program tells what happens to its
# windows, and is the third argument.
windows=$3
need xprop wmctrl xrandr

start() { # [<arguments...>]
    : >"$work/out"
    told=0
    "$windows" "$@" >"$work/out" 2>"$work/err" &
    program=$!
    hears active
}
stop() {
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
    program=
}

# Waits until the program tells something that it has not told when it was last listened to.
hears() { # <line>
    wait_for "'$1' of '$(tail -3 "$work/out" | tr '\n' ';')'" has_told "$1"
    told=$(awk -v from="$told" -v line="$1" 'NR > from && $0 == line { print NR; exit }' "$work/out")
}
has_told() {
    tail -n +$((told + 1)) "$work/out" | grep -qx "$1"
}
silent() { # <line> <complaint>
    ! grep -qx "$1" "$work/out" || fail "$2"
}

place_of() { # <title>
    xwininfo -name "$1" 2>/dev/null |
        awk '/Absolute upper-left/ { print $NF } /Width:/ { print $2 } /Height:/ { print $2 }' | paste -sd' '
}
stands_at() { # <title> <x y width height>
    [ "$(place_of "$1")" = "$2" ]
}
await_place() { # <title> <x y width height>
    wait_for "$1 at $2" stands_at "$1" "$2"
}
has_focus() { # <title>
    [ "$(xdotool getwindowfocus getwindowname 2>/dev/null)" = "$1" ]
}
await_focus() {
    wait_for "the focus in $1" has_focus "$1"
}
is_iconic() {
    xprop -name Frame WM_STATE | grep -q Iconic
}

click() { # <x> <y>
    xdotool mousemove "$1" "$2" click 1
}
drag() { # <from x y> <to x y>
    xdotool mousemove "$1" "$2" mousedown 1
    xdotool mousemove $((($1 + $3) / 2)) $((($2 + $4) / 2)) mousemove "$3" "$4"
    xdotool mouseup 1
}

start_manager() {
    openbox --sm-disable >"$work/openbox.log" 2>&1 &
    manager=$!
    wait_for "the manager" managed
}
# It says that it is there before it listens; what it is asked for then, it never hears.
managed() {
    xdotool set_num_desktops 2 2>/dev/null && [ "$(xdotool get_num_desktops 2>/dev/null)" = 2 ]
}
