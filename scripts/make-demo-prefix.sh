#!/usr/bin/env bash
# Makes a demo installation of the Zorel add-on in a Wine-style prefix, for
# Brimo2010 to run against (WINEPREFIX=DIR Brimo2010 VGene):
#
#   DIR/drive_c/windows/zorel.ini              where the add-on and its files lie
#   DIR/drive_c/Zorel/Lang/ZorelMsg_*.txt      the four language files
#   DIR/drive_c/Zorel/Variables/Demo/Brimo.ini the settings of the user "Demo"
#   DIR/dosdevices/c: -> ../drive_c
#
# Running it again refreshes zorel.ini and the language files but keeps an
# existing Brimo.ini, so that what the program wrote there survives. --reset
# writes Brimo.ini anew and removes the Lisp files the program wrote.
#
# The language files come from --legends DIR, else from the source tree
# (share/legends beside scripts/), else from an installed copy
# (share/brimo/legends).
set -euo pipefail

usage() {
  echo "usage: $0 [--reset] [--legends FOLDER] DIR" >&2
  exit 2
}

reset=0
legends=
prefix=
while (($#)); do
  case $1 in
    --reset) reset=1 ;;
    --legends) (($# >= 2)) || usage; legends=$2; shift ;;
    -h|--help) usage ;;
    -*) usage ;;
    *) [ -z "$prefix" ] || usage; prefix=$1 ;;
  esac
  shift
done
[ -n "$prefix" ] || usage

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
if [ -z "$legends" ]; then
  for candidate in "$here/../share/legends" "$here/legends" "$here/../share/brimo/legends" \
                   /usr/local/share/brimo/legends /usr/share/brimo/legends; do
    if [ -f "$candidate/ZorelMsg_FRA.txt" ]; then legends=$candidate; break; fi
  done
fi
if [ -z "$legends" ] || [ ! -f "$legends/ZorelMsg_FRA.txt" ]; then
  echo "$0: no language files found (give their folder with --legends)" >&2
  exit 1
fi
legends=$(cd "$legends" && pwd)

# write_text FILE: standard input (UTF-8, LF) to FILE as Windows-1252 with
# CR LF line ends, replacing the file in one step.
write_text() {
  local tmp="$1.tmp.$$"
  sed 's/$/\r/' | iconv -f UTF-8 -t CP1252 > "$tmp"
  mv -f "$tmp" "$1"
}

mkdir -p "$prefix/drive_c/windows" "$prefix/dosdevices"
prefix=$(cd "$prefix" && pwd)
[ -e "$prefix/dosdevices/c:" ] || ln -sfn ../drive_c "$prefix/dosdevices/c:"

zorel=$prefix/drive_c/Zorel
user=$zorel/Variables/Demo
mkdir -p "$zorel/Lang" "$user"

write_text "$prefix/drive_c/windows/zorel.ini" <<'EOF'
[Chemins]
Zorel=C:\Zorel
Variables=C:\Zorel\Variables
[Users]
actuel=Demo
[VZorel]
No_version_Zorel=2010.2
No_version_acad=AutoCAD 2010
No_serie_acad=400-12345678
EOF

for language in FRA ENG DEU ITA; do
  cp -f "$legends/ZorelMsg_$language.txt" "$zorel/Lang/ZorelMsg_$language.txt"
done

if ((reset)); then
  rm -f "$user/Brimo.ini" "$user/Brimo_Gene.lsp" "$user/Brimo_Talus.lsp"
fi
if [ -e "$user/Brimo.ini" ]; then
  brimo_ini_state="kept"
else
  brimo_ini_state="written"
  write_text "$user/Brimo.ini" <<'EOF'
[Brimo_Gene]
x_nom_bureau=Bureau d'études Démo SA
x_adresse_bureau=Rue du Lac 12
x_code_bureau=1800
x_lieu_bureau=Vevey
x_tel_bureau=021 555 01 23
x_fax_bureau=021 555 01 24
x_ht_gc10=12
x_lang=FRA

[Projet]
nom=Pont de la Veveyse
remarque=Section d'un autre module : l'éditeur la laisse telle quelle.
EOF
fi

echo "Demo prefix: $prefix"
echo "  zorel.ini:      $prefix/drive_c/windows/zorel.ini"
echo "  language files: $zorel/Lang (from $legends)"
echo "  Brimo.ini:      $user/Brimo.ini ($brimo_ini_state)"
