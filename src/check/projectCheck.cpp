#include "check/projectCheck.hpp"

#include "base/files.hpp"
#include "base/numberText.hpp"
#include "base/platform.hpp"
#include "check/openedProject.hpp"
#include "nemoh/nemohIO.hpp"

#include <filesystem>

namespace sorvik {
namespace {

void addCaseFacts(const nemohCal& cal, report& result) {
    const bool isDeep = cal.depth.value == 0;
    const auto whole = [](const calNumber& number) { return wholeNumber(number.value); };
    const std::string unit = cal.mode.value == 2 ? "Hz" : cal.mode.value == 3 ? "s" : "rad/s";
    result.addFact("density", "Density", cal.density.value, "kg/m3");
    result.addFact("gravity", "Gravity", cal.gravity.value, "m/s2");
    result.addFact("depth", "Depth", cal.depth.value, isDeep ? "m: deep water" : "m");
    result.addFact("bodies", "Bodies", whole(cal.bodyCount));
    result.addFact("frequencyMode", "", whole(cal.mode));
    result.addFact("frequencies", "Frequencies", whole(cal.frequencies),
                   rangeText(cal.low, cal.high, unit));
    result.addFact("frequency.first", "", cal.low, unit);
    result.addFact("frequency.last", "", cal.high, unit);
    result.addFact("directions", "Directions", whole(cal.directions),
                   rangeText(cal.firstDirection, cal.lastDirection, "degrees"));
    result.addFact("direction.first", "", cal.firstDirection, "degrees");
    result.addFact("direction.last", "", cal.lastDirection, "degrees");
}

/// What the solver needs: a full matrix of all panels, factorised at every frequency (8/3 n³ real
/// operations; Golub and Van Loan, Matrix Computations, 3.2), and solved for every motion and
/// direction (8 n² each).
void addCostFacts(const nemohCal& cal, report& result) {
    double panels = 0;
    double problems = cal.directions.value;
    for (const calBody& body : cal.bodies) {
        panels += static_cast<double>(body.panels);
        problems += static_cast<double>(body.motions.size());
    }
    const double matrix = panels * panels;
    const double work = cal.frequencies.value * matrix * (8.0 / 3 * panels + 8 * problems);
    result.addFact("problems", "", wholeNumber(problems * cal.frequencies.value));
    result.addFact("memory", "Solver's matrix", 16 * matrix / 1e6, "MB");
    result.addFact("time", "Solver's time, at least", work / 1e9, "s at 1 Gflop/s");
}

/// A number that Nemoh cannot use, and what it expects.
struct rangeRule {
    bool isBroken;
    const char* what;
    calNumber found;
    const char* expected;
};

void checkRanges(const nemohCal& cal, report& result) {
    const int line = cal.frequencies.line;
    const bool hasSeveral = cal.frequencies.value > 1;
    const auto isCount = [](const calNumber& number) {
        return number.value >= 1 && number.value <= nemohIO::maxCases;
    };
    const rangeRule rules[] = {
        {!(cal.density.value > 0), "The density", cal.density, "above 0 kg/m3"},
        {!(cal.gravity.value > 0), "Gravity", cal.gravity,
         "above 0 m/s2; environment.gravity of the input file is negative"},
        {cal.depth.value < 0, "The depth", cal.depth, "above 0 m, or 0 for deep water"},
        {!isCount(cal.bodyCount), "The number of bodies", cal.bodyCount, "1 to 1000000"},
        {cal.mode.value < 1 || cal.mode.value > 3, "The frequency mode", cal.mode,
         "1 (rad/s), 2 (Hz) or 3 (s)"},
        {!isCount(cal.frequencies), "The number of frequencies", cal.frequencies, "1 to 1000000"},
        {!(cal.low > 0), "The lowest frequency", {cal.low, line}, "above 0"},
        {hasSeveral && !(cal.high > cal.low),
         "The highest frequency",
         {cal.high, line},
         "above the lowest one"},
        {!isCount(cal.directions), "The number of directions", cal.directions, "1 to 1000000"},
        {cal.directions.value > 1 && cal.firstDirection == cal.lastDirection,
         "The last direction",
         {cal.lastDirection, cal.directions.line},
         "another one than the first"},
    };
    for (const rangeRule& rule : rules) {
        if (rule.isBroken && rule.found.line > 0) {
            result.add("out-of-range",
                       std::string(rule.what) + " is " + numberText(rule.found.value) +
                           ", expected " + rule.expected + ".",
                       {ofCal(rule.found.line)});
        }
    }
}

void checkParts(const std::string& folder, report& result) {
    if (!files::canOpen(folder + "/input_solver.txt")) {
        result.add("missing-file", "The project has no input_solver.txt, the solver's settings.");
    }
    if (!std::filesystem::is_directory(platform::pathOf(folder + "/results")) &&
        !std::filesystem::is_directory(platform::pathOf(folder + "/Results"))) {
        result.add("missing-file", "The project has no folder results.").cure =
            "Make the folder: mkdir " + folder + "/results";
    }
}

} // namespace

report checkProject(const std::string& folder) {
    return checkProject(folder, openNemohCal(folder));
}

report checkProject(const std::string& folder, const nemohCal& cal, const hullTaker& take) {
    report result;
    addCaseFacts(cal, result);
    addCostFacts(cal, result);
    addCalFailure(cal, result);
    checkRanges(cal, result);
    for (std::size_t i = 0; i < cal.bodies.size(); ++i) {
        checkProjectBody(folder, cal, i, result, take);
    }
    checkParts(folder, result);
    checkHydrostaticFiles(folder, cal, result);
    return result;
}

} // namespace sorvik
