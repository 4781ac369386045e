# Draws the surface on a grid at one instant, seen from above.
#     gnuplot -c surface.gp FOLDER PICTURE [TIME]
# FOLDER holds waveElevation.dat and waveDomain.dat. The picture shows the first instant at or after
# TIME [s]; the default is the last instant.
if (ARGC < 2) { print "Usage: gnuplot -c surface.gp FOLDER PICTURE [TIME]"; exit status 1 }
here = system("dirname '".ARG0."'"); folder = ARG1; picture = ARG2
load here."/checks.gp"
load here."/table.gp"
problem = need("-s", folder."/waveDomain.dat", "the grid that -waveElevation writes with -domain")
eval refuse
pixels = system(awk("surface.awk", option("from", ARGC > 2 ? ARG3 : "")." ".quoted(folder."/waveDomain.dat")." ".quoted(table)))
eval refuseError
instant = word(pixels[1:100], 2); X = real(word(pixels[1:100], 3)); Y = real(word(pixels[1:100], 4))
set print $pixels
print pixels
unset print
stats $pixels matrix nooutput
largest = STATS_max > -STATS_min ? STATS_max : -STATS_min
if (largest == 0) { largest = 1 }

height = 520
load here."/style.gp"
set title heading("Surface elevation at t = ".instant." s")
set xlabel "x [m]"
set ylabel "y [m]"
set cblabel "Elevation [m]"
set xrange [-abs(X) / 2:abs(X) / 2]
set yrange [-abs(Y) / 2:abs(Y) / 2]
set cbrange [-largest:largest]
set size ratio -1
set border 15
unset grid
set palette defined (-3 "#053061", -2 "#2166ac", -1 "#92c5de", 0 "#f7f7f7", 1 "#f4a582", 2 "#b2182b", 3 "#67001f")
plot $pixels matrix using (($1 + 0.5) * X / STATS_size_x - X / 2):(($2 + 0.5) * Y / STATS_size_y - Y / 2):3 with image notitle
