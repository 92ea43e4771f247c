#!/usr/bin/env bash
# Validates what the package ships: the .desktop entry, the AppStream
# metainfo, and the built .deb under lintian (errors and warnings fail).
# Skips (77) when the validator is not installed.
# Usage: validate.sh desktop|metainfo|lintian SOURCE_DIR BUILD_DIR
set -euo pipefail
what=$1 source=$2 build=$3

need() { command -v "$1" >/dev/null || { echo "$1 not installed: skipped"; exit 77; }; }

case $what in
  desktop)
    need desktop-file-validate
    desktop-file-validate "$source/share/applications/brimo.desktop"
    # The menu speaks the four languages of the program.
    for language in fr de it; do
      grep -q "^Comment\[$language\]=" "$source/share/applications/brimo.desktop" || { echo "no Comment[$language]"; exit 1; }
    done ;;
  metainfo)
    need appstreamcli
    appstreamcli validate --no-net "$source/share/metainfo/org.example.brimo.metainfo.xml"
    for language in fr de it; do
      grep -q "<summary xml:lang=\"$language\">" "$source/share/metainfo/org.example.brimo.metainfo.xml" ||
        { echo "no summary in $language"; exit 1; }
    done ;;
  lintian)
    need lintian
    out=$(mktemp -d)
    trap 'rm -rf "$out"' EXIT
    (cd "$build" && cpack -B "$out" >/dev/null)
    lintian --fail-on error,warning --tag-display-limit 0 "$out"/*.deb ;;
esac
