# bash completion of sorvik-plot                                      -*- shell-script -*-

_sorvik_plot() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} options='' found=''
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "elevation spectrum surface hull --help --version" -- "$word")
        return
    fi
    case ${COMP_WORDS[1]} in
    elevation) options="--probe --xy-file --input" ;;
    spectrum) options="--probe --from --to --segment --smooth --jonswap --input" ;;
    surface) options="--time --input" ;;
    hull) options="--wet --origin" ;;
    esac
    case $before in
    -f | --input | --xy-file) found=$(compgen -f -- "$word") ;;
    --*) ;; # a number
    *)
        case $word in
        -*) options=$(compgen -W "$options --help" -- "$word") ;;
        *) options='' found=$(compgen -f -- "$word") ;;
        esac
        ;;
    esac
    [[ $before != -* ]] || options=''
    [[ -z $found ]] || compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY <<<"$options$found"
    [[ -n ${COMPREPLY[0]} ]] || COMPREPLY=()
}

complete -F _sorvik_plot sorvik-plot
