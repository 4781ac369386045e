#!/usr/bin/env bash
# sorvikRun.sh PROGRAM WRAPPER DATA SHELL...: the wrapper sorvik-run under each shell, on the cases of
# DATA/sorvikRun.txt. A stand-in runs the program, and AFTER it what the case says.
program=$1 data=$3 runs=0 faults=0 path=$PATH
export wrapper=$2 shell work checker=${1%/*}/sorvikCheck
shift 3
work=$(mktemp -d)
trap 'umount "$work/disk" 2>/dev/null; rm -rf "$work"' EXIT
mkdir "$work/disk" "$work/noFlock" && cd "$work" || exit 2
ln -s /usr/bin/* noFlock && rm -f noFlock/flock
cat >standIn <<'END'
#!/usr/bin/env bash
# A second run while the first is at work; it must be refused.
again() { AFTER='' $shell "$wrapper" "$@" && status=77; }
"$PROGRAM" "$@" | tee ../direct
status=${PIPESTATUS[0]}
eval "$AFTER"
exit "$status"
END
chmod +x standIn
fault() { echo "$shell: $*, status $status, $(cat ../err)" && faults=$((faults + 1)); }
# check REASON: runs the wrapper with `words` in the current folder.
check() {
    status=0 runs=$((runs + 1)) && : >../direct
    PROGRAM=$program AFTER=$after SORVIK_PRE=$work/standIn $shell "$wrapper" "${words[@]}" \
        < <(cat "$stdin") >../out 2>../err || status=$?
    if ! cmp -s ../direct ../out || ((status != (${#1} > 0))) || ! grep -qF -e "$1" <<<"$(tail -n 1 ../err)" ||
        [ -n "$(find . -name '*lock' -type f)" ] || rmdir out 2>/dev/null; then
        fault "${words[*]}, $after"
    fi
}
for shell in "$@"; do
    while IFS='|' read -r reason before after arguments; do
        rm -rf now && cp -r "$data/torture/input" now && cd now && stdin=/dev/null PATH=$path
        eval "words=($arguments); $before" && check "$reason" && cd ..
    done < <(grep -v '^#' "$data/sorvikRun.txt")
    unset SORVIK_CHECK
    [ ! -e late ] || { fault "a signal did not end the program" && rm late; }
    export SORVIK_PRE=$program
    [ "$($shell "$wrapper" -q -meshConvert now/box.dat now/q.stl 2>&1 | tail -n 1)" = \
        "Successfully converted mesh now/box.dat to now/q.stl" ] || fault "-q"
    grep -q -- "$($shell "$wrapper" --version)" <<<"sorvik-run $(sed -n 's/^version: //p' "${wrapper%/*}/../CITATION.cff")" || fault "--version"
    # A disk with room for 80 panels of 100.
    mount -t tmpfs -o size=4k none disk 2>/dev/null || { echo "No disk to fill: not root" && continue; }
    yes '0 0 -1 1 0 -1 0 1 -1 0 0 -1' | sed '1i head\n1 1\n0 0\n200' | head -n 204 >big.gdf
    after='' && cd now && words=(-meshConvert ../big.gdf ../disk/a.stl) && check 'is not whole' &&
        words[2]=../disk/a.gdf && check 'is empty' && cd .. && umount disk
done
echo "$runs runs, $faults faults" && exit $((faults > 0 || runs == 0))
