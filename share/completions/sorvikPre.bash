# bash completion of sorvikPre and sorvik-run                         -*- shell-script -*-

# Lists files with the given endings, and folders that may contain them.
_sorvikPre_files() {
    local word=$1 ending
    shift
    for ending in "$@"; do
        compgen -f -X "!*.$ending" -- "$word"
    done
    compgen -d -- "$word"
}

_sorvikPre() {
    local word=${COMP_WORDS[COMP_CWORD]} line=" ${COMP_WORDS[*]:1:COMP_CWORD-1} " words='' found=''
    local meshes=(stl STL gdf GDF dat DAT nem)
    case $line in
    *" -f " | *" -i ") found=$(_sorvikPre_files "$word" m json) ;;
    *" -o " | *" -output " | *" -r " | *" -results " | *" -startState ") found=$(compgen -d -- "$word") ;;
    *" -xyFile ") found=$(compgen -f -- "$word") ;;
    *" -meshConvert ") found=$(_sorvikPre_files "$word" "${meshes[@]}") ;;
    *)
        case $line in
        *" -meshConvert "*) words="-origin -wet" ;;
        *" -nemoh "* | *" -toJSON "*) words=-f ;;
        *" -waveElevation "*) words="-f -i -xyFile -domain -positions -o -output -API -r -results -startState" ;;
        *) words="-meshConvert -nemoh -waveElevation -toJSON" ;;
        esac
        [[ $COMP_CWORD != 1 || ${COMP_WORDS[0]} != *sorvik-run ]] || words+=" -q --help --version"
        words=$(compgen -W "$words" -- "$word")
        # The second name of a conversion follows the first.
        if [[ ${COMP_WORDS[COMP_CWORD - 2]} == -meshConvert ]]; then
            words='' found=$(_sorvikPre_files "$word" "${meshes[@]}")
        fi
        ;;
    esac
    [[ -z $found ]] || compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY <<<"$words$found"
    [[ -n ${COMPREPLY[0]} ]] || COMPREPLY=()
}

complete -F _sorvikPre sorvikPre sorvik-run
