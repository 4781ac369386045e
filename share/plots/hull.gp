# Draws a hull, its wetted surface and its waterline.
#     gnuplot -c hull.gp HULL.gdf WETTED.dat PICTURE
# sorvikPre writes both meshes: HULL.gdf without -wet, WETTED.dat cut at the water level.
if (ARGC < 3) { print "Usage: gnuplot -c hull.gp HULL.gdf WETTED.dat PICTURE"; exit status 1 }
here = system("dirname '".ARG0."'"); picture = ARG3; hull = ARG1; wetted = ARG2
load here."/checks.gp"
problem = need("-s", hull, "the hull as a GDF mesh")
eval refuse
problem = need("-s", wetted, "the part of the hull below the water as a Nemoh mesh")
eval refuse
drawing = system(awk("hull.awk", quoted(wetted)." ".quoted(hull)))
eval refuseError
load here."/style.gp"
dryOutside = "#e6e6e6"; dryInside = "#bdbdbd"; wetOutside = colour[6]; wetInside = "#3a86b0"
edgeColour = "#505050"; waterlineColour = colour[2]
set print $drawing
print drawing
unset print
do for [i = 1:|$drawing|] { eval $drawing[i] }

unset border; unset tics; unset grid
place = emerges ? sprintf("draught %.4g m, waterline at z = %g m", draught, level) : "wholly below the water"
set label heading(sprintf("Hull of %g x %g x %g m, %s", length, breadth, depth, place)) at screen 0.5, 0.94 center
set key at screen 0.5, 0.88 center horizontal Left reverse samplen 1.5

# The drawing is centred and fills 0.92 of the width or 0.76 of the height of the canvas.
set lmargin at screen 0.04; set rmargin at screen 0.96; set bmargin at screen 0.04; set tmargin at screen 0.8
aspect = 0.92 * 900 / (0.76 * height)
half = 0.5 * (right - left > (high - low) * aspect ? right - left : (high - low) * aspect)
set xrange [(left + right) / 2 - half:(left + right) / 2 + half]
set yrange [(low + high) / 2 - half / aspect:(low + high) / 2 + half / aspect]

# The axes in the lower right corner have the scale of the hull: 1, 2 or 5 times a power of ten.
metre = 0.46 / half # on a screen of width 1
unit = 10**floor(log10(0.07 / metre))
unit = unit * (unit * metre * 5 <= 0.07 ? 5 : unit * metre * 2 <= 0.07 ? 2 : 1)
across(s, u) = 0.91 + s * u
up(s, v) = 0.1 + s * v * 900 / height
tip(u, v, name) = sprintf("set label '%s' at screen %g, %g center; set arrow from screen 0.91, 0.1 to screen %g, %g " \
    ."size screen 0.01, 20 filled linewidth 1", name, across(unit * metre + 0.018, u), up(unit * metre + 0.018, v), \
    across(unit * metre, u), up(unit * metre, v))
eval tip(ca, sa * se, "x")
eval tip(-sa, ca * se, "y")
eval tip(0, ce, "z")
set label sprintf("axes: %g m", unit) at screen 0.91, 0.05 center

plot NaN with points pointtype 5 pointsize 1.8 linecolor rgb dryOutside title "above the water", \
    NaN with points pointtype 5 pointsize 1.8 linecolor rgb wetOutside title "wetted surface", \
    NaN with lines linewidth 2.5 linecolor rgb waterlineColour title "waterline"
