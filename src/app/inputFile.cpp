#include "app/inputFile.hpp"

#include "io/reader.hpp"

#include <cstdlib>
#include <iostream>

void requireInputFile(const std::string& name) {
    if (!reader::fileExist(name, false)) {
        std::cout << "Cannot find input file " << name << std::endl;
        std::exit(-1);
    }
}
