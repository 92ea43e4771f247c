#!/usr/bin/env bash
# Draws the point symbols of the buttons Command3(0) to Command3(4) with
# ImageMagick: 16 x 16 bitmaps at 24 bits. The PNG files are kept in the
# repository; run this again only to change them.
set -euo pipefail
cd "$(dirname "$0")"

# symbol FILE DRAWING...: one bitmap on the dialog's face colour.
symbol() {
  local out=$1; shift
  convert -size 16x16 xc:'#efefef' -fill none -stroke '#000000' -strokewidth 1 "$@" \
    -depth 8 -type TrueColor -define png:color-type=2 -strip "$out"
}
symbol point0.png -draw "line 8,2 8,14 line 2,8 14,8"                      # plus
symbol point1.png -draw "line 3,3 13,13 line 3,13 13,3"                    # cross
symbol point2.png -draw "circle 8,8 8,3"                                   # circle
symbol point3.png -draw "circle 8,8 8,3" -draw "line 8,1 8,15 line 1,8 15,8"   # circle and plus
symbol point4.png -fill '#000000' -draw "rectangle 5,5 11,11"              # filled square
