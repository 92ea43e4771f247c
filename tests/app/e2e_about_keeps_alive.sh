#!/usr/bin/env bash
# The about window opened from the chooser keeps the process alive when the
# chooser is closed by its close box; closing the about window ends it.
source "$(dirname "$0")/e2e_common.sh" "$1"
e2e_installation

e2e_start
chooser=$(e2e_wait_window 'Choix du module')
e2e_focus "$chooser"
e2e_keys Tab Tab space      # from "Général" to "A propos"
about=$(e2e_wait_window 'About')
e2e_close_box "$chooser"
sleep 0.5
e2e_visible 'Choix du module' && e2e_fail "the chooser did not close"
kill -0 "$E2E_PID" || e2e_fail "the program ended with the about window open"
e2e_visible 'About' || e2e_fail "the about window went with the chooser"
e2e_focus "$about"
e2e_keys Return
status=$(e2e_wait_exit)
[ "$status" = 0 ] || e2e_fail "exit status $status"
echo PASS
