#!/bin/bash
# The Ansible module against the real brimo-settings, with Debian's
# ansible-core: on three prefixes, a check run with --diff reports the keys
# and changes nothing, a real run changes them, a second run changes nothing,
# and a refused value fails with the tool's own message.
# Usage: ansible_module_test.sh BRIMO-SETTINGS
set -u
command -v ansible-playbook >/dev/null || { echo "SKIP: ansible-core is not installed"; exit 77; }
here=$(cd "$(dirname "$0")" && pwd) T=$(mktemp -d)
trap 'rm -rf "$T"' EXIT
export ANSIBLE_LIBRARY=$here/../../contrib/ansible/library ANSIBLE_LOCAL_TEMP=$T/tmp ANSIBLE_NOCOLOR=1 BRIMO_STANDARD=$T/none
for p in a b c; do
  mkdir -p "$T/$p/drive_c/windows" "$T/$p/drive_c/Zorel/Var/Jean" "$T/$p/dosdevices" && ln -s ../drive_c "$T/$p/dosdevices/c:"
  printf '[Chemins]\r\nZorel=C:\\Zorel\r\nVariables=C:\\Zorel\\Var\r\n[Users]\r\nactuel=Jean\r\n' > "$T/$p/drive_c/windows/zorel.ini"
done
cat > "$T/play.yml" <<YAML
- hosts: localhost
  connection: local
  gather_facts: false
  vars:
    task: &task
      prefix: ["$T/a", "$T/b", "$T/c"]
      values: {x_nom_bureau: Bureau Nord, x_lang: DEU}
      executable: "$1"
  tasks:
    - brimo_settings: *task
      check_mode: true
      diff: true
      register: check
    - assert:
        that:
          - check.changed
          - "'$T/b: [Brimo_Gene] x_lang=DEU' in check.diff.after"
          - "'$T/b: [Brimo_Gene] x_nom_bureau=Bureau Nord' in check.diff.after"
    - stat: {path: "$T/a/drive_c/Zorel/Var/Jean/Brimo.ini"}
      register: untouched
    - assert: {that: [not untouched.stat.exists]}
    - brimo_settings: *task
      register: real
    - assert: {that: [real.changed, real.report.changed == 3]}
    - brimo_settings: *task
      register: again
    - assert: {that: [not again.changed, again.report.already_so == 3]}
    - brimo_settings:
        prefix: ["$T/a"]
        values: {x_lang: fr}
        executable: "$1"
      register: refused
      ignore_errors: true
    - assert:
        that:
          - refused.failed
          - "'x_lang: \"fr\" is none of FRA, ENG, DEU, ITA' in refused.msg"
YAML
ansible-playbook -i localhost, "$T/play.yml" > "$T/log" 2>&1 || { cat "$T/log"; exit 1; }
grep -q 'failed=0' "$T/log" || { cat "$T/log"; exit 1; }
echo "PASS: the Ansible module"
