# Draws sweep.tsv, the table of ./collect, as sweep.svg. Cases without results have no point.
if (system("test -s sweep.tsv || echo none") ne "") {
    print "sweep.tsv is missing or empty: expected the table that ./collect prints"
    exit status 1
}
set terminal svg size 900,520 font "sans-serif,15" background "#ffffff" linewidth 1.4
set output "sweep.svg"
set datafile separator tab
set datafile missing "-"
set datafile columnheaders
set title "Heights of the seas of a sweep"
set xlabel "Significant height asked for, Hs [m]"
set ylabel "Height in the results [m]"
set border 3 linecolor "#404040"
set tics nomirror out textcolor "#404040"
set grid linecolor "#d8d8d8" linetype 1 linewidth 0.6
set xrange [0:*]
set yrange [0:*]
set offsets 0, 0.5, 0.5, 0
set key left top reverse Left samplen 2
# Crests are shifted a little to the left of their Hs and troughs to the right, to keep them apart.
aside = 0.05
plot x title "as asked for" with lines linecolor "#909090" linewidth 1, \
     "sweep.tsv" using "Hs":"Hm0" title "Hm0, 4 standard deviations" \
         with points pointtype 7 pointsize 0.6 linecolor "#202020", \
     "" using (column("Hs") - aside):"max" title "highest crest" \
         with points pointtype 9 pointsize 0.8 linecolor "#d55e00", \
     "" using (column("Hs") + aside):(-column("min")) title "deepest trough" \
         with points pointtype 11 pointsize 0.8 linecolor "#0072b2"
