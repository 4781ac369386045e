#include "nemoh/setNemohCase.hpp"

#include "base/files.hpp"
#include "base/platform.hpp"
#include "io/sorvikIO.hpp"
#include "mesh/bodyMesh.hpp"
#include "mesh/nemohFormat.hpp"
#include "nemoh/nemohIO.hpp"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr double cutLevel = 0.0; // m
constexpr std::size_t extensionLength = 4;

/// What stops the project: the line for the console, or nothing.
using failure = std::string;

failure fatal(const std::string& message) {
    return " FATAL ERROR: " + message;
}

/// The settings of the body, "hydroBody" + name + ".bemInput".
struct bodySettings {
    std::string prefix;
    std::vector<double> cogInMesh; ///< x, y, z [m]
    std::string meshName;
    bool keepsMesh = false;
    std::vector<double> position; ///< x, y, z [m]
};

/// The surface that Nemoh computes: its file in the project folder, and what the file holds.
struct projectMesh {
    std::string name;
    int points = 0;
    int panels = 0;
};

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

failure checkPoint(const std::string& key, const std::vector<double>& values) {
    if (values.size() >= 3) {
        return {};
    }
    return fatal("Expected 3 numbers for " + key + ", found " + std::to_string(values.size()));
}

/// Moves the mesh to its position and writes what of it lies below the water.
failure placeMesh(const bodySettings& settings, const std::string& folder, projectMesh& wetted) {
    failure wrongPoint = checkPoint(settings.prefix + "cogInMesh", settings.cogInMesh);
    if (!wrongPoint.empty()) {
        return wrongPoint;
    }
    std::cout << "Manipulating mesh to move into position, and cut at the waterline." << std::endl;
    const std::string& file = settings.meshName;
    if (file.size() < extensionLength) {
        return fatal("Expected a name with an extension such as .stl for meshfile " + file);
    }
    bodyMesh mesh(file, settings.cogInMesh, settings.position, cutLevel);
    mesh.translate();

    wetted.name =
        sorvikIO::fileNameFromPath(file.substr(0, file.size() - extensionLength) + "_wetted.dat");
    mesh.updateWetSurface(cutLevel);
    const std::string target = folder + "/" + wetted.name;
    const bool isWritten = sorvik::files::write(target, [&](std::ostream& out) {
        wetted.points = sorvik::nemohMesh::write(out, mesh.wetFaces);
    });
    wetted.panels = static_cast<int>(mesh.wetFaces.size());
    return isWritten ? failure() : fatal("Cannot write meshfile " + target);
}

/// Copies the file `source`, which is open as `in`.
bool copyFile(std::istream& in, const std::string& source, const std::string& target) {
    using sorvik::platform::pathOf;
    std::error_code ignored;
    if (std::filesystem::equivalent(pathOf(source), pathOf(target), ignored)) {
        return true; // Opening it for writing would empty it.
    }
    const bool isWritten = sorvik::files::write(target, [&](std::ostream& out) {
        // Inserting the buffer of an empty file counts as a failure.
        if (in.peek() != std::ifstream::traits_type::eof()) {
            out << in.rdbuf();
        }
    });
    return isWritten && !in.bad();
}

/// Copies the mesh, which is a Nemoh mesh already, into the project.
failure keepMesh(const bodySettings& settings, const std::string& folder, projectMesh& kept) {
    std::cout << "Mesh manipulation turned off (with keepMesh switch). cogInMesh input will be "
                 "ignored."
              << std::endl;
    kept.name = sorvikIO::fileNameFromPath(settings.meshName);
    std::cout << "mesh only name is: " << kept.name << std::endl;
    std::ifstream in = sorvik::files::open(settings.meshName);
    if (!in.is_open()) {
        return fatal("Cannot find meshfile " + settings.meshName);
    }
    const std::string target = folder + "/" + kept.name;
    if (!copyFile(in, settings.meshName, target)) {
        return fatal("Cannot write meshfile " + target);
    }
    std::ifstream copy = sorvik::files::open(target);
    sorvik::nemohMesh::count(copy, kept.points, kept.panels);
    const bool wasRead = copy.is_open() && !copy.bad();
    return wasRead ? failure() : fatal("Cannot read meshfile " + target);
}

/// Puts the mesh of the body into the project folder and describes the body in `Nemoh.cal`.
failure writeBody(const bodySettings& settings, const std::string& folder, nemohIO& project) {
    projectMesh mesh;
    failure problem = checkPoint(settings.prefix + "position", settings.position);
    if (problem.empty()) {
        problem = settings.keepsMesh ? keepMesh(settings, folder, mesh)
                                     : placeMesh(settings, folder, mesh);
    }
    if (problem.empty()) {
        project.addBody(mesh.name, mesh.points, mesh.panels, {1, 2, 3, 4, 5, 6}, settings.position,
                        {});
    }
    return problem;
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

failure writeProject(const inputMap& inputs) {
    const auto output = inputs.map.find("bem.output");
    if (output == inputs.map.end()) {
        // The message names a longer key than the one that is read; callers count on both.
        return " ERROR: No output specified. Please specify output folder as bem.nemoh.output= "
               "<myNemohResults>";
    }
    const std::string& folder = output->second;
    nemohIO project(folder);
    const auto body = inputs.map.find("bem.body");
    if (body == inputs.map.end()) {
        return " ERROR: No body specified. Please specify a hydrodynamic body name in bem.body";
    }
    std::cout << body->second << std::endl;
    writeEnvironment(inputs, project);
    failure problem = writeBody(readBodySettings(inputs, body->second), folder, project);
    if (problem.empty()) {
        writeLoadCases(inputs, project);
        if (!project.finish()) {
            problem = fatal("Cannot write " + folder + "/Nemoh.cal");
        }
    }
    return problem;
}

} // namespace

int setNemohCase(const inputMap& inputs) {
    const failure problem = writeProject(inputs);
    if (problem.empty()) {
        return 1;
    }
    std::cout << problem << std::endl;
    return -1;
}
