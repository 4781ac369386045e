// A table of elevations is computed in five files:
//     elevationTable   the lines: the texts of what the model answers, or of sums over its trains
//                      where no rounding error can change a text
//     elevationBound   how far those sums may lie from what the model answers
//     elevationChunks  the sums for a chunk of instants at all probes, as products of matrices
//     wavePhasors      the matrices: the components at the probes, and at the instants
//     elevationKernel  the products, in the widest vectors that the processor has
#include "waves/elevationTable.hpp"

#include "base/textWriter.hpp"
#include "io/printer.hpp"
#include "waves/elevationBound.hpp"
#include "waves/elevationChunks.hpp"
#include "waves/waveModel.hpp"

#include <algorithm>
#include <cmath>

namespace sorvik {

namespace {

/// The sea, the probes, the time axis and the file of one table.
struct elevationTable {
    waveModel& model;
    const std::vector<double>& x;
    const std::vector<double>& y;
    const timeInstants& instants;
    textWriter writer;
    int shown = 0;

    void showProgress(double t) { printer::showProgress(t, instants[instants.count() - 1], shown); }
};

/// Writes the lines as the model gives them.
void writeDirect(elevationTable& table, std::ostream& out) {
    std::vector<double> elevation(table.x.size(), 0.0);
    for (std::int64_t i = 0; i < table.instants.count() && out.good(); ++i) {
        const double t = table.instants[i];
        table.showProgress(t);
        table.model.setTime(t);
        table.model.eta(static_cast<int>(elevation.size()), table.x.data(), table.y.data(),
                        elevation.data());
        table.writer << t;
        for (const double value : elevation) {
            table.writer << '\t' << value;
        }
        table.writer << '\n';
    }
}

/// The elevation of probe `j` at the instant `t` as the model gives it.
double directElevation(elevationTable& table, double t, std::size_t j) {
    double elevation = 0.0;
    table.model.setTime(t);
    table.model.eta(1, &table.x[j], &table.y[j], &elevation);
    return elevation;
}

/// Writes the elevations at the instant `t`: `sums`, which lie within `bound` of those of the model
/// before the ramp, times the ramp factor. What the bound leaves in doubt is asked of the model.
void writeElevations(elevationTable& table, double t, const double* sums, double bound) {
    const double ramp = table.model.rampFactorAt(t);
    const std::size_t count = table.x.size();
    std::size_t j = 0;
    while (true) {
        j += table.writer.writeColumns(sums + j, count - j, ramp, ramp * bound);
        if (j == count) {
            return;
        }
        // At rest, zeros carry the sign of the sum.
        const bool isSignedZero = ramp == 0.0 && std::fabs(sums[j]) > bound;
        table.writer << '\t' << (isSignedZero ? ramp * sums[j] : directElevation(table, t, j));
        ++j;
    }
}

/// Writes the lines from chunks, whose elevations lie within `bound` of those of the model.
void writeChunks(elevationTable& table, const std::vector<planeWave>& waves, double bound,
                 std::ostream& out) {
    elevationChunks chunks(waves, table.x, table.y, table.instants);
    const std::int64_t count = table.instants.count();
    for (std::int64_t first = 0; first < count && out.good(); first += chunks.length()) {
        chunks.compute(first);
        const std::int64_t rows = std::min(chunks.length(), count - first);
        for (std::int64_t row = 0; row < rows && out.good(); ++row) {
            const double t = table.instants[first + row];
            table.showProgress(t);
            table.writer << t;
            writeElevations(table, t, chunks.row(row), bound);
            table.writer << '\n';
        }
    }
}

} // namespace

void writeElevationTable(waveModel& model, const std::vector<double>& x,
                         const std::vector<double>& y, const timeInstants& instants,
                         std::ostream& out) {
    if (instants.count() < 1) {
        return;
    }
    elevationTable table{model, x, y, instants, textWriter(out)};
    if (!model.isSumOfTrains()) {
        writeDirect(table, out);
        return;
    }
    const std::vector<planeWave> waves = planeWavesOf(model);
    const double bound = elevationBound(waves, x, y, instants);
    if (elevationChunks::suit(waves, x.size(), bound)) {
        writeChunks(table, waves, bound, out);
        model.setTime(instants[instants.count() - 1]);
    } else {
        writeDirect(table, out);
    }
}

} // namespace sorvik
