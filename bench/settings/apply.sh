#!/usr/bin/env bash
# brimo-settings apply on many scratch prefixes, against copying the same
# files into them: what an office gains or pays for checked values and the
# dialogs' commit over a plain copy of one user's files.
#   bench/settings/apply.sh BUILD_DIR [PREFIXES] [RUNS]
# One apply run is one brimo-settings process over all prefixes (their list
# in a file); one copy run is one cp of the three files a prefix, as a login
# script would do. Before every run the users' files are put back as they
# were (not timed), so that each run has every prefix to change. Prints the
# runs, the medians and their ratio; the goal is at most 3 times the copy.
set -euo pipefail
build=$(cd "$1" && pwd)
count=${2:-200}
runs=${3:-9}
goal=3.0
tool=$build/src/settings/brimo-settings
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

make_prefix() { # DIR USER
  mkdir -p "$1/drive_c/windows" "$1/drive_c/Zorel/Var/$2" "$1/dosdevices"
  ln -sfn ../drive_c "$1/dosdevices/c:"
  printf '[Chemins]\r\nZorel=C:\\Zorel\r\nVariables=C:\\Zorel\\Var\r\n[Users]\r\nactuel=%s\r\n' "$2" \
    >"$1/drive_c/windows/zorel.ini"
}

# The office's standard, made by the tool from one user.
make_prefix "$work/office" jo
"$tool" set --prefix "$work/office" x_nom_bureau="Bureau Nord" x_ht_gc1=2.5 Path_Win5='D:\Outils\plan.exe' >/dev/null || true
# The slope dialog opens with its own values, which are what an export carries.
"$tool" set --prefix "$work/office" --dialog slope x_QZ_des_tal=2 >/dev/null || true
"$tool" export "$work/office.ini" --prefix "$work/office" || true
office=$work/office/drive_c/Zorel/Var/jo

# Users with files of their own, kept aside to be put back before each run.
: >"$work/prefixes"
for i in $(seq 1 "$count"); do
  p=$work/users/p$i
  make_prefix "$p" jo
  printf '[Brimo_Gene]\r\nx_nom_bureau=Ancien %s\r\nx_lang=DEU\r\nx_chtxt=1\r\n' "$i" >"$p/drive_c/Zorel/Var/jo/Brimo.ini"
  echo "$p" >>"$work/prefixes"
done
cp -a "$work/users" "$work/template"
reset_users() { rm -rf "$work/users" && cp -a "$work/template" "$work/users"; }

now_ns() { date +%s%N; }
median() { sort -n | awk '{a[NR]=$1} END {print (NR % 2) ? a[(NR+1)/2] : (a[NR/2] + a[NR/2+1]) / 2}'; }

apply_times=() copy_times=()
for run in $(seq 1 "$runs"); do
  reset_users; sync
  start=$(now_ns)
  "$tool" apply "$work/office.ini" --prefixes-from "$work/prefixes" >/dev/null || [ $? -eq 1 ]
  apply_times+=($(( ($(now_ns) - start) / 1000 )))

  reset_users; sync
  start=$(now_ns)
  while read -r p; do
    cp "$office/Brimo.ini" "$office/Brimo_Gene.lsp" "$office/Brimo_Talus.lsp" "$p/drive_c/Zorel/Var/jo/"
  done <"$work/prefixes"
  copy_times+=($(( ($(now_ns) - start) / 1000 )))
done

# Every user now holds the office's Lisp files; the tool's apply gave the same.
reset_users
"$tool" apply "$work/office.ini" --prefixes-from "$work/prefixes" >/dev/null || [ $? -eq 1 ]
cmp "$office/Brimo_Gene.lsp" "$work/users/p1/drive_c/Zorel/Var/jo/Brimo_Gene.lsp"
cmp "$office/Brimo_Talus.lsp" "$work/users/p$count/drive_c/Zorel/Var/jo/Brimo_Talus.lsp"

echo "apply on $count prefixes (µs): ${apply_times[*]}"
echo "copy  on $count prefixes (µs): ${copy_times[*]}"
a=$(printf '%s\n' "${apply_times[@]}" | median)
c=$(printf '%s\n' "${copy_times[@]}" | median)
ratio=$(awk -v a="$a" -v c="$c" 'BEGIN {printf "%.2f", a / c}')
echo "median apply ${a} µs, median copy ${c} µs, ratio ${ratio} (goal <= ${goal})"
awk -v r="$ratio" -v g="$goal" 'BEGIN {exit !(r <= g)}'
