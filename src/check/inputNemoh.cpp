#include "base/affixes.hpp"
#include "base/files.hpp"
#include "base/numberText.hpp"
#include "base/platform.hpp"
#include "check/inputCase.hpp"
#include "check/keyTable.hpp"
#include "check/nemohCal.hpp"
#include "check/quietly.hpp"
#include "io/sorvikIO.hpp"
#include "mesh/bodyMesh.hpp"

#include <algorithm>
#include <filesystem>

namespace sorvik {
namespace {

constexpr std::size_t extensionLength = 4;

void demand(const inputCase& input, const std::string& key, report& result) {
    if (!input.has(key)) {
        addOfKey(result, "missing-key", input, key, "-nemoh needs " + key + ".");
    }
}

/// The meshName keys of other bodies than the one that is asked for.
std::string otherBodies(const inputCase& input) {
    const std::string ending = ".bemInput.meshName";
    std::string names;
    for (const auto& [key, value] : input.inputs.map) {
        const bool isMesh =
            key.size() > ending.size() && startsWith(key, bodyGroup) && endsWith(key, ending);
        names += isMesh ? ' ' + key : "";
    }
    return names;
}

void checkLoadCases(const inputCase& input, report& result) {
    const auto compare = [&](const std::string& first, const std::string& last, severity level) {
        const double from = input.number(first);
        const double to = input.number(last);
        if (to < from) {
            addOfKey(result, "out-of-range", input, last,
                     last + " is " + numberText(to) + ", below " + first + ", which is " +
                         numberText(from) + '.')
                .level = level;
        }
    };
    compare("bem.w0", "bem.w1", severity::error);
    compare("bem.dir0", "bem.dir1", severity::warning);
}

/// The name under which the mesh comes into the project.
std::string projectName(const std::string& mesh, bool isKept) {
    return sorvikIO::fileNameFromPath(
        isKept ? mesh : mesh.substr(0, mesh.size() - extensionLength) + "_wetted.dat");
}

void checkName(const inputCase& input, const std::string& key, const std::string& name,
               report& result) {
    const bool hasBlank = name.find_first_of(" \t\n") != name.npos;
    if (hasBlank || name.size() > longestMeshName) {
        addOfKey(result, "bad-file-name", input, key,
                 "The mesh comes into the project as \"" + name + "\", " +
                     (hasBlank ? "which holds a blank: Nemoh reads its name only up to there."
                               : "which has " + std::to_string(name.size()) +
                                     " characters: Nemoh reads at most " +
                                     std::to_string(longestMeshName) + "."));
    }
}

double lowestPoint(const bodyMesh& mesh) {
    float lowest = mesh.faces.front().vertexA.z;
    for (const triangle& face : mesh.faces) {
        lowest = std::min({lowest, face.vertexA.z, face.vertexB.z, face.vertexC.z});
    }
    return static_cast<double>(lowest);
}

std::vector<double> pointOf(const inputCase& input, const std::string& key) {
    std::vector<double> point = input.list(key);
    point.resize(3);
    return point;
}

/// Reads the mesh as the task does and compares its draught with the depth.
void checkMesh(const inputCase& input, const std::string& prefix, const std::string& file,
               bool isKept, report& result) {
    bodyMesh mesh;
    const std::vector<double> zero(3, 0.0);
    const quietOutcome outcome = quietly([&] {
        mesh = bodyMesh(file, isKept ? zero : pointOf(input, prefix + "cogInMesh"),
                        isKept ? zero : pointOf(input, prefix + "position"), 0.0);
        mesh.translate();
    });
    if (outcome.hasEnded || mesh.faces.empty()) {
        const std::string line = outcome.message();
        addOfKey(result, "unread-file", input, prefix + "meshName",
                 "No panels are read from " + file + (line.empty() ? "." : ": " + line));
        return;
    }
    const double draught = -lowestPoint(mesh);
    const double depth = depthOf(input);
    result.addFact("draught", "Draught of the mesh", draught, "m");
    if (depth > 0 && depth < draught) {
        result.add("out-of-range",
                   "The mesh reaches " + numberText(draught) +
                       " m below the water, which is only " + numberText(depth) + " m deep.",
                   {input.placeOf(prefix + "meshName")});
    }
}

void checkMeshFile(const inputCase& input, const std::string& prefix, report& result) {
    const std::string key = prefix + "meshName";
    if (!input.has(key)) {
        const std::string others = otherBodies(input);
        addOfKey(result, "missing-key", input, key,
                 "-nemoh needs " + key + " for the body of bem.body" +
                     (others.empty() ? "." : "; found" + others + '.'));
        return;
    }
    const bool isKept = input.inputs.read(prefix + "keepMesh", 0) != 0;
    const std::string name = input.valueOf(key);
    if (name.size() < extensionLength) {
        addOfKey(result, "bad-file-name", input, key,
                 key + " is " + name + ", which has no ending such as .stl.");
        return;
    }
    checkName(input, key, projectName(name, isKept), result);
    if (isKept && input.has(prefix + "cogInMesh")) {
        addOfKey(result, "unread-key", input, prefix + "cogInMesh",
                 prefix + "cogInMesh is not read, since " + prefix +
                     "keepMesh keeps the mesh where it is.");
    }
    const std::string file = checkedFile(input, key, result);
    if (!file.empty()) {
        checkMesh(input, prefix, file, isKept, result);
    }
}

void checkOutput(const inputCase& input, report& result) {
    demand(input, "bem.output", result);
    const auto parent = platform::pathOf(input.valueOf("bem.output")).parent_path();
    std::error_code ignored;
    if (!parent.empty() && !std::filesystem::is_directory(parent, ignored)) {
        addOfKey(result, "missing-file", input, "bem.output",
                 "bem.output is " + input.valueOf("bem.output") + ", but there is no folder " +
                     platform::nameOf(parent) + ".")
            .cure = "Make the folder; only the last one of a path is made by the task.";
    }
}

} // namespace

void checkNemohInput(const inputCase& input, report& result) {
    checkOutput(input, result);
    demand(input, "bem.body", result);
    checkLoadCases(input, result);
    if (input.has("bem.body")) {
        checkMeshFile(input, "hydroBody" + input.body() + ".bemInput.", result);
    }
}

} // namespace sorvik
