#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing need.
# Idempotent: apt-get runs only when a package is missing.
set -euo pipefail

packages=(
  cmake make g++ pkg-config
  qt6-base-dev libgl-dev qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
  libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth xdotool x11-utils imagemagick fonts-dejavu-core fonts-liberation
  python3
  lintian appstream desktop-file-utils bash-completion ansible-core
)

missing=()
for p in "${packages[@]}"; do
  dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
if ((${#missing[@]})); then
  echo "Installing: ${missing[*]}"
  sudo_cmd=()
  [ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
  "${sudo_cmd[@]}" apt-get update -qq
  "${sudo_cmd[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}"
fi
