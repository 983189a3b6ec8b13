#!/usr/bin/env bash
# Runs cppcheck over the core and the tests of the core under Valgrind. Fails on any finding that
# scripts/cppcheck.suppressions does not list.
#   scripts/analyse.sh [cppcheck|valgrind]
set -euo pipefail
cd "$(dirname "$0")/.."

folders=(frame vlabel vmemo voptlist vlabelcaption project runtime/memory runtime/shared runtime/ole/stored forms apps/lumenkit)
# killed_save_test is missing: a program cannot be killed at its system calls under Valgrind.
tests=(forms_test forms_out_of_memory_test fault_sweep_test frame_test memory_test vlabel_test
    vlabel_control_test vmemo_test voptlist_test vlabelcaption_test project_test stored_test
    contract_memory_test golden_drawing_test caption_model_test
    caption_drawing_model_test caption_page_model_test memo_model_test option_list_model_test)

run_cppcheck() {
    echo "== cppcheck"
    cppcheck --quiet --std=c++20 --language=c++ -I . --enable=warning,performance,portability \
        --suppressions-list=scripts/cppcheck.suppressions --inline-suppr --error-exitcode=1 \
        -j "$(nproc)" "${folders[@]}"
}

# under_valgrind TEST: prints its name and what was said, together, at the end. Several tests define
# their own operator new, which Valgrind must not replace. Tests with generated input run one in a
# hundred of their rounds.
under_valgrind() {
    local program output status=0
    program=$(find build/native/tests -name "$1" -type f)
    output=$(LUMENKIT_TEST_SHARE=100 valgrind --quiet --error-exitcode=1 --leak-check=full \
        --errors-for-leak-kinds=definite,indirect --show-leak-kinds=definite,indirect \
        --suppressions=scripts/valgrind.suppressions \
        --soname-synonyms=somalloc=nouserintercepts "$program" --gtest_brief=1 2>&1) || status=1
    printf '== valgrind %s\n%s\n' "$1" "$output"
    return "$status"
}

# As many tests at a time as there are processors, the long ones first.
run_valgrind() {
    scripts/build.sh native "${tests[@]}"
    export -f under_valgrind
    printf '%s\n' "${tests[@]}" | xargs -P "$(nproc)" -n 1 bash -c 'under_valgrind "$1"' _
}

scripts/setup.sh analyse
case ${1:-all} in
    cppcheck) run_cppcheck ;;
    valgrind) run_valgrind ;;
    all) run_cppcheck && run_valgrind ;;
    *) echo "usage: scripts/analyse.sh [cppcheck|valgrind]" >&2; exit 2 ;;
esac
