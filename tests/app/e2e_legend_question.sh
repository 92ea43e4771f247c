#!/usr/bin/env bash
# Without zorel.ini no legend file is found: the question "MainModule" comes
# up before any dialog. No ("n", the mnemonic of the No button) goes on to
# the chooser; Yes ("y") ends the program before any dialog opens.
source "$(dirname "$0")/e2e_common.sh" "$1"

e2e_start
question=$(e2e_wait_window 'MainModule')
e2e_visible 'Choix du module' && e2e_fail "the chooser opened before the answer"
e2e_focus "$question"
e2e_keys n
e2e_wait_window 'Choix du module' >/dev/null
e2e_visible 'MainModule' && e2e_fail "the question is still open"
sleep 0.5   # the closed question must not end the program with it
kill -0 "$E2E_PID" || e2e_fail "the program ended after No"
e2e_visible 'Choix du module' || e2e_fail "the chooser closed after No"
kill "$E2E_PID"; wait "$E2E_PID" 2>/dev/null || true; E2E_PID=

e2e_start
question=$(e2e_wait_window 'MainModule')
e2e_focus "$question"
e2e_keys y
status=$(e2e_wait_exit)
[ "$status" = 0 ] || e2e_fail "exit status $status after Yes"
echo PASS
