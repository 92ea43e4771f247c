#!/usr/bin/env bash
# Start-up time of Brimo2010 up to its first window on the screen (the
# chooser, or the dialog of WORD), against a minimal Qt Widgets program that
# shows one dialog with a line of words, under Xvfb.
#   bench/startup/startup.sh BUILD_DIR [RUNS] [WORD]
#   AGAINST=OTHER_BUILD_DIR bench/startup/startup.sh BUILD_DIR [RUNS] [WORD]
# With AGAINST, the Brimo2010 of another build (an earlier revision built
# alike) stands in for the minimal program, on the same WORD.
# Each run takes a timestamp, starts the program and waits for the X server
# to report the mapping of its window (xev on the root window: one
# connection, no polling). Prints the runs, the medians and their ratio.
set -euo pipefail
build=$(cd "$1" && pwd)
runs=${2:-15}
word=${3:-}
goal=0.90
[ -n "$word" ] && goal=1.10
brimo=$build/src/app/Brimo2010
reference=("$build/bench/startup/minimal_dialog") reference_name=minimal_dialog
if [ -n "${AGAINST:-}" ]; then
  reference=("$(cd "$AGAINST" && pwd)/src/app/Brimo2010" $word) reference_name="Brimo2010 of $AGAINST"
fi
here=$(cd "$(dirname "$0")" && pwd)
source "$here/../../tests/e2e/lib.sh"
e2e_setup "$brimo"
command -v xev >/dev/null || { echo "SKIP: xev is not installed"; exit 77; }

# An installation as the program finds it in use: zorel.ini, a legend file
# of 300 lines and a Brimo.ini, so that no question comes up.
e2e_zorel 'C:\Zorel' 'C:\Zorel\Var' 'Default'
legends=""
for n in $(seq 1 300); do legends+="L$(printf %03d "$n") Légende numéro $n"$'\n'; done
e2e_write 'C:\Zorel\Lang\ZorelMsg_FRA.txt' "$legends"
e2e_write 'C:\Zorel\Var\Brimo.ini' "[Brimo_Gene]
x_lang=FRA"

coproc XEV { exec stdbuf -oL xev -root -event substructure; }
sleep 0.5

# time_to_window PROGRAM [WORD]: sets `elapsed` to the microseconds from the
# start to the first window of the program mapped on the screen.
time_to_window() {
  local start end pid line
  start=$(date +%s%N)
  "$@" >"$E2E_DIR/program.log" 2>&1 &
  pid=$!
  while :; do
    if ! read -r -t 20 line <&"${XEV[0]}"; then
      echo "no window of $1 after 20 s:" >&2; cat "$E2E_DIR/program.log" >&2; exit 1
    fi
    [[ $line == MapNotify* ]] && break
  done
  end=$(date +%s%N)
  elapsed=$(( (end - start) / 1000 ))
  kill "$pid"; wait "$pid" 2>/dev/null || true
}

median() { printf '%s\n' "$@" | sort -n | awk '{ a[NR] = $1 } END { print (NR % 2) ? a[(NR + 1) / 2] : (a[NR / 2] + a[NR / 2 + 1]) / 2 }'; }

# A first start of each fills the file caches; it is not counted.
time_to_window "${reference[@]}"
time_to_window "$brimo" $word
brimo_times=() reference_times=()
for _ in $(seq 1 "$runs"); do
  time_to_window "${reference[@]}"; reference_times+=("$elapsed")
  time_to_window "$brimo" $word; brimo_times+=("$elapsed")
done
kill "$XEV_PID" 2>/dev/null || true
m_reference=$(median "${reference_times[@]}")
m_brimo=$(median "${brimo_times[@]}")
ms() { awk '{ for (i = 1; i <= NF; ++i) printf "%s%.1f", (i > 1 ? " " : ""), $i / 1000; print "" }' <<<"$*"; }
echo "$reference_name runs (ms): $(ms "${reference_times[@]}")"
echo "Brimo2010 $word runs (ms): $(ms "${brimo_times[@]}")"
echo "median $reference_name: $(ms "$m_reference") ms"
echo "median Brimo2010:      $(ms "$m_brimo") ms"
# The two starts of a pair run one after the other, under the same load: the
# median of the pairs' ratios stands against a load that changes during the
# run better than the ratio of the medians does.
pair_ratios=()
for i in "${!brimo_times[@]}"; do
  pair_ratios+=("$(awk -v b="${brimo_times[$i]}" -v r="${reference_times[$i]}" 'BEGIN { printf "%.4f", b / r }')")
done
m_pairs=$(median "${pair_ratios[@]}")
goal_text=""
[ -z "${AGAINST:-}" ] && goal_text=" (goal: at most $goal)"
awk -v b="$m_brimo" -v m="$m_reference" 'BEGIN { printf "ratio of the medians: %.2f\n", b / m }'
awk -v p="$m_pairs" -v g="$goal_text" 'BEGIN { printf "median of the pairs'"'"' ratios: %.2f%s\n", p, g }'

