# Draws the surface on a grid at one instant, seen from above.
#     gnuplot -c surface.gp FOLDER PICTURE.svg [TIME]
# FOLDER holds waveElevation.dat and waveDomain.dat. The picture shows the first instant at or after
# TIME [s]; the default is the last instant.
if (ARGC < 2) { print "Usage: gnuplot -c surface.gp FOLDER PICTURE.svg [TIME]"; exit status 1 }
here = system("dirname '".ARG0."'"); folder = ARG1; picture = ARG2
height = 520
load here."/style.gp"
table = folder."/waveElevation.dat"
domain = system("cat '".folder."/waveDomain.dat'")
X = real(word(domain, 1)); Y = real(word(domain, 2)); nx = int(word(domain, 3)); ny = int(word(domain, 4))
instant = system(sprintf("awk '{ t = $1 } %s { exit } END { print t }' '%s'", \
    ARGC > 2 ? "$1 >= ".ARG3 : "0", table))
print_rows = "$1 == instant { for (p = 2; p <= NF; ++p) printf \"%s%s\", $p, (p - 1) % columns ? \" \" : \"\\n\"; exit }"
rows = sprintf("< awk -v instant='%s' -v columns=%d '%s' '%s'", instant, nx + 1, print_rows, table)

stats rows matrix nooutput
largest = STATS_max > -STATS_min ? STATS_max : -STATS_min
if (largest == 0) { largest = 1 }
set title "Surface elevation at t = ".instant." s"
set xlabel "x [m]"
set ylabel "y [m]"
set cblabel "Elevation [m]"
set xrange [-X / 2:X / 2]
set yrange [-Y / 2:Y / 2]
set cbrange [-largest:largest]
set size ratio -1
set border 15
unset grid
set palette defined (-3 "#053061", -2 "#2166ac", -1 "#92c5de", 0 "#f7f7f7", 1 "#f4a582", 2 "#b2182b", 3 "#67001f")
plot rows matrix using ($1 * X / nx - X / 2):($2 * Y / ny - Y / 2):3 with image notitle
