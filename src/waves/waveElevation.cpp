#include "waves/waveElevation.hpp"

#include "base/numberText.hpp"
#include "io/reader.hpp"
#include "waves/elevationTable.hpp"
#include "waves/globals.hpp"
#include "waves/resultFile.hpp"
#include "waves/timeInstants.hpp"
#include "waves/waveFactory.hpp"
#include "waves/waveModel.hpp"
#include "waves/waveProbes.hpp"

#include <algorithm>
#include <iostream>
#include <memory>

namespace {

using sorvik::probeRequest;

/// Whether an argument belongs to a list of numbers, rather than being the next flag.
bool isListed(const char* argument) {
    return argument[0] != '-' || sorvik::isDigit(argument[1]);
}

/// The first of -domain with four arguments, -xyFile and -positions.
probeRequest readProbeFlags(int argc, const char** argv) {
    int flag = argc;
    if (reader::findFlag("-domain", argc, argv, flag) && flag + 4 < argc) {
        return {probeRequest::kind::grid, {argv + flag + 1, argv + flag + 5}};
    }
    if (reader::findFlag("-xyFile", argc, argv, flag)) {
        return {probeRequest::kind::file, {flag + 1 < argc ? argv[flag + 1] : ""}};
    }
    if (reader::findFlag("-positions", argc, argv, flag)) {
        const char** const first = argv + flag + 1;
        return {probeRequest::kind::positions,
                {first, std::find_if_not(first, argv + argc, isListed)}};
    }
    return {};
}

} // namespace

int waveElevation(int argc, const char** argv) {
    std::cout << " Running wave elevation post-processing routine to print elevation to file."
              << std::endl;
    reader config;
    config.setupReadOnly(argc, argv);
    globals::set(config);
    const std::unique_ptr<waveModel> model(waveFactory::create(config));
    sorvik::waveProbes probes;
    if (!sorvik::makeProbes(readProbeFlags(argc, argv), config.outputFolder, probes)) {
        return -1;
    }
    const sorvik::timeInstants instants = sorvik::readInstants(config);
    const std::string path =
        sorvik::writeResult(config.outputFolder, "waveElevation.dat", [&](std::ostream& out) {
            sorvik::writeElevationTable(*model, probes.x, probes.y, instants, out);
        });
    std::cout << "Wave elevation computed and printed to " << path << std::endl;
    return 0;
}

void waveHelp() {
    std::cout << " ----- Wave elevation computation in sorvikPre ----- " << std::endl;
    std::cout << " Usage: sorvikPre.exe -waveElevation -f <inputFile> -xyFile <xy-positionsInFile> "
                 "-o outputFolder"
              << std::endl;
    std::cout << " or " << std::endl;
    std::cout << " Usage: sorvikPre.exe -waveElevation -f <inputFile>  -domain <Xsize> <Ysize> "
                 "<nx> <ny> -o outputFolder"
              << std::endl;
    std::cout << "-xyFile should be ascii [nProbes x 2] with each row having x y coordinates of a "
                 "wave probe location"
              << std::endl;
}
