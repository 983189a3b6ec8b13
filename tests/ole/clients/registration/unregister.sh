#!/usr/bin/env bash
# unregister.sh wine.sh server folder
# Unregisters the server and fails unless the registry says what it said before it was registered.
set -euo pipefail
. "$(dirname "$0")/registry.sh"

"$wine" regsvr32 /s /u "Z:$server"
dump after
diff "$folder/before.txt" "$folder/after.txt" || {
    echo "unregistering left something behind, or took too much"
    exit 1
}
