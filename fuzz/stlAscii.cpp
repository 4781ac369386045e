#include "mesh/stlFormat.hpp"
#include "meshCheck.hpp"

using namespace sorvik;

void tryText(const std::string& text) {
    bodyMesh mesh;
    readText(mesh, stl::readAscii, text);
    checkCuts(mesh);
    if (!mesh.faces.empty()) {
        const std::string written = textOf(mesh, stl::writeAscii);
        bodyMesh again;
        check(readText(again, stl::read, written) && textOf(again, stl::writeAscii) == written);
    }
}
