#include "app/inputFile.hpp"

#include "base/processEnd.hpp"

namespace sorvik {

inputMap readInputFile(const std::string& name) {
    inputMap inputs;
    if (!inputs.readFile(name)) {
        endWithLine("Cannot find input file " + name, -1);
    }
    return inputs;
}

} // namespace sorvik
