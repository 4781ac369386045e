#include "nemoh/setNemohCase.hpp"

#include "base/files.hpp"
#include "io/sorvikIO.hpp"
#include "mesh/bodyMesh.hpp"
#include "nemoh/nemohIO.hpp"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr double cutLevel = 0.0;
constexpr std::size_t extensionLength = 4;

/// The settings of the body, "hydroBody" + name + ".bemInput".
struct bodySettings {
    std::string prefix;
    std::vector<double> cogInMesh;
    std::string meshName;
    bool keepsMesh = false;
    std::vector<double> position;
};

/// The surface that Nemoh computes: its file in the project folder, and what the file holds.
struct projectMesh {
    std::string name;
    int points = 0;
    int panels = 0;
};

void printFatal(const std::string& message) {
    std::cout << " FATAL ERROR: " << message << std::endl;
}

/// The text of a key, or what is wrong without it.
std::optional<std::string> required(const inputMap& inputs, const char* key, const char* message) {
    const auto entry = inputs.map.find(key);
    if (entry == inputs.map.end()) {
        std::cout << " ERROR: " << message << std::endl;
        return std::nullopt;
    }
    return entry->second;
}

void writeEnvironment(const inputMap& inputs, nemohIO& project) {
    const double density = inputs.read("environment.waterDensity", 1000.0);
    const double gravity = inputs.read("environment.gravity", -9.81);
    double depth = 0;
    if (inputs.map.count("environment.wave.depth") != 0) {
        depth = inputs.read("environment.wave.depth", 0.0);
    } else {
        const double waterLevel = inputs.read("environment.waterLevel", 0.0);
        depth = waterLevel - inputs.read("environment.ground.level", -1000.0);
    }
    constexpr int oneBody = 1;
    project.setEnv(density, -gravity, depth, 0.0, 0.0, oneBody);
}

bodySettings readBodySettings(const inputMap& inputs, const std::string& body) {
    const std::vector<double> zero(3, 0.0);
    bodySettings settings;
    settings.prefix = "hydroBody" + body + ".bemInput.";
    settings.cogInMesh = inputs.read(settings.prefix + "cogInMesh", zero);
    const auto mesh = inputs.map.find(settings.prefix + "meshName");
    settings.meshName = mesh == inputs.map.end() ? sorvikIO::notFoundStr : mesh->second;
    settings.keepsMesh = inputs.read(settings.prefix + "keepMesh", 0) != 0;
    settings.position = inputs.read(settings.prefix + "position", zero);
    return settings;
}

bool isPoint(const std::string& key, const std::vector<double>& values) {
    if (values.size() >= 3) {
        return true;
    }
    printFatal("Expected 3 numbers for " + key + ", found " + std::to_string(values.size()));
    return false;
}

/// Whether what is needed of the settings can be used. A mesh that is kept needs no "cogInMesh".
bool areUsable(const bodySettings& settings) {
    if (!isPoint(settings.prefix + "position", settings.position)) {
        return false;
    }
    return settings.keepsMesh || isPoint(settings.prefix + "cogInMesh", settings.cogInMesh);
}

/// Moves the mesh to its position and writes what of it lies below the water.
std::optional<projectMesh> placeMesh(const bodySettings& settings, const std::string& folder) {
    std::cout << "Manipulating mesh to move into position, and cut at the waterline." << std::endl;
    const std::string& file = settings.meshName;
    if (file.size() < extensionLength) {
        printFatal("Expected a name with an extension such as .stl for meshfile " + file);
        return std::nullopt;
    }
    bodyMesh mesh(file, settings.cogInMesh, settings.position, cutLevel);
    mesh.translate();

    projectMesh wetted;
    wetted.name =
        sorvikIO::fileNameFromPath(file.substr(0, file.size() - extensionLength) + "_wetted.dat");
    mesh.updateWetSurface(cutLevel);
    const std::string target = folder + "/" + wetted.name;
    std::ofstream out = sorvik::files::create(target);
    wetted.points = out.is_open() ? mesh.nemoh_write(out) : 0;
    out.close();
    if (!out) {
        printFatal("Cannot write meshfile " + target);
        return std::nullopt;
    }
    wetted.panels = static_cast<int>(mesh.wetFaces.size());
    return wetted;
}

/// Copies the file `source`, which is open as `in`.
bool copyFile(std::istream& in, const std::string& source, const std::string& target) {
    std::error_code ignored;
    if (std::filesystem::equivalent(source, target, ignored)) {
        return true; // Opening it for writing would empty it.
    }
    std::ofstream out = sorvik::files::create(target);
    // Inserting the buffer of an empty file counts as a failure.
    if (in.peek() != std::ifstream::traits_type::eof()) {
        out << in.rdbuf();
    }
    out.close();
    return out.good() && !in.bad();
}

/// Copies the mesh, which is a Nemoh mesh already, into the project.
std::optional<projectMesh> keepMesh(const bodySettings& settings, const std::string& folder) {
    std::cout << "Mesh manipulation turned off (with keepMesh switch). cogInMesh input will be "
                 "ignored."
              << std::endl;
    projectMesh kept;
    kept.name = sorvikIO::fileNameFromPath(settings.meshName);
    std::cout << "mesh only name is: " << kept.name << std::endl;
    std::ifstream in = sorvik::files::open(settings.meshName);
    if (!in.is_open()) {
        printFatal("Cannot find meshfile " + settings.meshName);
        return std::nullopt;
    }
    const std::string target = folder + "/" + kept.name;
    if (!copyFile(in, settings.meshName, target)) {
        printFatal("Cannot write meshfile " + target);
        return std::nullopt;
    }
    std::ifstream copy = sorvik::files::open(target);
    bodyMesh::nemoh_countMesh(copy, kept.points, kept.panels);
    if (!copy.is_open() || copy.bad()) {
        printFatal("Cannot read meshfile " + target);
        return std::nullopt;
    }
    return kept;
}

void writeLoadCases(const inputMap& inputs, nemohIO& project) {
    const double w0 = inputs.read("bem.w0", 0.01);
    const double w1 = inputs.read("bem.w1", 5.0);
    const int freqs = inputs.read("bem.nFreqs", 2);
    const double dir0 = inputs.read("bem.dir0", 0.0);
    const double dir1 = inputs.read("bem.dir1", 90.0);
    const int directions = inputs.read("bem.nDirs", 2);
    std::cout << "Adding load cases" << std::endl;
    project.addLoadCases(freqs, w0, w1, directions, dir0, dir1);

    constexpr double responseStep = 0.0; // s; 0 leaves the impulse response out
    constexpr double responseDuration = 20.0;
    project.addPostProc(responseStep, responseDuration);
}

} // namespace

int setNemohCase(const inputMap& inputs) {
    // The message names a longer key than the one that is read; callers count on both.
    const auto output = required(inputs, "bem.output",
                                 "No output specified. Please specify output folder as "
                                 "bem.nemoh.output= <myNemohResults>");
    if (!output) {
        return -1;
    }
    const std::string& folder = *output;
    nemohIO project(folder);
    const auto body =
        required(inputs, "bem.body",
                 "No body specified. Please specify a hydrodynamic body name in bem.body");
    if (!body) {
        return -1;
    }
    std::cout << *body << std::endl;
    writeEnvironment(inputs, project);

    const bodySettings settings = readBodySettings(inputs, *body);
    if (!areUsable(settings)) {
        return -1;
    }
    const auto mesh = settings.keepsMesh ? keepMesh(settings, folder) : placeMesh(settings, folder);
    if (!mesh) {
        return -1;
    }
    project.addBody(mesh->name, mesh->points, mesh->panels, {1, 2, 3, 4, 5, 6}, settings.position,
                    {});
    writeLoadCases(inputs, project);
    if (!project.finish()) {
        printFatal("Cannot write " + folder + "/Nemoh.cal");
        return -1;
    }
    return 1;
}
