#!/usr/bin/env bash
# The real program under Xvfb: started with "VTalus", the user tabs to Text1
# and types -4, tabs on to Text4 (which comes before Text3) and types 12.5,
# tabs to Command1 and presses it with the space bar. The program ends with
# status 0 and both files hold exactly the expected bytes.
source "$(dirname "$0")/../../e2e/lib.sh"
e2e_setup "$1"

e2e_zorel 'C:\Zorel' 'C:\Zorel\Var' 'Jean'
legends=""
for n in $(seq 1 170); do legends+=$(printf '%04d Legende %d' "$n" "$n")$'\n'; done
e2e_write 'C:\Zorel\Lang\ZorelMsg_FRA.txt' "$legends"
e2e_write 'C:\Zorel\Var\Jean\Brimo.ini' $'[Brimo_Gene]\nx_lang=FRA\ncadre_usery=900\n'
e2e_write 'C:\Zorel\Var\Jean\Brimo_Talus.lsp' "$(printf '(setq QZ_ancien %d) ;plus lu\n' $(seq 1 12))"
lisp=$(e2e_native 'C:\Zorel\Var\Jean\Brimo_Talus.lsp')
ini=$(e2e_native 'C:\Zorel\Var\Jean\Brimo.ini')

e2e_start VTalus
win=$(e2e_wait_window 'Paramètre de recherche pied de talus')
xdotool windowfocus --sync "$win"
sleep 0.5

# Check1 holds the focus; Check2, the chosen option, then Text1.
e2e_keys Tab Tab Tab
e2e_keys minus
e2e_type '4'
e2e_keys Tab Tab
e2e_type '12.5'
# Text3, Text5, Text6, then Command1.
e2e_keys Tab Tab Tab Tab
e2e_keys space
status=$(e2e_wait_exit)
[ "$status" = 0 ] || { echo "FAIL: exit status $status"; cat "$E2E_DIR/out.log"; exit 1; }

printf '%s\r\n' \
  '(setq QZ_asp_dess "polyligne") ;Choix du dessin final (polyligne ou points)' \
  '(setq QZ_des_tal 2) ;Type de dessin du talus (2 ou 3 pour 2d ou 3d)' \
  '(setq QZ_tal_dh 4) ;Talus dist horiz' \
  '(setq QZ_tal_dv 2) ;Talus dist vert' \
  '(setq QZ_tal_max 20) ;Long initial du talus' \
  '(setq QZ_rech_360 12.5) ;Nbr de rech pour 360 degres' \
  '(setq QZ_ecart_pts 1) ;Ecart entre les recherches' \
  "(setq QZ_fact_flch 6) ;Facteur d'"$'\xe9'"chelle des fl"$'\xe8'"ches de direction" \
  > "$E2E_DIR/expected.lsp"
printf '%s\r\n' '[Brimo_Gene]' 'x_lang=FRA' 'cadre_usery=900' '[Brimo_Talus]' \
  'x_QZ_asp_dess=polyligne' 'x_QZ_des_tal=2' 'x_QZ_tal_dh=4' 'x_QZ_tal_dv=2' 'x_QZ_tal_max=20' \
  'x_QZ_rech_360=12.5' 'x_QZ_ecart_pts=1' 'x_QZ_fact_flch=6' > "$E2E_DIR/expected.ini"

cmp "$lisp" "$E2E_DIR/expected.lsp" || { echo "FAIL: Brimo_Talus.lsp"; od -c "$lisp" | head -40; exit 1; }
cmp "$ini" "$E2E_DIR/expected.ini" || { echo "FAIL: Brimo.ini"; od -c "$ini" | head -40; exit 1; }
echo "PASS"
