#!/usr/bin/env bash
# Shows that Qt Designer loads the plugin:  load_plugin.sh PLUGINS DESIGNER
set -euo pipefail
plugins=$(cd "$1" && pwd)
designer=$2
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
plugin=$plugins/designer/liblumenkit-designer.so

# run_designer FOLDER: what Designer says of plugins, until it has loaded this one or for 20 seconds.
run_designer() {
    local program try
    HOME=$work XDG_CONFIG_HOME=$work XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=offscreen \
        QT_DEBUG_PLUGINS=1 QT_PLUGIN_PATH=$1 "$designer" "$here/order.ui" >"$work/log" 2>&1 &
    program=$!
    for ((try = 0; try < 100; ++try)); do
        ! was_loaded || break
        sleep 0.2
    done
    # A plugin that crashes takes Designer with it.
    sleep 0.5
    kill "$program" || {
        cat "$work/log"
        return 1
    }
    wait "$program" || true
}

was_loaded() {
    grep -qF "\"$plugin\" loaded library" "$work/log"
}

run_designer "$plugins"
was_loaded || {
    grep -F lumenkit "$work/log" || true
    echo "load_plugin: Designer does not load $plugin" >&2
    exit 1
}
if grep -iE 'lumenkit.*(not found|could not|failed|cannot)|unknown custom widget' "$work/log"; then
    exit 1
fi
echo "Designer loads the plugin"
