#!/bin/bash
# Compares what bash completes with the words of --help.
#   completion_test.bash COMPLETION TOOL
# SPDX-License-Identifier: MIT
set -euo pipefail
tool=$2
failures=0

# shellcheck source=/dev/null
source "$1"
compopt() { :; } # works only while bash completes

# The function that bash was told to call for the tool.
function=$(complete -p vexil-dbc | sed -n 's/^complete -F \([^ ]*\) vexil-dbc$/\1/p')

# Completes the last of the words, and compares the result, sorted, with EXPECTED.
#   expect EXPECTED WORD...
expect() {
    local expected=$1 found
    shift
    COMP_WORDS=("$tool" "$@")
    COMP_CWORD=$#
    COMPREPLY=()
    "$function" "$tool" "${COMP_WORDS[$COMP_CWORD]}" "${COMP_WORDS[$((COMP_CWORD - 1))]}"
    found=$(printf '%s\n' "${COMPREPLY[@]}" | sort | xargs)
    expected=$(tr ' ' '\n' <<<"$expected" | sort | xargs)
    if [ "$found" != "$expected" ]; then
        echo "vexil-dbc $* completes to [$found] and not to [$expected]" >&2
        failures=$((failures + 1))
    fi
}

# Every command and every option, taken from the help in another way.
commands=$("$tool" --help | awk '/^Subcommands:/ {on = 1; next} /^$/ {on = 0} on {print $1}' | xargs)
options() {
    "$tool" "$@" --help | awk '/^  -/ {gsub(",", " ", $1); print $1}' | xargs
}
if [[ " $commands " != *" check "* ]]; then
    echo "the help has the commands [$commands]" >&2
    exit 1
fi
expect "$commands $(options)" ""
for command in $commands; do
    expect "$(options "$command")" "$command" -
done

expect "check" ch
expect "rewrite" rew
expect "--version" --v
expect "" nothing
expect "file id name" rewrite in.dbc out.dbc --order ""
expect "name" rewrite --order n
expect "--order" rewrite --or
expect "comments cycle-times" diff a.dbc b.dbc --ignore c
# The names of files are left to bash.
expect "" check ""
exit "$((failures > 0))"
