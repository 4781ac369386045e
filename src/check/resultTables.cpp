#include "check/resultTables.hpp"

#include "base/files.hpp"
#include "base/numberText.hpp"

#include <ostream>
#include <string_view>

namespace sorvik {
namespace {

/// Comma-separated cells.
class csvRow {
public:
    explicit csvRow(std::ostream& out) : out_(out) {}
    ~csvRow() { out_ << '\n'; }
    csvRow(const csvRow&) = delete;
    csvRow& operator=(const csvRow&) = delete;

    csvRow& operator<<(std::string_view text) {
        out_ << (isFirst_ ? "" : ",") << text;
        isFirst_ = false;
        return *this;
    }
    csvRow& add(double value) {
        constexpr int digits = 15; // more than any file of Nemoh holds
        return *this << numberText(value, digits);
    }
    csvRow& add(int value) { return *this << std::to_string(value); }
    csvRow& add(const resultDof& dof) { return add(dof.body).add(dof.number); }

private:
    std::ostream& out_;
    bool isFirst_ = true;
};

void writeRadiation(std::ostream& out, const nemohResults& r) {
    out << "omega,body_i,dof_i,body_j,dof_j,added_mass,damping\n";
    for (std::size_t f = 0; f < r.omegas.size(); ++f) {
        for (std::size_t i = 0; i < r.forces.size(); ++i) {
            for (std::size_t j = 0; j < r.motions.size(); ++j) {
                const std::size_t place = r.first(j, i) + f;
                csvRow row(out);
                row.add(r.omegas[f]).add(r.forces[i]).add(r.motions[j]);
                row.add(r.addedMass[place]).add(r.damping[place]);
            }
        }
    }
}

void writeExcitation(std::ostream& out, const nemohResults& r) {
    out << "omega,direction,body,dof,amplitude,phase\n";
    for (std::size_t f = 0; f < r.omegas.size(); ++f) {
        for (std::size_t d = 0; d < r.angles.size(); ++d) {
            for (std::size_t i = 0; i < r.forces.size(); ++i) {
                const std::size_t place = r.first(d, i) + f;
                csvRow row(out);
                row.add(r.omegas[f]).add(r.angles[d]).add(r.forces[i]);
                row.add(r.amplitudes[place]).add(r.phases[place]);
            }
        }
    }
}

void writeHydrostaticRows(std::ostream& out, const nemohResults& r) {
    out << "quantity,i,j,value\n";
    for (std::size_t place = 0; place < r.stiffness.size(); ++place) {
        csvRow row(out);
        const int i = static_cast<int>(place);
        (row << "stiffness").add(i / 6 + 1).add(i % 6 + 1).add(r.stiffness[place]);
    }
    if (r.volume >= 0) {
        csvRow row(out);
        (row << "volume"
             << ""
             << "")
            .add(r.volume);
    }
}

} // namespace

std::string writeResultTables(const std::string& folder, const nemohResults& results) {
    if (!files::makeFolder(folder)) {
        return folder;
    }
    std::string failed;
    const auto write = [&](const char* name, bool hasValues, auto writeRows) {
        const std::string file = folder + "/" + name;
        const auto writeAll = [&](std::ostream& out) { writeRows(out, results); };
        if (failed.empty() && hasValues && !files::write(file, writeAll)) {
            failed = file;
        }
    };
    write("radiation.csv", !results.addedMass.empty(), writeRadiation);
    write("excitation.csv", !results.amplitudes.empty(), writeExcitation);
    write("hydrostatics.csv", !results.stiffness.empty() || results.volume >= 0,
          writeHydrostaticRows);
    return failed;
}

} // namespace sorvik
