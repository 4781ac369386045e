#include "waves/elevationValues.hpp"

#include "base/textWriter.hpp"
#include "waves/elevationRows.hpp"

#include <ostream>

namespace sorvik {
namespace {

/// Rows as numbers. Texts that go nowhere find out what is in doubt.
class valueRows {
public:
    explicit valueRows(double* values) : values_(values) {}

    static bool isOpen() { return true; }
    void begin(double /*t*/) {}
    std::size_t addSums(const double* sums, std::size_t count, double ramp, double bound) {
        const std::size_t certain = texts_.writeColumns(sums, count, ramp, bound);
        values_ = std::transform(sums, sums + certain, values_,
                                 [ramp](double sum) { return ramp * sum; });
        return certain;
    }
    void add(double elevation) { *values_++ = elevation; }
    void end() {}

private:
    double* values_;
    std::ostream nowhere_{nullptr};
    textWriter texts_{nowhere_};
};

} // namespace

void computeElevations(waveModel& model, const std::vector<double>& x, const std::vector<double>& y,
                       const timeInstants& instants, double* values) {
    const elevationRequest asked = {model, x, y, instants};
    valueRows rows(values);
    elevationRows<valueRows>(asked, rows).make();
}

} // namespace sorvik
