# Draws the spectrum of a probe's signal and the JONSWAP curve.
#     gnuplot -c spectrum.gp FOLDER PICTURE.svg HS FP GAMMA [FROM TO [PROBE [SMOOTH]]]
# HS [m], FP [Hz] and GAMMA define the curve. The signal is that of FROM <= t < TO [s]; a whole number
# of repeat periods of the sea after the ramp shows its components without leakage. The periodogram is
# averaged over SMOOTH neighbours.
if (ARGC < 5) { print "Usage: gnuplot -c spectrum.gp FOLDER PICTURE.svg HS FP GAMMA [FROM TO [PROBE [SMOOTH]]]"; exit status 1 }
here = system("dirname '".ARG0."'"); folder = ARG1; picture = ARG2
load here."/style.gp"
Hs = real(ARG3); fp = real(ARG4); gamma = real(ARG5)
argument(i) = i > ARGC ? "" : ARGV[i]
options = sprintf("-v from='%s' -v to='%s' -v probe='%s' -v smooth='%s'", \
    argument(6), argument(7), argument(8), argument(9))
signal = sprintf("< awk %s -f '%s/spectrum.awk' '%s/waveElevation.dat'", options, here, folder)

# The shape is scaled to the variance HS^2/16.
width(f) = f > fp ? 0.09 : 0.07
shape(f) = f < 0.2 * fp ? 0 : f**-5 * exp(-1.25 * (fp / f)**4) * \
    gamma**exp(-(f / fp - 1)**2 / (2 * width(f)**2))
step = fp / 200
scale = Hs**2 / 16 / (step * sum [i = 40:2000] shape(i * step))

last = 0
stats signal using (spacing = $1 - last, last = $1, $2) nooutput
set title sprintf("Spectrum of the signal: significant wave height %.2f m", 4 * sqrt(STATS_sum * spacing))
set xlabel "Frequency [Hz]"
set ylabel "Spectral density [m^2/Hz]"
set xrange [0:3.2 * fp]
set yrange [0:*]
set samples 1000
set key top right
plot signal using 1:2 with impulses linewidth 0.7 linecolor rgb colour[6] notitle, \
    scale * shape(x) with lines linewidth 1.6 linecolor rgb colour[2] \
    title sprintf("JONSWAP, Hs = %g m, fp = %g Hz, gamma = %g", Hs, fp, gamma), \
    signal using 1:2 with points pointtype 7 pointsize 0.4 linecolor rgb colour[1] title "signal of the probe"
