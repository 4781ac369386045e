#!/usr/bin/env bash
# windows.sh ZIP: runs what the zip for Windows holds under wine, in a folder with blanks and umlauts.
zip=$(realpath "$1") runs=0 faults=0
work=$(mktemp -d)
trap 'WINEPREFIX=$work/wine /usr/lib/wine/wineserver -k; rm -rf "$work"' EXIT
export WINEDEBUG=-all WINEPREFIX=$work/wine LC_ALL=C.UTF-8
mkdir "$work/Größe Δ" && cd "$work/Größe Δ" && unzip -q "$zip" && cd sorvikPre-*/ || exit 2
cp examples/*/* . 2>/dev/null
cp barge.stl 'böe Δ.stl' && cp fineBarge.stl fïne.stl
sed 's/fineBarge/fïne/' nemohProject.m >nemöh.m
head -c 3000 barge.stl >half.stl
cp crossingSea.m 'sëa 1.m'
: >empty.m

# expect STATUS TEXT COMMAND ARGUMENT...: runs a command, whose output or message has the text.
expect() {
    local wanted=$1 text=$2 status=0
    shift 2
    runs=$((runs + 1))
    timeout 100 /usr/lib/wine/wine64 "$@" >"$work/said" 2>&1 || status=$?
    [ "$status" -eq "$wanted" ] && { [ -z "$text" ] || grep -qaF -e "$text" "$work/said"; } && return
    faults=$((faults + 1))
    echo "$*: status $status, not $wanted, or no \"$text\":" && cat "$work/said"
}
there() { [ -s "$1" ] || { echo "$1 is missing or empty" && faults=$((faults + 1)); }; }
run() { expect "$1" "$2" cmd /c sorvik-run.cmd "${@:3}"; }

expect 0 'Successfully converted mesh böe Δ.stl to ö ß.dat' sorvikPre.exe -meshConvert 'böe Δ.stl' 'ö ß.dat' -wet 0
expect 1 'Adding load cases' sorvikPre.exe -nemoh -f nemöh.m
expect 255 'FATAL ERROR' sorvikPre.exe -waveElevation -f crossingSea.m -xyFile missing
expect 255 'Cannot find input file nö.m' sorvikPre.exe -toJSON -f nö.m
expect 0 'hull ö ß.dat' sorvikCheck.exe hull 'ö ß.dat' --hydrostatics 'ünter wasser' --json ä.json
expect 2 'Cannot read the mesh nö.stl' sorvikCheck.exe hull nö.stl
expect 0 'Wrote säile.html' sorvikView.exe hull 'böe Δ.stl' -o säile.html --vtk 'pära view'
for file in 'ö ß.dat' nemohProject/Nemoh.cal 'ünter wasser/KH.dat' ä.json säile.html 'pära view/böe Δ.vtp'; do
    there "$file"
done
run 0 'sorvik-run 0' --version
run 0 'to ö.dat' -q -meshConvert 'böe Δ.stl' ö.dat -wet 0 && there ö.dat
run 0 'Adding load cases' -nemoh -f nemöh.m
run 0 '' -toJSON -f nemöh.m && there nemöh.json
run 0 'Wave elevation computed' -waveElevation -f 'sëa 1.m' -positions 0 0 5 5 -o 'ö 2' && there 'ö 2/waveElevation.dat'
run 1 'sorvikCheck found errors' -meshConvert half.stl a.stl
run 1 'sorvikCheck found errors' -nemoh -f crossingSea.m
run 1 'did not say' --no-check -meshConvert barge.stl a.obj
run 1 'ended with status 255, not 1' --no-check -nemoh -f missing.m
run 1 'holds no probes' -waveElevation -f crossingSea.m -positions
run 1 'holds nothing' -toJSON -f empty.m
run 1 'unknown flag -wte' -meshConvert barge.stl a.stl -wte 0
run 1 'found several' -toJSON -nemoh -f nemohProject.m
echo "$runs runs under wine, $faults faults" && exit $((faults > 0))
