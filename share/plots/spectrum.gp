# Draws the spectrum of a probe's signal, and the JONSWAP curve of HS [m], FP [Hz] and GAMMA.
#     gnuplot [-e "segment = SECONDS"] -c spectrum.gp FOLDER PICTURE [HS FP GAMMA [FROM TO [PROBE [SMOOTH]]]]
# FOLDER holds waveElevation.dat. The signal is that of FROM <= t < TO [s]; spectrum.awk says how SEGMENT
# and SMOOTH average. A whole number of repeat periods of the sea after the ramp, as FROM and TO, shows
# its components without leakage. "" stands for a default; without HS there is no curve.
if (ARGC < 2) {
    print "Usage: gnuplot -c spectrum.gp FOLDER PICTURE [HS FP GAMMA [FROM TO [PROBE [SMOOTH]]]]"
    exit status 1
}
here = system("dirname '".ARG0."'"); folder = ARG1; picture = ARG2
load here."/checks.gp"
load here."/table.gp"
argument(i) = i > ARGC ? "" : ARGV[i]
number(i) = argument(i) eq "" ? 0 : real(argument(i))
Hs = number(3); fp = number(4); gamma = argument(5) eq "" ? 1 : number(5)
problem = Hs < 0 || (Hs > 0 && fp <= 0) || gamma < 0 ? sprintf( \
    "expected HS and FP above 0 and GAMMA of at least 0, found %s, %s and %s", argument(3), argument(4), argument(5)) : ""
eval refuse
options = option("header", "1").option("from", argument(6)).option("to", argument(7)) \
    .(argument(8) eq "" ? "" : option("probe", argument(8))).(argument(9) eq "" ? "" : option("smooth", argument(9))) \
    .(exists("segment") ? option("segment", sprintf("%.9g", segment)) : "")
densities = system(awk("spectrum.awk", options." ".quoted(table)))
eval refuseError
segments = int(word(densities[1:100], 2)); duration = real(word(densities[1:100], 3))
set print $signal
print densities
unset print

# The shape is scaled to the variance HS^2/16.
if (!exists("sigma1")) { sigma1 = 0.07 }
if (!exists("sigma2")) { sigma2 = 0.09 }
width(f) = f > fp ? sigma2 : sigma1
shape(f) = f < 0.2 * fp ? 0 : f**-5 * exp(-1.25 * (fp / f)**4) * \
    gamma**exp(-(f / fp - 1)**2 / (2 * width(f)**2))
step = fp / 200
scale = Hs > 0 ? Hs**2 / 16 / (step * sum [i = 40:2000] shape(i * step)) : 0

last = 0
stats $signal using (spacing = $1 - last, last = $1):2 nooutput
peak = Hs > 0 ? fp : STATS_pos_max_y
load here."/style.gp"
set title heading(sprintf("Spectrum of the signal: significant wave height %.2f m", 4 * sqrt(STATS_sum_y * spacing)) \
    .(segments > 1 ? sprintf(", %d segments of %g s", segments, duration) : ""))
set xlabel "Frequency [Hz]"
set ylabel "Spectral density [m^2/Hz]"
set xrange [0:3.2 * peak]
set yrange [0:*]
set samples 1000
set key top right
curve = sprintf("JONSWAP, Hs = %.4g m, fp = %.4g Hz, gamma = %g", Hs, fp, gamma)
if (segments > 1) {
    plot $signal using 1:2 with lines linewidth 1.6 linecolor rgb colour[1] title "signal of the probe", \
        Hs > 0 ? scale * shape(x) : NaN with lines linewidth 1.6 linecolor rgb colour[2] title Hs > 0 ? curve : ""
} else {
    plot $signal using 1:2 with impulses linewidth 0.7 linecolor rgb colour[6] notitle, \
        Hs > 0 ? scale * shape(x) : NaN with lines linewidth 1.6 linecolor rgb colour[2] title Hs > 0 ? curve : "", \
        $signal using 1:2 with points pointtype 7 pointsize 0.4 linecolor rgb colour[1] title "signal of the probe"
}
