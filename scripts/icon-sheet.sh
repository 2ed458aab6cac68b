#!/usr/bin/env bash
# Draws all icons side by side, at 16, 24 and 48 pixels on a light and on a dark tool bar:
#   scripts/icon-sheet.sh [FILE.png] (docs/images/icons.png). Needs rsvg-convert.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
out=${1:-$root/docs/images/icons.png}

row_height=64
column_width=432
label_width=180
icons=("$root"/resources/images/*.svg)
rows=$(((${#icons[@]} + 1) / 2))
width=$((2 * column_width))
height=$((rows * row_height + 160))

# body FILE: what stands between the outermost tags
body() { sed -e '/^<svg/d' -e '/^<\/svg>/d' "$1"; }

# place FILE VIEWBOX SIZE X CENTRE
place() {
  printf '<svg x="%d" y="%d" width="%d" height="%d" viewBox="0 0 %d %d">' \
    "$4" "$(($5 - $3 / 2))" "$3" "$3" "$2" "$2"
  body "$1"
  printf '</svg>\n'
}

sheet() {
  printf '<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d">\n' "$width" "$height"
  printf '<rect width="100%%" height="100%%" fill="#ffffff"/>\n'
  local n=0 icon left centre
  for icon in "${icons[@]}"; do
    left=$((n / rows * column_width))
    centre=$((n % rows * row_height + row_height / 2))
    printf '<text x="%d" y="%d" font-family="DejaVu Sans" font-size="12">%s</text>\n' \
      "$((left + 12))" "$((centre + 4))" "$(basename "$icon" .svg)"
    printf '<rect x="%d" y="%d" width="120" height="56" rx="4" fill="#efefef"/>\n' \
      "$((left + label_width))" "$((centre - 28))"
    printf '<rect x="%d" y="%d" width="120" height="56" rx="4" fill="#45474e"/>\n' \
      "$((left + label_width + 124))" "$((centre - 28))"
    local shade
    for shade in 0 124; do
      place "$icon" 16 16 "$((left + label_width + shade + 8))" "$centre"
      place "$icon" 16 24 "$((left + label_width + shade + 30))" "$centre"
      place "$icon" 16 48 "$((left + label_width + shade + 64))" "$centre"
    done
    n=$((n + 1))
  done
  local program=$root/resources/icons/zavo-schedule-editor.svg
  local size x=24
  for size in 16 24 32 48 64 128; do
    place "$program" 128 "$size" "$x" "$((height - 80))"
    x=$((x + size + 24))
  done
  printf '</svg>\n'
}

mkdir -p "$(dirname "$out")"
sheet | rsvg-convert -o "$out"
