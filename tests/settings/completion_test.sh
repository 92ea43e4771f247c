#!/usr/bin/env bash
# The bash completion of brimo-settings against the real tool: each line of
# the table below is a command line being typed (the cursor at its end) and
# the words offered, sorted.
#
#   tests/settings/completion_test.sh SOURCE_DIR BUILD_DIR
completion=$1/share/completions/brimo-settings
export PATH=$2/src/settings:$PATH
[ -f /usr/share/bash-completion/bash_completion ] || { echo "SKIP: bash-completion is not installed"; exit 77; }
source /usr/share/bash-completion/bash_completion
source "$completion"
compopt() { :; } # only a running completion may call it

failures=0
while IFS='|' read -r line expected; do
    [ -z "$line" ] && continue
    # Words as readline splits them: blanks, and '=' as a word of its own.
    read -ra typed <<< "${line//=/ = }"
    [[ $line == *' ' ]] && typed+=("")
    COMP_WORDS=("${typed[@]}") COMP_CWORD=$((${#typed[@]} - 1)) COMP_LINE=$line COMP_POINT=${#line}
    COMPREPLY=()
    _brimo_settings
    got=$(printf '%s\n' "${COMPREPLY[@]}" | sort | xargs)
    if [ "$got" != "$expected" ]; then
        echo "FAIL: '$line': got '$got', expected '$expected'"
        failures=$((failures + 1))
    fi
done <<'TABLE'
brimo-settings |apply export get help history restore set version
brimo-settings re|restore
brimo-settings set --det|--detailed-exitcodes
brimo-settings apply --json --h|--help --help-all
brimo-settings get x_ht_gc1|x_ht_gc1 x_ht_gc10 x_ht_gc15
brimo-settings get x_QZ|
brimo-settings set x_lan|x_lang=
brimo-settings set --dialog slope x_QZ_tal_d|x_QZ_tal_dh= x_QZ_tal_dv=
brimo-settings get --dialog=slope x_QZ_asp|x_QZ_asp_dess
brimo-settings get --dialog |general slope
TABLE
[ "$failures" = 0 ] && echo PASS
exit $((failures > 0))
