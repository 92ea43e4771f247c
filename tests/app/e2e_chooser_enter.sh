#!/usr/bin/env bash
# Started without a word, the program opens the chooser; Enter presses the
# focused "Général", which leaves the user in the drawing variables dialog.
source "$(dirname "$0")/e2e_common.sh" "$1"
e2e_installation

e2e_start
chooser=$(e2e_wait_window 'Choix du module')
e2e_focus "$chooser"
e2e_keys Return
e2e_wait_window 'Zorel2004 - Variables' >/dev/null
sleep 0.3
e2e_visible 'Choix du module' && e2e_fail "the chooser is still open"
kill -0 "$E2E_PID" || e2e_fail "the program ended"
echo PASS
