#!/bin/bash
# Hostile inputs: each row of hostile_inputs.tsv builds one input in a scratch
# prefix, runs brimo-settings under a time limit (and the dialog, where the
# row asks), then checks the status, the message, the files of the prefix and
# that nothing was written outside it or left behind.
# Usage: hostile_inputs.sh BRIMO-SETTINGS BRIMO2010
set -u
SETTINGS=$1 DIALOG=$2 HERE=$(cd "$(dirname "$0")" && pwd)
T=$(mktemp -d) && chmod 755 "$T"
SU=
trap 'rm -rf "$T"; [ -n "$SU" ] && userdel "$SU"' EXIT
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen

S() { timeout 10 "$SETTINGS" "$@"; }
zorel() { printf '[Chemins]\r\nZorel=C:\\Zorel\r\nVariables=%s\r\n[Users]\r\nactuel=%s\r\n' "$1" "$2" > "$C/windows/zorel.ini"; }
snapshot() { (cd "$P" && find . -printf '%p %y %s %U %m\n' | sort && find . -type f -size -10M -exec md5sum {} + | sort); }
new_prefix() {
  rm -rf "$T/p" "$T/outside" && mkdir -p "$T/outside"
  P=$T/p C=$T/p/drive_c U=$T/p/drive_c/Zorel/Var/Jean
  mkdir -p "$C/windows" "$C/Zorel/Lang" "$U" "$P/dosdevices" && ln -s ../drive_c "$P/dosdevices/c:"
  cp "$HERE/../../share/legends/ZorelMsg_FRA.txt" "$C/Zorel/Lang/"
  export WINEPREFIX=$P && zorel 'C:\Zorel\Var' Jean && S set x_nom_bureau=Start >/dev/null
}
# A user of our own for the rows run as root on another user's prefix.
scratch_user() {
  [ -n "$SU" ] && return 0
  [ "$(id -u)" = 0 ] || { why="not run as root"; return 1; }
  useradd -M -N -s /usr/sbin/nologin "brimo-t$$" 2>/dev/null || { why="useradd failed"; return 1; }
  SU=brimo-t$$
}

failed=0
while IFS=$'\t' read -r name needs setup cmd status pattern dialog check; do
  [[ -z $name || $name == \#* ]] && continue
  if [ "$needs" = root ] && ! scratch_user; then echo "SKIP $name: $why"; continue; fi
  new_prefix; eval "$setup"; before=$(snapshot)
  eval "$cmd" >"$T/out" 2>"$T/err"; rc=$?
  bad=()
  [ "$rc" = "$status" ] || bad+=("status $rc, not $status")
  [ "$pattern" = - ] || grep -Eq -- "$pattern" "$T/err" || bad+=("stderr lacks /$pattern/")
  [ -z "$(find "$T/outside" -type f)" ] || bad+=("wrote outside the prefix")
  [ -z "$(find "$P" -name '*.brimo-new' -o -name '*.commit-journal' -o -name '*\\*')" ] || bad+=("left files behind")
  if [ "$check" = same ]; then [ "$(snapshot)" = "$before" ] || bad+=("the prefix changed")
  else eval "$check" || bad+=("check failed: $check"); fi
  if [ "$dialog" = y ]; then
    # The dialog must reach its event loop (waiting in poll), not hang in a
    # read; a kernel that hides wchan shows 0, and the message must then do.
    "$DIALOG" VGene 2>"$T/derr" & pid=$!
    sleep 2
    if kill -0 $pid 2>/dev/null; then
      wchan=$(cat /proc/$pid/wchan); kill $pid
      [[ $wchan == *poll* || $wchan == 0 ]] || bad+=("the dialog waits in $wchan")
    else bad+=("the dialog ended"); fi
    wait $pid 2>/dev/null
    grep -Eq -- "$pattern" "$T/derr" || bad+=("the dialog's stderr lacks /$pattern/")
  fi
  if [ ${#bad[@]} = 0 ]; then echo "ok   $name"
  else failed=1; echo "FAIL $name: ${bad[*]}"; sed 's/^/     | /' "$T/err"; fi
done < "$HERE/hostile_inputs.tsv"
exit $failed
