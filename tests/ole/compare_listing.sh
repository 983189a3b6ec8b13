#!/usr/bin/env bash
# Compares a program's listing of type libraries with the golden listing:
#   compare_listing.sh list_type_library.exe golden.txt library...
# Used for libraries that are made for a machine whose programs do not run here: a program for any
# machine can list them. Run it in the folder of the libraries.
set -euo pipefail
lister=$1
golden=$2
shift 2
if [ ! -e "$lister" ]; then
    echo "$lister is not built: scripts/build.sh mingw-x64" >&2
    exit 1
fi
diff "$golden" <("$(dirname "$0")/../../scripts/wine.sh" "$lister" "$@")
