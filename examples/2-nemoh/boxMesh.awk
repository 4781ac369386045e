# Writes a box about (0, 0, 0) as ASCII STL, its normals outwards, in triangles of half a square:
#   awk -f boxMesh.awk -v side=0.5 -v edges='8 4 3' > box.stl      lengths in m along x, y and z
BEGIN {
    split(edges, edge)
    print "solid box"
    for (axis = 1; axis <= 3; ++axis) for (sign = -1; sign <= 1; sign += 2) face(axis, sign)
    print "endsolid box"
}
# Writes the face across an axis: u and v are the other axes, in the order that turns the normal out.
function face(axis, sign,    u, v, i, j, nu, nv) {
    u = axis % 3 + 1
    v = u % 3 + 1
    if (sign < 0) { i = u; u = v; v = i }
    nu = edge[u] / side
    nv = edge[v] / side
    for (i = 0; i < nu; ++i) for (j = 0; j < nv; ++j) {
        facet(axis, sign, u, v, i, j, i + 1, j, i + 1, j + 1)
        facet(axis, sign, u, v, i, j, i + 1, j + 1, i, j + 1)
    }
}
function facet(axis, sign, u, v, i1, j1, i2, j2, i3, j3) {
    print "facet normal", (axis == 1) * sign, (axis == 2) * sign, (axis == 3) * sign
    print "outer loop"
    vertex(axis, sign, u, v, i1, j1)
    vertex(axis, sign, u, v, i2, j2)
    vertex(axis, sign, u, v, i3, j3)
    print "endloop\nendfacet"
}
function vertex(axis, sign, u, v, i, j,    p) {
    p[axis] = sign * edge[axis] / 2
    p[u] = i * side - edge[u] / 2
    p[v] = j * side - edge[v] / 2
    print "vertex", p[1], p[2], p[3]
}
