#pragma once

#include "mesh/nemohFormat.hpp"
#include "support/meshes.hpp"
#include "target.hpp"

/// Cuts the mesh at a height: wet, dry, split and dropped panels are all panels.
inline void checkCut(bodyMesh& mesh, double level) {
    output().str("");
    mesh.updateWetSurface(level);
    std::size_t wet = 0, dry = 0, split = 0, parts = 0;
    for (triangle& panel : mesh.faces) {
        std::size_t under = 0, deep = 0;
        for (const v3<float>& p : {panel.vertexA, panel.vertexB, panel.vertexC}) {
            const auto z = static_cast<double>(p.z);
            under += level >= z ? 1 : 0;
            deep += static_cast<double>(static_cast<float>(level - z)) > 1e-4 ? 1 : 0;
        }
        if (under == 3) {
            check(mesh.wetFaces.at(wet++) == &panel);
        } else if (under == 0) {
            ++dry;
        } else if (deep == under) {
            ++split;
            parts += under;
        }
    }
    check(parts == mesh.splitFaces.size() && wet + parts == mesh.wetFaces.size());
    for (std::size_t i = 0; i < parts; ++i) {
        check(mesh.wetFaces[wet + i] == &mesh.splitFaces[i]);
    }
    std::ostringstream counts;
    counts << "Set submergence level with:" << wet + parts << " wet faces, " << dry
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
    auto& [nodes, corners, expected] = list;
    for (const triangle* panel : mesh.wetFaces) {
        const std::size_t known = nodes.size();
        for (const v3<float>& p : {panel->vertexA, panel->vertexB, panel->vertexC}) {
            std::size_t node = 0;
            while (node < known && !(1e-5 > static_cast<double>(length(p - nodes[node])))) {
                ++node;
            }
            if (node == known) {
                nodes.push_back(p);
                node = nodes.size() - 1;
            }
            corners.push_back(node + 1);
        }
    }
    expected = "2 0\n";
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        expected += std::to_string(i + 1) + ' ' + textOf(nodes[i]);
    }
    expected += "0 0. 0. 0.\n";
    for (std::size_t i = 0; i < corners.size(); ++i) {
        expected += std::to_string(corners[i]) + ' ';
        expected += i % 3 == 2 ? std::to_string(corners[i - 2]) + '\n' : "";
    }
    expected += "0 0 0 0\n";
    std::ostringstream out;
    check(sorvik::nemohMesh::write(out, mesh.wetFaces) == static_cast<int>(nodes.size()));
    check(out.str() == expected);
    return list;
}

/// Cuts through the middle of the first panel and at z = 0.
inline nodeList checkCuts(bodyMesh& mesh) {
    check(mesh.faces.size() == static_cast<std::size_t>(mesh.nFaces));
    checkCut(mesh, mesh.faces.empty() ? 1 : static_cast<double>(mesh.faces[0].centroid.z));
    checkCut(mesh, 0);
    return checkNodes(mesh);
}
