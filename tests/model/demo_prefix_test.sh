#!/usr/bin/env bash
# The demo installation script: the prefix it lays out, the bytes of the files
# it writes (tests/golden/demo-prefix), and what a second run keeps.
# Usage: demo_prefix_test.sh SOURCE_DIR
set -euo pipefail
src=$1 golden=$1/tests/golden/demo-prefix
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }
make_prefix() { "$src/scripts/make-demo-prefix.sh" "$@" > /dev/null; }

p=$work/prefix ini=$work/prefix/drive_c/windows/zorel.ini user=$work/prefix/drive_c/Zorel/Variables/Demo
same_as_shipped() { # the installation's files, byte for byte
  cmp "$golden/zorel.ini" "$ini" && cmp "$golden/Brimo.ini" "$user/Brimo.ini" || fail "$1"
  for language in FRA ENG DEU ITA; do
    cmp "$src/share/legends/ZorelMsg_$language.txt" "$p/drive_c/Zorel/Lang/ZorelMsg_$language.txt" || fail "$1"
  done
}
make_prefix "$p"
[ "$(readlink "$p/dosdevices/c:")" = ../drive_c ] || fail "dosdevices/c: does not link to ../drive_c"
same_as_shipped "a first run"

# A second run refreshes zorel.ini and the legends but keeps Brimo.ini and the
# files the program wrote; --reset starts the user anew.
printf 'x_ht_gc1=9\r\n' >> "$user/Brimo.ini"
printf 'changed\r\n' | tee "$ini" > "$p/drive_c/Zorel/Lang/ZorelMsg_ENG.txt"
touch "$user/Brimo_Gene.lsp"
make_prefix "$p"
grep -qxF $'x_ht_gc1=9\r' "$user/Brimo.ini" || fail "a second run lost the user's Brimo.ini"
[ -e "$user/Brimo_Gene.lsp" ] || fail "a second run removed Brimo_Gene.lsp"
make_prefix --reset "$p"
[ ! -e "$user/Brimo_Gene.lsp" ] || fail "--reset kept Brimo_Gene.lsp"
same_as_shipped "a run with --reset"

# Installed layout: the script beside share/brimo/legends finds that copy.
mkdir -p "$work/usr/share/brimo/legends"
cp "$src/scripts/make-demo-prefix.sh" "$work/usr/share/brimo/"
cp "$src"/share/legends/ZorelMsg_*.txt "$work/usr/share/brimo/legends/"
out=$("$work/usr/share/brimo/make-demo-prefix.sh" "$work/prefix2")
grep -qF "from $work/usr/share/brimo/legends" <<< "$out" || fail "the installed script did not use the installed legends: $out"

# Without legends to copy, the script says so and fails.
mkdir -p "$work/empty"
if make_prefix --legends "$work/empty" "$work/prefix3" 2> /dev/null; then
  fail "a folder without legend files was accepted"
fi
echo "demo prefix: ok"
