#include "mesh/bodyMesh.hpp"
#include "nemoh/nemohIO.hpp"
#include "numerics/matrixOp.hpp"

#include <iostream>

int main(int, const char** argv) {
    const bodyMesh hull(argv[1], {0, 0, 0}, {0, 0, 0}, 0.0);
    const double sides[] = {1, 2, 3};
    std::cout << hull.nFaces << " panels, " << nemohIO::printVal(matrixOp::dot(3, sides, sides));
}
