#include "waves/waveElevation.hpp"

#include <iostream>

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
