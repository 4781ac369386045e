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

/// Nodes, the corners of panels, three each, counted from 1, and the file of both.
struct nodeList {
    std::vector<v3<float>> nodes;
    std::vector<std::size_t> corners;
    std::string text;
};

/// Writes the wetted surface for Nemoh and compares it with a plain scan for nodes: every corner
/// against all nodes of the panels before.
inline nodeList checkNodes(const bodyMesh& mesh) {
    nodeList list;
    auto& [nodes, corners, text] = list;
    std::ostringstream expected, panels, out;
    expected << "2 0\n";
    for (const triangle* panel : mesh.wetFaces) {
        const std::size_t known = nodes.size(), first = corners.size();
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
            corners.push_back(node + 1);
            panels << corners.back() << ' ';
        }
        panels << corners[first] << '\n';
    }
    expected << "0 0. 0. 0.\n" << panels.str() << "0 0 0 0\n";
    check(sorvik::nemohMesh::write(out, mesh.wetFaces) == static_cast<int>(nodes.size()));
    text = out.str();
    check(text == expected.str());
    return list;
}

/// Cuts through the middle of the first panel and at z = 0.
inline nodeList checkCuts(bodyMesh& mesh) {
    check(mesh.faces.size() == static_cast<std::size_t>(mesh.nFaces));
    checkCut(mesh, mesh.faces.empty() ? 1 : static_cast<double>(mesh.faces[0].centroid.z));
    checkCut(mesh, 0);
    return checkNodes(mesh);
}
