# Checks a mesh for Nemoh: awk -f checkMesh.awk MESH.dat
FNR == 1 { next }
$1 == 0 { ++part; next }
!part { ++nodes; x[$1] = $2; y[$1] = $3; z[$1] = $4; if (nodes == 1 || $4 > top) top = $4; next }
part == 1 {
    ++panels
    unknown += !($1 in z) + !($2 in z) + !($3 in z)
    area = triangle($1, $2, $3) + triangle($1, $3, $4)
    if (area < 1e-7) ++small
}
# Returns the area of a triangle and adds the volume between it and the origin.
function triangle(a, b, c,    nx, ny, nz) {
    nx = (y[b] - y[a]) * (z[c] - z[a]) - (z[b] - z[a]) * (y[c] - y[a])
    ny = (z[b] - z[a]) * (x[c] - x[a]) - (x[b] - x[a]) * (z[c] - z[a])
    nz = (x[b] - x[a]) * (y[c] - y[a]) - (y[b] - y[a]) * (x[c] - x[a])
    volume += (x[a] * nx + y[a] * ny + z[a] * nz) / 6
    return sqrt(nx * nx + ny * ny + nz * nz) / 2
}
END {
    printf "%d points, %d panels, %d of less than 1e-7 m2, %d unknown corners\n", nodes, panels, small, unknown
    printf "highest point at z = %g m, volume %.3f m3\n", top, volume
    exit small > 0 || unknown > 0 || top > 0 || volume <= 0
}
