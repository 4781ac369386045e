#include "app/check/commands.hpp"
#include "base/platform.hpp"
#include "check/hullCheck.hpp"

#include <memory>
#include <utility>
#include <vector>

namespace sorvik {
namespace {

struct hullRequest {
    hullOptions options;
    std::string folder;           ///< for the files of hydrostatics, or empty
    std::vector<double> gyration; ///< radii [m], or empty
};

report runHull(const std::string& mesh, const hullRequest& wanted) {
    hullReport checked = checkHull(mesh, wanted.options);
    if (!wanted.folder.empty() && checked.hasPanels) {
        const std::string name = platform::nameOf(platform::pathOf(mesh).filename());
        hydrostaticFiles files = {wanted.options.cog, name, checked.mesh.wetFaces.size(), {}};
        if (const std::vector<double>& k = wanted.gyration; !k.empty()) {
            files.gyration = {k[0], k[1], k[2]};
        }
        const std::string failed = writeHydrostatics(wanted.folder, checked.values, files);
        if (!failed.empty()) {
            throw cannotCheck("Cannot write " + failed + ". Give a folder that can be written.");
        }
    }
    return std::move(checked.result);
}

void addWaterOptions(CLI::App& command, hullRequest& wanted) {
    hullOptions& options = wanted.options;
    command.add_option("--level", options.level, "Height of the water plane [m]")
        ->type_name("Z")
        ->capture_default_str();
    command.add_option("--density", options.density, "Of the water [kg/m3]")
        ->type_name("RHO")
        ->capture_default_str();
    command.add_option("--gravity", options.gravity, "[m/s2]")
        ->type_name("G")
        ->capture_default_str();
    command.add_option("--depth", options.depth, "Of the water [m]; 0 for deep water")
        ->type_name("H")
        ->capture_default_str();
    command.add_option("--w1", options.w1, "Highest wave frequency [rad/s]")->type_name("W");
}

void addBodyOptions(CLI::App& command, hullRequest& wanted) {
    hullOptions& options = wanted.options;
    command.add_option("--origin", options.origin, "The mesh's point that becomes (0, 0, 0) [m]")
        ->type_name("X Y Z");
    command.add_option("--cog", options.cog, "Centre of gravity in the moved mesh [m]")
        ->type_name("X Y Z");
    command.add_option("--mass", options.mass, "Mass [kg]; default: displaced")->type_name("KG");
    command.add_flag("--records", options.onlyRecords,
                     "Check only what is read of the file, not the hull");
    CLI::Option* folder =
        command
            .add_option("--hydrostatics", wanted.folder,
                        "Write KH.dat, Hydrostatics.dat and Mesh.cal into this folder")
            ->type_name("FOLDER");
    command
        .add_option("--gyration", wanted.gyration, "Radii of gyration [m]; writes Mechanics/ too")
        ->type_name("KX KY KZ")
        ->expected(3)
        ->needs(folder);
}

} // namespace

void addHullCommand(CLI::App& app, request& asked) {
    const auto wanted = std::make_shared<hullRequest>();
    CLI::App& command =
        addCheck(app, asked,
                 {"hull", "Check a mesh and its hydrostatics", "barge.stl --cog 0 0 -0.5 --w1 2"},
                 {"MESH", "Mesh: .stl, .gdf or Nemoh's .dat"},
                 [&asked, wanted] { return runHull(asked.subject, *wanted); });
    addBodyOptions(command, *wanted);
    addWaterOptions(command, *wanted);
}

} // namespace sorvik
