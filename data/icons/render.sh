#!/usr/bin/env bash
# Redraws the committed PNG icons (needs rsvg-convert, from librsvg2-bin): 32 px and up from the
# scalable icon, the small sizes from their own drawings in src/.
# The build never runs this: the PNGs are kept in git. 16 px has its own drawing, 22 and 24 px
# share another (22 px is its middle 22 by 22 pixels), the larger sizes scale the full icon.
set -euo pipefail
cd "$(dirname "$0")"
id=io.github.brinto.Brinto
draw() {  # SIZE SVG
  mkdir -p "hicolor/$1x$1/apps"
  rsvg-convert -w "$1" -h "$1" "$2" -o "hicolor/$1x$1/apps/$id.png"
}
tmp=$(mktemp --suffix=.svg)
trap 'rm -f "$tmp"' EXIT
sed 's/width="24" height="24" viewBox="0 0 24 24"/width="22" height="22" viewBox="1 1 22 22"/' src/small-24.svg > "$tmp"
draw 16 src/small-16.svg
draw 22 "$tmp"
draw 24 src/small-24.svg
for size in 32 48 64 128 256; do draw "$size" "hicolor/scalable/apps/$id.svg"; done
