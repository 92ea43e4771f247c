#!/usr/bin/env bash
# The real program under Xvfb, killed with SIGKILL at a random moment of the
# slope dialog's commit against a Brimo.ini of 10 MB, KILLS times (10 unless
# given; 100 for the full run):
#
#   tests/app/e2e_commit_kill.sh build/src/app/Brimo2010 100
#
# Each round starts the program (whose start finishes or undoes the commit
# that the last kill cut off), checks that Brimo_Talus.lsp and Brimo.ini are
# both as before that commit or both as it would have left them, byte for
# byte, with no staged file and no journal beside them, and that the history
# has one more entry, holding the old pair, when the pair is new, and none
# when it is old, with nothing else in Brimo.history/; then types a new
# value into Text1, presses Command1 and kills the program after a random
# delay within the time that one commit takes. Then brimo-settings restore
# (next to the program in the build, or SETTINGS) is killed likewise, KILLS / 2
# times: the pair is then as before the restore or as the history entry kept
# it, and the history agrees as above. After every round, each entry of
# Brimo.history/ is whole.
source "$(dirname "$0")/../e2e/lib.sh"
e2e_setup "$1"
kills=${2:-10}
settings=${3:-$(dirname "$1")/../settings/brimo-settings}

e2e_zorel 'C:\Zorel' 'C:\Zorel\Var' 'Jean'
legends=""
for n in $(seq 1 170); do legends+=$(printf '%04d Legende %d' "$n" "$n")$'\n'; done
e2e_write 'C:\Zorel\Lang\ZorelMsg_FRA.txt' "$legends"
folder=$(e2e_native 'C:\Zorel\Var\Jean')
lisp=$folder/Brimo_Talus.lsp ini=$folder/Brimo.ini
mkdir -p "$folder"
python3 - "$ini" <<'PY'
import sys
with open(sys.argv[1], 'wb') as f:
    f.write(b'[Brimo_Gene]\r\nx_lang=FRA\r\ncadre_usery=900\r\n')
    n = 0
    while f.tell() < 10 * 1024 * 1024:
        f.write(b'[Historique_%05d]\r\n' % n)
        f.write(b''.join(b'trace_%03d=C:\\Zorel\\Projets\\Chantier %05d\\plan_%03d.dwg\r\n' % (k, n, k) for k in range(100)))
        n += 1
PY

# The commit that round $1 makes: Text1 holds $1 + 100, the rest their defaults.
expected_pair() {
  python3 - "$lisp" "$ini" "$1" "$E2E_DIR" <<'PY'
import re, sys
lisp, ini, value, out = sys.argv[1], sys.argv[2], sys.argv[3], sys.argv[4]
new_lisp = re.sub(rb'\(setq QZ_tal_dh [^)]*\)', b'(setq QZ_tal_dh %s)' % value.encode(), open(lisp, 'rb').read())
new_ini = re.sub(rb'\r\nx_QZ_tal_dh=[^\r]*\r\n', b'\r\nx_QZ_tal_dh=%s\r\n' % value.encode(), open(ini, 'rb').read())
open(out + '/new.lsp', 'wb').write(new_lisp)
open(out + '/new.ini', 'wb').write(new_ini)
PY
  keep "$lisp" "$E2E_DIR/old.lsp"; keep "$ini" "$E2E_DIR/old.ini"
  last_before=$(last_entry)
}

# Starts the program and waits for its window: the start's recovery is done.
start_slope() {
  e2e_start VTalus
  win=$(e2e_wait_window 'Paramètre de recherche pied de talus')
  xdotool windowfocus --sync "$win"
  sleep 0.3
}

# Text1 gets $1, then Command1 is pressed (Check1, Check2, the option, Text1,
# then Text2, Text4, Text3, Text5, Text6 and Command1).
commit_value() {
  xdotool key --delay 40 Tab Tab Tab
  xdotool type --delay 30 -- "$1"
  xdotool key --delay 40 Tab Tab Tab Tab Tab Tab
  sleep 0.2
}

last_entry() { ls "$folder/Brimo.history" 2>/dev/null | grep -x '[0-9]*' | tail -n 1; }

# Every entry of the history is whole: its record reads, and each file it
# says existed is there; what a kill left of an entry is gone.
check_history() { # round
  python3 - "$folder/Brimo.history" "$1" <<'PY' || exit 1
import json, os, sys
history, round_ = sys.argv[1], sys.argv[2]
for name in sorted(os.listdir(history)) if os.path.isdir(history) else []:
    if not (name.isdigit() and len(name) == 6):
        sys.exit("FAIL: round %s: %s left in the history" % (round_, name))
    entry = json.load(open(os.path.join(history, name, "entry.json")))
    for f in entry["files"]:
        if f["existed"] and not os.path.isfile(os.path.join(history, name, f["name"])):
            sys.exit("FAIL: round %s: history entry %s lacks %s" % (round_, name, f["name"]))
PY
}

# keep FILE COPY: the copy has FILE's bytes, or is absent as FILE is.
keep() { rm -f "$2"; [ ! -e "$1" ] || cp "$1" "$2"; }
# same FILE COPY: FILE is as keep left COPY.
same() { if [ -e "$2" ]; then cmp -s "$1" "$2"; else [ ! -e "$1" ]; fi; }

# A new pair has its entry, which holds the old pair; an old pair has none.
check_entry() { # round new|old
  local last entry
  last=$(last_entry)
  if [ "$2" = old ]; then
    [ "$last" = "$last_before" ] || { echo "FAIL: round $1: entry $last of a commit that did not happen"; exit 1; }
    return
  fi
  [ "$((10#$last))" = "$((10#${last_before:-0} + 1))" ] || { echo "FAIL: round $1: the commit's entry is missing"; exit 1; }
  entry=$folder/Brimo.history/$last
  same "$entry/Brimo_Talus.lsp" "$E2E_DIR/old.lsp" && same "$entry/Brimo.ini" "$E2E_DIR/old.ini" ||
    { echo "FAIL: round $1: entry $last does not hold the pair before the commit"; exit 1; }
}

check_pair() { # round
  local left
  check_history "$1"
  left=$(ls -A "$folder" | grep -v -x -e Brimo.ini -e Brimo_Talus.lsp -e Brimo.history || true)
  [ -z "$left" ] || { echo "FAIL: round $1 left: $left"; exit 1; }
  if same "$lisp" "$E2E_DIR/old.lsp" && same "$ini" "$E2E_DIR/old.ini"; then old=$((old + 1)); check_entry "$1" old
  elif same "$lisp" "$E2E_DIR/new.lsp" && same "$ini" "$E2E_DIR/new.ini"; then new=$((new + 1)); check_entry "$1" new
  else
    echo "FAIL: round $1 left a mismatched pair"
    grep -a 'QZ_tal_dh' "$lisp" "$E2E_DIR/old.lsp" "$E2E_DIR/new.lsp"
    grep -a 'x_QZ_tal_dh' "$ini" "$E2E_DIR/old.ini" "$E2E_DIR/new.ini"
    exit 1
  fi
}

# One commit to its end: the section exists from then on, and it gives the
# time that a commit takes.
start_slope
commit_value 100
# The commit's span: from the key to the journal's removal after the moves.
span_ms=$(python3 -c '
import os, subprocess, sys, time
ini, journal = sys.argv[1], os.path.dirname(sys.argv[1]) + "/Brimo.commit-journal"
inode = os.stat(ini).st_ino
t0 = time.monotonic()
subprocess.run(["xdotool", "key", "space"], check=True)
while os.stat(ini).st_ino == inode or os.path.exists(journal):
    time.sleep(0.0002)
print(round((time.monotonic() - t0) * 1000))' "$ini")
status=0
wait "$E2E_PID" || status=$?
E2E_PID=
[ "$status" = 0 ] || { echo "FAIL: the first commit ended with $status"; cat "$E2E_DIR/out.log"; exit 1; }
grep -q 'x_QZ_tal_dh=100' "$ini" || { echo "FAIL: the first commit wrote nothing"; exit 1; }
echo "one commit of a 10 MB Brimo.ini: ${span_ms} ms from the key to the journal's removal"

old=0 new=0 finished=0 forward=0 back=0
for round in $(seq 1 "$kills"); do
  start_slope
  [ "$round" = 1 ] || check_pair $((round - 1))
  grep -q 'was finished' "$E2E_DIR/out.log" && forward=$((forward + 1))
  grep -q 'was undone\|were removed' "$E2E_DIR/out.log" && back=$((back + 1))
  expected_pair $((round + 100))
  commit_value $((round + 100))
  # The key, then SIGKILL at a random moment within 1.2 spans of a commit.
  # Prints "ended" when the program was gone (or a zombie) before the kill.
  outcome=$(python3 -c '
import os, random, signal, subprocess, sys, time
pid = sys.argv[1]
subprocess.run(["xdotool", "key", "space"], check=True)
time.sleep(random.uniform(0, 1.2 * int(sys.argv[2]) / 1000))
try:
    ended = open("/proc/%s/stat" % pid).read().split(") ")[1][0] == "Z"
    os.kill(int(pid), signal.SIGKILL)
except (FileNotFoundError, ProcessLookupError):
    ended = True
print("ended" if ended else "killed")' "$E2E_PID" "$span_ms")
  [ "$outcome" = ended ] && finished=$((finished + 1))
  wait "$E2E_PID" 2>/dev/null || true
  E2E_PID=
done
start_slope
check_pair "$kills"
grep -q 'was finished' "$E2E_DIR/out.log" && forward=$((forward + 1))
grep -q 'was undone\|were removed' "$E2E_DIR/out.log" && back=$((back + 1))
kill "$E2E_PID"; wait "$E2E_PID" 2>/dev/null || true; E2E_PID=

echo "$((old + new)) of $kills consistent: $old both old, $new both new;" \
     "$((kills - finished)) killed during the commit, $finished had ended;" \
     "the start finished $forward commits and undid $back"

# brimo-settings restore, killed at a random moment: "old" is the pair before
# it, "new" the pair that the last history entry kept, where a file that
# did not exist then is gone. Each restore is kept in turn, so the next one
# goes back again.
start=$(date +%s%N)
"$settings" restore --prefix "$WINEPREFIX" > /dev/null || { echo "FAIL: a whole restore"; exit 1; }
restore_ms=$((($(date +%s%N) - start) / 1000000))
echo "one restore of a 10 MB Brimo.ini: ${restore_ms} ms"
old=0 new=0 restores=$((kills / 2))
for round in $(seq 1 "$restores"); do
  last=$(last_entry) last_before=$(last_entry)
  keep "$lisp" "$E2E_DIR/old.lsp"; keep "$ini" "$E2E_DIR/old.ini"
  keep "$folder/Brimo.history/$last/Brimo_Talus.lsp" "$E2E_DIR/new.lsp"
  keep "$folder/Brimo.history/$last/Brimo.ini" "$E2E_DIR/new.ini"
  python3 -c '
import random, signal, subprocess, sys, time
p = subprocess.Popen(sys.argv[1:3] + ["--prefix", sys.argv[3]], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
time.sleep(random.uniform(0.5, 1.2) * int(sys.argv[4]) / 1000) # its commit comes last
p.send_signal(signal.SIGKILL)
p.wait()' "$settings" restore "$WINEPREFIX" "$restore_ms"
  "$settings" history --prefix "$WINEPREFIX" > /dev/null 2>&1 # recovers, as any start does
  check_pair "restore $round"
done
echo "$((old + new)) of $restores restores consistent: $old both old, $new both new"
echo "PASS"
