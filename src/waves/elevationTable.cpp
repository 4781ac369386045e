#include "waves/elevationTable.hpp"

#include "io/printer.hpp"
#include "io/textWriter.hpp"
#include "waves/waveModel.hpp"

void writeElevationTable(waveModel& model, const std::vector<double>& x,
                         const std::vector<double>& y, const timeInstants& instants,
                         std::ostream& out) {
    const std::int64_t count = instants.count();
    if (count < 1) {
        return;
    }
    const double lastInstant = instants[count - 1];
    std::vector<double> elevation(x.size(), 0.0);
    textWriter writer(out);
    int shown = 0;
    for (std::int64_t i = 0; i < count && out.good(); ++i) {
        const double t = instants[i];
        printer::showProgress(t, lastInstant, shown);
        model.setTime(t);
        model.eta(static_cast<int>(x.size()), x.data(), y.data(), elevation.data());
        writer << t;
        for (const double value : elevation) {
            writer << '\t' << value;
        }
        writer << '\n';
    }
}
