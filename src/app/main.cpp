#include "app/help.hpp"
#include "app/inputFile.hpp"
#include "app/jsonFormat.hpp"
#include "app/meshConvert.hpp"
#include "app/processGuards.hpp"
#include "io/reader.hpp"
#include "nemoh/setNemohCase.hpp"
#include "waves/waveElevation.hpp"

#include <iostream>
#include <string>

namespace {

/// Made first of all static objects: the registry of wave models allocates.
[[gnu::init_priority(101)]] const sorvik::processGuards guards;

bool isAsked(const char* flag, int argc, const char** argv) {
    int position = argc;
    return reader::findFlag(flag, argc, argv, position);
}

/// Makes the Nemoh project of the input file that -f names, and returns the exit status.
int nemohProject(int argc, const char** argv) {
    std::cout << " Creating Nemoh project " << std::endl;
    std::string name;
    reader::getFlag("-f", argc, argv, name);
    if (name == "FOUND" || name == "NOT_FOUND") {
        std::cout << "FATAL ERROR: No input file specified. Please provide an input file name with "
                     "the -f <file> syntax."
                  << std::endl;
        help();
        return -1;
    }
    return setNemohCase(sorvik::readInputFile(name));
}

} // namespace

/// Runs the task whose flag comes first in the order below, after a mesh conversion if there is
/// one.
int main(int argc, const char** argv) {
    if (argc < 2) {
        help();
        return 0;
    }
    int position = argc;
    if (reader::findFlag("-meshConvert", argc, argv, position) &&
        !sorvik::meshConvert(position, argc, argv)) {
        return 0;
    }
    if (isAsked("-nemoh", argc, argv)) {
        return nemohProject(argc, argv);
    }
    if (isAsked("-waveElevation", argc, argv)) {
        return waveElevation(argc, argv);
    }
    if (isAsked("-toJSON", argc, argv)) {
        return jsonFormat(argc, argv);
    }
    help();
    return 0;
}
