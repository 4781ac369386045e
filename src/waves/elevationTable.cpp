// A table of elevations is computed in six files:
//     elevationTable   the texts of the rows; elevationValues has their numbers instead
//     elevationRows    the rows: what the model answers, or sums over its trains where no rounding
//                      error can change a text
//     elevationBound   how far those sums may lie from what the model answers
//     elevationChunks  the sums for a chunk of instants at all probes, as products of matrices
//     wavePhasors      the matrices: the components at the probes, and at the instants
//     elevationKernel  the products, in the widest vectors that the processor has
#include "waves/elevationTable.hpp"

#include "base/textWriter.hpp"
#include "io/printer.hpp"
#include "waves/elevationRows.hpp"

namespace sorvik {
namespace {

/// Rows as lines of text; shows the progress.
class textRows {
public:
    textRows(std::ostream& out, const timeInstants& instants)
        : out_(out), writer_(out), instants_(instants) {}

    bool isOpen() const { return out_.good(); }
    void begin(double t) {
        printer::showProgress(t, instants_[instants_.count() - 1], shown_);
        writer_ << t;
    }
    std::size_t addSums(const double* sums, std::size_t count, double ramp, double bound) {
        return writer_.writeColumns(sums, count, ramp, bound);
    }
    void add(double elevation) { writer_ << '\t' << elevation; }
    void end() { writer_ << '\n'; }

private:
    std::ostream& out_;
    textWriter writer_;
    const timeInstants& instants_;
    int shown_ = 0;
};

} // namespace

void writeElevationTable(waveModel& model, const std::vector<double>& x,
                         const std::vector<double>& y, const timeInstants& instants,
                         std::ostream& out) {
    const elevationRequest asked = {model, x, y, instants};
    textRows rows(out, instants);
    elevationRows<textRows>(asked, rows).make();
}

} // namespace sorvik
