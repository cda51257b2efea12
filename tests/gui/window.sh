# What the scripts share that run the gallery on a real desktop; sourced after common.sh. The X server and the program in `program`
# end with the script. `window` is what is looked at and clicked in: all of the desktop, unless a script names another.
need Xvfb xdotool xwininfo xsetroot import convert compare

unset CVUTIL32_DISPLAY CVUTIL32_SCALE WAYLAND_DISPLAY
program=
server=
cleanup() {
    # One that stands still ends when it goes on.
    [ -z "$program" ] || { kill "$program" && kill -CONT "$program"; } 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
}
trap cleanup EXIT

# How many seconds to wait for what must come on the slowest machine.
patience=120

# wait_for <what> <command...>: tries the command until it succeeds.
wait_for() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@"; do
        [ -z "$program" ] || kill -0 "$program" 2>/dev/null || fail "the gallery has ended: $(<"$work/err")"
        [ "$SECONDS" -lt "$end" ] || fail "$what: waited for in vain (see $work/now.png)"
        sleep 0.05
    done
}

# Prints the window of this title, if it can be seen.
window_of() { # <title>
    xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -1 || true
}
gallery_stands() {
    [ -n "$(window_of 'CVUTIL32 Gallery')" ]
}

shoot() { # [<name>]
    timeout 60 import -window "$window" "$work/${1:-now}.png" 2>/dev/null
}

crop() { # <picture> <place> <name of the part>
    convert "$work/$1.png" -crop "$2" +repage "$work/$3.png"
}

same() { # <picture> <picture>
    compare -metric AE "$work/$1.png" "$work/$2.png" null: 2>/dev/null
}

# Whether a place of the window looks as in none of some pictures of it, or as in one of them.
place_is_new() { # <place> <picture...>
    local place=$1 picture
    shift
    shoot && crop now "$place" part || return 1
    for picture in "$@"; do
        ! same "$picture" part || return 1
    done
}
place_is() { # <place> <picture>
    shoot && crop now "$1" part && same "$2" part
}

display_is_there() {
    kill -0 "$server" 2>/dev/null || fail "Xvfb does not start: $(tail -1 "$work/server.log")"
    [ -s "$work/display" ]
}
# The server goes on between two programs; one that ends with its last client is not back in time for the next.
start_server() { # [<width>x<height>]
    Xvfb -displayfd 3 -screen 0 "${1:-800x600}x24" -nolisten tcp -noreset 3>"$work/display" 2>"$work/server.log" &
    server=$!
    wait_for "a display" display_is_there
    DISPLAY=:$(<"$work/display")
    export DISPLAY
    xsetroot -solid '#008080'
    window=$(xwininfo -root | sed -nE 's/.*Window id: (0x[0-9a-f]+) .*/\1/p')
}
