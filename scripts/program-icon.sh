#!/usr/bin/env bash
# Draws the sizes of the program's icon anew that an icon theme has as pictures. The small ones have
# drawings of their own, whose edges lie between pixels. Needs rsvg-convert.
set -euo pipefail
cd "$(dirname "$0")/../resources/icons"

for size in 16 22 24 32 48 64 128 256 512; do
  drawing=zavo-schedule-editor-$size.svg
  [[ -f "$drawing" ]] || drawing=zavo-schedule-editor.svg
  folder=hicolor/${size}x$size/apps
  mkdir -p "$folder"
  rsvg-convert --width "$size" --height "$size" "$drawing" --output "$folder/zavo-schedule-editor.png"
done
