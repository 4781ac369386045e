#include "numerics/failure.hpp"

#include <cstdlib>
#include <iostream>

void matrixOp::fail(const std::string& message) {
    std::cout << "FATAL ERROR: " << message << std::endl;
    std::exit(1);
}
