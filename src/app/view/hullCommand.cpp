#include "app/view/commands.hpp"
#include "check/hullCheck.hpp"
#include "view/vtkHull.hpp"

#include <memory>

namespace sorvik {
namespace {

struct hullViewRequest {
    std::vector<std::string>& meshes;
    hullOptions options = {};
};

pageContent makeHullView(const std::string& vtkFolder, const hullViewRequest& wanted) {
    std::vector<viewedHull> hulls;
    for (const std::string& mesh : wanted.meshes) {
        hulls.push_back({mesh, checkHull(mesh, wanted.options)});
    }
    writeHullFiles(vtkFolder, hulls, wanted.options.level);
    return hullPage(hulls, wanted.options.level);
}

} // namespace

void writeHullFiles(const std::string& folder, const std::vector<viewedHull>& hulls, double level) {
    if (folder.empty()) {
        return;
    }
    if (hulls.empty()) {
        throw cannotView("There is no mesh for --vtk. sorvikCheck project says what is missing.");
    }
    std::vector<std::string> names;
    names.reserve(hulls.size());
    for (const viewedHull& each : hulls) {
        names.push_back(each.name);
    }
    const std::vector<std::string> stems = vtkStems(names);
    for (std::size_t i = 0; i < hulls.size(); ++i) {
        if (!hulls[i].hull.hasPanels) {
            throw cannotView(names[i] + " gives no panels for --vtk. sorvikCheck hull says why.");
        }
        requireWritten(writeVtkHull(folder, stems[i], hulls[i].hull, level));
    }
    sayWritten(folder);
}

void addHullView(CLI::App& app, viewRequest& asked) {
    const auto wanted = std::make_shared<hullViewRequest>(hullViewRequest{asked.sources});
    CLI::App& command =
        addView(app, asked,
                {"hull", "Show meshes, the waterline and what sorvikCheck finds",
                 "barge.stl -o barge.html --level 0.5"},
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
