#include "check/resultsCheck.hpp"

#include "base/numberText.hpp"
#include "check/openedProject.hpp"
#include "check/resultCurves.hpp"
#include "check/resultFiles.hpp"

namespace sorvik {
namespace {

std::string spanText(const std::vector<double>& values, const std::string& unit) {
    return values.empty() ? "" : rangeText(values.front(), values.back(), unit);
}

void addSizeFacts(const nemohResults& r, std::size_t bodies, report& result) {
    const auto count = [](std::size_t number) { return static_cast<long long>(number); };
    result.addFact("bodies", "Bodies", count(bodies));
    result.addFact("motions", "Motions", count(r.motions.size()));
    result.addFact("forces", "Forces", count(r.forces.size()));
    result.addFact("frequencies", "Frequencies", count(r.omegas.size()),
                   spanText(r.omegas, "rad/s"));
    result.addFact("directions", "Directions", count(r.angles.size()),
                   spanText(r.angles, "degrees"));
    if (r.volume >= 0) {
        result.addFact("volume", "Displaced volume", r.volume, "m3");
    }
}

void addDofs(const std::string& name, const std::vector<resultDof>& dofs, report& result) {
    std::vector<double> bodies;
    std::vector<double> numbers;
    for (const resultDof& dof : dofs) {
        bodies.push_back(dof.body);
        numbers.push_back(dof.number);
    }
    result.addFact(name + ".body", "", std::move(bodies));
    result.addFact(name + ".dof", "", std::move(numbers));
}

/// All values, for JSON.
void addLists(const nemohResults& r, report& result) {
    result.addFact("omega", "", r.omegas, "rad/s");
    result.addFact("direction", "", r.angles, "degrees");
    addDofs("motion", r.motions, result);
    addDofs("force", r.forces, result);
    result.addFact("addedMass", "", r.addedMass);
    result.addFact("damping", "", r.damping);
    result.addFact("excitation.amplitude", "", r.amplitudes);
    result.addFact("excitation.phase", "", r.phases, "rad");
    result.addFact("stiffness", "", r.stiffness);
}

} // namespace

resultsReport checkResults(const std::string& folder) {
    return checkResults(folder, openNemohCal(folder));
}

resultsReport checkResults(const std::string& folder, const nemohCal& cal) {
    resultsReport checked;
    report& result = checked.result;
    addCalFailure(cal, result);
    if (cal.directions.line == 0) {
        return checked; // Nothing says what the results hold.
    }
    checked.values = readNemohResults(folder, cal, result);
    addSizeFacts(checked.values, cal.bodies.size(), result);
    checkCurves(checked.values, result);
    addLists(checked.values, result);
    return checked;
}

} // namespace sorvik
