#!/usr/bin/env bash
# Reads every form of the real program as a screen reader does: Brimo2010 on
# a demo installation under a private Xvfb display, with the accessibility
# bus on, its tree read over AT-SPI (scripts/a11y_names.py). Prints for each
# form the focusable controls, those without a name and those sharing one.
# Needs python3-pyatspi and at-spi2-core. Not part of the test suite.
# Usage: scripts/a11y-names.sh [BUILD_DIR] [--list]   (BRIMO_BIN: another binary)
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(pwd)
build=${1:-build}
shift || true
bin=${BRIMO_BIN:-$root/$build/src/app/Brimo2010}

# A session bus of our own, which starts the accessibility bus on demand.
if [ -z "${BRIMO_A11Y_SESSION:-}" ]; then
  BRIMO_A11Y_SESSION=1 exec dbus-run-session -- "$0" "$build" "$@"
fi

source "$root/scripts/private-display.sh" 200
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1
# The registry must run before the program starts, or the program finds no
# one to announce itself to.
/usr/bin/python3 -c 'import pyatspi; pyatspi.Registry.getDesktop(0).childCount' 2>/dev/null

prefix() { # LANGUAGE: a demo installation whose Brimo.ini holds that language
  local dir=$work/prefix-$1
  [ -d "$dir" ] || {
    scripts/make-demo-prefix.sh "$dir" >/dev/null
    sed -i "s/^x_lang=.*\r\$/x_lang=$1\r/" "$dir/drive_c/Zorel/Variables/Demo/Brimo.ini"
  }
  echo "$dir"
}

# form LANGUAGE WORD TITLE [a11y_names.py options]
form() {
  local lang=$1 word=$2 title=$3
  shift 3
  WINEPREFIX=$(prefix "$lang") "$bin" $word >/dev/null 2>&1 &
  app=$!
  if [ "${1:-}" = --refusal ]; then # the keyboard goes to the window (Xvfb has no window manager)
    xdotool windowfocus --sync "$(timeout 20 xdotool search --sync --onlyvisible --name "^$title\$" | head -n1)"
  fi
  /usr/bin/python3 scripts/a11y_names.py "$title" "$@" || true
  kill "$app" 2>/dev/null || true
  wait "$app" 2>/dev/null || true
  app=
}

form FRA "" "Choix du module" "$@"
form FRA VGene "Général" "$@"
form DEU VGene "Allgemein" "$@"
form FRA VTalus "Paramètre de recherche pied de talus" "$@"
form FRA VAbout "About" "$@"
form FRA "" "Zorel2004 - Variables" --via "Choix du module:Général" "$@"
echo "A number field's refusal:"
form FRA VTalus "Paramètre de recherche pied de talus" --refusal
