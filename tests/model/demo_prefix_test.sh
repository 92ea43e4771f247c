#!/usr/bin/env bash
# The demo installation script: the prefix it lays out, the bytes of the files
# it writes, and what a second run keeps. Usage: demo_prefix_test.sh SOURCE_DIR
set -euo pipefail
src=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

crlf_cp1252() { # FILE: every line ends in CR LF, and the bytes are Windows-1252
  local f=$1
  [ "$(tr -cd '\n' < "$f" | wc -c)" -eq "$(grep -c $'\r$' "$f")" ] || fail "$f: a line without CR LF"
  [ -z "$(tr -d '\r\n' < "$f" | tr -cd '\r')" ] || fail "$f: a lone CR"
  iconv -f CP1252 -t UTF-8 "$f" > /dev/null || fail "$f: not Windows-1252"
  if iconv -f UTF-8 -t UTF-8 "$f" > /dev/null 2>&1 && LC_ALL=C grep -q $'\xc3' "$f"; then fail "$f: UTF-8 text"; fi
}

p=$work/prefix
"$src/scripts/make-demo-prefix.sh" "$p" > /dev/null
[ "$(readlink "$p/dosdevices/c:")" = ../drive_c ] || fail "dosdevices/c: does not link to ../drive_c"
ini=$p/drive_c/windows/zorel.ini
user=$p/drive_c/Zorel/Variables/Demo
crlf_cp1252 "$ini"
crlf_cp1252 "$user/Brimo.ini"
for want in '[Chemins]' 'Zorel=C:\Zorel' 'Variables=C:\Zorel\Variables' '[Users]' 'actuel=Demo' '[VZorel]'; do
  grep -qxF "$want"$'\r' "$ini" || fail "zorel.ini lacks $want"
done
for key in No_version_Zorel No_version_acad No_serie_acad; do
  grep -qE "^$key=.+"$'\r$' "$ini" || fail "zorel.ini lacks a value of $key"
done
grep -qxF $'[Brimo_Gene]\r' "$user/Brimo.ini" || fail "Brimo.ini lacks [Brimo_Gene]"
grep -qxF $'x_lang=FRA\r' "$user/Brimo.ini" || fail "Brimo.ini lacks x_lang=FRA"
[ "$(grep -c '^\[' "$user/Brimo.ini")" -ge 2 ] || fail "Brimo.ini has no other section"
for language in FRA ENG DEU ITA; do
  cmp -s "$src/share/legends/ZorelMsg_$language.txt" "$p/drive_c/Zorel/Lang/ZorelMsg_$language.txt" \
    || fail "ZorelMsg_$language.txt differs from the shipped file"
done

# A second run refreshes zorel.ini and the legends but keeps Brimo.ini and the
# files the program wrote; --reset starts the user anew.
printf 'x_ht_gc1=9\r\n' >> "$user/Brimo.ini"
printf 'changed\r\n' > "$ini"
printf 'changed\r\n' > "$p/drive_c/Zorel/Lang/ZorelMsg_ENG.txt"
touch "$user/Brimo_Gene.lsp"
"$src/scripts/make-demo-prefix.sh" "$p" > /dev/null
grep -qxF $'x_ht_gc1=9\r' "$user/Brimo.ini" || fail "a second run lost the user's Brimo.ini"
[ -e "$user/Brimo_Gene.lsp" ] || fail "a second run removed Brimo_Gene.lsp"
grep -qxF $'actuel=Demo\r' "$ini" || fail "a second run did not refresh zorel.ini"
cmp -s "$src/share/legends/ZorelMsg_ENG.txt" "$p/drive_c/Zorel/Lang/ZorelMsg_ENG.txt" || fail "a second run did not refresh the legends"
"$src/scripts/make-demo-prefix.sh" --reset "$p" > /dev/null
! grep -qF 'x_ht_gc1=9' "$user/Brimo.ini" || fail "--reset kept the old Brimo.ini"
[ ! -e "$user/Brimo_Gene.lsp" ] || fail "--reset kept Brimo_Gene.lsp"

# Installed layout: the script beside share/brimo/legends finds that copy.
mkdir -p "$work/usr/share/brimo/legends"
cp "$src/scripts/make-demo-prefix.sh" "$work/usr/share/brimo/"
cp "$src"/share/legends/ZorelMsg_*.txt "$work/usr/share/brimo/legends/"
out=$("$work/usr/share/brimo/make-demo-prefix.sh" "$work/prefix2")
grep -qF "from $work/usr/share/brimo/legends" <<< "$out" || fail "the installed script did not use the installed legends: $out"
[ -f "$work/prefix2/drive_c/Zorel/Lang/ZorelMsg_ITA.txt" ] || fail "no legends in the second prefix"

# Without legends to copy, the script says so and fails.
mkdir -p "$work/empty"
if "$src/scripts/make-demo-prefix.sh" --legends "$work/empty" "$work/prefix3" 2> /dev/null; then
  fail "a folder without legend files was accepted"
fi
echo "demo prefix: ok"
