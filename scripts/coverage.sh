#!/usr/bin/env bash
# Runs the tests of the core with counters, and prints which part of each folder's lines and branches
# they reach. build/coverage/report.txt names the lines, file by file, that they do not.
set -euo pipefail
cd "$(dirname "$0")/.."

folders=(frame vlabel vmemo voptlist vlabelcaption project runtime/memory runtime/stored forms)
tests=(caption_drawing_model_test caption_model_test caption_page_model_test contract_memory_test
    fault_sweep_test forms_test frame_test golden_drawing_test killed_save_test memo_model_test
    memory_test option_list_model_test project_test stored_test vlabel_allocation_test
    vlabel_control_test vlabel_test vlabelcaption_test vmemo_test voptlist_test)

scripts/build.sh coverage "${tests[@]}"
find build/coverage -name '*.gcda' -delete
pattern=$(IFS='|'; echo "${tests[*]}")
ctest --preset coverage -j "$(nproc)" -R "^($pattern)\$"

gcovr --root . --object-directory build/coverage "${folders[@]/#/--filter=}" \
    --exclude-throw-branches --exclude-unreachable-branches --gcov-ignore-parse-errors \
    --json-summary build/coverage/summary.json --txt build/coverage/report.txt build/coverage
python3 - "${folders[@]}" <<'PYTHON'
import json
import sys

files = json.load(open("build/coverage/summary.json", encoding="utf-8"))["files"]
print(f"{'folder':20}{'lines':>8}{'reached':>10}{'branches':>10}{'reached':>10}")


def share(covered, total):
    return f"{100 * covered / total:.1f} %" if total else "-"


for folder in sys.argv[1:]:
    inside = [file for file in files if file["filename"].startswith(folder + "/")]
    lines, reached, branches, taken = (
        sum(file[key] for file in inside)
        for key in ("line_total", "line_covered", "branch_total", "branch_covered"))
    print(f"{folder:20}{lines:8}{share(reached, lines):>10}{branches:10}{share(taken, branches):>10}")
PYTHON
