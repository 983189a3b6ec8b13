# For scripts that run one step after another: names each, times it, and ends with a table.
#   source scripts/steps.sh
#   step "Formatting"        begins a step, and ends the one before
#   all_steps_done           ends the last one and prints the table
#   begin_wine_tests PRESET  starts the tests of a build for Windows in the background: they share one
#                            processor and mostly wait, so the compiler has the rest
#   end_wine_tests           waits for them, prints what they said, and fails if one of them did

step_name=
step_times=()

end_step() {
    [ -n "$step_name" ] || return 0
    step_times+=("$(printf '%6d s  %s' $((SECONDS - step_begin)) "$step_name")")
    step_name=
}

step() {
    end_step
    step_name=$*
    step_begin=$SECONDS
    printf '\n== %s\n' "$step_name"
}

all_steps_done() {
    end_step
    printf '\n== %s: every step passed\n' "$(basename "$0")"
    printf '%s\n' "${step_times[@]}" "$(printf '%6d s  in all' "$SECONDS")"
}

begin_wine_tests() {
    trap 'scripts/wine.sh --end' EXIT
    wine_log=build/$1/test.log
    ctest --preset "$1" -j "$(nproc)" >"$wine_log" 2>&1 &
    wine_tests=$!
}

end_wine_tests() {
    local status=0
    wait "$wine_tests" || status=$?
    cat "$wine_log"
    return "$status"
}
