#!/usr/bin/env bash
# Runs the commands that a document shows, in a copy of the checkout, and compares what they print
# and the pictures that they draw.
#     checkDocument.sh PROGRAM DOCUMENT [--update]      --update writes the differences into the checkout
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
document=$2
update=${3:-}
failures=0

# Commands are in console fences, which are run. Elsewhere there are only synopses (with a WORD in capitals
# or brackets) and scripts that CI runs.
awk -f "$root/tests/docs/unexecuted.awk" "$root/$document" | while read -r command rest; do
    case $command in
    .ci/run) continue ;;
    scripts/*) [ -x "$root/$command" ] && grep -q "$command" "$root/.ci/run" && continue ;;
    esac
    echo "$document: not run by any test: $command $rest" >&2
    exit 1
done || failures=1
if ! grep -q '^```console' "$root/$document"; then exit $failures; fi
if grep -qE '^\$ (gnuplot|sorvik-plot)' "$root/$document" && ! command -v gnuplot >/dev/null; then exit 77; fi

build=$(dirname "$1")
for program in sorvikCheck sorvikView; do
    if grep -q "^\$ $program" "$root/$document" && ! [ -x "$build/$program" ]; then exit 77; fi
done

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/out" "$scratch/build"
cp -r "$root/examples" "$root/share" "$scratch"
cp "$1" "$scratch/build/sorvikPre"
for program in sorvikCheck sorvikView; do
    [ ! -x "$build/$program" ] || cp "$build/$program" "$scratch/build"
done
cp "$root/tools/sorvik-run" "$root/tools/sorvik-plot" "$scratch/build"
case $document in docs/*) folder=examples ;; *) folder=$(dirname "$document") ;; esac
awk -f "$root/tests/docs/rerun.awk" "$root/$document" >"$scratch/commands"
export LC_ALL=C PATH=$scratch/build:$PATH said=$scratch/said
(cd "$scratch/$folder" && sh "$scratch/commands") >"$scratch/anew"

# compare COMMITTED NEW: compares the text of a document, or a picture drawn by the same gnuplot.
compare() {
    if [ -n "$update" ]; then cp "$2" "$1"; else diff -u "$1" "$2" || failures=1; fi
}
compare "$root/$document" "$scratch/anew"
while read -r picture; do
    drawn=$(find "$scratch/examples" "$scratch/out" -name "${picture##*/}")
    xmllint --noout "$drawn"
    version=$(grep 'Produced by' "$drawn")
    if [ -n "$update" ] || ! [ -e "$root/docs/$picture" ] || grep -qF "$version" "$root/docs/$picture"; then
        compare "$root/docs/$picture" "$drawn"
    fi
done < <(grep -o 'pictures/[a-zA-Z]*\.svg' "$root/$document")
exit $failures
