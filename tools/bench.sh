#!/bin/bash
# Builds the benchmarks and runs them, then measures the start of the gallery; arguments go to the benchmark programs.
source "$(dirname "$0")/common.sh"

install_packages "${build_packages[@]}" "${bench_packages[@]}"
[ -f build/bench/build.ninja ] || cmake --preset native -B build/bench -DCVUTIL32_BENCH=ON -DCVUTIL32_TESTS=OFF
cmake --build build/bench

export CVUTIL32_HOME=$root/build/bench/state CVUTIL32_DISPLAY=none
for program in build/bench/bin/*bench*; do
    [ -x "$program" ] && [ -f "$program" ] || continue
    echo "== $(basename "$program")"
    "$program" "$@"
done

# Milliseconds from start to the end of the program, which has then also written its picture; the best of all runs stands
# for a machine that is doing nothing else, the middle one for what a user sees.
echo "== gallery: start to first complete picture, headless"
runs=20
times=()
for ((run = 0; run < runs; ++run)); do
    begin=$(date +%s%N)
    build/bench/bin/cvutil32-gallery --capture build/bench/gallery.png
    times+=($((($(date +%s%N) - begin) / 10000)))
done
sorted=($(printf '%s\n' "${times[@]}" | sort -n))
milliseconds() {
    printf '%d.%02d' $(($1 / 100)) $(($1 % 100))
}
echo "best $(milliseconds "${sorted[0]}") ms, median $(milliseconds "${sorted[runs / 2]}") ms of $runs runs"
/usr/bin/time -f 'peak memory %M KiB' build/bench/bin/cvutil32-gallery --capture build/bench/gallery.png
