#include "check/resultFiles.hpp"

#include "base/files.hpp"
#include "base/numberText.hpp"
#include "check/quietly.hpp"
#include "nemoh/nemohIO.hpp"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <utility>

namespace sorvik {
namespace {

constexpr const char* radiationFile = "RadiationCoefficients.tec";
constexpr const char* excitationFile = "ExcitationForce.tec";

/// Where the file of results is, without the project folder; empty where there is none.
std::string findResult(const std::string& project, const std::string& name) {
    for (const char* folder : {"Results/", "results/"}) {
        if (files::canOpen(std::string(project).append("/").append(folder) + name)) {
            return folder + name;
        }
    }
    return "";
}

/// What a file of results holds by its own head and zones.
struct resultShape {
    std::string file; ///< without the project folder; empty where there is none
    long long pairs = 0;
    long long zones = 0;
    long long frequencies = 0; ///< of the first zone, 0 where it does not say
    std::vector<location> notFinite;
};

/// The number after "I=" in the line that begins a zone.
long long pointsOf(const std::string& zone) {
    const std::size_t mark = zone.find("I=");
    return mark == zone.npos ? 0 : std::max(0LL, wholeNumber(leadingNumber(&zone[mark + 2])));
}

void scanLine(const std::string& text, int number, resultShape& shape) {
    const std::size_t start = text.find_first_not_of(" \t\r");
    if (start == text.npos) {
        return;
    }
    if (text[start] == 'Z') {
        shape.frequencies = shape.zones++ == 0 ? pointsOf(text) : shape.frequencies;
    } else if (text[start] == '"') {
        shape.pairs += shape.zones == 0 ? 1 : 0;
    } else if (shape.zones > 0 && text.find_first_of("NnIi*") != text.npos) {
        location place;
        place.file = shape.file;
        place.line = number;
        shape.notFinite.push_back(place);
    }
}

resultShape scanResults(const std::string& project, const std::string& name) {
    resultShape shape;
    shape.file = findResult(project, name);
    if (!shape.file.empty()) {
        std::ifstream in = files::open(std::string(project).append("/").append(shape.file));
        std::string text;
        for (int number = 1; std::getline(in, text); ++number) {
            scanLine(text, number, shape);
        }
    }
    return shape;
}

/// What Nemoh.cal expects of a file.
struct wantedShape {
    const char* zonesOf; ///< such as "motions"
    std::size_t zones;
    std::size_t pairs;
    std::size_t frequencies;
};

/// Adds what a count of the file differs in. Returns whether all agree.
bool checkShape(const resultShape& shape, const wantedShape& wanted, report& result) {
    const std::string perFile = wanted.zonesOf;
    const std::pair<std::string, std::pair<long long, std::size_t>> counts[] = {
        {perFile, {shape.zones, wanted.zones}},
        {"forces", {shape.pairs, wanted.pairs}},
        {"frequencies", {shape.frequencies, wanted.frequencies}}};
    std::string differing;
    for (const auto& [what, numbers] : counts) {
        const auto& [found, expected] = numbers;
        if (found > 0 && found != static_cast<long long>(expected)) {
            differing += (differing.empty() ? "" : ", ") + std::to_string(found) + " " + what +
                         " against " + std::to_string(expected);
        }
    }
    if (!differing.empty()) {
        location place;
        place.file = shape.file;
        result.add("counts-differ", shape.file + " and Nemoh.cal differ: " + differing + ".",
                   {place});
    }
    return differing.empty();
}

/// Checks a file and reads it through `read` into two lists of numbers.
template <class Read>
void readFile(const std::string& project, const char* name, const wantedShape& wanted,
              report& result, std::vector<double>& first, std::vector<double>& second, Read read) {
    resultShape shape = scanResults(project, name);
    const bool isThere = !shape.file.empty();
    if (isThere && !checkShape(shape, wanted, result)) {
        return;
    }
    if (!shape.notFinite.empty()) {
        result
            .add("not-finite", "Values in " + shape.file + " are not numbers.",
                 std::move(shape.notFinite))
            .cure = "Check the mesh with sorvikCheck hull, and run Nemoh again.";
        return;
    }
    const quietOutcome outcome = quietly(read);
    if (outcome.hasEnded) {
        result.add("unread-results", outcome.message());
    } else if (first.size() != wanted.zones * wanted.pairs * wanted.frequencies) {
        // Values of Nemoh.cal that go on in the next line are not in their places for the reader.
        result.add("unread-results", shape.file + " was read with other counts of Nemoh.cal.")
            .cure =
            "Put the values of Nemoh.cal in lines of their own, and begin bodies with --- Body 1.";
    } else {
        return;
    }
    first.clear();
    second.clear();
}

void readHydrostatics(const std::string& project, nemohResults& results, report& result) {
    std::string found;
    for (const char* folder : {"/mesh", "/Mesh", "/Results", "/results", ""}) {
        if (files::canOpen(project + folder + "/KH.dat")) {
            found = project + folder;
            break;
        }
    }
    if (found.empty()) {
        result.add("no-hydrostatics", "The project has no KH.dat, the hydrostatic stiffness.");
        return;
    }
    const quietOutcome outcome =
        quietly([&] { results.volume = nemohIO::readC(found, results.stiffness); });
    if (outcome.hasEnded) {
        result.add("unread-results", outcome.message());
    }
    if (results.stiffness.size() != 36) {
        result.add("counts-differ", found + "/KH.dat holds " +
                                        std::to_string(results.stiffness.size()) +
                                        " numbers, expected 36.");
        results.stiffness.clear();
    }
}

std::vector<resultDof> dofsOf(const nemohCal& cal, std::vector<calDof> calBody::*dofs) {
    std::vector<resultDof> all;
    for (std::size_t i = 0; i < cal.bodies.size(); ++i) {
        for (const calDof& dof : cal.bodies[i].*dofs) {
            all.push_back({static_cast<int>(i) + 1, dof.number()});
        }
    }
    return all;
}

} // namespace

std::vector<std::string> resultFiles(const std::string& folder) {
    std::vector<std::string> found;
    for (const char* name : {radiationFile, excitationFile}) {
        if (std::string file = findResult(folder, name); !file.empty()) {
            found.push_back(std::move(file));
        }
    }
    return found;
}

nemohResults readNemohResults(const std::string& folder, const nemohCal& cal, report& result) {
    nemohResults results;
    results.omegas = cal.omegas();
    results.angles = cal.angles();
    results.motions = dofsOf(cal, &calBody::motions);
    results.forces = dofsOf(cal, &calBody::forces);
    const nemohIO project = nemohIO::existing(folder);
    const int freqs = static_cast<int>(results.omegas.size());
    const int directions = static_cast<int>(results.angles.size());
    const int bodies = static_cast<int>(cal.bodies.size());
    const std::size_t forces = results.forces.size();
    std::vector<double>& addedMass = results.addedMass;
    std::vector<double>& amplitudes = results.amplitudes;
    readFile(folder, radiationFile,
             {"motions", results.motions.size(), forces, results.omegas.size()}, result, addedMass,
             results.damping,
             [&] { project.readCoeffs(freqs, bodies, addedMass, results.damping); });
    readFile(folder, excitationFile,
             {"directions", results.angles.size(), forces, results.omegas.size()}, result,
             amplitudes, results.phases, [&] {
                 project.readExcitation(freqs, directions, bodies, amplitudes, results.phases);
             });
    readHydrostatics(folder, results, result);
    return results;
}

} // namespace sorvik
