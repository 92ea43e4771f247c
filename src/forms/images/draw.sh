#!/usr/bin/env bash
# Draws the window icon that the chooser and the about window share, with
# ImageMagick. The PNG file is kept in the repository; run this again only to
# change it.
set -euo pipefail
cd "$(dirname "$0")"

# Window icon, 32 x 32: the letter Z over two contour lines.
convert -size 32x32 xc:'#1f6e9c' \
  -fill none -stroke '#9fd8ff' -strokewidth 1 -draw "ellipse 16,22 14,6 0,360 ellipse 16,22 8,3 0,360" \
  -fill '#ffffff' -stroke none -font DejaVu-Sans-Bold -pointsize 22 -gravity center -annotate +0-3 'Z' \
  -depth 8 -type TrueColor -define png:color-type=2 -strip zorel.png
