#include "meshCheck.hpp"

using namespace sorvik;

void tryText(const std::string& text) {
    bodyMesh mesh;
    std::istringstream in(text);
    nemohMesh::read(in, {mesh.faces, mesh.nFaces});
    const std::string written = checkCuts(mesh);
    int nodes = 0, panels = 0;
    nemohMesh::count(in = std::istringstream(written), nodes, panels);
    check(panels == static_cast<int>(mesh.wetFaces.size()));
    nemohMesh::count(in = std::istringstream(text), nodes, panels);
}
