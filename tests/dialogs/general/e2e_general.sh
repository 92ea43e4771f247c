#!/usr/bin/env bash
# The real program, started with "VGene": Tab reaches the layer field, a new
# name is typed, Enter presses OK. Both files must hold the expected bytes.
source "$(dirname "$0")/../../e2e/lib.sh"
e2e_setup "$1"

e2e_zorel 'C:\Zorel' 'C:\Zorel\Var' 'jo'
mkdir -p "$(e2e_native 'C:\Zorel\Var\jo')"
legends=""
for n in $(seq 1 174); do legends+="0000 FRA $n"$'\n'; done
e2e_write 'C:\Zorel\Lang\ZorelMsg_FRA.txt' "$legends"
e2e_write 'C:\Zorel\Var\jo\Brimo.ini' $'[Brimo_Gene]\nx_chtxt=4\nx_ht_gc1=2.25\n'

e2e_start VGene
window=$(e2e_wait_window "FRA 48")
xdotool windowactivate --sync "$window" 2>/dev/null || xdotool windowfocus --sync "$window"
sleep 0.5
e2e_keys Tab
e2e_type "CALQUE9"
e2e_keys Return
status=$(e2e_wait_exit)
[ "$status" = 0 ] || { echo "FAIL: status $status"; cat "$E2E_DIR/out.log"; exit 1; }

# The files written from the defaults, composed by hand, with the two values changed.
golden=$(dirname "$0")/../../golden
LC_ALL=C sed 's/(setq cadre_layer "CADRE1")/(setq cadre_layer "CALQUE9")/; s/(setq x_ht_gc1 1.5)/(setq x_ht_gc1 2.25)/' \
  "$golden/Brimo_Gene-defaults.lsp" > "$E2E_DIR/expected.lsp"
# Stored keys keep their place; the others follow in the order of the rows.
{ printf '[Brimo_Gene]\r\nx_chtxt=4\r\nx_ht_gc1=2.25\r\n'
  LC_ALL=C sed '1d; /^x_ht_gc1=/d; s/^cadre_layer=CADRE1/cadre_layer=CALQUE9/' "$golden/Brimo-defaults.ini"; } > "$E2E_DIR/expected.ini"

failed=0
cmp "$E2E_DIR/expected.lsp" "$(e2e_native 'C:\Zorel\Var\jo\Brimo_Gene.lsp')" || failed=1
cmp "$E2E_DIR/expected.ini" "$(e2e_native 'C:\Zorel\Var\jo\Brimo.ini')" || failed=1
[ "$(wc -l < "$E2E_DIR/expected.lsp")" = 51 ] || failed=1
[ $failed = 0 ] && echo "PASS" || { echo "FAIL: the files differ"; exit 1; }
