#!/usr/bin/env bash
# Compares the binary interface of liblumenkit-widgets with what is promised to programs:
#   scripts/abi.sh             fails if programs would have to be compiled anew
#   scripts/abi.sh --renew     writes the promise; review the diff
set -euo pipefail
cd "$(dirname "$0")/.."

promise=widgets/abi/amd64.txt
build=build/abi
if [ "$(dpkg --print-architecture)" != amd64 ]; then
    echo "abi: the promise is for amd64" >&2
    exit 1
fi
scripts/setup.sh build qt abi
python3 scripts/abi_listing.py --self-test
# The same compiler and options for everybody: types are described, and their layout does not depend
# on optimisation.
CXX=g++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS="-O1 -g" \
    -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 -DLUMENKIT_TESTS=OFF -DLUMENKIT_APPS=OFF \
    -DLUMENKIT_INSTALL=OFF -DLUMENKIT_DESIGNER=OFF >/dev/null
cmake --build "$build" --target lumenkit_widgets_shared >"$build/build.log" 2>&1 || {
    cat "$build/build.log"
    exit 1
}
abidw --headers-dir widgets/include/lumenkit --drop-private-types --exported-interfaces-only --no-corpus-path \
    --no-comp-dir-path "$build/widgets/liblumenkit-widgets.so" >"$build/widgets.xml"
python3 scripts/abi_listing.py list <"$build/widgets.xml" >"$build/present.txt"
if [ "${1:-}" = --renew ]; then
    mkdir -p "${promise%/*}"
    cp "$build/present.txt" "$promise"
else
    python3 scripts/abi_listing.py compare "$promise" "$build/present.txt"
fi
