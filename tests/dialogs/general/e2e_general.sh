#!/usr/bin/env bash
# The real program, started with "VGene": Tab reaches the layer field, a new
# name is typed, Enter presses OK. Both files must hold the expected bytes.
# Then a second start switches to German by the keyboard alone: Shift+Tab to
# the tabs, arrows to tab 4, Shift+Tab into the languages, where the focus
# enters on the selected "Français", an arrow to "Allemand", Enter.
source "$(dirname "$0")/../../e2e/lib.sh"
e2e_setup "$1"

e2e_zorel 'C:\Zorel' 'C:\Zorel\Var' 'jo'
mkdir -p "$(e2e_native 'C:\Zorel\Var\jo')"
legends=""
for n in $(seq 1 174); do legends+="0000 FRA $n"$'\n'; done
e2e_write 'C:\Zorel\Lang\ZorelMsg_FRA.txt' "$legends"
e2e_write 'C:\Zorel\Lang\ZorelMsg_DEU.txt' "${legends//FRA/DEU}"
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

compare_files() { # WHAT: both written files against the expected ones
  cmp "$E2E_DIR/expected.lsp" "$(e2e_native 'C:\Zorel\Var\jo\Brimo_Gene.lsp')" &&
    cmp "$E2E_DIR/expected.ini" "$(e2e_native 'C:\Zorel\Var\jo\Brimo.ini')" &&
    [ "$(wc -l < "$E2E_DIR/expected.lsp")" = 51 ] || { echo "FAIL: the files differ ($1)"; exit 1; }
}
compare_files "layer name"

e2e_start VGene
window=$(e2e_wait_window "FRA 48")
xdotool windowactivate --sync "$window" 2>/dev/null || xdotool windowfocus --sync "$window"
sleep 0.5
e2e_keys shift+Tab Right Right Right Right shift+Tab shift+Tab shift+Tab Down
e2e_wait_window "DEU 48" > /dev/null
e2e_keys Return
status=$(e2e_wait_exit)
[ "$status" = 0 ] || { echo "FAIL: status $status"; cat "$E2E_DIR/out.log"; exit 1; }
LC_ALL=C sed -i 's/"FRA"); Langue fran.ais \r$/"DEU") ; Langue allemand\r/' "$E2E_DIR/expected.lsp"
LC_ALL=C sed -i 's/^x_lang=FRA\r$/x_lang=DEU\r/' "$E2E_DIR/expected.ini"
grep -q 'Langue allemand' "$E2E_DIR/expected.lsp" || { echo "FAIL: no German line expected"; exit 1; }
compare_files "German"
echo "PASS"
