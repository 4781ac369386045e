// Writes a closed hull for runs of whole programs:
//     makeHull FACETS FILE [ascii]
// The format is that of the file name; "ascii" asks for the text form of STL.

#include "ellipsoid.hpp"
#include "support/meshes.hpp"

#include <cstdlib>
#include <iostream>

int main(int argc, const char** argv) {
    if (argc < 3) {
        std::cout << "usage: makeHull FACETS FILE [ascii]" << std::endl;
        return 1;
    }
    const int facets = std::atoi(argv[1]);
    int around = 4;
    while (4 * around * around < facets) {
        ++around;
    }
    bodyMesh mesh;
    fillMesh(mesh, ellipsoid(around, facets / (2 * around) + 1));
    if (argc > 3) {
        mesh.stl_print_ascii(argv[2], false);
    } else {
        mesh.write(argv[2], false);
    }
    return 0;
}
