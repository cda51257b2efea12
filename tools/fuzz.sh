#!/bin/bash
# tools/fuzz.sh [seconds] [target...]: builds the fuzz targets with clang's libFuzzer and both sanitizers, and lets each look
# for new inputs for so many seconds (60 unless told), from the stored ones on. Ends with a line of figures a target. An input
# that fails is left in build/fuzz/found; what it printed is above.
source "$(dirname "$0")/common.sh"

seconds=${1:-60}
shift || true
install_packages "${build_packages[@]}" "${test_packages[@]}" "${sanitize_packages[@]}"
[ -f build/fuzz/build.ninja ] || cmake -G Ninja -B build/fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_C_COMPILER=clang \
    -DCMAKE_CXX_COMPILER=clang++ -DCVUTIL32_TESTS=ON -DCVUTIL32_FUZZ=ON

targets=("$@")
if [ ${#targets[@]} = 0 ]; then
    for source in tests/fuzz/*_fuzz.cpp; do
        source=${source##*/}
        targets+=("${source%_fuzz.cpp}")
    done
fi
cmake --build build/fuzz --target "${targets[@]/#/fuzz_}"

export CVUTIL32_HOME=$root/build/fuzz/state CVUTIL32_DISPLAY=none
mkdir -p build/fuzz/found
failed=0
figures=()
for target in "${targets[@]}"; do
    # New inputs go to the first folder; the stored ones are only read.
    corpus=build/fuzz/corpus/$target log=build/fuzz/$target.log
    mkdir -p "$corpus"
    echo "== $target"
    "build/fuzz/bin/fuzz_$target" -max_total_time="$seconds" -timeout=20 -max_len=400 -len_control=0 \
        -print_final_stats=1 -artifact_prefix="build/fuzz/found/$target-" "$corpus" "tests/fuzz/seeds/$target" >"$log" 2>&1 || {
        failed=1
        grep -vE '^#[0-9]+\s' "$log" | tail -n 40
    }
    executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    coverage=$(grep -oE 'cov: [0-9]+ ft: [0-9]+' "$log" | tail -n 1)
    figures+=("$target: ${executions:-?} executions, ${coverage:-no coverage}, $(ls "$corpus" | wc -l) inputs kept")
done
printf '%s\n' "${figures[@]}"
exit $failed
