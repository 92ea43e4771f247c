#!/usr/bin/env bash
# Builds Brimo2010 and runs it against a demo installation in demo/ of the
# project. Arguments go to the program: none for the module chooser, or
# VGene, VTalus, VAbout. Without a display the program runs under Xvfb.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(pwd)

scripts/install-deps.sh
cmake -S . -B build >/dev/null
cmake --build build -j"$(nproc)" --target Brimo2010

scripts/make-demo-prefix.sh "$root/demo"
export WINEPREFIX=$root/demo
user=$WINEPREFIX/drive_c/Zorel/Variables/Demo

# Ctrl-C stops the program; the list of files below is still printed.
trap ':' INT
status=0
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "No display: running Brimo2010 $* under Xvfb (xvfb-run -a); nothing is shown, stop it with Ctrl-C."
  xvfb-run -a build/src/app/Brimo2010 "$@" || status=$?
else
  echo "Running Brimo2010 $* with WINEPREFIX=$WINEPREFIX"
  build/src/app/Brimo2010 "$@" || status=$?
fi

echo
echo "Brimo2010 ended with status $status. Files of the demo user:"
for f in Brimo.ini Brimo_Gene.lsp Brimo_Talus.lsp; do
  if [ -e "$user/$f" ]; then
    echo "  $user/$f"
  else
    echo "  $user/$f (not written)"
  fi
done
exit "$status"
