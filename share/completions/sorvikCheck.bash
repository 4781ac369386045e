# bash completion of sorvikCheck; the options come from its own help.  -*- shell-script -*-

_sorvikCheck() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "hull input sea project results --help --version" -- "$word")
    elif [[ $word == -* ]]; then
        local options
        options=$("${COMP_WORDS[0]}" "${COMP_WORDS[1]}" --help 2>/dev/null | grep -oE -e '--[a-z][a-z0-9-]*')
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    elif [[ $before == --task ]]; then
        mapfile -t COMPREPLY < <(compgen -W "nemoh wave" -- "$word")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}

complete -F _sorvikCheck sorvikCheck
