#include "meshCheck.hpp"

#include <algorithm>
#include <cmath>

using namespace sorvik;

void tryText(const std::string& text) {
    bodyMesh mesh;
    std::istringstream in(text);
    nemohMesh::read(in, {mesh.faces, mesh.nFaces});
    const auto [nodes, corners, written] = checkCuts(mesh);
    const auto panels = static_cast<int>(mesh.wetFaces.size());
    int counts[2] = {};
    nemohMesh::count(in = std::istringstream(written), counts[0], counts[1]);
    check(counts[0] == static_cast<int>(nodes.size()) && counts[1] == panels);
    if (std::all_of(nodes.begin(), nodes.end(),
                    [](auto p) { return std::isfinite(p.x + p.y + p.z); })) {
        bodyMesh again;
        nemohMesh::read(in = std::istringstream(written), {again.faces, again.nFaces});
        check(again.nFaces == panels + 1);
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const triangle& t = again.faces[i / 3];
            const v3<float>& p = i % 3 == 0 ? t.vertexA : i % 3 == 1 ? t.vertexB : t.vertexC;
            check(textOf(p) == textOf(nodes[corners[i] - 1]));
        }
    }
    nemohMesh::count(in = std::istringstream(text), counts[0], counts[1]);
}
