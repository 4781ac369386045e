#include "waves/waveElevation.hpp"

#include "io/reader.hpp"
#include "waves/elevationTable.hpp"
#include "waves/globals.hpp"
#include "waves/resultFile.hpp"
#include "waves/timeInstants.hpp"
#include "waves/waveFactory.hpp"
#include "waves/waveModel.hpp"
#include "waves/waveProbes.hpp"

#include <iostream>
#include <memory>

int waveElevation(int argc, const char** argv) {
    std::cout << " Running wave elevation post-processing routine to print elevation to file."
              << std::endl;
    reader config;
    config.setupReadOnly(argc, argv);
    globals::set(config);
    const std::unique_ptr<waveModel> model(waveFactory::create(config));
    sorvik::waveProbes probes;
    if (!sorvik::findProbes(argc, argv, config.outputFolder, probes)) {
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
