#!/usr/bin/env bash
# Whether a program's listing of type libraries is the golden one:
#   compare_listing.sh list_type_library.exe golden.txt library...
# For libraries that are made for a machine whose programs do not run here: any program can list
# them. Run it where the libraries lie.
set -euo pipefail
lister=$1
golden=$2
shift 2
if [ ! -e "$lister" ]; then
    echo "$lister is not built: scripts/build.sh mingw-x64" >&2
    exit 1
fi
diff "$golden" <("$(dirname "$0")/../../scripts/wine.sh" "$lister" "$@")
