#!/usr/bin/env bash
# Draws the pictures of the documents anew. Look at those that the diff names before you keep them.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh screen
scripts/build.sh native lumenform
python3 scripts/draw_captions.py build/native/apps/lumenform/lumenform docs/caption-language.md
git --no-pager diff --stat -- docs
