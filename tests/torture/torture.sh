#!/usr/bin/env bash
# torture.sh PROGRAM SHIM DATA: runs tasks with every call of each kind failing in its turn, then on
# full and read-only disks and without standard output. A run may do what it does without that, or
# end with a message; it must claim no file that is not whole, and lose none that was there.
program=$1 shim=$2 data=$3 runs=0 faults=0 user=()
work=$(mktemp -d)
trap 'chmod -R u+w "$work"; rm -rf "$work"' EXIT
chmod 755 "$work" && cd "$work" || exit 2
[ "$(id -u)" -ne 0 ] || user=(setpriv --reuid=65534 --clear-groups)
fresh() {
    [ ! -d now ] || chmod -R u+w now
    rm -rf now && cp -r "$data/input" now
}
# attempt COMMAND...: runs it in the folder `now`; leaves its status and what it says in `out`.
attempt() {
    status=0 runs=$((runs + 1))
    (cd now && exec "$@") >out 2>err 9>mark || status=$?
}
# judge WHAT: compares the last run with the one that nothing failed in.
judge() {
    local fault='' changed file
    changed=$(diff -rq good now 2>&1 | grep -v input_solver.txt)
    for file in $(diff -rq "$data/input" now | sed -n 's/.* now.\(.*\) differ/\1/p'); do
        cmp -s "good/$file" "now/$file" || fault="lost $file"
    done
    # Conversions report nothing of the output, and write as much as they could read.
    [ "$task" = convert ] && changed='' && ! grep -qxF "$counts" out && fault=''
    if ((status >= 128 && status != 255)) || { grep -q OCCURED out && ((status != 1)); }; then
        fault="status $status"
    elif grep -qE 'FATAL ERROR|Cannot find|with:0 wet faces, 0 dry' out; then
        [ -n "$changed" ] && grep -q 'printed to' out && fault="a false claim"
    elif ((status != expected)) || [ -n "$changed" ]; then
        fault="status $status in silence: $changed"
    fi
    [ -n "$fault" ] && echo "$arguments, $1: $fault" && faults=$((faults + 1))
}
while read -r task expected arguments; do
    read -ra words <<<"$arguments"
    fresh && attempt "$program" "${words[@]}"
    counts=$(grep -F with: out)
    rm -rf good && mv now good
    for kind in memory:' 12' memory:'+ 12' open:' 24' open:'+ 13' read:' 5' read:'+ 5' write:' 28' \
        write:'+ 5' folder:' 13' folder:'+ 28' close:' 5'; do
        for ((n = 1; ; ++n)); do
            failure="${kind%:*} $n${kind#*:}"
            fresh && attempt env FAIL="$failure" LD_PRELOAD="$shim" "$program" "${words[@]}"
            [ -s mark ] || break
            judge "$failure"
        done
    done
    for file in $(cd good && find . -type f); do
        [ -e "$data/input/$file" ] && continue
        fresh && mkdir -p "$(dirname "now/$file")" && ln -sf /dev/full "now/$file"
        attempt "$program" "${words[@]}"
        judge "no room for $file"
    done
    fresh && chmod -R a-w now && attempt "${user[@]}" "$program" "${words[@]}" && judge 'read-only'
    for closed in /dev/full '&-'; do
        fresh && attempt bash -c "exec \"\$@\" >$closed" - "$program" "${words[@]}" && judge "$closed"
    done
done <"$data/tasks"
echo "$runs runs, $faults faults" && exit $((faults > 0))
