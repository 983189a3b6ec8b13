#!/usr/bin/env bash
# Loads the form by the sample in Python:  use_python.sh PLUGINS
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
export QT_PLUGIN_PATH=$1 QT_QPA_PLATFORM=offscreen

# Debian's own Python has PyQt.
diff - <(/usr/bin/python3 "$here/../../samples/qt_python/order.py" "$here/order.ui" --print) <<'ORDER'
|B:1|By s
Leave it
at the door
30 #000080
ORDER
echo "loaded, set and connected in Python"
