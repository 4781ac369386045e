#include "app/view/assets.hpp"
#include "app/view/commands.hpp"
#include "base/files.hpp"
#include "base/platform.hpp"
#include "base/rewrite.hpp"

#include <filesystem>
#include <iostream>

namespace sorvik {

CLI::App& addView(CLI::App& app, viewRequest& asked, const commandText& text,
                  std::function<pageContent()> make) {
    CLI::App& command = addCommand(app, text);
    command.add_option("-o,--output", asked.pageFile, "The page to write")->type_name("FILE.html");
    command.add_option("--vtk", asked.vtkFolder, "Write files for ParaView into this folder")
        ->type_name("FOLDER");
    command.callback([&asked, make = std::move(make)] { asked.make = make; });
    return command;
}

void requireWritten(const std::string& failed) {
    if (!failed.empty()) {
        throw cannotView("Cannot write " + failed +
                         ". Give --vtk a folder that can be written, with room for the files.");
    }
}

void sayWritten(const std::string& folder) {
    std::cout << "Wrote files for ParaView into " << folder << "." << std::endl;
}

namespace {

/// Whether a file with content is there that is no page. A slip such as "-o *.stl" names one.
bool isOtherFile(const std::string& path) {
    std::error_code failed;
    if (!std::filesystem::is_regular_file(platform::pathOf(path), failed) ||
        std::filesystem::file_size(platform::pathOf(path), failed) == 0) {
        return false;
    }
    std::string start(pageStart.size(), '\0');
    std::ifstream in = files::open(path);
    in.read(start.data(), static_cast<std::streamsize>(start.size()));
    return start != pageStart;
}

void requireOutput(const viewRequest& asked) {
    if (asked.pageFile.empty() && asked.vtkFolder.empty()) {
        throw cannotView("Nothing to write. Give -o FILE.html, --vtk FOLDER or both.");
    }
    for (const std::string& source : asked.sources) {
        std::error_code ignored;
        if (std::filesystem::equivalent(platform::pathOf(source), platform::pathOf(asked.pageFile),
                                        ignored)) {
            throw cannotView("-o names " + source + ", which is read. Give another file.");
        }
    }
    if (isOtherFile(asked.pageFile)) {
        throw cannotView("-o names " + asked.pageFile +
                         ", which is there and is not a page. Give another file, or remove it.");
    }
}

void run(const viewRequest& asked) {
    requireOutput(asked);
    const pageContent content = asked.make();
    if (asked.pageFile.empty()) {
        return;
    }
    const pageAssets assets = {libraryScript(), libraryLicence(), pageStyle(), pageScript()};
    const auto write = [&](std::ostream& out) { writePage(out, content, assets); };
    if (!replace(asked.pageFile, write)) {
        throw cannotView("Cannot write " + asked.pageFile +
                         ". Give a file in a folder that can be written, with room for it.");
    }
    std::cout << "Wrote " << asked.pageFile << ". Open it in a browser." << std::endl;
}

int runCommandLine(int argc, const char** argv) {
    viewRequest asked;
    CLI::App app("Shows hulls, seas and Nemoh projects as pages for a browser and as files for "
                 "ParaView.\nEnds with status 0, or 2 if it cannot show what was asked for.",
                 "sorvikView");
    addHullView(app, asked);
    addProjectView(app, asked);
    addSeaView(app, asked);
    if (const std::optional<int> end = readCommandLine(app, argc, argv)) {
        return *end;
    }
    run(asked);
    return 0;
}

} // namespace
} // namespace sorvik

int main(int argc, const char** argv) {
    return sorvik::runProgram("sorvikView", [&] { return sorvik::runCommandLine(argc, argv); });
}
