#!/usr/bin/env bash
# completions.sh SRC FOLDER TABLE: every flag in SRC is in every completion, shells can parse them, and
# bash completes as the table says.
faults=0
while read -r flag; do
    for file in sorvikPre.bash _sorvikPre sorvikPre.fish; do
        # fish has the flag after its own "-o".
        grep -qE -e "(^|[^[:alnum:]])($flag|-o ${flag#-})([^[:alnum:]]|\$)" "$2/$file" ||
            { echo "$file lacks $flag" && faults=$((faults + 1)); }
    done
done < <(grep -rhoE '"-[[:alpha:]]+"' "$1" | tr -d '"' | sort -u)
for file in "$2"/*; do
    shell=${file##*.}
    [[ $shell != */* ]] || shell=zsh
    ! command -v "$shell" >/dev/null || "$shell" -n "$file" || faults=$((faults + 1))
done
# shellcheck source=share/completions/sorvikPre.bash
. "$2/sorvikPre.bash"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" && mkdir sub && touch hull.stl hull.NEM 'two words.m' case.json && [ -s "$3" ] || exit 1
while IFS=';' read -r expected last before; do
    [[ $before == sorvik-run* ]] || before="sorvikPre $before"
    read -ra words <<<"$before"
    COMP_WORDS=("${words[@]}" "$last") COMP_CWORD=${#words[@]}
    _sorvikPre
    [ "$(printf '%s|' "${COMPREPLY[@]}")" = "$expected|" ] ||
        { echo "$before '$last': ${COMPREPLY[*]}, not $expected" && faults=$((faults + 1)); }
done < <(grep -v '^#' "$3")
exit $((faults > 0))
