#!/usr/bin/env bash
# Draws the pictures of the module chooser with ImageMagick. The PNG files
# are kept in the repository; run this again only to change them.
set -euo pipefail
cd "$(dirname "$0")"

# Banner of the chooser, 567 x 97 at 24 bits: a surveyor's grid, contour
# lines around a summit, a levelling mark, and the name of the add-on.
contours=""
for i in 1 2 3 4 5 6 7; do
  rx=$((26 * i + 8)); ry=$((9 * i + 3))
  contours+=" ellipse 430,50 $rx,$ry 0,360"
done
grid=""
for x in $(seq 0 27 567); do grid+=" line $x,0 $x,97"; done
for y in $(seq 0 27 97); do grid+=" line 0,$y 567,$y"; done

convert -size 567x97 gradient:'#0e2f4d'-'#1f6e9c' -rotate 0 \
  -fill none -stroke '#ffffff22' -strokewidth 1 -draw "$grid" \
  -stroke '#9fd8ff88' -strokewidth 1.4 -draw "$contours" \
  -stroke '#ffd34d' -strokewidth 2 -draw "line 422,50 438,50 line 430,42 430,58" \
  -fill '#ffd34d' -stroke none -draw "circle 430,50 432,50" \
  -fill '#ffffff' -font DejaVu-Sans-Bold -pointsize 50 -annotate +22+66 'Zorel' \
  -fill '#bfe3ff' -font DejaVu-Sans -pointsize 13 -annotate +26+86 'Variables du dessin  ·  Brimo' \
  -stroke '#ffd34d' -strokewidth 3 -draw "line 24,74 186,74" \
  -depth 8 -type TrueColor -define png:color-type=2 -strip banner.png
