#include "app/inputFile.hpp"

#include <cstdlib>
#include <iostream>

inputMap readInputFile(const std::string& name) {
    inputMap inputs;
    if (!inputs.readFile(name)) {
        std::cout << "Cannot find input file " << name << std::endl;
        std::exit(-1);
    }
    return inputs;
}
