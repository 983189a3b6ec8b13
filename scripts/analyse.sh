#!/usr/bin/env bash
# Runs cppcheck over the core and the tests of the core under Valgrind. Fails on any finding that
# scripts/cppcheck.suppressions does not list.
#   scripts/analyse.sh [cppcheck|valgrind]
set -euo pipefail
cd "$(dirname "$0")/.."

folders=(frame vlabel vmemo voptlist vlabelcaption project runtime/memory runtime/shared runtime/ole/stored forms apps/lumenkit)
# killed_save_test is missing: a program cannot be killed at its system calls under Valgrind.
tests=(frame_test memory_test vlabel_test vlabel_control_test vmemo_test voptlist_test
    vlabelcaption_test project_test fault_sweep_test stored_test forms_test
    forms_out_of_memory_test contract_memory_test golden_drawing_test caption_model_test
    caption_drawing_model_test caption_page_model_test memo_model_test option_list_model_test)

run_cppcheck() {
    echo "== cppcheck"
    cppcheck --quiet --std=c++20 --language=c++ -I . --enable=warning,performance,portability \
        --suppressions-list=scripts/cppcheck.suppressions --inline-suppr --error-exitcode=1 \
        -j "$(nproc)" "${folders[@]}"
}

# Several tests define their own operator new, which Valgrind must not replace. Tests with generated
# input run one in a hundred of their rounds.
run_valgrind() {
    local test program
    scripts/build.sh native "${tests[@]}"
    for test in "${tests[@]}"; do
        echo "== valgrind $test"
        program=$(find build/native/tests -name "$test" -type f)
        LUMENKIT_TEST_SHARE=100 valgrind --quiet --error-exitcode=1 --leak-check=full \
            --errors-for-leak-kinds=definite,indirect --show-leak-kinds=definite,indirect \
            --suppressions=scripts/valgrind.suppressions \
            --soname-synonyms=somalloc=nouserintercepts "$program" --gtest_brief=1
    done
}

scripts/setup.sh analyse
case ${1:-all} in
    cppcheck) run_cppcheck ;;
    valgrind) run_valgrind ;;
    all) run_cppcheck && run_valgrind ;;
    *) echo "usage: scripts/analyse.sh [cppcheck|valgrind]" >&2; exit 2 ;;
esac
