#include "app/help.hpp"

#include "waves/waveElevation.hpp"

#include <iostream>

namespace {

constexpr const char* separator = "\n ---------------------------------- \n";

void conversionHelp() {
    std::cout << "(1) Mesh file conversion between Nemoh, Wamit and stl mesh formats.\n"
              << "\t Usage: sorvikPre.exe -meshConvert inp.stl out.stl <opts>" << std::endl;
    std::cout << "\t All The mesh format is inferred from the filename ending:\n"
              << "\t\t .stl -- stl-meshes (binary and ascii).\n"
              << "\t\t .gdf -- WAMIT mesh format \n"
              << "\t\t .dat -- Nemoh mesh format \n"
              << "\t Any combination of input and output mesh is possible.\n"
              << "\t Prints to triangular meshes without symmetry settings. Symmetric meshes are "
                 "supported as input only. \n"
              << "\t\t Example: sorvikPre.exe -meshConvert inputName.stl outputName.dat \n"
              << std::endl;
    std::cout
        << "\t Optional flags: \n"
        << "\t\t -origin   <x y z> : Specify the desired origin coordinate of the output mesh "
           "(in input mesh coordinates). Default (0,0,0)\n"
        << "\t\t -wet <swl>          : Specify water level (relative to origin) to print only "
           "wet faces. Default is printing full body mesh.\n"
        << std::endl;
}

void nemohHelp() {
    std::cout
        << separator
        << "(2) Nemoh input generator. Generates simple Nemoh setup folder from sorvik-format "
           "settings.\n"
        << "\t Usage: sorvikPre.exe -nemoh -f inputFile.m\n"
        << "\t See user manual for keywords" << std::endl;
}

void elevationHelp() {
    std::cout << separator
              << "(3) Wave elevation output. Computes wave elevation at a given number of points. "
              << std::endl;
    waveHelp();
}

void jsonHelp() {
    std::cout
        << separator
        << "(4) file conversion of input file. Format an input file to .json format readable "
           "from sorvikDesk (the gui frontend of sorvikSolver)\n"
        << "\t Usage: sorvikPre.exe -toJSON -f inputFile.m \n"
        << "\t inputFile.json printed in the same directory as inputFile.m. This has the same "
           "format as setup.json in the results folder of a simulation."
        << std::endl;
}

} // namespace

void help() {
    std::cout << " SorvikPre is a utility for pre processing tasks in sorvikDesk. Different tasks "
                 "are listed below."
              << std::endl;
    conversionHelp();
    nemohHelp();
    elevationHelp();
    jsonHelp();
}
