#include "app/meshConvert.hpp"

#include "app/help.hpp"
#include "base/numberText.hpp"
#include "io/reader.hpp"
#include "mesh/bodyMesh.hpp"

#include <iostream>

namespace sorvik {

namespace {

/// The values of the options.
struct conversionOptions {
    std::vector<double> origin = {0.0, 0.0, 0.0}; ///< in mesh coordinates [m]
    double level = 0.0;                           ///< relative to the origin [m]
    bool wetOnly = false;
};

/// Reads the options. Returns false, after a warning, if one lacks values.
bool readOptions(int argc, const char** argv, conversionOptions& options) {
    int flag = argc;
    if (reader::findFlag("-origin", argc, argv, flag)) {
        if (flag + 3 >= argc) {
            std::cout
                << " Warning: -origin flag requires 3 following x y z coordinates. Not enough "
                   "input"
                << std::endl;
            return false;
        }
        for (double& coordinate : options.origin) {
            coordinate = leadingNumber(argv[++flag]);
        }
    }
    if (reader::findFlag("-wet", argc, argv, flag)) {
        if (flag + 1 >= argc) {
            std::cout << " Warning: -wet flag requires 1 following z coordinate. Not enough input"
                      << std::endl;
            return false;
        }
        options.level = leadingNumber(argv[flag + 1]);
        options.wetOnly = true;
    }
    return true;
}

void convert(const std::string& input, const std::string& output,
             const conversionOptions& options) {
    bodyMesh mesh(input, options.origin, {0.0, 0.0, 0.0}, options.level);
    if (mesh.write(output, options.wetOnly)) {
        std::cout << "Successfully converted mesh " << input << " to " << output << std::endl;
    } else {
        std::cout << " Warning: Something went wrong in the mesh conversion. " << std::endl;
        help();
    }
}

} // namespace

bool meshConvert(int position, int argc, const char** argv) {
    if (position + 2 >= argc) {
        std::cout << "* * * Fatal error: Not enough input arguments to -meshConvert task. Expected "
                     "2. * * * "
                  << std::endl;
        help();
        return true;
    }
    conversionOptions options;
    if (!readOptions(argc, argv, options)) {
        help();
        return false;
    }
    convert(argv[position + 1], argv[position + 2], options);
    return true;
}

} // namespace sorvik
