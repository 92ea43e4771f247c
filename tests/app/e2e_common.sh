# Shared steps of the end-to-end tests of the start and the chooser.
# Source it with the program's path as $1.
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/../e2e/lib.sh"
e2e_setup "$1"

# e2e_installation: zorel.ini and a French legend file, so that no question
# comes up at the start.
e2e_installation() {
  e2e_zorel 'C:\Zorel' 'C:\Zorel\Var' 'Default'
  local legends="" n
  for n in $(seq 1 60); do legends+="L$(printf %03d "$n") Légende $n"$'\n'; done
  e2e_write 'C:\Zorel\Lang\ZorelMsg_FRA.txt' "$legends"
}

# e2e_focus WINDOW_ID: gives the window the keyboard (there is no window
# manager on the test display to do it).
e2e_focus() { xdotool windowfocus --sync "$1"; sleep 0.2; }

# e2e_close_box WINDOW_ID: what the window's close box does, a WM_DELETE_WINDOW request.
e2e_close_box() { python3 "$here/close_box.py" "$1"; sleep 0.3; }

# e2e_visible TITLE: true when a visible window has that title
e2e_visible() { xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1; }

e2e_fail() { echo "FAIL: $*"; exit 1; }
