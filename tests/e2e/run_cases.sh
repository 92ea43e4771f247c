#!/usr/bin/env bash
# Runs one case of cases.tsv (its steps are described there) on the real
# program: run_cases.sh BIN CASE.
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/lib.sh"
e2e_setup "$1"
case=$2

fail() { echo "FAIL: $case: $*"; cat "$E2E_DIR/out.log" 2>/dev/null; exit 1; }
window_id() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n1; }

step_install() { cp -r "$here/installs/$1/." "$WINEPREFIX/drive_c/"; }
step_shell() { (cd "$WINEPREFIX/drive_c" && eval "$1") || fail "shell: $1"; }
# A process that holds the lock of FOLDER (under drive C) until the case ends.
step_hold() {
  python3 -c 'import fcntl, os, sys, time
f = open(sys.argv[1], "w"); fcntl.flock(f, fcntl.LOCK_EX); f.write("%d (holder)\n" % os.getpid()); f.flush(); time.sleep(120)' \
    "$WINEPREFIX/drive_c/$1/Brimo.ini.lock" &
  holder=$!
  trap 'kill $holder 2>/dev/null' EXIT
  until grep -q holder "$WINEPREFIX/drive_c/$1/Brimo.ini.lock" 2>/dev/null; do sleep 0.05; done
}
step_start() { eval "set -- $1"; e2e_start "$@"; }
step_window() { e2e_wait_window "$1" >/dev/null || fail "no window '$1'"; }
step_focus() { local id; id=$(e2e_wait_window "$1") || fail "no window '$1'"; xdotool windowfocus --sync "$id"; sleep 0.5; }
step_keys() { e2e_keys $1; }
step_type() { e2e_type "$1"; }
# A click of the left button at X Y of the window (its client area).
step_click() { xdotool mousemove --window "$(window_id "$1")" $2 click 1; sleep 0.3; }
step_gone() { sleep 0.5; [ -z "$(window_id "$1")" ] || fail "the window '$1' is open"; }
step_alive() { kill -0 "$E2E_PID" 2>/dev/null || fail "the program ended"; }
step_stop() { kill "$E2E_PID"; wait "$E2E_PID" 2>/dev/null || true; E2E_PID=; }
step_exit() { local s; s=$(e2e_wait_exit) || fail "the program did not end"; [ "$s" = "$1" ] || fail "exit status $s"; }
step_class() {
  local class; class=$(xprop -id "$(window_id "$1")" WM_CLASS) || fail "no window '$1'"
  [[ $class == *"$2"* ]] || fail "'$1' has $class"
}
step_said() { grep -Eq -- "$1" "$E2E_DIR/out.log" || fail "the program did not say /$1/"; }
step_same() { cmp "$here/expected/$1" "$(e2e_native "$2")" || fail "$2 is not expected/$1"; }
# The close box without a window manager: a WM_DELETE_WINDOW client message
# (an XClientMessageEvent laid out as longs, as on a 64-bit system).
step_close() {
  python3 - "$(window_id "$1")" <<'PY'
import ctypes, sys
x = ctypes.cdll.LoadLibrary("libX11.so.6")
x.XOpenDisplay.restype = ctypes.c_void_p
x.XInternAtom.argtypes, x.XInternAtom.restype = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int], ctypes.c_ulong
x.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long, ctypes.c_void_p]
x.XFlush.argtypes = [ctypes.c_void_p]
d, w = x.XOpenDisplay(None), int(sys.argv[1])
event = (ctypes.c_long * 24)(33, 0, 0, 0, w, x.XInternAtom(d, b"WM_PROTOCOLS", 0), 32, x.XInternAtom(d, b"WM_DELETE_WINDOW", 0))
x.XSendEvent(d, w, 0, 0, event)
x.XFlush(d)
PY
  sleep 0.3
}

steps=0
while IFS=$'\t' read -r -u 3 name step a b; do
  [ "$name" = "$case" ] || continue
  steps=$((steps + 1))
  "step_$step" "$a" "$b"
done 3< "$here/cases.tsv"
[ "$steps" -gt 0 ] || fail "no such case in cases.tsv"
echo "PASS: $case, $steps steps"
