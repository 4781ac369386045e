#include "app/view/commands.hpp"
#include "check/hullCheck.hpp"
#include "view/hullPage.hpp"
#include "view/vtkHull.hpp"

#include <memory>

namespace sorvik {
namespace {

struct hullViewRequest {
    std::vector<std::string>& meshes;
    hullOptions options = {};
};

void writeVtk(const std::string& folder, const std::vector<viewedHull>& hulls, double level,
              const std::vector<std::string>& meshes) {
    const std::vector<std::string> stems = vtkStems(meshes);
    for (std::size_t i = 0; i < hulls.size(); ++i) {
        if (!hulls[i].hull.hasPanels) {
            throw cannotView(meshes[i] + " gives no panels for " + folder +
                             ". sorvikCheck hull says why.");
        }
        requireWritten(folder, writeVtkHull(folder, stems[i], hulls[i].hull, level));
    }
}

pageContent makeHullView(const std::string& vtkFolder, const hullViewRequest& wanted) {
    std::vector<viewedHull> hulls;
    for (const std::string& mesh : wanted.meshes) {
        hulls.push_back({mesh, checkHull(mesh, wanted.options)});
    }
    if (!vtkFolder.empty()) {
        writeVtk(vtkFolder, hulls, wanted.options.level, wanted.meshes);
    }
    return hullPage(hulls, wanted.options.level);
}

} // namespace

void addHullView(CLI::App& app, viewRequest& asked) {
    const auto wanted = std::make_shared<hullViewRequest>(hullViewRequest{asked.sources});
    CLI::App& command =
        addView(app, asked, {"hull", "Show meshes, the waterline and what sorvikCheck finds"},
                [&asked, wanted] { return makeHullView(asked.vtkFolder, *wanted); });
    command.add_option("MESH", wanted->meshes, "Meshes: .stl, .gdf or Nemoh's .dat")->required();
    command
        .add_option("--origin", wanted->options.origin,
                    "The meshes' point that becomes (0, 0, 0) [m]")
        ->type_name("X Y Z");
    command.add_option("--level", wanted->options.level, "Height of the water plane [m]")
        ->type_name("Z")
        ->capture_default_str();
}

} // namespace sorvik
