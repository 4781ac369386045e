# Draws a hull, its wetted surface and its waterline.
#     gnuplot -c hull.gp HULL.gdf WETTED.dat PICTURE.svg
# sorvikPre writes both meshes: HULL.gdf without -wet, WETTED.dat cut at the water level.
if (ARGC < 3) { print "Usage: gnuplot -c hull.gp HULL.gdf WETTED.dat PICTURE.svg"; exit status 1 }
here = system("dirname '".ARG0."'"); picture = ARG3; hull = ARG1; wetted = ARG2
load here."/style.gp"
dryOutside = "#e6e6e6"; dryInside = "#bdbdbd"; wetOutside = colour[6]; wetInside = "#3a86b0"
edgeColour = "#505050"; waterlineColour = colour[2]
load sprintf("< awk -f '%s/hull.awk' '%s' '%s'", here, wetted, hull)

unset border; unset tics; unset grid
set label sprintf("Hull of %g x %g x %g m with its waterline at z = %g m", length, breadth, depth, level) \
    at screen 0.5, 0.94 center
set key at screen 0.5, 0.88 center horizontal Left reverse samplen 1.5

# The drawing is centred and fills 0.92 of the width or 0.76 of the height of the canvas.
set lmargin at screen 0.04; set rmargin at screen 0.96; set bmargin at screen 0.04; set tmargin at screen 0.8
aspect = 0.92 * 900 / (0.76 * height)
half = 0.5 * (right - left > (high - low) * aspect ? right - left : (high - low) * aspect)
set xrange [(left + right) / 2 - half:(left + right) / 2 + half]
set yrange [(low + high) / 2 - half / aspect:(low + high) / 2 + half / aspect]

# The directions of the axes, in the lower right corner.
across(s, u) = 0.92 + s * u
up(s, v) = 0.1 + s * v * 900 / height
tip(u, v, name) = sprintf("set label '%s' at screen %g, %g center; set arrow from screen 0.92, 0.1 to screen %g, %g " \
    ."size screen 0.01, 20 filled linewidth 1", name, across(0.068, u), up(0.068, v), across(0.05, u), up(0.05, v))
eval tip(ca, sa * se, "x")
eval tip(-sa, ca * se, "y")
eval tip(0, ce, "z")

plot NaN with points pointtype 5 pointsize 1.8 linecolor rgb dryOutside title "above the water", \
    NaN with points pointtype 5 pointsize 1.8 linecolor rgb wetOutside title "wetted surface", \
    NaN with lines linewidth 2.5 linecolor rgb waterlineColour title "waterline"
