# Projects a hull for hull.gp and prints gnuplot commands that draw it from back to front.
#     awk -f hull.awk WETTED.dat HULL.gdf
# Draws only the part of the hull above the top of the wetted mesh. The waterline consists of the sides
# with both ends at that height that belong to a single wetted panel. Insides are darker.
# It ends with a message if one of the files is not such a mesh. It uses no mathematical functions: awk
# of BusyBox may lack them.
function stop(reason) { print reason | "cat >&2"; failed = 1; exit 1 }
BEGIN {
    ca = 0.866025403784438647; sa = 0.5 # the viewer stands at the azimuth -120 degrees
    ce = 0.906307787036649963; se = 0.422618261740699436 # and 25 degrees above the water
    order = "LC_ALL=C sort -k1,1gr | cut -d' ' -f2-"
}
NR == FNR && FNR == 1 && ($1 != 2 || $2 != 0) { stop(FILENAME " is no Nemoh mesh of a whole hull; -meshConvert writes one") }
NR == FNR && FNR > 1 && $1 == 0 { ++part }
NR == FNR && FNR > 1 && $1 > 0 && !part { node($1, $2, $3, $4) }
NR == FNR && FNR > 1 && $1 > 0 && part { if (panel($1, $2, $3)) { wet($1); wet($2); wet($3) } }
NR > FNR && FNR == 1 && !panels { stop(ARGV[1] " has no panels: does the hull reach the water?") }
NR > FNR && FNR == 4 { announced = $1; emerges = 0 }
NR > FNR && FNR > 4 {
    if (NF != 12) stop(FILENAME ", line " FNR ": expected the 12 numbers of a panel as -meshConvert writes them, found " NF)
    for (i = 1; i < 9; i += 3) node(--fresh, $i, $(i + 1), $(i + 2)) # below zero: of the hull
    panel(fresh + 2, fresh + 1, fresh)
}

function wet(i) {
    if (!wetted++) level = keel = z[i]
    if (z[i] > level) level = z[i]
    if (z[i] < keel) keel = z[i]
}
function node(i, a, b, c) { x[i] = a; y[i] = b; z[i] = c }
function same(a, b) { return x[a] == x[b] && y[a] == y[b] && z[a] == z[b] }
# Adds a panel and returns 1; omits one without area.
function panel(a, b, c) {
    if (same(a, b) || same(b, c) || same(c, a)) return 0
    ++panels; A[panels] = a; B[panels] = b; C[panels] = c
    side[a, b]; side[b, c]; side[c, a]
    if (z[a] > level + 1e-4 || z[b] > level + 1e-4 || z[c] > level + 1e-4) emerges = 1
    return 1
}

# Appends a point to the current polygon.
function point(a, b, c,    u, v, w) {
    u = a * ca - b * sa; w = a * sa + b * ca
    v = c * ce + w * se; depth += w * ce - c * se
    if (!seen++) { left = right = u; low = high = v; x0 = x1 = a; y0 = y1 = b; z0 = z1 = c }
    if (u < left) left = u; if (u > right) right = u; if (v < low) low = v; if (v > high) high = v
    if (a < x0) x0 = a; if (a > x1) x1 = a
    if (b < y0) y0 = b; if (b > y1) y1 = b
    if (c < z0) z0 = c; if (c > z1) z1 = c
    U[++corners] = u; V[corners] = v
}
# Appends the start of the side from a to b, and its intersection with the water level.
function follow(a, b, dry,    s) {
    if (!dry || z[a] >= level) point(x[a], y[a], z[a])
    if (dry && (z[a] - level) * (z[b] - level) < 0) {
        s = (level - z[a]) / (z[b] - z[a])
        point(x[a] + s * (x[b] - x[a]), y[a] + s * (y[b] - y[a]), level)
    }
}
function draw(style, nearer,    i, text) {
    for (i = 1; i <= corners; ++i) text = text sprintf("%s %.6g,%.6g", i > 1 ? " to" : "", U[i], V[i])
    printf "%.9g set object polygon from%s to %.6g,%.6g %s\n",
        depth / corners - nearer, text, U[1], V[1], style | order
}
function waterline(a, b) {
    if (z[a] < level - 1e-4 || z[b] < level - 1e-4 || (b, a) in side) return
    corners = depth = 0
    point(x[a], y[a], z[a]); point(x[b], y[b], z[b])
    facing = (y[b] - y[a]) * sa > (x[b] - x[a]) * ca # then it lies in front of all panels
    draw("fillstyle empty border rgb waterlineColour linewidth 2.5", facing ? 10 * size : size / 400)
}
END {
    if (failed) exit 1
    if (fresh != -3 * announced || !announced)
        stop(ARGV[2] " has " -fresh / 3 " panels, its line 4 announces \"" announced "\"")
    for (i = 1; i <= panels; ++i) {
        corners = depth = 0; dry = A[i] < 0
        follow(A[i], B[i], dry); follow(B[i], C[i], dry); follow(C[i], A[i], dry)
        if (corners < 3) continue
        inside = (U[2] - U[1]) * (V[3] - V[1]) < (U[3] - U[1]) * (V[2] - V[1])
        draw("fillcolor rgb " (dry ? "dry" : "wet") (inside ? "Inside" : "Outside") \
            " fillstyle solid border rgb edgeColour linewidth 0.4", 0)
    }
    size = right - left
    for (i = 1; i <= panels; ++i) {
        if (A[i] > 0) { waterline(A[i], B[i]); waterline(B[i], C[i]); waterline(C[i], A[i]) }
    }
    close(order)
    printf "left = %g; right = %g; low = %g; high = %g; level = %g\n", left, right, low, high, level
    printf "length = %g; breadth = %g; depth = %g; draught = %g; emerges = %d\n", \
        x1 - x0, y1 - y0, z1 - z0, level - keel, emerges
    printf "ca = %g; sa = %g; ce = %g; se = %g\n", ca, sa, ce, se
}
