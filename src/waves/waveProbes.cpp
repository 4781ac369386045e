#include "waves/waveProbes.hpp"

#include "base/memory.hpp"
#include "base/numberText.hpp"
#include "waves/inputCheck.hpp"
#include "waves/numericTable.hpp"
#include "waves/resultFile.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>

namespace sorvik {

namespace {

constexpr int maxProbes = std::numeric_limits<int>::max();

/// A rectangle centred on the origin, cut into nx times ny cells whose corners are the probes.
struct probeGrid {
    double sizeX; ///< m
    double sizeY; ///< m
    int nx;
    int ny;
};

double lengthArgument(const char* name, const std::string& text) {
    const double length = leadingNumber(text.c_str());
    if (!std::isfinite(length)) {
        refuseInput(name, text, "a finite length");
    }
    return length;
}

int cellArgument(const char* name, const std::string& text) {
    const long cells = std::strtol(text.c_str(), nullptr, 10);
    if (cells < 1) {
        refuseInput(name, text, "a whole number of at least 1");
    }
    return static_cast<int>(std::min<long>(cells, std::numeric_limits<int>::max()));
}

probeGrid readGrid(const std::vector<std::string>& values) {
    return {lengthArgument("Xsize of -domain", values[0]),
            lengthArgument("Ysize of -domain", values[1]), cellArgument("nx of -domain", values[2]),
            cellArgument("ny of -domain", values[3])};
}

void appendGrid(const probeGrid& grid, waveProbes& probes) {
    const std::int64_t count = (std::int64_t(grid.nx) + 1) * (std::int64_t(grid.ny) + 1);
    constexpr std::size_t bytesPerProbe = 3 * sizeof(double); // x, y, elevation
    if (count > maxProbes || !memory::canHold(static_cast<std::size_t>(count), bytesPerProbe)) {
        refuseInput("The number of probes of -domain", std::to_string(count),
                    "one that fits into memory");
    }
    probes.x.reserve(static_cast<std::size_t>(count));
    probes.y.reserve(static_cast<std::size_t>(count));
    const double halfX = grid.sizeX / 2;
    const double halfY = grid.sizeY / 2;
    for (int j = 0; j <= grid.ny; ++j) {
        for (int i = 0; i <= grid.nx; ++i) {
            probes.x.push_back(i * (2 * halfX) / grid.nx - halfX);
            probes.y.push_back(j * (2 * halfY) / grid.ny - halfY);
        }
    }
}

void writeGrid(const probeGrid& grid, const std::string& folder) {
    writeResult(folder, "waveDomain.dat", [&](std::ostream& out) {
        out << grid.sizeX << '\t' << grid.sizeY << '\t' << grid.nx << '\t' << grid.ny << '\n';
    });
}

bool readProbes(const std::string& fileName, waveProbes& probes) {
    std::vector<double> table;
    if (readNumericTable(fileName, table) != 2 || table.size() / 2 > maxProbes) {
        std::cout << "FATAL ERROR: -xyFile file " << fileName
                  << " cannot be found or does not have 2 columns. Exiting." << std::endl;
        return false;
    }
    for (std::size_t i = 0; i < table.size(); i += 2) {
        probes.x.push_back(table[i]);
        probes.y.push_back(table[i + 1]);
    }
    return true;
}

void takePositions(const std::vector<std::string>& values, waveProbes& probes) {
    for (std::size_t i = 0; i + 1 < values.size(); i += 2) {
        probes.x.push_back(leadingNumber(values[i].c_str()));
        probes.y.push_back(leadingNumber(values[i + 1].c_str()));
    }
}

} // namespace

bool makeProbes(const probeRequest& request, const std::string& folder, waveProbes& probes) {
    switch (request.from) {
    case probeRequest::kind::grid: {
        const probeGrid grid = readGrid(request.values);
        appendGrid(grid, probes);
        std::cout << "Wave probes imported " << std::endl;
        writeGrid(grid, folder);
        return true;
    }
    case probeRequest::kind::file: return readProbes(request.values.front(), probes);
    case probeRequest::kind::positions: takePositions(request.values, probes); return true;
    case probeRequest::kind::origin: break;
    }
    std::cout << "Warning: No wave probes specified. Values will be printed for position "
                 "(X,Y)=(0,0)."
              << std::endl;
    probes.x.push_back(0.0);
    probes.y.push_back(0.0);
    return true;
}

} // namespace sorvik
