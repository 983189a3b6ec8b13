#!/usr/bin/env bash
# Runs the tests of the core with coverage counters. Prints the share of lines and branches that
# they reach in each folder and writes the unreached ones into build/coverage/unreached.txt.
set -euo pipefail
cd "$(dirname "$0")/.."

folders=(frame vlabel vmemo voptlist vlabelcaption project runtime/memory runtime/shared runtime/ole/stored forms)
tests=(caption_drawing_model_test caption_model_test caption_page_model_test contract_memory_test
    fault_sweep_test forms_out_of_memory_test forms_test frame_test golden_drawing_test
    killed_save_test memo_model_test memory_test option_list_model_test project_test stored_test
    vlabel_allocation_test vlabel_control_test vlabel_test vlabelcaption_test vmemo_test
    voptlist_test)

scripts/build.sh coverage "${tests[@]}"
find build/coverage -name '*.gcda' -delete
pattern=$(IFS='|'; echo "${tests[*]}")
LUMENKIT_TEST_SHARE=20 ctest --preset coverage -j "$(nproc)" -R "^($pattern)\$"

gcovr --root . --object-directory build/coverage "${folders[@]/#/--filter=}" -j "$(nproc)" \
    --exclude-throw-branches --exclude-unreachable-branches --gcov-ignore-parse-errors \
    --json build/coverage/records.json build/coverage
python3 scripts/coverage_table.py build/coverage/records.json build/coverage/unreached.txt "${folders[@]}"
