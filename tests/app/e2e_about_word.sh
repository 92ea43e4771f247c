#!/usr/bin/env bash
# Started with "VAbout", the program shows the about window alone; Enter
# presses OK, no window is left, and the process ends with status 0.
source "$(dirname "$0")/e2e_common.sh" "$1"
e2e_installation

e2e_start VAbout
about=$(e2e_wait_window 'About')
[ "$(xdotool getwindowname "$about")" = About ] || e2e_fail "wrong title"
# The desktop groups the window by its class: the program's name, not the word.
xprop -id "$about" WM_CLASS | grep -q '"Brimo2010", "Brimo2010"' || e2e_fail "$(xprop -id "$about" WM_CLASS)"
e2e_visible 'Choix du module' && e2e_fail "the chooser opened too"
e2e_focus "$about"
e2e_keys Return
status=$(e2e_wait_exit)
[ "$status" = 0 ] || e2e_fail "exit status $status"
echo PASS
