# Completion of vexil-dbc in bash. The words are those of its --help, so they fit the installed version.
# SPDX-License-Identifier: MIT

# Prints the words of a section of the help: the commands, or the options with their dashes.
#   _vexil_dbc_words SECTION PROGRAM [COMMAND]
_vexil_dbc_words() {
    local section=$1 line inside=
    while IFS= read -r line; do
        case $line in
            "$section:"*) inside=1 ;;
            "  "[!\ ]*)
                if [ -n "$inside" ]; then
                    line=${line#  }
                    line=${line%% *}
                    printf '%s\n' "${line//,/ }"
                fi
                ;;
            "   "*) ;;
            *) inside= ;;
        esac
    done < <("${@:2}" --help 2>/dev/null)
}

# Prints the values of an option: the help has them in braces, as in --order TEXT:{id,name}.
#   _vexil_dbc_values OPTION PROGRAM COMMAND
_vexil_dbc_values() {
    local option=$1 line
    while IFS= read -r line; do
        if [[ $line == "  $option "*:{*}* || $line == "  "-?",$option "*:{*}* ]]; then
            line=${line#*:\{}
            line=${line%%\}*}
            printf '%s\n' "${line//,/ }"
        fi
    done < <("${@:2}" --help 2>/dev/null)
}

_vexil_dbc() {
    local program=$1 word=$2 before=$3
    local command=${COMP_WORDS[1]}
    local words
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        words="$(_vexil_dbc_words Subcommands "$program") $(_vexil_dbc_words Options "$program")"
    elif [[ $before == --* ]] && words=$(_vexil_dbc_values "$before" "$program" "$command") &&
        [ -n "$words" ]; then
        :
    elif [[ $word == -* ]]; then
        words=$(_vexil_dbc_words Options "$program" "$command")
    else
        compopt -o default 2>/dev/null
        return 0
    fi
    # shellcheck disable=SC2207 # the words have no blanks
    COMPREPLY=($(compgen -W "$words" -- "$word" || true))
}

complete -F _vexil_dbc vexil-dbc
