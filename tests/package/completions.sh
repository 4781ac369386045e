#!/usr/bin/env bash
# completions.sh USAGE FOLDER: every flag of the usage text is in every completion, shells can parse
# them, and bash completes what it should.
faults=0
while read -r flag; do
    for file in sorvikPre.bash _sorvikPre sorvikPre.fish; do
        # fish has the flag behind its own "-o".
        grep -qE -e "(^|[^[:alnum:]])($flag|-o ${flag#-})([^[:alnum:]]|\$)" "$2/$file" ||
            { echo "$file lacks $flag" && faults=$((faults + 1)); }
    done
done < <(grep -oE '(^|[[:blank:]])-[[:alpha:]]+' "$1" | sort -u)
for file in "$2"/*; do
    shell=${file##*.}
    [[ $shell != */* ]] || shell=zsh
    ! command -v "$shell" >/dev/null || "$shell" -n "$file" || faults=$((faults + 1))
done
# shellcheck source=share/completions/sorvikPre.bash
. "$2/sorvikPre.bash"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" && mkdir sub && touch hull.stl hull.NEM 'two words.m' case.json || exit 1
# completes EXPECTED WORD...: what the last word can become.
completes() {
    COMP_WORDS=(sorvikPre "${@:2}") COMP_CWORD=$(($# - 1))
    _sorvikPre
    [ "$(printf '%s|' "${COMPREPLY[@]}")" = "$1|" ] ||
        { echo "${*:2}: ${COMPREPLY[*]}, not $1" && faults=$((faults + 1)); }
}
completes '-meshConvert|-nemoh|-waveElevation|-toJSON' ''
completes '-waveElevation' -w
completes 'hull.stl|sub' -meshConvert ''
completes 'hull.stl' -meshConvert a.stl h
completes '-origin|-wet' -meshConvert a.stl b.stl -
completes 'two words.m|case.json|sub' -nemoh -f ''
completes '-positions' -waveElevation -f a.m -p
completes 'sub' -waveElevation -o ''
completes '' -toJSON -x
exit $((faults > 0))
