#pragma once

#include "mesh/nemohFormat.hpp"
#include "support/meshes.hpp"
#include "target.hpp"

/// Cuts the mesh at a height: wet, dry, split and dropped panels are all panels.
inline void checkCut(bodyMesh& mesh, double level) {
    output().str("");
    mesh.updateWetSurface(level);
    std::vector<triangle*> wet;
    std::size_t dry = 0, split = 0, parts = 0;
    for (triangle& panel : mesh.faces) {
        std::size_t under = 0, deep = 0;
        for (const v3<float>& p : {panel.vertexA, panel.vertexB, panel.vertexC}) {
            const auto z = static_cast<double>(p.z);
            under += level >= z ? 1 : 0;
            deep += static_cast<double>(static_cast<float>(level - z)) > 1e-4 ? 1 : 0;
        }
        dry += under == 0 ? 1 : 0;
        if (under == 3) {
            wet.push_back(&panel);
        } else if (under > 0 && deep == under) {
            ++split;
            parts += under;
        }
    }
    check(parts == mesh.splitFaces.size());
    for (triangle& part : mesh.splitFaces) {
        wet.push_back(&part);
    }
    check(mesh.wetFaces == wet);
    std::ostringstream counts;
    counts << "Set submergence level with:" << wet.size() << " wet faces, " << dry
           << " dry faces, and " << split << " split faces close to waterline\n";
    check(output().str() == counts.str());
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
