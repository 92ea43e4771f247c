# Sourced by the scripts that show the real program: a scratch folder in
# $work and an Xvfb display of their own (a free number from FIRST to
# FIRST + 49) in DISPLAY, both gone at exit, with the program ($app) if
# still running.
#   source scripts/private-display.sh FIRST
work=$(mktemp -d)
cleanup() {
  [ -n "${app:-}" ] && kill "$app" 2>/dev/null || true
  [ -n "${xvfb:-}" ] && kill "$xvfb" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

for n in $(seq "$1" $(($1 + 49))); do
  [ -e /tmp/.X$n-lock ] && continue
  Xvfb ":$n" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
  xvfb=$!
  export DISPLAY=":$n"
  for _ in $(seq 1 50); do xwininfo -root >/dev/null 2>&1 && break; sleep 0.1; done
  xwininfo -root >/dev/null 2>&1 && break
done
unset QT_QPA_PLATFORM
export LC_ALL=C.UTF-8
