#!/usr/bin/env bash
# Draws the pictures of the documentation from the program itself, as of a fixed day:
#   scripts/window-pictures.sh [FOLDER] (docs/images). Needs faketime.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
out=$(mkdir -p "${1:-$root/docs/images}" && cd "${1:-$root/docs/images}" && pwd)

cd "$root"
cmake --preset dev >/dev/null
cmake --build --preset dev --target window_pictures

run=$(mktemp -d)
trap 'rm -rf "$run"' EXIT
QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 XDG_CONFIG_HOME=$run XDG_RUNTIME_DIR=$run \
  FAKETIME_DONT_FAKE_MONOTONIC=1 faketime -f '@2026-12-17 10:00:00' \
  build/dev/tests/pictures/window_pictures "$out"
