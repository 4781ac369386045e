#pragma once

#include "app/commandLine.hpp"
#include "view/hullPage.hpp"
#include "view/page.hpp"

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace sorvik {

/// What the command line asks for. The command that was given fills it.
struct viewRequest {
    std::string pageFile;             ///< where the page goes, or ""
    std::string vtkFolder;            ///< where files for ParaView go, or ""
    std::vector<std::string> sources; ///< files that are read, which no page may replace
    /// Makes the page, and writes what `vtkFolder` asks for; may throw `cannotView` or
    /// `cannotCheck`.
    std::function<pageContent()> make;
};

/// Thrown where a view cannot be made.
struct cannotView : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Throws `cannotView` where `failed` names a file for ParaView that could not be written.
void requireWritten(const std::string& failed);
/// Says on standard output that `folder` has the files for ParaView.
void sayWritten(const std::string& folder);
/// Writes hulls at `level` [m] into `folder`, unless that is empty. Throws `cannotView` for a hull
/// without panels or a file that cannot be written.
void writeHullFiles(const std::string& folder, const std::vector<viewedHull>& hulls, double level);

// Each adds its command with its options to the application; `asked` must outlive that.
void addHullView(CLI::App& app, viewRequest& asked);
void addProjectView(CLI::App& app, viewRequest& asked);
void addSeaView(CLI::App& app, viewRequest& asked);

/// Adds a command with the options that all commands have. Where it is given, it sets `asked`,
/// which is then to run `make`.
CLI::App& addView(CLI::App& app, viewRequest& asked, const commandText& text,
                  std::function<pageContent()> make);

} // namespace sorvik
