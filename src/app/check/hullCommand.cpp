#include "app/check/commands.hpp"
#include "check/hullCheck.hpp"

#include <memory>

namespace sorvik {

void addHullCommand(CLI::App& app, request& asked) {
    const auto options = std::make_shared<hullOptions>();
    CLI::App& command = addCommand(
        app, asked,
        {"hull", "Check a mesh and its hydrostatics", "MESH", "Mesh: .stl, .gdf or Nemoh's .dat"},
        [&asked, options] { return checkHull(asked.subject, *options); });
    command.add_option("--level", options->level, "Height of the water plane [m]")
        ->capture_default_str();
}

} // namespace sorvik
