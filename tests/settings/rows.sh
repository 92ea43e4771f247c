#!/bin/bash
# brimo-settings row by row: each row of TABLE builds one case in a scratch
# prefix (user Jean, whose folder is $U, after a first `set`), runs its
# command under a time limit (and the dialog, where the row asks), then checks
# the status, the message, the row's own check and that nothing was written
# outside the prefix or left behind. Checks: `same` (the prefix byte for
# byte), `golden NAME [DIR]` (the user's files are those of
# tests/golden/settings/LOCALE/NAME, or of any-locale/NAME for the files that
# every locale shares), `said NAME` (stdout is that golden file, the
# scratch folder read as T and times blanked), `is TEXT` (stdout) or any bash.
# Usage: rows.sh TABLE BRIMO-SETTINGS BRIMO2010 [LOCALE of brimo-settings]
set -u
TABLE=$1 SETTINGS=$2 DIALOG=$3 LOCALE=${4:-C.UTF-8} HERE=$(cd "$(dirname "$0")" && pwd)
G=$HERE/../golden/settings/${LOCALE%%.*} A=$HERE/../golden/settings/any-locale T=$(mktemp -d) && chmod 755 "$T"
SU=
trap 'rm -rf "$T"; [ -n "$SU" ] && userdel "$SU"' EXIT
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen PATH=$(dirname "$SETTINGS"):$PATH
# No office standard but the one a row writes there.
export BRIMO_STANDARD=$T/standard.ini

# The locale's numbers and money, with messages in English (LANG=C) unless
# a row sets MESSAGES (a locale, as LC_MESSAGES) to hear brimo-settings' own words.
S() { env -u LC_ALL LANG=C.UTF-8 LC_NUMERIC=$LOCALE LC_MONETARY=$LOCALE LC_MESSAGES=${MESSAGES:-C.UTF-8} timeout 10 "$SETTINGS" "$@"; }
zorel() { printf '[Chemins]\r\nZorel=C:\\Zorel\r\nVariables=%s\r\n[Users]\r\nactuel=%s\r\n' "$1" "$2" > "${3:-$C}/windows/zorel.ini"; }
# A prefix at $1 whose user is Jean.
prefix() {
  mkdir -p "$1/drive_c/windows" "$1/drive_c/Zorel/Lang" "$1/drive_c/Zorel/Var/Jean" "$1/dosdevices"
  ln -s ../drive_c "$1/dosdevices/c:" && cp "$HERE/../../share/legends/ZorelMsg_FRA.txt" "$1/drive_c/Zorel/Lang/"
  zorel 'C:\Zorel\Var' Jean "$1/drive_c"
}
snapshot() { (cd "$P" && find . -printf '%p %y %s %U %m\n' | sort && find . -type f -size -10M -exec md5sum {} + | sort); }
same() { [ "$(snapshot)" = "$before" ]; }
# The golden file of the locale, else the one that every locale shares.
expected() { if [ -e "$G/$1" ]; then echo "$G/$1"; else echo "$A/$1"; fi; }
golden() {
  local names; names=$( (ls "$G/$1" 2>/dev/null; ls "$A/$1" 2>/dev/null) | sort)
  [ "$names" = "$(cd "${2:-$U}" && find . -maxdepth 1 -type f -printf '%P\n' | sort)" ] || return 1
  for f in $names; do cmp "$(expected "$1/$f")" "${2:-$U}/$f" || return 1; done
}
# BRIMO_UPDATE_GOLDEN=1 writes the golden file anew (then read the diff).
said() {
  local out; out=$(sed -e "s|$T|T|g" -e 's/"when": "[^"]*"/"when": ""/' "$T/out"; echo x)
  [ "${BRIMO_UPDATE_GOLDEN:-}" = 1 ] && printf '%s' "${out%x}" > "$(expected "$1")"
  printf '%s' "${out%x}" | cmp - "$(expected "$1")"
}
is() { [ "$(<"$T/out")" = "$1" ]; }
# The words the bash completion offers for a command line typed so far, sorted.
complete_line() {
  read -ra COMP_WORDS <<< "${1//=/ = }"; [[ $1 == *' ' ]] && COMP_WORDS+=("")
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1)) COMP_LINE=$1 COMP_POINT=${#1} COMPREPLY=()
  _brimo_settings; printf '%s\n' "${COMPREPLY[@]}" | sort | xargs
}
# Each row's need: root (a user of our own for the rows run as root on
# another user's prefix) or the bash completion.
ready() {
  case $1 in
  root) [ -n "$SU" ] && return 0; [ "$(id -u)" = 0 ] || { why="not run as root"; return 1; }
    useradd -M -N -s /usr/sbin/nologin "brimo-t$$" 2>/dev/null || { why="useradd failed"; return 1; }
    SU=brimo-t$$ ;;
  completion) type _brimo_settings >/dev/null 2>&1 && return 0
    [ -f /usr/share/bash-completion/bash_completion ] || { why="bash-completion is not installed"; return 1; }
    source /usr/share/bash-completion/bash_completion && source "$HERE/../../share/completions/brimo-settings"
    compopt() { :; } ;; # only a running completion may call it
  esac
}

failed=0
while IFS=$'\t' read -r name needs setup cmd status pattern dialog check; do
  [[ -z $name || $name == \#* ]] && continue
  if ! ready "$needs"; then echo "SKIP $name: $why"; continue; fi
  # Setup "+" goes on in the prefix that the row before left.
  if [ "${setup:0:1}" != + ]; then
    rm -rf "$T"/* && mkdir "$T/outside" && P=$T/p C=$T/p/drive_c U=$T/p/drive_c/Zorel/Var/Jean
    prefix "$P" && export WINEPREFIX=$P && S set x_nom_bureau=Start >/dev/null
  fi
  eval "${setup#+}"; before=$(snapshot)
  eval "$cmd" >"$T/out" 2>"$T/err"; rc=$?
  bad=()
  [ "$rc" = "$status" ] || bad+=("status $rc, not $status")
  [ "$pattern" = - ] || grep -Eq -- "$pattern" "$T/err" || bad+=("stderr lacks /$pattern/")
  [ -z "$(find "$T/outside" -type f)" ] || bad+=("wrote outside the prefix")
  [ -z "$(find "$P" -name '*.brimo-new' -o -name '*.commit-journal' -o -name '*\\*')" ] || bad+=("left files behind")
  eval "$check" >"$T/check" 2>&1 || bad+=("check failed: $check")
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
  else failed=1; echo "FAIL $name: ${bad[*]}"; sed 's/^/     | /' "$T/err" "$T/check"; fi
done < "$HERE/$TABLE"
exit $failed
