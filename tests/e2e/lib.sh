# Shared steps of the end-to-end tests: a scratch Wine-style prefix, a private
# Xvfb display, the real binary, xdotool for the keyboard.
# Source it; call e2e_setup first. Exit code 77 marks a skipped test.

set -euo pipefail

e2e_setup() {
  BRIMO_BIN=$1
  for tool in Xvfb xdotool xwininfo; do
    command -v "$tool" >/dev/null || { echo "SKIP: $tool is not installed"; exit 77; }
  done
  E2E_DIR=$(mktemp -d)
  trap e2e_teardown EXIT
  export WINEPREFIX=$E2E_DIR/prefix
  # No office standard but the one a case writes there.
  export BRIMO_STANDARD=$E2E_DIR/standard.ini
  mkdir -p "$WINEPREFIX/drive_c/windows" "$WINEPREFIX/dosdevices"
  ln -s ../drive_c "$WINEPREFIX/dosdevices/c:"
  # A display of our own: a free number tried in random order, kept only
  # when our Xvfb holds its lock, so that tests run side by side (and by
  # other users of this machine) never share a display.
  local n tries display=
  for n in $(shuf -i 100-999 -n 40); do
    if [ -e "/tmp/.X$n-lock" ] || [ -e "/tmp/.X11-unix/X$n" ]; then continue; fi
    Xvfb ":$n" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
    E2E_XVFB=$!
    tries=0
    until DISPLAY=":$n" xwininfo -root >/dev/null 2>&1; do
      sleep 0.05; tries=$((tries + 1))
      if ! kill -0 "$E2E_XVFB" 2>/dev/null || [ $tries -ge 200 ]; then break; fi
    done
    if kill -0 "$E2E_XVFB" 2>/dev/null && [ "$(tr -d ' ' < "/tmp/.X$n-lock" 2>/dev/null)" = "$E2E_XVFB" ]; then
      display=":$n"; break
    fi
    kill "$E2E_XVFB" 2>/dev/null || true
    E2E_XVFB=
  done
  [ -n "$display" ] || { echo "FAIL: no X display could be started"; exit 1; }
  export DISPLAY=$display
  unset QT_QPA_PLATFORM
  export LC_ALL=C.UTF-8
}

e2e_teardown() {
  [ -n "${E2E_PID:-}" ] && kill "$E2E_PID" 2>/dev/null || true
  [ -n "${E2E_XVFB:-}" ] && kill "$E2E_XVFB" 2>/dev/null || true
  rm -rf "$E2E_DIR"
}

# e2e_write WINPATH CONTENT: writes a file of the prefix (C:\... paths), CR LF
# line ends added to each \n, Windows-1252.
e2e_native() { local p=${1#?:}; p=${p//\\//}; echo "$WINEPREFIX/drive_c$p"; }
e2e_write() {
  local f; f=$(e2e_native "$1"); mkdir -p "$(dirname "$f")"
  printf '%s' "$2" | sed 's/$/\r/' | iconv -f UTF-8 -t CP1252 > "$f"
}

# e2e_zorel ZOREL VARIABLES ACTUEL: a zorel.ini
e2e_zorel() {
  e2e_write 'C:\windows\zorel.ini' "[Chemins]
Zorel=$1
Variables=$2
[Users]
actuel=$3"
}

# e2e_start WORD...: starts the program in the background
e2e_start() { "$BRIMO_BIN" "$@" > "$E2E_DIR/out.log" 2>&1 & E2E_PID=$!; }

# e2e_wait_window TITLE: waits for a visible window of that title, prints its id
e2e_wait_window() {
  local id
  id=$(timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" | head -n1) || { echo "FAIL: no window '$1'" >&2; return 1; }
  echo "$id"
}

# e2e_wait_exit: waits for the program to end, prints its status
e2e_wait_exit() {
  local status=0
  for _ in $(seq 1 100); do kill -0 "$E2E_PID" 2>/dev/null || break; sleep 0.1; done
  if kill -0 "$E2E_PID" 2>/dev/null; then echo "FAIL: the program did not end" >&2; return 1; fi
  wait "$E2E_PID" || status=$?
  E2E_PID=
  echo "$status"
}

# e2e_keys KEY...: sends keys to the focused window
e2e_keys() { xdotool key --delay 60 "$@"; sleep 0.3; }
e2e_type() { xdotool type --delay 40 -- "$1"; sleep 0.3; }
