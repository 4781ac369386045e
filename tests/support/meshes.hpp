#pragma once

#include "mesh/bodyMesh.hpp"

#include <utility>
#include <vector>

/// Fills a mesh as a reader does, cut at z = 0 where it lies.
inline void fillMesh(bodyMesh& mesh, std::vector<triangle> panels) {
    mesh.faces = std::move(panels);
    mesh.nFaces = static_cast<int>(mesh.faces.size());
    mesh.updateWetSurface(0.0);
}
