# What the scripts share that run the gallery in a real window; sourced after common.sh. The X server and the program in `program`
# end with the script.
need Xvfb xdotool import convert compare

unset CVUTIL32_DISPLAY WAYLAND_DISPLAY
program=
server=
cleanup() {
    [ -z "$program" ] || kill "$program" 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
}
trap cleanup EXIT

# The server goes on between two programs; one that ends with its last client is not back in time for the next.
start_server() {
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$work/display" 2>"$work/server.log" &
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
