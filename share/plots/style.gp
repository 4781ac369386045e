# Common style of the pictures: reproducible SVG, fonts, grid, and colours for colour-blind readers.
# Expects `picture`, the name of the picture.
if (!exists("height")) { height = 420 }
set terminal svg size 900,height font "sans-serif,15" background "#ffffff" linewidth 1.4
set output picture
set border linecolor "#404040"
set tics textcolor "#404040"
set grid linecolor "#d8d8d8" linetype 1 linewidth 0.6
set tics nomirror out
set border 3
array colour[6] = ["#0072b2", "#d55e00", "#009e73", "#cc79a7", "#e69f00", "#56b4e9"]
