# Prints the spectrum of the signal of one probe: frequency [Hz] and one-sided density [m2/Hz]. The
# density integrates to the variance of the signal.
#     awk [-v probe=1] [-v from=0] [-v to=END] [-v segment=SECONDS] [-v smooth=1] -f spectrum.awk waveElevation.dat
# It uses the equally spaced instants with from <= t < to, removes the mean, and averages the
# periodograms of half-overlapping segments under a Hann window (P. D. Welch, IEEE Trans. Audio
# Electroacoust. 15, 1967). The default segment has 2^k instants, at most 1/8 of the signal
# or 256.
# If segment is 0, or if `to` is given and segment is not, the whole span is one segment without a
# window: right for a whole number of repeat periods. Each `smooth` neighbours are averaged.
# With -v header=1 the first line is "# SEGMENTS LENGTH", the length in s.
# It uses no mathematical functions: awk of BusyBox may lack them.
BEGIN {
    n = 0
    if (probe == "") probe = 1
    if (smooth == "") smooth = 1
    if (probe !~ /^[1-9][0-9]*$/) stop("expected the number of a probe, 1, 2, ..., found \"" probe "\"")
    if (smooth !~ /^[1-9][0-9]*$/) stop("expected a number of neighbours, 1, 2, ..., found \"" smooth "\"")
    checkTime(from, "the start of the span"); checkTime(to, "the end of the span"); checkTime(segment, "the segment")
    whole = segment == "" ? to != "" : segment == 0
}
FNR == 1 { width = NF }
FNR == 1 && NF <= probe { stop("there is no probe " probe " in " FILENAME ", which has " NF - 1) }
NF != width { stop(FILENAME ", line " FNR " has " NF " numbers, the first line " width "; is the file complete?") }
$1 + 0 < from + 0 || (to != "" && $1 + 0 >= to + 0) { next }
{ time[n] = $1 + 0; signal[n++] = $(probe + 1); mean += $(probe + 1) }

function stop(reason) {
    if (!failed) print "spectrum.awk: " reason | "cat >&2"
    failed = 1
    exit 1
}
function checkTime(text, what) {
    if (text !~ /^([-+]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eE][-+]?[0-9]+)?)?$/)
        stop("expected a number of seconds for " what ", found \"" text "\"")
}

# Printed times have six significant digits.
function checkInstants(    i, error, largest) {
    dt = (time[n - 1] - time[0]) / (n - 1)
    if (dt <= 0) stop("the instants do not increase")
    largest = -time[0] > time[n - 1] ? -time[0] : time[n - 1]
    for (i = 0; i < n; ++i) {
        error = time[i] - time[0] - i * dt
        if (error < 0) error = -error
        if (error > 0.01 * dt + 1.1e-5 * largest)
            stop("the instants are not equally spaced: found " time[i] " s, expected " time[0] + i * dt " s")
    }
}

# The least prime factor.
function factor(n,    p) { for (p = 2; p * p <= n; ++p) if (n % p == 0) return p; return n }
# The operations of a transform per number.
function effort(n,    p, sum) { for (; n > 1; n /= p) sum += p = factor(n); return sum }

# Chooses the number of instants of a segment. A long one omits a few if that makes its transform fast.
function choose() {
    if (whole) size = n
    else if (segment != "") size = int(segment / dt + 0.5)
    else for (size = 256; size * 16 <= n; size *= 2);
    if (size > n) size = n
    if (size < 3) stop("the segment has fewer than three instants")
    while (size > (whole ? 1000 : 10) && effort(size) > 40) --size
    segments = whole ? 1 : 1 + int(2 * (n - size) / size)
    if (size * effort(size) > 1e8) stop("the span has too many instants for one segment")
}

# The cosines and sines of the multiples of 2 pi/size.
function makeCircle(    angle, term, i) {
    angle = 6.283185307179586476925 / size
    cosine[0] = term = 1
    for (i = 1; i < 40; ++i) {
        term *= angle / i
        if (i % 2) sine[1] += i % 4 == 1 ? term : -term
        else cosine[1] += i % 4 == 0 ? term : -term
    }
    cosine[1] += 1
    sine[0] = 0
    for (i = 2; i < size; ++i) {
        cosine[i] = cosine[i - 1] * cosine[1] - sine[i - 1] * sine[1]
        sine[i] = cosine[i - 1] * sine[1] + sine[i - 1] * cosine[1]
    }
}

# Fourier transform of the n numbers (re, im) at the indices first, first + step, ... into (X, Y) from
# `to` on. It combines the transforms of p interleaved parts; p is the least factor of n.
function transform(n, first, step, to,    p, m, k, r) {
    if (n == 1) { X[to] = re[first]; Y[to] = im[first]; return }
    p = factor(n)
    m = n / p
    for (r = 0; r < p; ++r) transform(m, first + r * step, step * p, to + r * m)
    for (k = 0; k < m; ++k) {
        if (p == 2) combineTwo(to + k, to + m + k, k * step)
        else combine(p, m, to + k, k * step, m * step)
    }
}
function combineTwo(a, b, turn,    c, s, x, y) {
    c = cosine[turn]; s = sine[turn]
    x = X[b] * c + Y[b] * s
    y = Y[b] * c - X[b] * s
    X[b] = X[a] - x; Y[b] = Y[a] - y
    X[a] += x; Y[a] += y
}
function combine(p, m, to, angle, turnOfPart,    i, q, r, turn, x, y) {
    for (r = 0; r < p; ++r) {
        i = to + r * m; turn = r * angle
        u[r] = X[i] * cosine[turn] + Y[i] * sine[turn]
        v[r] = Y[i] * cosine[turn] - X[i] * sine[turn]
    }
    for (q = 0; q < p; ++q) {
        x = y = turn = 0
        for (r = 0; r < p; ++r) {
            x += u[r] * cosine[turn] + v[r] * sine[turn]
            y += v[r] * cosine[turn] - u[r] * sine[turn]
            turn = (turn + q * turnOfPart) % size
        }
        X[to + q * m] = x; Y[to + q * m] = y
    }
}

function start(j) { return segments < 2 ? 0 : int(j * (n - size) / (segments - 1)) }

# Adds the periodograms of two segments: the real and the imaginary part of one transform.
function addPair(j,    a, b, i, k) {
    a = start(j); b = start(j + 1)
    for (i = 0; i < size; ++i) {
        re[i] = window[i] * (signal[a + i] - mean)
        im[i] = j + 1 < segments ? window[i] * (signal[b + i] - mean) : 0
    }
    transform(size, 0, 1, 0)
    for (k = 1; k < size / 2; ++k) {
        i = size - k
        power[k] += (X[k] * X[k] + Y[k] * Y[k] + X[i] * X[i] + Y[i] * Y[i]) / 2
    }
}

END {
    if (failed) exit 1
    if (n < 3) stop("the span has fewer than three instants")
    mean /= n
    checkInstants()
    choose()
    makeCircle()
    for (i = 0; i < size; ++i) {
        window[i] = whole ? 1 : (1 - cosine[i]) / 2
        weight += window[i] * window[i]
    }
    for (j = 0; j < segments; j += 2) addPair(j)
    if (header) print "#", segments, size * dt
    for (k = 1; k < size / 2; ++k) {
        sum += 2 * dt / weight / segments * power[k]
        if (k % smooth == 0) { print (k - (smooth - 1) / 2) / (size * dt), sum / smooth; sum = 0 }
    }
}
