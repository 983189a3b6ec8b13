# For scripts that run one step after another: names each, times it, and ends with a table.
#   source scripts/steps.sh
#   step "Formatting"        begins a step, and ends the one before
#   all_steps_done           ends the last one and prints the table

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
