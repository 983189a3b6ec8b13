#!/usr/bin/env bash
# unregister.sh wine.sh server folder
# Unregisters the server. Fails if a key is left that registering added. Other new keys are allowed,
# because clients may have registered something meanwhile.
set -euo pipefail
. "$(dirname "$0")/registry.sh"

"$wine" regsvr32 /s /u "Z:$server"
dump unregistered
! grep -Fxf "$folder/keys.txt" "$folder/unregistered.txt"
