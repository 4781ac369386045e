#pragma once

#include "mesh/nemohFormat.hpp"
#include "support/meshes.hpp"
#include "target.hpp"

/// Cuts the mesh at a height: wet, dry, split and dropped panels are all panels.
inline void checkCut(bodyMesh& mesh, double level) {
    output().str("");
    mesh.updateWetSurface(level);
    std::istringstream counts(output().str());
    std::string word;
    std::size_t wet = 0, dry = 0, split = 0;
    counts.ignore(99, ':') >> wet >> word >> word >> dry >> word >> word >> word >> split;
    const std::size_t parts = mesh.splitFaces.size();
    check(wet == mesh.wetFaces.size() && parts >= split && parts <= 2 * split);
    check(wet - parts + dry + split <= mesh.faces.size());
}

inline std::string textOf(const v3<float>& p) {
    std::ostringstream out;
    out << p.x << ' ' << p.y << ' ' << p.z << '\n';
    return out.str();
}

/// Writes the wetted surface for Nemoh and compares it with a plain scan for nodes: every corner
/// against all nodes of the panels before. Returns the file.
inline std::string checkNodes(const bodyMesh& mesh) {
    std::vector<v3<float>> nodes;
    std::ostringstream expected, panels, out;
    expected << "2 0\n";
    for (const triangle* panel : mesh.wetFaces) {
        const std::size_t known = nodes.size();
        std::size_t first = 0;
        for (const v3<float>& p : {panel->vertexA, panel->vertexB, panel->vertexC}) {
            std::size_t node = 0;
            while (node < known && !(1e-5 > static_cast<double>(length(p - nodes[node])))) {
                ++node;
            }
            if (node == known) {
                nodes.push_back(p);
                node = nodes.size() - 1;
                expected << nodes.size() << ' ' << textOf(p);
            }
            first = first == 0 ? node + 1 : first;
            panels << node + 1 << ' ';
        }
        panels << first << '\n';
    }
    expected << "0 0. 0. 0.\n" << panels.str() << "0 0 0 0\n";
    check(sorvik::nemohMesh::write(out, mesh.wetFaces) == static_cast<int>(nodes.size()));
    check(out.str() == expected.str());
    return out.str();
}

/// Cuts through the middle of the first panel and at z = 0.
inline std::string checkCuts(bodyMesh& mesh) {
    check(mesh.faces.size() == static_cast<std::size_t>(mesh.nFaces));
    checkCut(mesh, mesh.faces.empty() ? 1 : static_cast<double>(mesh.faces[0].centroid.z));
    checkCut(mesh, 0);
    return checkNodes(mesh);
}
