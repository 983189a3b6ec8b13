#!/usr/bin/env bash
# Brings the translations of lumenform up to date with its sources: new texts are added as unfinished,
# and texts that no source has are removed. Translate the unfinished ones with Qt Linguist or an editor.
#   scripts/translations.sh               # all languages
#   scripts/translations.sh --add fr      # and a new one
#   scripts/translations.sh --check       # changes nothing; fails if texts are missing or unfinished
set -euo pipefail
cd "$(dirname "$0")/.."

mode=${1:-}
folder=apps/lumenform/language/translations
lupdate=$(command -v lupdate || echo "$(qtpaths6 --query QT_INSTALL_BINS)/lupdate")

# update FILE: without line numbers, so that only a change of a text changes the file. What lupdate
# warns about would keep a text from being found: a class without Q_OBJECT, a text without a context.
update() {
    local language=${1##*_}
    "$lupdate" -silent -I . apps/lumenform widgets/items -locations none -no-obsolete \
        -source-language en -target-language "${language%.ts}" -ts "$1" 2>&1 |
        if grep .; then return 1; fi
}

if [ "$mode" = --add ]; then
    update "$folder/lumenform_${2:?"which language?"}.ts"
fi
if [ "$mode" != --check ]; then
    for file in "$folder"/*.ts; do
        update "$file"
        echo "$file: $(grep -c 'type="unfinished"' "$file" || true) unfinished"
    done
    exit
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
faults=0
for file in "$folder"/*.ts; do
    copy=$work/$(basename "$file")
    cp "$file" "$copy"
    update "$copy"
    if ! diff -u "$file" "$copy"; then
        echo "$file is not up to date: run scripts/translations.sh" >&2
        faults=1
    fi
    if grep -B3 'type="unfinished"' "$copy"; then
        echo "$file has unfinished texts" >&2
        faults=1
    fi
done
exit $faults
