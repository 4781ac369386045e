# Prints the spectrum of the signal of one probe: frequency [Hz] and one-sided density [m2/Hz]. The
# density integrates to the variance of the signal.
#     awk [-v probe=1] [-v from=0] [-v to=END] [-v smooth=1] -f spectrum.awk waveElevation.dat
# It computes the periodogram of the equally spaced instants with from <= t < to, after removing the
# mean, at the multiples of 1/(to - from) up to half the sampling frequency, and averages each `smooth`
# neighbours.
BEGIN { if (!probe) probe = 1; if (!smooth) smooth = 1; from += 0; bounded = to != "" }
$1 + 0 < from || (bounded && $1 + 0 >= to + 0) { next }
{
    if (n == 0) start = $1
    if (n == 1) dt = $1 - start
    signal[n++] = $(probe + 1); mean += $(probe + 1)
}
END {
    if (n < 3 || dt <= 0) { print "spectrum.awk: fewer than three instants" > "/dev/stderr"; exit 1 }
    mean /= n
    pi = atan2(0, -1)
    for (i = 0; i < n; ++i) { cosine[i] = cos(2 * pi * i / n); sine[i] = sin(2 * pi * i / n) }
    for (k = 1; k < n / 2; ++k) {
        re = im = 0
        for (i = 0; i < n; ++i) {
            turn = (k * i) % n
            re += (signal[i] - mean) * cosine[turn]
            im += (signal[i] - mean) * sine[turn]
        }
        sum += 2 * dt / n * (re * re + im * im)
        if (k % smooth == 0) { print (k - (smooth - 1) / 2) / (n * dt), sum / smooth; sum = 0 }
    }
}
