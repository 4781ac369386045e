# Prints what the plots show of a sea, as NAME=VALUE lines, from the JSON text of an input file:
# caption; and for JONSWAP seas ramp [s], period (the repeat period [s], if there is one), and with the key
# Hs also hs (the height of the sea in the table [m]), fp [Hz], gamma, sigma1 and sigma2.
#     awk -f sea.awk INPUT.json
# The JSON has one member a line, indented by tabs.
BEGIN {
    split("fp=0.1 gamma=1 sigma1=0.07 sigma2=0.09 f0=0.01 f1=10 components=100 seed=-1 direction=0", list, " ")
    for (i in list) { split(list[i], pair, "="); key[pair[1]] = pair[2] }
    pi = 3.14159265358979324
}
/^\t"/ { block = $1 }
/^\t\t"/ { inner = $1 }
/^\t\t\t"/ && block == "\"environment\"" && inner == "\"wave\"" && $3 != "[" {
    name = $1
    gsub(/"/, "", name)
    sub(/^[^:]*: /, "")
    sub(/,$/, "")
    gsub(/^"|"$/, "")
    key[name] = $0
}

function add(text) { caption = caption (caption == "" ? "" : ", ") text }
function addDirection() { add(sprintf("direction %.4g deg", key["direction"] * (key["useRadians"] + 0 ? 180 / pi : 1))) }

function describeRegular(    i, list) {
    add("Regular wave")
    if (key["amplitude"] + 0) add(sprintf("height %g m", 2 * key["amplitude"]))
    split("period,s,frequency,Hz,omega,rad/s,k,rad/m,length,m", list, ",")
    for (i = 1; i < 10 && !(list[i] in key); i += 2);
    if (i < 10) add(sprintf("%s %g %s", list[i], key[list[i]], list[i + 1]))
    addDirection()
}

# The amplitude of a component is sqrt(2 S): the sea is higher than the key Hs by 1/sqrt(spacing in rad/s).
function describeJonswap(    hertz, spacing, first) {
    hertz = key["useRadians"] + 0 ? 1 / (2 * pi) : 1
    spacing = (key["f1"] - key["f0"]) * hertz / (key["components"] - 1)
    first = key["f0"] * hertz / spacing
    add("JONSWAP sea")
    if (key["Hs"] > 0) {
        printf "hs=%.9g\nfp=%.9g\n", key["Hs"] / sqrt(2 * pi * spacing), key["fp"] * hertz
        printf "gamma=%.9g\nsigma1=%.9g\nsigma2=%.9g\n", key["gamma"], key["sigma1"], key["sigma2"]
        add(sprintf("Hs = %.4g m", key["Hs"] / sqrt(2 * pi * spacing)))
    }
    add(sprintf("Tp = %.4g s", 1 / (key["fp"] * hertz)))
    addDirection()
    if (key["seed"] != -1) add(sprintf("seed %d", key["seed"]))
    printf "ramp=%.9g\n", key["rampTime"]
    if (first - int(first + 0.5) < 1e-4 && int(first + 0.5) - first < 1e-4) printf "period=%.9g\n", 1 / spacing
}

END {
    if (key["type"] == "regular") describeRegular()
    else if (key["type"] == "JONSWAP" && key["components"] > 1 && key["fp"] > 0 && key["f1"] > key["f0"]) describeJonswap()
    else if (key["type"] == "custom" && "file" in key) add("Waves of " key["file"])
    else if (key["type"] == "custom") { add("Listed waves"); addDirection() }
    gsub(/[][@^_{}&~\\]/, "\\\\&", caption) # they would be marks of gnuplot
    print "caption=" caption
}
