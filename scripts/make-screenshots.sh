#!/usr/bin/env bash
# Makes the screenshots of every dialog shown in the README: the real program
# on a demo installation, under a private Xvfb display, one PNG a window.
# Usage: scripts/make-screenshots.sh [OUTPUT_DIR]   (default docs/screenshots)
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(pwd)
out=${1:-$root/docs/screenshots}
mkdir -p "$out"

scripts/install-deps.sh
cmake -S . -B build >/dev/null
cmake --build build -j"$(nproc)" --target Brimo2010 >/dev/null
bin=$root/build/src/app/Brimo2010

source "$root/scripts/private-display.sh" 150

# prefix LANGUAGE: a demo installation whose Brimo.ini holds that language.
prefix() {
  local dir=$work/prefix-$1
  scripts/make-demo-prefix.sh "$dir" >/dev/null
  sed -i "s/^x_lang=.*\r\$/x_lang=$1\r/" "$dir/drive_c/Zorel/Variables/Demo/Brimo.ini"
  echo "$dir"
}

start() { # LANGUAGE WORD TITLE: starts the program, waits for its window
  WINEPREFIX=$(prefix "$1") "$bin" $2 >/dev/null 2>&1 &
  app=$!
  focus "$3"
}

# focus TITLE: waits for the window and gives it the keyboard (Xvfb has no
# window manager to do that).
focus() {
  window=$(timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" | head -n1)
  [ -n "$window" ] || { echo "no window '$1'" >&2; exit 1; }
  xdotool windowfocus --sync "$window"
  sleep 0.5
}

stop() { kill "$app" 2>/dev/null || true; wait "$app" 2>/dev/null || true; app=; }

shot() { import -window "$window" "$out/$1.png"; echo "  $out/$1.png"; }

echo "Screenshots:"
start FRA "" "Choix du module"; shot chooser; stop
start FRA VAbout "About"; shot about; stop
start FRA VTalus "Paramètre de recherche pied de talus"; shot slope-96dpi; stop
QT_SCALE_FACTOR=2 start FRA VTalus "Paramètre de recherche pied de talus"; shot slope-192dpi; stop

# The general dialog, tab by tab: it opens on tab 0 in French and on tab 4
# in German; Shift+Tab from OK reaches the tab bar, Ctrl+Tab walks on.
for lang in FRA DEU; do
  case $lang in FRA) title="Général"; tag=fr; first=0 ;; DEU) title="Allgemein"; tag=de; first=4 ;; esac
  start $lang VGene "$title"
  xdotool key shift+Tab; sleep 0.3
  for step in 0 1 2 3 4 5; do
    shot general-$tag-tab$(( (first + step) % 6 ))
    xdotool key ctrl+Tab; sleep 0.4
  done
  stop
done

# The drawing variables dialog: from the chooser, Enter presses the focused
# "Général" button; Shift+Tab and Tab bring the focus back to the tabs by the
# keyboard, so that the current tab shows it; then Ctrl+Tab walks its tabs
# from tab 2, three a row, the row of the current tab next to the page.
start FRA "" "Choix du module"
xdotool key Return
focus "Zorel2004 - Variables"
xdotool key shift+Tab Tab; sleep 0.3
for tab in 2 3 4 5 0 1; do
  shot drawing-tab$tab
  xdotool key ctrl+Tab; sleep 0.4
done
stop
