# Draws the elevation at the probes over time.
#     gnuplot -c elevation.gp FOLDER PICTURE.svg [PROBES.xy]
# FOLDER holds waveElevation.dat. PROBES.xy, the file of -xyFile, puts positions into the legend.
# Draws at most 28 probes.
if (ARGC < 2) { print "Usage: gnuplot -c elevation.gp FOLDER PICTURE.svg [PROBES.xy]"; exit status 1 }
here = system("dirname '".ARG0."'"); folder = ARG1; picture = ARG2
table = folder."/waveElevation.dat"
probes = int(system("awk '{ print (NF > 29 ? 28 : NF - 1); exit }' '".table."'"))
position(i) = ARGC < 3 ? "" : \
    system(sprintf("awk 'NF == 2 && ++n == %d { print \" at (\" $1 \", \" $2 \") m\" }' '%s'", i, ARG3))

# The legend is below the plot; the height of the picture depends on its rows.
columns = ARGC < 3 ? 7 : 3
rows = (probes + columns - 1) / columns
height = 415 + 20 * rows
load here."/style.gp"
set title "Surface elevation at the probes"
set xlabel "Time [s]" offset 0, 0.4
set ylabel "Elevation [m]"
set bmargin at screen (90.0 + 20 * rows) / height
set key at screen 0.5, 8.0 / height bottom center horizontal maxcols columns Left reverse samplen 2
if (ARGC > 2) { set key width -4 }
set offsets 0, 0, graph 0.04, graph 0.04
set xzeroaxis linetype 1 linecolor "#808080" linewidth 0.8
plot for [i = 1:probes] table using 1:(column(i + 1)) with lines linewidth 1.5 \
    dashtype 1 + (i - 1) / 6 linecolor rgb colour[(i - 1) % 6 + 1] title sprintf("Probe %d", i).position(i)
