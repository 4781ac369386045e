# Prints, as gnuplot commands, which probes elevation.gp draws and what the legend calls them.
#     awk [-v shown="1,3"] -f elevation.awk [PROBES.xy] waveElevation.dat
# By default these are all probes, but at most 28.
function stop(reason) { print reason | "cat >&2"; failed = 1; exit 1 }
FILENAME == ARGV[1] && ARGC > 2 { if (NF == 2) place[++places] = " at (" $1 ", " $2 ") m"; next }
{ probes = NF - 1; exit }
END {
    if (failed) exit 1
    if (ARGC > 2 && places != probes)
        stop(ARGV[1] " has " places + 0 " rows of x and y, expected " probes " as " ARGV[2] " has probes")
    if (shown == "") for (i = 1; i <= probes && i <= 28; ++i) shown = shown " " i
    count = split(shown, list, /[ ,]+/)
    for (i = 1; i <= count; ++i) {
        if (list[i] == "") continue
        if (list[i] !~ /^[1-9][0-9]*$/ || list[i] + 0 > probes)
            stop("there is no probe " list[i] " in " FILENAME ", which has " probes)
        numbers = numbers (n ? ", " : "") list[i]
        titles = titles (n++ ? ", " : "") "\"Probe " list[i] place[list[i]] "\""
    }
    printf "probes = %d; shown = %d; array probe[%d] = [%s]; array name[%d] = [%s]\n", probes, n, n, numbers, n, titles
}
