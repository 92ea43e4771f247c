#!/usr/bin/env bash
# Two writers on one user's files, with the real programs:
#
#   tests/app/e2e_two_writers.sh build/src/app/Brimo2010 build/src/settings/brimo-settings 100
#
# 1. Two brimo-settings set loops side by side, ROUNDS each (15 unless
#    given): every run succeeds and both last values stand in both files.
# 2. A lock left by a killed process does not hold up the next writer.
# 3. brimo-settings sets the office name while the general dialog is open;
#    the user edits the layer name and presses OK: both changes stand.
# 4. Another process holds the lock: brimo-settings fails naming it, and the
#    dialog's OK reports it after the wait, changes nothing and stays open;
#    once the lock is free, OK again writes.
# 5. As an ordinary user (nobody), with a lock file of mode 0444 owned by
#    another user (root): the two loops of 1 again, every run succeeds; with
#    the lock file of mode 0000, set fails naming it and writes nothing.
#    Then the dialog, run as root, commits as the prefix's owner.
# 6. A second prefix whose Brimo.ini is a link to the first one's: a set loop
#    on each side by side, every run succeeds, both last values stand.
source "$(dirname "$0")/../e2e/lib.sh"
e2e_setup "$1"
settings=$2 rounds=${3:-15}

e2e_zorel 'C:\Zorel' 'C:\Zorel\Var' 'jo'
legends=""
for n in $(seq 1 174); do legends+="0000 FRA $n"$'\n'; done
e2e_write 'C:\Zorel\Lang\ZorelMsg_FRA.txt' "$legends"
folder=$(e2e_native 'C:\Zorel\Var\jo')
mkdir -p "$folder"
ini=$folder/Brimo.ini lisp=$folder/Brimo_Gene.lsp lock=$folder/Brimo.ini.lock

fail() { echo "FAIL: $*"; cat "$E2E_DIR"/*.log 2>/dev/null; exit 1; }
# KEY VALUE: the key in Brimo.ini and its quoted line in Brimo_Gene.lsp
expect_value() {
  grep -q -a -x "$1=$2"$'\r' "$ini" || fail "Brimo.ini: $1 is not $2"
  grep -q -a -F "(setq $1 \"$2\")" "$lisp" || fail "Brimo_Gene.lsp: $1 is not $2"
}
expect_nothing_left() {
  local left
  left=$(ls -A "$folder" | grep -v -x -e Brimo.ini -e Brimo_Gene.lsp -e Brimo.history || true)
  left+=$(ls -A "$folder/Brimo.history" 2>/dev/null | grep -v -x '[0-9]\{6\}' || true) # numbered entries only
  [ -z "$left" ] || fail "left beside the files: $left"
}
now_ms() { date +%s%3N; }
# A set that succeeds changes the files: status 1, or 0 once nothing changes.
set_ok() { local s=0; "$settings" set "$@" >/dev/null 2>>"$E2E_DIR/settings.log" || s=$?; [ "$s" -le 1 ]; }

# 1
writer() { # KEY VALUE-PREFIX [SET-OPTIONS...]
  local key=$1 base=$2; shift 2
  for i in $(seq 1 "$rounds"); do set_ok "$@" "$key=$base$i" || echo "$key round $i failed" >> "$E2E_DIR/failures.log"; done
}
# Two loops side by side, the second with SET-OPTIONS: every run succeeds.
two_writers() { # WHEN A B [SET-OPTIONS...]
  local when=$1 first=$2 second=$3; shift 3
  writer x_nom_bureau "$first" & a=$!
  writer x_tel_bureau "$second" "$@" & b=$!
  wait "$a" "$b"
  [ ! -s "$E2E_DIR/failures.log" ] || fail "$when: $(cat "$E2E_DIR/failures.log")"
  expect_value x_nom_bureau "$first$rounds"
}
start=$(now_ms)
two_writers "side by side" A B
expect_value x_tel_bureau "B$rounds"
expect_nothing_left
echo "two loops of $rounds set runs side by side: $(($(now_ms) - start)) ms, every run succeeded"

# 2
python3 -c '
import fcntl, os, sys
pid = os.fork()
if pid == 0:  # the holder, killed while it holds the lock
    f = open(sys.argv[1], "w"); fcntl.flock(f, fcntl.LOCK_EX)
    f.write("%d (ghost)\n" % os.getpid()); f.flush(); os.kill(os.getpid(), 9)
os.waitpid(pid, 0)' "$lock"
start=$(now_ms)
set_ok x_code_bureau=stale || fail "a lock left by a killed process stopped set"
[ $(($(now_ms) - start)) -lt 3000 ] || fail "a lock left by a killed process held set up"
expect_value x_code_bureau stale
expect_nothing_left

# 3
open_dialog() {
  e2e_start VGene
  window=$(e2e_wait_window "FRA 48")
  xdotool windowfocus --sync "$window"
  sleep 0.5
}
# The layer name typed into the open dialog, then OK, which ends it with 0.
layer_and_ok() { # LAYER
  e2e_keys Tab
  e2e_type "$1"
  e2e_keys Return
  status=$(e2e_wait_exit)
  [ "$status" = 0 ] || fail "the dialog's OK ended with $status"
  expect_value cadre_layer "$1"
}
open_dialog
set_ok x_nom_bureau=Admin || fail "set while the dialog is open"
layer_and_ok CALQUE9
expect_value x_nom_bureau Admin
expect_value x_tel_bureau "B$rounds"
expect_nothing_left

# 4
python3 -c '
import fcntl, os, sys, time
f = open(sys.argv[1], "w"); fcntl.flock(f, fcntl.LOCK_EX)
f.write("%d (holder)\n" % os.getpid()); f.flush()
time.sleep(60)' "$lock" & holder=$!
until grep -q holder "$lock" 2>/dev/null; do sleep 0.05; done
cp "$ini" "$E2E_DIR/old.ini"; cp "$lisp" "$E2E_DIR/old.lsp"
status=0
"$settings" set x_lang=ENG 2> "$E2E_DIR/busy.err" >/dev/null || status=$?
[ "$status" -ge 2 ] && grep -q "process $holder (holder) holds the lock" "$E2E_DIR/busy.err" ||
  fail "set beside a live holder: status $status, $(cat "$E2E_DIR/busy.err")"
open_dialog
# The start waited for the lock in vain, and says so.
box=$(e2e_wait_window "Brimo") || fail "no word at the start of the busy lock"
xdotool windowfocus --sync "$box"
e2e_keys Return
xdotool windowfocus --sync "$window"
sleep 0.3
e2e_keys Tab
e2e_type "CALQUE8"
e2e_keys Return
box=$(e2e_wait_window "Brimo") || fail "no report of the busy lock"
cmp -s "$ini" "$E2E_DIR/old.ini" && cmp -s "$lisp" "$E2E_DIR/old.lsp" || fail "a busy lock let OK write"
xdotool windowfocus --sync "$box"
e2e_keys Return
kill -0 "$E2E_PID" 2>/dev/null && e2e_visible_dialog=$(e2e_wait_window "FRA 48") || fail "the dialog did not stay open"
kill "$holder"; wait "$holder" 2>/dev/null || true
xdotool windowfocus --sync "$e2e_visible_dialog"
sleep 0.3
e2e_keys Return
status=$(e2e_wait_exit)
[ "$status" = 0 ] || fail "OK once the lock was free ended with $status"
expect_value cadre_layer CALQUE8
expect_nothing_left

# 5
if [ "$(id -u)" = 0 ]; then
  chmod 755 "$E2E_DIR"
  chown -R nobody:nogroup "$WINEPREFIX"
  install -m 0444 /dev/null "$lock"
  settings_as_user() { runuser -u nobody -- "$settings_real" "$@"; }
  settings_real=$settings settings=settings_as_user
  two_writers "beside a lock file of mode 0444" C D
  expect_value x_tel_bureau "D$rounds"
  expect_nothing_left
  install -m 0000 /dev/null "$lock"
  cp "$ini" "$E2E_DIR/old.ini"
  status=0
  "$settings" set x_lang=ITA 2> "$E2E_DIR/unusable.err" >/dev/null || status=$?
  [ "$status" = 3 ] && grep -q "/Zorel/Var/jo/Brimo.ini.lock cannot be used (you have no right to do this here)" "$E2E_DIR/unusable.err" ||
    fail "set beside a lock file it cannot open: status $status, $(cat "$E2E_DIR/unusable.err")"
  cmp -s "$ini" "$E2E_DIR/old.ini" || fail "set wrote without the lock"
  rm "$lock"
  settings=$settings_real
  open_dialog
  layer_and_ok CALQUE7
  owners=$(stat -c %U "$ini" "$lisp" "$folder/Brimo.history" "$folder"/Brimo.history/* | sort -u)
  [ "$owners" = nobody ] || fail "the dialog run as root left files owned by $owners"
  echo "as an ordinary user beside another user's lock file: every run succeeded"
fi

# 6
second=$E2E_DIR/second
mkdir -p "$second/drive_c/windows" "$second/dosdevices"
ln -s ../drive_c "$second/dosdevices/c:"
cp "$WINEPREFIX/drive_c/windows/zorel.ini" "$second/drive_c/windows/"
folder2=$second/drive_c/Zorel/Var/jo
mkdir -p "$folder2"
ln -s "$ini" "$folder2/Brimo.ini"
two_writers "a Brimo.ini shared through a link" E F --prefix "$second"
grep -q -a -x "x_tel_bureau=F$rounds"$'\r' "$ini" || fail "Brimo.ini: x_tel_bureau is not F$rounds"
grep -q -a -F "(setq x_tel_bureau \"F$rounds\")" "$folder2/Brimo_Gene.lsp" || fail "the second Brimo_Gene.lsp: x_tel_bureau is not F$rounds"
[ -L "$folder2/Brimo.ini" ] || fail "the link was replaced"
expect_nothing_left
left=$(ls -A "$folder2" | grep -v -x -e Brimo.ini -e Brimo_Gene.lsp -e Brimo.history || true)
[ -z "$left" ] || fail "left beside the second prefix's files: $left"
echo "two prefixes sharing Brimo.ini through a link: every run succeeded"
echo "PASS"
