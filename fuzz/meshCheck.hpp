#pragma once

#include "mesh/bodyMesh.hpp"
#include "target.hpp"

/// Cuts the mesh at a height: wet, dry, split and dropped panels are all panels.
inline void checkCut(bodyMesh& mesh, double level) {
    output().str("");
    mesh.updateWetSurface(level);
    std::size_t wet = 0, dry = 0, split = 0, parts = 0;
    for (triangle& panel : mesh.faces) {
        std::size_t under = 0, deep = 0;
        for (v3<float> const& p : {panel.vertexA, panel.vertexB, panel.vertexC}) {
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

/// Cuts through the middle of the first panel and at z = 0.
inline void checkCuts(bodyMesh& mesh) {
    check(mesh.faces.size() == static_cast<std::size_t>(mesh.nFaces));
    checkCut(mesh, mesh.faces.empty() ? 1 : static_cast<double>(mesh.faces[0].centroid.z));
    checkCut(mesh, 0);
}
