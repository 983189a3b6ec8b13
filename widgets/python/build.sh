#!/usr/bin/env bash
# Builds the package `lumenkit` for PyQt6 against the shared library of a build:
#   widgets/python/build.sh BUILD
# The package is in BUILD/widgets/python/lumenkit, which PYTHONPATH=BUILD/widgets/python finds.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
top=$(cd "$here/../.." && pwd)
build=$(cd "$1" && pwd)
made=$build/widgets/python
version=$(sed -n 's/^project(lumenkit VERSION \([0-9.]*\).*/\1/p' "$top/CMakeLists.txt")
# The packages of Debian belong to its own interpreter.
bindings=$(/usr/bin/python3 -c 'import os, PyQt6; print(os.path.join(os.path.dirname(PyQt6.__file__), "bindings"))')

mkdir -p "$made"
sed -e "s|@version@|$version|" -e "s|@bindings@|$bindings|" -e "s|@top@|$top|" -e "s|@build@|$build|" \
    "$here/pyproject.toml.in" >"$made/pyproject.toml"
(cd "$made" && sip-build --qmake "$(command -v qmake6)" --build-dir objects) >"$made/build.log" 2>&1 || {
    cat "$made/build.log"
    exit 1
}
cp -r "$here/lumenkit" "$made/"
cp "$made/objects/_widgets/"_widgets.*.so "$made/lumenkit/widgets/"
