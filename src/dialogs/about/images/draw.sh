#!/usr/bin/env bash
# Draws the pictures of the about window with ImageMagick. The PNG files are
# kept in the repository; run this again only to change them.
set -euo pipefail
cd "$(dirname "$0")"
png=(-depth 8 -type TrueColor -define png:color-type=2 -strip)

# Image1, 611 x 137: the vendor's mark.
convert -size 611x137 gradient:'#f4f1e8'-'#d9e4ec' \
  -fill none -stroke '#9db7c9' -strokewidth 1.2 \
  -draw "path 'M 0,110 C 120,80 200,130 320,95 S 520,60 611,90'" \
  -draw "path 'M 0,124 C 130,96 210,140 330,110 S 530,78 611,106'" \
  -stroke '#1f4e79' -strokewidth 3 -draw "polyline 40,100 70,40 100,100" \
  -draw "line 70,40 70,20" -fill '#c0392b' -stroke none -draw "polygon 70,20 88,26 70,32" \
  -fill '#1f4e79' -font DejaVu-Sans-Bold -pointsize 44 -annotate +125+78 'Topoligne' \
  -fill '#4a6f8a' -font DejaVu-Sans -pointsize 17 -annotate +128+106 'Logiciels de topographie et de génie civil' \
  "${png[@]}" vendor.png

# Image2(0) to Image2(8): nine 16 x 16 bitmaps.
# icon FILE DRAWING...: one bitmap on the dialog's face colour.
icon() { local out=$1; shift; convert -size 16x16 xc:'#efefef' -strokewidth 1 "$@" "${png[@]}" "$out"; }
# theodolite
icon icon0.png -fill none -stroke '#1f4e79' -draw "polyline 3,15 8,6 13,15" -draw "line 8,6 8,15" \
     -fill '#c0392b' -stroke none -draw "rectangle 5,2 11,6"
# contour lines
icon icon1.png -fill none -stroke '#2e7d32' -draw "ellipse 8,8 7,5 0,360 ellipse 8,8 4,2 0,360" \
     -fill '#2e7d32' -draw "point 8,8"
# warning
icon icon2.png -fill '#f1c40f' -stroke '#7d6608' -draw "polygon 8,1 15,14 1,14" \
     -fill '#7d6608' -stroke none -draw "rectangle 7,5 8,10 rectangle 7,12 8,12"
# compass
icon icon3.png -fill none -stroke '#1f4e79' -draw "circle 8,8 8,1" \
     -fill '#c0392b' -stroke none -draw "polygon 8,2 10,8 6,8" -fill '#1f4e79' -draw "polygon 8,14 10,8 6,8"
# ruler
icon icon4.png -fill '#e0b050' -stroke '#7a5a10' -draw "rectangle 1,5 14,10" \
     -stroke '#7a5a10' -draw "line 3,5 3,7 line 5,5 5,8 line 7,5 7,7 line 9,5 9,8 line 11,5 11,7 line 13,5 13,8"
# layers
icon icon5.png -fill '#5dade2' -stroke '#1b4f72' -draw "polygon 8,9 15,12 8,15 1,12" \
     -fill '#85c1e9' -draw "polygon 8,5 15,8 8,11 1,8" -fill '#d6eaf8' -draw "polygon 8,1 15,4 8,7 1,4"
# pencil
icon icon6.png -fill '#f5b041' -stroke '#6e2c00' -draw "polygon 2,14 3,10 12,1 15,4 6,13" \
     -fill '#6e2c00' -stroke none -draw "polygon 2,14 3,11 5,13"
# flag
icon icon7.png -fill none -stroke '#4d4d4d' -draw "line 4,1 4,15" \
     -fill '#c0392b' -stroke none -draw "polygon 5,2 14,5 5,8"
# profile on a grid
icon icon8.png -fill '#ffffff' -stroke '#1f4e79' -draw "rectangle 2,2 13,13" \
     -fill none -stroke '#9db7c9' -draw "line 2,6 13,6 line 2,10 13,10 line 6,2 6,13 line 10,2 10,13" \
     -stroke '#c0392b' -draw "polyline 2,12 6,9 10,7 13,3"
