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

expected_lisp=$(cat <<'LISP'
(setq cadre_usery 860) ;Largeur du cadre users
(setq cadre_userx 1600) ;Longueur du cadre users
(setq cadre_couleur 2) ;Couleur du double cadre
(setq cadre_decal 5) ;Decalage en mm du double cadre
(setq cadre_layer "CALQUE9") ;Nom du plan pour le cadre
(setq x_def_ounit 1) ;L'unité par défaut de l'espace objet est le cm
(setq x_def_punit 0) ;L'unité par défaut de l'espace papier est le mm
(setq x_incli 0) ;Degrés d'inclinaison des styles
(setq x_compress 0.7) ;Compression des styles de texte
(setq x_ht_gc1 2.25) ;Hauteur du style GC1
(setq x_ht_gc2 2.5) ;Hauteur du style GC2
(setq x_ht_gc3 3.5) ;Hauteur du style GC3
(setq x_ht_gc4 4) ;Hauteur du style GC4
(setq x_ht_gc5 5) ;Hauteur du style GC5
(setq x_ht_gc7 7) ;Hauteur du style GC7
(setq x_ht_gc10 10) ;Hauteur du style GC10
(setq x_ht_gc15 15) ;Hauteur du style GC15
(setq x_ht_gcc 3.5) ;Hauteur du style GCC
(setq x_color_gcc 4) ;Couleur du style GCC
(setq x_nom_bureau "Nom du bureau") ;Nom de votre bureau
(setq x_adresse_bureau "Adresse du bureau") ;Adresse de votre bureau
(setq x_code_bureau "N postal") ;No postal de votre bureau
(setq x_lieu_bureau "Ville") ;Nom de la ville pour votre bureau
(setq x_tel_bureau "No de téléphone") ;No de tél de votre bureau
(setq x_fax_bureau "No de fax") ;No de fax de votre bureau
(setq x_style_txt1 "ROMANS") ;Polices pour le style gc1
(setq x_style_txt2 "ROMANS") ;Polices pour le style gc2
(setq x_style_txt3 "ROMANS") ;Polices pour le style gc3
(setq x_style_txt4 "ROMANS") ;Polices pour le style gc4
(setq x_style_txt5 "ROMANS") ;Polices pour le style gc5
(setq x_style_txt7 "ROMANS") ;Polices pour le style gc7
(setq x_style_txt10 "ROMANS") ;Polices pour le style gc10
(setq x_style_txt15 "ROMANS") ;Polices pour le style gc15
(setq x_style_cot "ROMANS") ;Polices pour le style cote
(setq x_color_zm10 1) ;Couleur par défaut Zmult 1:10
(setq x_color_zm20 2) ;Couleur par défaut Zmult 1:20
(setq x_color_zm50 3) ;Couleur par défaut Zmult 1:50
(setq x_color_zm100 4) ;Couleur par défaut Zmult 1:100
(setq x_color_zm200 5) ;Couleur par défaut Zmult 1:200
(setq x_color_zm500 6) ;Couleur par défaut Zmult 1:500
(setq x_chttt 2) ;Commande Autocad aprés choix du style - Texte dynamique
(setq x_lang "FRA"); Langue français_
(setq affilogoKVO 1) ;Affichage du logo Zorel lors du chagement des modules - Actif
(setq affiprofil 1) ;Affichage du profil dessin - Actif
(setq x_chtlay 0) ;Layers à utiliser après l'appel de la commande - Layers GC..
(setq path_win1 "C:\\WINNT\\EXPLORER.EXE") ;Emplacement de l'explorateur Windows
(setq path_win2 "C:\\WINNT\\SYSTEM32\\CALC.EXE") ;Emplacement de la machine à calculer
(setq path_win3 "C:\\PROGRAM FILES\\WINDOWS NT\\ACCESSOIRES\\WORDPAD.EXE") ;Emplacement de l'éditeur WordPad
(setq path_win4 "C:\\WINNT\\NOTEPAD.EXE") ;Emplacement du bloc-notes
(setq path_win6 "C:\\PROGRAM FILES\\ADOBE\\ACROBAT\\READER.EXE") ;Emplacement d'acrobat reader
(setq path_win5 "") ;Emplacement d'un programme personnel
LISP
)
expected_ini=$(cat <<'INI'
[Brimo_Gene]
x_chtxt=4
x_ht_gc1=2.25
cadre_usery=860
cadre_userx=1600
cadre_couleur=2
cadre_decal=5
cadre_layer=CALQUE9
x_def_ounit=1
x_def_punit=0
x_incli=0
x_compress=0.7
x_ht_gc2=2.5
x_ht_gc3=3.5
x_ht_gc4=4
x_ht_gc5=5
x_ht_gc7=7
x_ht_gc10=10
x_ht_gc15=15
x_ht_gcc=3.5
x_color_gcc=4
x_nom_bureau=Nom du bureau
x_adresse_bureau=Adresse du bureau
x_code_bureau=N postal
x_lieu_bureau=Ville
x_tel_bureau=No de téléphone
x_fax_bureau=No de fax
x_style_txt1=ROMANS
x_style_txt2=ROMANS
x_style_txt3=ROMANS
x_style_txt4=ROMANS
x_style_txt5=ROMANS
x_style_txt7=ROMANS
x_style_txt10=ROMANS
x_style_txt15=ROMANS
x_style_cot=ROMANS
x_color_zm10=1
x_color_zm20=2
x_color_zm50=3
x_color_zm100=4
x_color_zm200=5
x_color_zm500=6
x_chttt=2
x_lang=FRA
affilogoKVO=1
affiprofil=1
x_chtlay=0
path_win1=C:\WINNT\EXPLORER.EXE
path_win2=C:\WINNT\SYSTEM32\CALC.EXE
path_win3=C:\PROGRAM FILES\WINDOWS NT\ACCESSOIRES\WORDPAD.EXE
path_win4=C:\WINNT\NOTEPAD.EXE
path_win6=C:\PROGRAM FILES\ADOBE\ACROBAT\READER.EXE
path_win5=
INI
)
# Windows-1252, CR LF after every line; the "_" marks the blank that ends the FRA line.
printf '%s\n' "$expected_lisp" | sed 's/_$/ /; s/$/\r/' | iconv -f UTF-8 -t CP1252 > "$E2E_DIR/expected.lsp"
printf '%s\n' "$expected_ini" | sed 's/$/\r/' | iconv -f UTF-8 -t CP1252 > "$E2E_DIR/expected.ini"

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
printf '%s\n' "$expected_lisp" | sed 's/"FRA"); Langue français_$/"DEU") ; Langue allemand/; s/$/\r/' |
  iconv -f UTF-8 -t CP1252 > "$E2E_DIR/expected.lsp"
printf '%s\n' "$expected_ini" | sed 's/^x_lang=FRA$/x_lang=DEU/; s/$/\r/' | iconv -f UTF-8 -t CP1252 > "$E2E_DIR/expected.ini"
grep -q 'Langue allemand' "$E2E_DIR/expected.lsp" || { echo "FAIL: no German line expected"; exit 1; }
compare_files "German"
echo "PASS"
