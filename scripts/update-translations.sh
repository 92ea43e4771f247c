#!/usr/bin/env bash
# Brings translations/*.ts up to date with the program's own messages
# (tr(), QCoreApplication::translate, QT_TRANSLATE_NOOP in src/): new texts
# come in unfinished, texts gone from the code go. A translator then fills
# each new text in; the suite fails while one is unfinished.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
lupdate=$(command -v lupdate || echo /usr/lib/qt6/bin/lupdate)
"$lupdate" -silent -locations none -no-obsolete -extensions cpp,h "$root/src" -ts "$root"/translations/brimo_*.ts
