#!/usr/bin/env bash
# Words that are no command word, Qt's own options and bytes of no code page
# among them, open the chooser: the program's words never reach Qt.
source "$(dirname "$0")/e2e_common.sh" "$1"
e2e_installation

for words in "-platform offscreen" $'\xff\xfe VGene' "VGene -style windows" "$(printf 'x%.0s' $(seq 1 5000))"; do
  # shellcheck disable=SC2086
  e2e_start $words
  chooser=$(e2e_wait_window 'Choix du module')
  e2e_visible 'Général' && e2e_fail "'$words' opened the general dialog"
  e2e_focus "$chooser"
  e2e_keys Tab Tab Tab space # to Quitter
  status=$(e2e_wait_exit)
  [ "$status" = 0 ] || e2e_fail "exit status $status after '$words'"
done
echo PASS
