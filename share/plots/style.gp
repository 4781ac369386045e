# Common style of the pictures: kinds of files, fonts, grid, and colours for colour-blind readers.
# Expects `picture`, the name of the picture; its ending .svg, .pdf or .png chooses the kind.
if (!exists("height")) { height = 420 }
kind = strlen(picture) > 4 ? picture[strlen(picture) - 3:*] : ""
terminal = kind eq ".svg" ? "svg" : kind eq ".pdf" ? "pdfcairo" : kind eq ".png" ? "pngcairo" : ""
problem = terminal eq "" ? picture.": expected a picture whose name ends in .svg, .pdf or .png" : \
    strstrt(GPVAL_TERMINALS, " ".terminal." ") ? "" : \
    "This gnuplot cannot draw ".kind.": it lacks the terminal ".terminal.", which Debian's gnuplot-nox has"
eval refuse
if (kind eq ".svg") { set terminal svg size 900,height font "sans-serif,15" background "#ffffff" linewidth 1.4 }
# PDF is 16 cm wide; PNG has 300 dots per inch at that width.
if (kind eq ".pdf") { set terminal pdfcairo size 6.3,height * 6.3 / 900 font "sans-serif,7.6" \
    background "#ffffff" linewidth 0.7 pointscale 0.5 }
if (kind eq ".png") { set terminal pngcairo size 1890,2.1 * height font "sans-serif,24" \
    background "#ffffff" linewidth 2.9 pointscale 2.1 }
set output picture
set border linecolor "#404040"
set tics textcolor "#404040"
set grid linecolor "#d8d8d8" linetype 1 linewidth 0.6
set tics nomirror out
set border 3
array colour[6] = ["#0072b2", "#d55e00", "#009e73", "#cc79a7", "#e69f00", "#56b4e9"]
# `caption`, if it is set, is the second line of the title.
heading(text) = exists("caption") ? text."\n{/*0.85 ".caption."}" : text
