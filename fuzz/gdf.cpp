#include "mesh/gdfFormat.hpp"
#include "meshCheck.hpp"

using namespace sorvik;

void tryText(const std::string& text) {
    bodyMesh mesh;
    readText(mesh, gdf::read, text);
    checkCuts(mesh);
    std::istringstream one(textOf(mesh, gdf::write, 1, 9.81));
    bodyMesh again;
    check(readText(again, gdf::read, one.str()));
    std::istringstream two(textOf(again, gdf::write, 1, 9.81));
    // Four lines of header; every second panel is read.
    std::string expected, written;
    for (int line = 0; std::getline(one, expected); ++line) {
        expected = line == 3 ? std::to_string((mesh.nFaces + 1) / 2) : expected;
        check((line > 4 && line % 2 != 0) || (std::getline(two, written) && written == expected));
    }
    check(!std::getline(two, written));
}
