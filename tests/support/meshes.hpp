#pragma once

#include "mesh/bodyMesh.hpp"

#include <sstream>
#include <string>
#include <utility>
#include <vector>

/// Fills a mesh as a reader does, cut at z = 0 where it lies.
inline void fillMesh(bodyMesh& mesh, std::vector<triangle> panels) {
    mesh.faces = std::move(panels);
    mesh.nFaces = static_cast<int>(mesh.faces.size());
    mesh.updateWetSurface(0.0);
}

/// Reads `text` into a mesh through the reader of a format.
template <class Read>
bool readText(bodyMesh& mesh, Read read, const std::string& text) {
    std::istringstream in(text);
    return read(in, "mesh", sorvik::panelStore{mesh.faces, mesh.nFaces});
}

/// All panels of a mesh as the writer of a format writes them.
template <class Write, class... Values>
std::string textOf(const bodyMesh& mesh, Write write, Values... values) {
    std::ostringstream out;
    write(out, sorvik::panelView(mesh.faces, mesh.nFaces), values...);
    return out.str();
}
