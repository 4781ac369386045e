#!/usr/bin/env bash
# plots.sh PROGRAM SOURCE AWK...: spectra of known signals under each awk; pictures of sorvik-plot, and
# what it refuses.
export SORVIK_PRE=$1
source=$2 plot=$2/tools/sorvik-plot faults=0
shift 2
command -v gnuplot >/dev/null || exit 77
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 2
fault() { echo "$*" && faults=$((faults + 1)); }

# spectrum EXPECTED TABLE OPTION...: the frequency of the peak, and the variance, of probe 2.
spectrum() {
    local found
    found=$($awk -v probe=2 "${@:3}" -f "$source/share/plots/spectrum.awk" "$2" | awk '
        { m0 += $2; last = $1 }
        $2 > top { top = $2; peak = $1 }
        END { printf "%.2f %.3f", peak, m0 * last / NR }')
    [ "$found" = "$1" ] || fault "$awk, $2 ${*:3}: $found, not $1"
}
# table FIRST STEP COUNT: two probes; the second has 15/32 Hz, a mean, and the variance 0.5.
table() {
    awk -v first="$1" -v dt="$2" -v n="$3" 'BEGIN {
        for (; i < n; ++i) printf "%.6g\t0\t%.9g\n", first + i * dt, 7 + sin(6.283185307179586 * 0.46875 * i * dt) }'
}
table 10000 0.05 6000 >late
table 0 0.25 1031 >prime # as one segment it is cut to 1,026 instants
table 0 0.25 300 | sed 150d >gap
for awk in "$@"; do
    spectrum "0.47 0.500" late
    spectrum "0.47 0.500" late -v segment=0
    spectrum "0.47 0.500" late -v segment=6.4
    spectrum "0.47 0.500" prime -v segment=0
    spectrum "0.47 0.500" prime -v from=64 -v to=224 # 640 instants
    spectrum "0.47 0.500" prime -v to=96 -v smooth=1
done
awk -f "$source/share/plots/spectrum.awk" gap 2>&1 | grep -q "not equally spaced" || fault "A gap is not seen"

# status EXPECTED TEXT ARGUMENT...: runs sorvik-plot, which must say the text, or nothing if that is empty.
status() {
    local status=0
    "$plot" "${@:3}" >said 2>&1 || status=$?
    if ((status != $1)) || [[ $(<said) != ${2:+*}"$2"${2:+*} ]]; then
        fault "${*:3}: $status, not $1, $(<said)"
    fi
}
cp "$source"/examples/{1-hull/barge.stl,4-jonswap/jonswapSea.m} . && mkdir sea && echo 60 >sea/time.dat &&
    "$SORVIK_PRE" -waveElevation -f jonswapSea.m -domain 400 200 3 2 -o sea >/dev/null &&
    "$SORVIK_PRE" -waveElevation -f jonswapSea.m -positions 0 0 9 9 -o "it's" >/dev/null || exit 2
status 0 "" spectrum "it's" a.svg -f jonswapSea.m
grep -q '> *Spectrum of the signal: significant wave height 2.50 m<' a.svg || fault "No repeat period"
grep -q '>JONSWAP sea, Hs = 2.5 m, Tp = 10 s, direction 15 deg, seed 2024<' a.svg || fault "No caption"
cp a.svg drawn
status 1 "there is no probe 3 in it's/waveElevation.dat, which has 2" spectrum "it's" a.svg --probe 3
status 1 "there is no probe 3" elevation "it's" a.svg --probe 1,3
echo 0 0 >one.xy
status 1 "one.xy has 1 rows of x and y, expected 2" elevation "it's" a.svg --xy-file one.xy
status 1 "none is missing" surface none a.svg
status 1 "waveDomain.dat is missing" surface "it's" a.svg
status 1 "the last instant is 60 s" surface sea a.svg --time 61
cp "it's/waveElevation.dat" stale && cp -r sea old && mv stale old/waveElevation.dat
status 1 "found 2 elevations, expected 12" surface old a.svg
status 1 "cannot read none.stl" hull none.stl a.svg
status 2 "ends in .svg" surface sea a.bmp
status 2 "expected numbers for --from" spectrum sea a.svg --from=1s
status 2 "unknown option" surface sea a.svg --probe 1
cmp -s a.svg drawn || fault "A refused picture replaces the old one"

status 0 "" surface sea b.svg
awk -F "'" '
    function differ(a, b) { return (a - b) * (a - b) > 0.01 }
    /d=.M[0-9., L]*Z/ && !frame { frame = split($4, at, /[ML, ]+/) }
    /<image/ { fits = !(differ($2, at[2]) || differ($4, at[3]) || differ($2 + $6, at[6]) || differ($4 + $8, at[7])) }
    END { exit !fits }' b.svg || fault "The image does not fit into the frame"
status 0 "" elevation "it's" b.png --probe 2
status 0 "" hull barge.stl b.pdf --wet 0.5
status 0 "" hull barge.stl c.svg --origin 0,0,-1 --wet 0.5
grep -q '>Hull of 8 x 4 x 3 m, draught 1 m, waterline at z = 0.5 m<' c.svg || fault "No draught"
[ "$(head -c 4 b.png | tail -c 3)$(head -c 4 b.pdf)" = "PNG%PDF" ] || fault "Not PNG and PDF"

for flag in $("$plot" --help | grep -o -e '--[a-z-]*' | sort -u); do
    for file in sorvik-plot.bash _sorvik-plot sorvik-plot.fish; do
        grep -qE -e "(--|-l )${flag#--}([^a-z-]|\$)" "$source/share/completions/$file" || fault "$file lacks $flag"
    done
done
[ "$("$plot" --version)" = "sorvik-plot $(sed -n 's/^version: //p' "$source/CITATION.cff")" ] || fault "Wrong version"
exit $((faults > 0))
