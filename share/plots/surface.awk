# Prints the elevations on a grid at one instant, as rows of pixels from below.
#     awk [-v from=TIME] -f surface.awk waveDomain.dat waveElevation.dat
# The instant is the first one at or after TIME [s], by default the last. The first line is
# "# INSTANT XSIZE YSIZE". Each cell has four pixels, one for each corner, so that the picture ends with the grid.
function stop(reason) { print reason | "cat >&2"; failed = 1; exit 1 }
FNR == NR && FNR == 1 {
    if (NF != 4 || !($1 * $2) || $3 < 1 || $4 < 1) stop(FILENAME " holds no grid as -domain writes it")
    x = $1; y = $2; columns = $3 + 1; rows = $4 + 1
}
FNR == NR { next }
NF - 1 != columns * rows {
    stop(FILENAME ", line " FNR ": found " (NF ? NF - 1 : 0) " elevations, expected " columns * rows " for the grid of " \
        ARGV[1] "; one of the two files is incomplete or left from another run")
}
{ line = $0; time = $1 }
from != "" && $1 + 0 >= from + 0 { found = 1; exit }
END {
    if (failed) exit 1
    if (from != "" && !found) stop("the last instant is " time " s; there is none from " from " s on")
    count = split(line, elevation)
    print "#", time, x, y
    for (j = 0; j < rows; ++j) {
        text = elevation[2 + j * columns]
        for (i = 1; i < columns - 1; ++i) text = text " " elevation[2 + i + j * columns] " " elevation[2 + i + j * columns]
        text = text " " elevation[1 + columns + j * columns]
        print text
        if (j && j < rows - 1) print text
    }
}
