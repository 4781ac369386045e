#include "app/view/commands.hpp"
#include "view/seaPage.hpp"
#include "view/vtkSurface.hpp"

#include <memory>

namespace sorvik {
namespace {

struct seaViewRequest {
    std::string folder;
    surfaceLimits limits;
};

void writeSurface(const std::string& vtkFolder, const std::string& folder, const surfaceRun& run) {
    if (!run.isGrid()) {
        throw cannotView("--vtk needs a surface, and " + folder +
                         " is a run at probes. Run -waveElevation with -domain.");
    }
    requireWritten(writeVtkSurface(vtkFolder, run));
    sayWritten(vtkFolder);
}

} // namespace

void addSeaView(CLI::App& app, viewRequest& asked) {
    const auto wanted = std::make_shared<seaViewRequest>();
    CLI::App& command = addView(app, asked,
                                {"sea", "Show the surface of a run of -waveElevation, moving",
                                 "mySea -o sea.html --probe 0 0 --probe 50 20"},
                                [&asked, wanted] {
                                    const surfaceRun run =
                                        readSurfaceRun(wanted->folder, wanted->limits);
                                    if (!asked.vtkFolder.empty()) {
                                        writeSurface(asked.vtkFolder, wanted->folder, run);
                                    }
                                    return seaPage(wanted->folder, run);
                                });
    command.add_option("FOLDER", wanted->folder, "Folder with waveElevation.dat")
        ->required()
        ->each([&asked](const std::string& folder) {
            asked.sources = {folder + "/waveElevation.dat", folder + "/waveDomain.dat"};
        });
    command.add_option("--frames", wanted->limits.frames, "Instants of the surface, at most")
        ->type_name("N")
        ->check(CLI::Range(1, 1'000'000));
    command
        .add_option("--probe", wanted->limits.probes,
                    "A place on the grid whose series is shown [m]; may be repeated")
        ->type_name("X Y")
        ->type_size(2)
        ->expected(-1)
        ->allow_extra_args(false); // The folder may follow.
}

} // namespace sorvik
