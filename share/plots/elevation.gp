# Draws the elevation at the probes over time.
#     gnuplot -c elevation.gp FOLDER PICTURE [PROBES.xy [SHOWN]]
# FOLDER holds waveElevation.dat. PROBES.xy, the file of -xyFile, puts positions into the legend; ""
# leaves them out. SHOWN lists the probes, as 1,3; by default it draws all, but at most 28.
if (ARGC < 2) { print "Usage: gnuplot -c elevation.gp FOLDER PICTURE [PROBES.xy [SHOWN]]"; exit status 1 }
here = system("dirname '".ARG0."'"); folder = ARG1; picture = ARG2
load here."/checks.gp"
load here."/table.gp"
placed = ARGC > 2 && ARG3 ne ""
problem = placed ? need("-f", ARG3, "the file of probes") : ""
eval refuse
commands = system(awk("elevation.awk", option("shown", ARGC > 3 ? ARG4 : "")." ".(placed ? quoted(ARG3)." " : "").quoted(table)))
eval refuseError
eval commands

# The legend is below the plot; the height of the picture depends on its rows.
columns = placed ? 3 : 7
rows = (shown + columns - 1) / columns
height = 415 + 20 * rows
load here."/style.gp"
set title heading(shown < probes ? sprintf("Surface elevation at %d of %d probes", shown, probes) : \
    "Surface elevation at the probes")
set xlabel "Time [s]" offset 0, 0.4
set ylabel "Elevation [m]"
set bmargin at screen (90.0 + 20 * rows) / height
set key at screen 0.5, 8.0 / height bottom center horizontal maxcols columns Left reverse samplen 2
if (placed) { set key width -4 }
set offsets 0, 0, graph 0.04, graph 0.04
set xzeroaxis linetype 1 linecolor "#808080" linewidth 0.8
plot for [i = 1:shown] table using 1:(column(probe[i] + 1)) with lines linewidth 1.5 \
    dashtype 1 + (i - 1) / 6 linecolor rgb colour[(i - 1) % 6 + 1] title name[i]
