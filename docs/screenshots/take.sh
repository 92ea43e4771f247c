#!/usr/bin/env bash
# Takes the screenshots of the chooser, the about window and the six tabs of
# the drawing variables dialog, from the real program under Xvfb, cropped to
# each window.   Usage: docs/screenshots/take.sh path/to/Brimo2010
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source "$here/../../tests/e2e/lib.sh"
e2e_setup "$1"

e2e_zorel 'C:\Zorel' 'C:\Zorel\Var' 'Default'
legends=""
for n in $(seq 1 60); do
  case $n in
    54) legends+="L054 Info système"$'\n' ;;
    56) legends+="L056 Ce produit a été développé par"$'\n' ;;
    *) legends+="L$(printf %03d "$n") Légende $n"$'\n' ;;
  esac
done
e2e_write 'C:\Zorel\Lang\ZorelMsg_FRA.txt' "$legends"

# shot WINDOW_ID FILE: the window's client area as PNG
shot() {
  eval "$(xdotool getwindowgeometry --shell "$1")"
  sleep 0.3
  import -window root -crop "${WIDTH}x${HEIGHT}+${X}+${Y}" +repage "$2"
}

e2e_start
chooser=$(e2e_wait_window 'Choix du module')
xdotool windowfocus --sync "$chooser"
shot "$chooser" "$here/chooser.png"

# Tab twice from "Général" reaches "A propos".
e2e_keys Tab Tab space
about=$(e2e_wait_window 'About')
shot "$about" "$here/about.png"
xdotool windowfocus --sync "$about"
e2e_keys Return

# Back on the chooser: three more tabs lead round to "Général".
xdotool windowfocus --sync "$chooser"
e2e_keys Tab Tab Tab Return
drawing=$(e2e_wait_window 'Zorel2004 - Variables')
xdotool windowfocus --sync "$drawing"
e2e_keys Left Left
for tab in 0 1 2 3 4 5; do
  shot "$drawing" "$here/drawing-tab$tab.png"
  e2e_keys Right
done
echo "screenshots in $here"
