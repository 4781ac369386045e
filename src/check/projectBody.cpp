#include "check/projectBody.hpp"

#include "base/classicText.hpp"
#include "base/files.hpp"
#include "base/numberText.hpp"
#include "base/platform.hpp"
#include "check/irregularFrequency.hpp"
#include "mesh/nemohFormat.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <utility>

namespace sorvik {
namespace {

/// A body of a project while it is checked.
struct checkedBody {
    const nemohCal& cal;
    const calBody& body;
    std::string prefix; ///< of its facts, such as "body1."
    std::string label;  ///< before the labels of its facts
    bool isAlone;
    bool isListed; ///< among the bodies that the text shows
    report& result;

    void addFact(const std::string& name, const std::string& text, fact::values value,
                 const std::string& unit = "", bool isShort = false) {
        const bool isShown = !text.empty() && (isAlone || (isListed && isShort));
        result.addFact(prefix + name, isShown ? label + text : "", std::move(value), unit);
    }
};

void checkName(const std::string& found, const calBody& body, report& result) {
    const location place = ofCal(body.meshLine);
    const bool isCut = found.empty() ? body.mesh != body.meshText : found != body.mesh;
    if (isCut) {
        result.add("bad-file-name",
                   "Nemoh 3 reads \"" + body.mesh + "\" of the name \"" + body.meshText + "\".",
                   {place});
    } else if (body.mesh.size() > longestMeshName) {
        result.add("bad-file-name",
                   "The name " + body.mesh + " has " + std::to_string(body.mesh.size()) +
                       " characters, of which Nemoh 3 keeps " + std::to_string(longestMeshName) +
                       ".",
                   {place});
    }
    if (found.empty()) {
        result.add("missing-file", "The project has no mesh \"" + body.meshText + "\".", {place});
    }
}

void checkCounts(const std::string& file, const calBody& body, report& result) {
    std::ifstream in = files::open(file);
    int nodes = 0;
    int panels = 0;
    nemohMesh::count(in, nodes, panels);
    if (nodes != body.nodes || panels != body.panels) {
        result.add("counts-differ",
                   "Nemoh.cal gives " + std::to_string(body.nodes) + " nodes and " +
                       std::to_string(body.panels) + " panels, the mesh file holds " +
                       std::to_string(nodes) + " and " + std::to_string(panels) + ".",
                   {ofCal(body.countsLine)});
    }
}

void checkHeights(const std::string& file, const std::string& name, report& result) {
    std::ifstream in = files::open(file);
    std::vector<location> above;
    double top = 0;
    std::string text;
    std::getline(in, text);
    for (int line = 2; std::getline(in, text); ++line) {
        classicText words(text);
        int number = 0;
        location place;
        point3& p = place.point;
        if (!(words >> number >> p[0] >> p[1] >> p[2]) || number < 1) {
            break;
        }
        if (p[2] > 0) {
            place.file = name;
            place.line = line;
            place.hasPoint = true;
            above.push_back(place);
            top = std::max(top, p[2]);
        }
    }
    if (!above.empty()) {
        result.add("above-water",
                   "Nodes of the mesh lie above z = 0, up to " + numberText(top) + " m.",
                   std::move(above));
    }
}

hullOptions optionsFor(const nemohCal& cal, const calBody& body) {
    hullOptions options;
    options.cog = body.centreOfRotation();
    options.density = cal.density.value > 0 ? cal.density.value : options.density;
    options.gravity = cal.gravity.value > 0 ? cal.gravity.value : options.gravity;
    options.depth = std::max(cal.depth.value, 0.0);
    double highest = 0;
    for (const double omega : cal.omegas()) {
        highest = std::max(highest, std::isfinite(omega) ? omega : 0);
    }
    if (highest > 0) {
        options.w1 = highest;
    }
    return options;
}

/// The hull's facts that the text shows, by name: the label, and whether also beside other bodies.
struct shownFact {
    const char* name;
    const char* label;
    bool isShort;
};
constexpr std::array<shownFact, 9> shownFacts = {{{"volume.z", "Volume", true},
                                                  {"displacement", "Displacement", false},
                                                  {"draught", "Draught", false},
                                                  {"buoyancy", "Centre of buoyancy", false},
                                                  {"waterplane.area", "Waterplane area", false},
                                                  {"smallestArea", "Smallest panel", false},
                                                  {"longestEdge", "Longest edge", false},
                                                  {"panelsPerWave", "Panels per wave", true},
                                                  {"box.max", "Box to", false}}};

void takeFacts(report& hull, checkedBody& checked) {
    for (fact& each : hull.facts) {
        const auto shown =
            std::find_if(shownFacts.begin(), shownFacts.end(),
                         [&](const shownFact& candidate) { return each.name == candidate.name; });
        const bool isShown = shown != shownFacts.end();
        checked.addFact(each.name, isShown ? shown->label : "", std::move(each.value), each.unit,
                        isShown && shown->isShort);
    }
}

/// Turns options of `sorvikCheck hull`, in cures and labels, into keys of the project.
void nameKeys(report& hull) {
    const std::string nearby = "Merge nearby corners in the meshing program, or change position by "
                               "a few millimetres.";
    const std::string placed = "Check cogInMesh and position in the input file: the mesh moves by "
                               "position minus cogInMesh.";
    const std::array<std::pair<const char*, std::string>, 5> cures = {
        {{"dry", placed},
         {"submerged", placed + " A submerged body is sound."},
         {"tiny-panel", nearby},
         {"cut-panel-without-area", nearby},
         {"dropped-panels", nearby}}};
    for (finding& each : hull.findings) {
        for (const auto& [name, cure] : cures) {
            each.cure = each.name == name ? cure : each.cure;
        }
    }
    for (fact& each : hull.facts) {
        if (each.name == "panelsPerWave") {
            each.label = "Panels per shortest wave";
        }
    }
}

void takeFindings(report& hull, const std::string& mesh, report& result) {
    for (finding& each : hull.findings) {
        for (location& place : each.where) {
            place.file = mesh;
        }
        if (each.where.empty()) {
            each.where.emplace_back().file = mesh;
        }
        result.findings.push_back(std::move(each));
    }
}

void checkDepth(const hullReport& hull, const checkedBody& checked, const std::string& mesh) {
    const calNumber& depth = checked.cal.depth;
    if (depth.value > 0 && depth.value < hull.values.draught) {
        checked.result.add("out-of-range",
                           "The depth is " + numberText(depth.value) + " m, expected more than " +
                               numberText(hull.values.draught) + " m, the draught of " + mesh + ".",
                           {ofCal(depth.line)});
    }
}

void checkIrregular(const hullReport& hull, const hullOptions& options, bool hasLid,
                    checkedBody& checked) {
    const irregularFrequency first = firstIrregularFrequency(hull.values, options.gravity);
    checked.addFact("lid", "Lid at z = 0", std::string(hasLid ? "yes" : "no"));
    if (!(first.omega > 0)) {
        return;
    }
    checked.addFact("irregularFrequency", "First irregular", first.omega, "rad/s, estimated", true);
    checked.addFact("irregularFrequency.method", "", first.method);
    if (!hasLid && first.omega <= options.w1.value_or(0)) {
        checked.result.add("irregular-frequency",
                           "The first irregular frequency is about " + numberText(first.omega) +
                               " rad/s, the highest frequency " + numberText(*options.w1) +
                               " rad/s. The mesh of " + checked.body.meshText + " has no lid.",
                           {ofCal(checked.cal.frequencies.line)});
    }
}

void checkMesh(const std::string& file, const std::string& name, checkedBody& checked,
               const hullTaker& take) {
    report& result = checked.result;
    checkCounts(file, checked.body, result);
    checkHeights(file, name, result);
    const hullOptions options = optionsFor(checked.cal, checked.body);
    hullReport hull = checkHull(file, options);
    nameKeys(hull.result);
    const bool hasLid = hull.result.find("lid") != nullptr;
    if (!take) {
        takeFacts(hull.result, checked);
        takeFindings(hull.result, name, result);
    }
    if (hull.hasPanels) {
        checkDepth(hull, checked, name);
        checkIrregular(hull, options, hasLid, checked);
    }
    if (take) {
        take(name, std::move(hull));
    }
}

} // namespace

std::string findBodyMesh(const std::string& folder, const calBody& body) {
    const auto isThere = [&](const std::string& name) {
        return !name.empty() &&
               std::filesystem::is_regular_file(platform::pathOf(folder + "/" + name));
    };
    return isThere(body.mesh) ? body.mesh : isThere(body.meshText) ? body.meshText : "";
}

void checkProjectBody(const std::string& folder, const nemohCal& cal, std::size_t index,
                      report& result, const hullTaker& take) {
    constexpr std::size_t bodiesShown = 3; // in a report of one screen
    const calBody& body = cal.bodies[index];
    const std::string number = std::to_string(index + 1);
    const bool isAlone = cal.bodies.size() == 1;
    checkedBody checked = {cal,
                           body,
                           "body" + number + ".",
                           isAlone ? "" : number + ": ",
                           isAlone,
                           index < bodiesShown,
                           result};
    const auto count = [](std::size_t size) { return static_cast<long long>(size); };
    const point3 centre = body.centreOfRotation();
    checked.addFact("mesh", "Mesh", body.mesh, "", true);
    checked.addFact("cal.nodes", "Nodes", body.nodes);
    checked.addFact("cal.panels", "Panels", body.panels, "", true);
    checked.addFact("motions", "Motions", count(body.motions.size()));
    checked.addFact("forces", "Forces", count(body.forces.size()));
    checked.addFact("centreOfRotation", "Centre of rotation",
                    std::vector<double>(centre.begin(), centre.end()), "m");
    if (!cal.failure.empty() && body.mesh.empty() && body.meshText.empty()) {
        return; // Nemoh.cal ends before it
    }
    const std::string found = findBodyMesh(folder, body);
    checkName(found, body, result);
    if (!found.empty()) {
        checkMesh(folder + "/" + found, found, checked, take);
    }
}

void checkHydrostaticFiles(const std::string& folder, const nemohCal& cal, report& result) {
    std::string command = "sorvikCheck hull MESH --cog X Y Z";
    if (cal.bodies.size() == 1) {
        const point3 p = cal.bodies[0].centreOfRotation();
        command = "sorvikCheck hull " + folder + "/" + cal.bodies[0].mesh + " --cog " +
                  numberText(p[0]) + " " + numberText(p[1]) + " " + numberText(p[2]);
    }
    command += " --density " + numberText(cal.density.value) + " --gravity " +
               numberText(cal.gravity.value) + " --hydrostatics " + folder;
    if (!files::canOpen(folder + "/mesh/KH.dat") && !files::canOpen(folder + "/Mesh/KH.dat")) {
        result.add("no-hydrostatics", "The project has no mesh/KH.dat, the hydrostatic stiffness.")
            .cure =
            "If you need it, write it, with the centre of gravity for --cog: " + command + "/mesh";
    }
    if (cal.wantsMotions && !files::canOpen(folder + "/Mechanics/Kh.dat")) {
        result.add("missing-file", "Motions (RAO) are asked for, and Mechanics/Kh.dat is missing.")
            .cure =
            "Write it, with the centre of gravity for --cog: " + command + " --gyration KX KY KZ";
    }
}

} // namespace sorvik
