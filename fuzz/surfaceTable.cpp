#include "view/surfaceTable.hpp"

#include "check/finding.hpp"
#include "target.hpp"
#include "view/surfaceRun.hpp"

#include <algorithm>

using namespace sorvik;

/// Reads all lines, and returns how many of them there are.
std::size_t readLines(const std::string& text, std::size_t nodes) {
    std::istringstream in(text);
    surfaceTable table(in, "table", nodes);
    double former = -std::numeric_limits<double>::infinity();
    std::size_t lines = 0;
    for (; table.next(); ++lines) {
        check(isSingle(table.time()) && table.time() >= former);
        check(table.row().size() == nodes);
        check(std::all_of(table.row().begin(), table.row().end(), isSingle));
        former = table.time();
    }
    return lines;
}

void checkGrid(const surfaceRun& run, const surfaceLimits& limits) {
    const std::size_t frame = run.columns * run.rows;
    check(run.x.size() == run.columns && run.y.size() == run.rows);
    check(run.columns >= 2 && run.rows >= 2 && frame <= std::min(limits.nodes, run.nodesOfRun));
    check(run.frameTimes.size() <= limits.frames && run.frames.size() <= limits.values);
    check(run.frames.size() == run.frameTimes.size() * frame);
    check(std::all_of(run.x.begin(), run.x.end(), isSingle));
    check(std::all_of(run.y.begin(), run.y.end(), isSingle));
}

/// The text is that of waveDomain.dat, a line "====", and that of waveElevation.dat; without the
/// line it is that of waveElevation.dat alone.
void tryText(const std::string& text) {
    const std::string mark = "\n====\n";
    const std::size_t split = text.find(mark);
    const bool hasGrid = split != std::string::npos;
    const std::string table = hasGrid ? text.substr(split + mark.size()) : text;
    std::filesystem::remove(pathOf("waveDomain.dat"));
    if (hasGrid) {
        fileOf("waveDomain.dat", text.substr(0, split));
    }
    fileOf("waveElevation.dat", table);
    surfaceLimits limits;
    limits.frames = 3;
    limits.values = 40;
    limits.nodes = 12;
    limits.series = 2;
    try {
        const surfaceRun run = readSurfaceRun(pathOf(""), limits);
        check(run.isGrid() == hasGrid && run.times.size() == readLines(table, run.nodesOfRun));
        check(!run.times.empty() && run.probes.size() <= limits.series);
        for (const surfaceProbe& probe : run.probes) {
            check(probe.elevations.size() == run.times.size());
        }
        if (hasGrid) {
            checkGrid(run, limits);
        }
    } catch (const cannotCheck&) {
        return;
    }
}
