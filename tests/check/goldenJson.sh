#!/usr/bin/env bash
# goldenJson.sh PROGRAM CHECKER TESTS [--update]: compares the JSON of each command with TESTS/data/check.
set -euo pipefail
program=$1 checker=$2 tests=$3 update=${4:-} faults=0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$tests/../examples/." "$work"
cd "$work"
(cd 2-nemoh && "$program" -nemoh -f nemohProject.m >/dev/null) || true
mkdir -p solved/results
cp "$tests/data/Nemoh.cal" solved
cp "$tests/data/RadiationCoefficients.tec" solved/results

# compare COMMAND STATUS ARGUMENT...
compare() {
    local command=$1 expected=$2 status=0 golden=$tests/data/check/$1.json
    shift 2
    "$checker" "$command" "$@" --json - | sed '/^  "version"/d' >new.json || status=$?
    if [ -n "$update" ]; then cp new.json "$golden"; fi
    if ! diff -u "$golden" new.json || [ "$status" -ne "$expected" ]; then
        echo "$command ended with status $status, not $expected" && faults=1
    fi
}
compare hull 1 1-hull/box.dat --level -1 --w1 4
sed 's/Hs  /hs  /; s/= 0.1; /= 0,1; /' 4-jonswap/jonswapSea.m >typos.m
compare input 1 typos.m
cd 5-crossing-seas
compare sea 0 crossingSea.m
cd ..
compare project 0 2-nemoh/nemohProject
compare results 1 solved
exit $faults
