# bash completion of sorvikCheck and sorvikView; commands and options come from their own help.  -*- shell-script -*-

_sorvikHelp() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        words=$("${COMP_WORDS[0]}" --help 2>/dev/null | awk 'isList && /^  [a-z]/ { print $1 }
            tolower($1) == "subcommands:" { isList = 1 }')
        mapfile -t COMPREPLY < <(compgen -W "$words --help --version" -- "$word")
    elif [[ $word == -* ]]; then
        words=$("${COMP_WORDS[0]}" "${COMP_WORDS[1]}" --help 2>/dev/null | grep -oE -e '--[a-z][a-z0-9-]*')
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
    elif [[ $before == --task ]]; then
        mapfile -t COMPREPLY < <(compgen -W "nemoh wave" -- "$word")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}

complete -F _sorvikHelp sorvikCheck sorvikView
