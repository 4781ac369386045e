#include "meshCheck.hpp"
#include "support/meshes.hpp"

#include <algorithm>

namespace {

std::string textOf(v3<float> const& p) {
    std::ostringstream out;
    out << p.x << ' ' << p.y << ' ' << p.z << '\n';
    return out.str();
}

} // namespace

void tryText(const std::string& text) {
    bodyMesh mesh;
    mesh.nemoh_read(fileOf("in.dat", text));
    checkCuts(mesh);
    // The wetted surface, as a plain scan for nodes has it.
    std::vector<v3<float>> nodes;
    std::vector<int> corners;
    for (triangle const* panel : mesh.wetFaces) {
        scanForNodes(nodes, corners, {panel->vertexA, panel->vertexB, panel->vertexC});
    }
    std::string expected = "2 0\n";
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        expected += std::to_string(i + 1) + ' ' + textOf(nodes[i]);
    }
    expected += "0 0. 0. 0.\n";
    for (std::size_t i = 0; i < corners.size(); ++i) {
        expected += std::to_string(corners[i]) + ' ';
        expected += i % 3 == 2 ? std::to_string(corners[i - 2]) + '\n' : "";
    }
    check(mesh.nemoh_print(pathOf("1.dat"), true) == static_cast<int>(nodes.size()));
    check(contentOf(pathOf("1.dat")) == expected + "0 0 0 0\n");

    int counts[2] = {};
    bodyMesh::nemoh_readMeshInfo(pathOf("1.dat"), counts[0], counts[1]);
    const auto panels = static_cast<int>(mesh.wetFaces.size());
    check(counts[0] == static_cast<int>(nodes.size()) && counts[1] == panels);
    if (expected.find_first_of("ainf") == std::string::npos) {
        bodyMesh again;
        check(again.nemoh_read(pathOf("1.dat")) == panels + 1);
        for (std::size_t i = 0; i < corners.size(); ++i) {
            triangle const& t = again.faces[i / 3];
            v3<float> const& p = i % 3 == 0 ? t.vertexA : i % 3 == 1 ? t.vertexB : t.vertexC;
            check(textOf(p) == textOf(nodes[static_cast<std::size_t>(corners[i] - 1)]));
        }
    }
    bodyMesh::nemoh_readMeshInfo(pathOf("in.dat"), counts[0], counts[1]);
}
