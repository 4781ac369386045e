#include "view/surfaceRun.hpp"

#include "base/excerpt.hpp"
#include "base/files.hpp"
#include "base/numberText.hpp"
#include "base/platform.hpp"
#include "base/textScanner.hpp"
#include "check/finding.hpp"
#include "view/surfaceTable.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>

// waveDomain.dat: the sizes of the grid along x and y [m] and its numbers of cells, in one line. In
// the table its nodes run along x first.

namespace sorvik {
namespace {

constexpr std::size_t mostNodes = 50'000'000;
constexpr std::size_t mostSeriesNumbers = 100'000'000;

std::size_t ceilingOf(std::size_t a, std::size_t b) {
    return (a + b - 1) / b;
}

/// The nodes along one axis: `cells` + 1 of them, around 0.
struct gridAxis {
    double size = 0; ///< m; may be negative
    int cells = 1;

    std::size_t nodes() const { return static_cast<std::size_t>(cells) + 1; }
    double at(std::size_t i) const { return static_cast<double>(i) * size / cells - size / 2; }
    /// The distance in nodes of those kept, so that at least two are.
    std::size_t step(std::size_t every) const {
        return std::min(every, static_cast<std::size_t>(cells));
    }
    std::size_t kept(std::size_t every) const { return (nodes() - 1) / step(every) + 1; }
    /// The node nearest to a place [m], or `nodes()` where that is more than half a cell outside.
    std::size_t nearest(double place) const {
        const double i = size == 0 ? 0 : std::round((place + size / 2) / size * cells);
        if (!(i >= 0 && i <= cells)) {
            return nodes();
        }
        const auto found = static_cast<std::size_t>(i);
        constexpr double rounding = 1e-9;
        const double most = std::fabs(size) * (0.5 / cells + rounding);
        return std::fabs(at(found) - place) <= most ? found : nodes();
    }
};

struct grid {
    gridAxis x;
    gridAxis y;

    std::size_t nodes() const { return x.nodes() * y.nodes(); }
};

/// Opens a file that can be read twice and comes to an end.
std::ifstream openSurface(const std::string& file) {
    std::error_code ignored;
    std::ifstream in;
    if (std::filesystem::is_regular_file(platform::pathOf(file), ignored)) {
        in = files::open(file);
    }
    if (!in.is_open()) {
        throw cannotCheck("Cannot read " + file +
                          ". Give the folder that sorvikPre -waveElevation wrote with -o.");
    }
    return in;
}

/// What a message shows of the first line.
std::string startOf(const std::string& file) {
    std::ifstream in = openSurface(file);
    std::string start(100, '\0');
    in.read(start.data(), static_cast<std::streamsize>(start.size()));
    start.resize(static_cast<std::size_t>(in.gcount()));
    return excerpt(start.substr(0, start.find_first_of("\r\n")));
}

grid readGrid(const std::string& file) {
    std::ifstream in = openSurface(file);
    textScanner scanner(in, longestSurfaceNumber);
    grid read;
    const bool isRead = scanner.read(read.x.size) && scanner.read(read.y.size) &&
                        scanner.read(read.x.cells) && scanner.read(read.y.cells);
    scanner.skipSpace();
    const bool isInRange =
        isSingle(read.x.size) && isSingle(read.y.size) && read.x.cells >= 1 && read.y.cells >= 1;
    if (!isRead || scanner.good() || !isInRange) {
        refuseSurface(file, 1,
                      "\"" + startOf(file) +
                          "\", expected two sizes [m] and two numbers of cells of at least 1",
                      makeSurfaceAgain);
    }
    const std::int64_t nodes = (std::int64_t(read.x.cells) + 1) * (std::int64_t(read.y.cells) + 1);
    if (nodes > std::int64_t(mostNodes)) {
        refuseSurface(file, 1,
                      "a grid of " + std::to_string(nodes) + " nodes, expected at most " +
                          std::to_string(mostNodes),
                      "Run sorvikPre -waveElevation with fewer cells in -domain.");
    }
    return read;
}

/// Reads a run: first what there is, then what is kept of it.
class runReader {
public:
    runReader(const std::string& folder, const surfaceLimits& limits)
        : table_(folder + "/waveElevation.dat"), domain_(folder + "/waveDomain.dat"),
          limits_(limits) {}

    surfaceRun read() {
        std::ifstream in = openSurface(table_);
        shape_ = lookAtSurface(in, table_);
        if (shape_.lines == 0 || shape_.words < 2) {
            refuseSurface(table_, 1,
                          "no elevations, expected the time and an elevation for each probe",
                          makeSurfaceAgain);
        }
        run_.nodesOfRun = shape_.words - 1;
        if (files::canOpen(domain_)) {
            planGrid();
        } else {
            planProbes();
        }
        planSeries();
        readTable();
        return std::move(run_);
    }

private:
    void planGrid() {
        grid_ = readGrid(domain_);
        if (run_.nodesOfRun != grid_.nodes()) {
            refuseSurface(
                table_, 1,
                std::to_string(run_.nodesOfRun) + " elevations, expected " +
                    std::to_string(grid_.nodes()) + ", a node each of waveDomain.dat",
                "Remove waveDomain.dat if it belongs to an earlier run with -domain; otherwise "
                "run sorvikPre -waveElevation again.");
        }
        const std::size_t most = std::max<std::size_t>(std::min(limits_.nodes, limits_.values), 4);
        std::size_t& every = run_.everyNode;
        const auto kept = [&] { return grid_.x.kept(every) * grid_.y.kept(every); };
        while (kept() > most) {
            ++every;
        }
        for (std::size_t i = 0; i < grid_.x.nodes(); i += grid_.x.step(every)) {
            run_.x.push_back(grid_.x.at(i));
        }
        for (std::size_t j = 0; j < grid_.y.nodes(); j += grid_.y.step(every)) {
            run_.y.push_back(grid_.y.at(j));
        }
        run_.columns = run_.x.size();
        run_.rows = run_.y.size();
        const std::size_t byValues = limits_.values / kept();
        const std::size_t frames =
            limits_.frames == 0 ? byValues : std::min(limits_.frames, byValues);
        run_.everyInstant = ceilingOf(shape_.lines, std::max<std::size_t>(frames, 1));
        run_.frames.reserve(ceilingOf(shape_.lines, run_.everyInstant) * kept());
        addPlaces();
    }

    void addPlaces() {
        if (limits_.probes.empty()) {
            addPlace("Centre", grid_.x.nodes() / 2, grid_.y.nodes() / 2);
            addPlace("Corner", 0, 0);
        }
        for (std::size_t i = 0; i + 1 < limits_.probes.size(); i += 2) {
            const double x = limits_.probes[i];
            const double y = limits_.probes[i + 1];
            const std::size_t column = grid_.x.nearest(x);
            const std::size_t row = grid_.y.nearest(y);
            if (column == grid_.x.nodes() || row == grid_.y.nodes()) {
                const auto half = [](double size) { return numberText(std::fabs(size) / 2); };
                throw cannotCheck("The place (" + numberText(x) + ", " + numberText(y) +
                                  ") lies outside the grid of " + domain_ + ". Give x within " +
                                  half(grid_.x.size) + " m and y within " + half(grid_.y.size) +
                                  " m of the origin.");
            }
            addPlace("Probe " + std::to_string(i / 2 + 1), column, row);
        }
    }

    void addPlace(const std::string& name, std::size_t column, std::size_t row) {
        // -0 is no place to show.
        run_.probes.push_back({name, grid_.x.at(column) + 0.0, grid_.y.at(row) + 0.0, {}});
        probeColumns_.push_back(row * grid_.x.nodes() + column);
    }

    void planProbes() {
        if (!limits_.probes.empty()) {
            throw cannotCheck("There is no grid to take places from: " + domain_ +
                              " is missing. Leave the places out, or run sorvikPre -waveElevation "
                              "with -domain.");
        }
        if (run_.nodesOfRun > mostNodes) {
            refuseSurface(table_, 1,
                          std::to_string(run_.nodesOfRun) + " elevations, expected at most " +
                              std::to_string(mostNodes),
                          "Run sorvikPre -waveElevation with fewer probes.");
        }
        for (std::size_t i = 0; i < std::min(run_.nodesOfRun, limits_.series); ++i) {
            run_.probes.push_back({"Probe " + std::to_string(i + 1), 0, 0, {}});
            probeColumns_.push_back(i);
        }
    }

    /// Keeps so many series as memory shall hold, each besides times, which take twice the room.
    void planSeries() {
        const std::size_t columns = mostSeriesNumbers / shape_.lines;
        if (columns < 3) {
            refuseSurface(table_, shape_.lines,
                          "more than " + std::to_string(mostSeriesNumbers / 3) +
                              " instants, expected fewer",
                          "Run sorvikPre -waveElevation with a larger simulation.print.dt.");
        }
        if (run_.probes.size() > columns - 2) {
            run_.probes.resize(columns - 2);
            probeColumns_.resize(columns - 2);
        }
        run_.times.reserve(shape_.lines);
        for (surfaceProbe& probe : run_.probes) {
            probe.elevations.reserve(shape_.lines);
        }
    }

    void readTable() {
        std::ifstream in = openSurface(table_);
        surfaceTable reader(in, table_, run_.nodesOfRun);
        while (run_.times.size() < shape_.lines && reader.next()) {
            if (run_.isGrid() && run_.times.size() % run_.everyInstant == 0) {
                addFrame(reader);
            }
            run_.times.push_back(reader.time());
            for (std::size_t i = 0; i < run_.probes.size(); ++i) {
                run_.probes[i].elevations.push_back(reader.row()[probeColumns_[i]]);
            }
        }
    }

    void addFrame(const surfaceTable& reader) {
        run_.frameTimes.push_back(reader.time());
        const std::size_t stepX = grid_.x.step(run_.everyNode);
        const std::size_t stepY = grid_.y.step(run_.everyNode);
        for (std::size_t j = 0; j < grid_.y.nodes(); j += stepY) {
            for (std::size_t i = 0; i < grid_.x.nodes(); i += stepX) {
                run_.frames.push_back(reader.row()[j * grid_.x.nodes() + i]);
            }
        }
    }

    std::string table_;
    std::string domain_;
    const surfaceLimits& limits_;
    surfaceTableShape shape_;
    grid grid_;
    std::vector<std::size_t> probeColumns_; ///< in the table, after the time, from 0
    surfaceRun run_;
};

} // namespace

surfaceRun readSurfaceRun(const std::string& folder, const surfaceLimits& limits) {
    return runReader(folder, limits).read();
}

} // namespace sorvik
