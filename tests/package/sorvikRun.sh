#!/usr/bin/env bash
# sorvikRun.sh PROGRAM WRAPPER DATA SHELL...: the wrapper sorvik-run under each shell, as the table
# DATA/sorvikRun.txt tells. What stands AFTER the program is done by a stand-in that runs it.
program=$1 wrapper=$2 data=$3 runs=0 faults=0
shift 3
work=$(mktemp -d)
trap 'umount "$work/disk" 2>/dev/null; rm -rf "$work"' EXIT
mkdir "$work/disk" && cd "$work" || exit 2
cat >standIn <<'END'
#!/usr/bin/env bash
"$PROGRAM" "$@" | tee ../direct
status=${PIPESTATUS[0]}
eval "$AFTER"
exit "$status"
END
chmod +x standIn
# check REASON: runs the wrapper with `words` in the current folder.
check() {
    local status=0
    runs=$((runs + 1)) && : >../direct
    PROGRAM=$program AFTER=$after SORVIK_PRE=$work/standIn $shell "$wrapper" "${words[@]}" >../out 2>../err || status=$?
    if ! cmp -s ../direct ../out || ((status != (${#1} > 0))) || ! grep -qF -e "$1" <<<"$(tail -n 1 ../err)"; then
        echo "$shell: ${words[*]}, $after: status $status, $(cat ../err)" && faults=$((faults + 1))
    fi
}
for shell in "$@"; do
    while IFS='|' read -r reason before after arguments; do
        read -ra words <<<"$arguments"
        rm -rf now && cp -r "$data/torture/input" now && cd now && eval "$before" && check "$reason" && cd ..
    done < <(grep -v '^#' "$data/sorvikRun.txt")
    # A disk with room for 80 panels of 100.
    mount -t tmpfs -o size=4k none disk 2>/dev/null || { echo "No disk to fill: not root" && continue; }
    yes '0 0 -1 1 0 -1 0 1 -1 0 0 -1' | sed '1i head\n1 1\n0 0\n200' | head -n 204 >big.gdf
    after='' && cd now && words=(-meshConvert ../big.gdf ../disk/a.stl) && check 'is not whole' &&
        words[2]=../disk/a.gdf && check 'is empty' && cd .. && umount disk
done
echo "$runs runs, $faults faults" && exit $((faults > 0 || runs == 0))
