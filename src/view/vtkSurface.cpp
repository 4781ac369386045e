#include "view/vtkSurface.hpp"

#include "base/numberText.hpp"
#include "view/vtkFile.hpp"

#include <algorithm>
#include <ostream>

namespace sorvik {
namespace {

constexpr int timeDigits = 15; // keep any time that a user writes down

/// The name of a frame, with as many digits as the last one needs, and no fewer than 4.
std::string frameName(std::size_t frame, std::size_t frames) {
    const std::size_t last = frames == 0 ? 0 : frames - 1;
    const std::size_t width = std::max<std::size_t>(4, std::to_string(last).size());
    const std::string number = std::to_string(frame);
    return "surface" + std::string(width - number.size(), '0') + number + ".vts";
}

/// The elevations of a frame begin at `elevations`.
void writeFrame(std::ostream& out, const surfaceRun& run, const float* elevations) {
    const std::size_t nodes = run.columns * run.rows;
    const std::string extent =
        "0 " + std::to_string(run.columns - 1) + " 0 " + std::to_string(run.rows - 1) + " 0 0";
    const auto pointAt = [&run, elevations](std::size_t i) {
        return std::array<float, 3>{static_cast<float>(run.x[i % run.columns]),
                                    static_cast<float>(run.y[i / run.columns]), elevations[i]};
    };
    const auto elevationAt = [elevations](std::size_t i) { return std::array{elevations[i]}; };
    writeVtk(out, {"StructuredGrid",
                   {{"WholeExtent", extent}},
                   {{"Extent", extent}},
                   {{"PointData",
                     {{"Scalars", "elevation"}},
                     {makeVtkArray("elevation", nodes, elevationAt)}},
                    {"Points", {}, {makeVtkArray("Points", nodes, pointAt)}}}});
}

void writeCollection(std::ostream& out, const surfaceRun& run) {
    const std::vector<double>& times = run.frameTimes;
    out << "<?xml version=\"1.0\"?>\n"
           "<VTKFile type=\"Collection\" version=\"0.1\" byte_order=\"LittleEndian\">\n"
           "<Collection>\n";
    for (std::size_t i = 0; i < times.size(); ++i) {
        out << "<DataSet"
            << vtkText({{"timestep", numberText(times[i], timeDigits)},
                        {"part", "0"},
                        {"file", frameName(i, times.size())}})
            << "/>\n";
    }
    out << "</Collection>\n</VTKFile>\n";
}

} // namespace

std::string writeVtkSurface(const std::string& folder, const surfaceRun& run) {
    if (!files::makeFolder(folder)) {
        return folder;
    }
    const std::size_t frames = run.frameTimes.size();
    for (std::size_t i = 0; i < frames; ++i) {
        std::string path = folder + "/" + frameName(i, frames);
        const float* elevations = run.frames.data() + i * run.columns * run.rows;
        if (!replaceNoLink(path, [&](std::ostream& out) { writeFrame(out, run, elevations); })) {
            return path;
        }
    }
    const std::string path = folder + "/surface.pvd";
    return replaceNoLink(path, [&](std::ostream& out) { writeCollection(out, run); }) ? "" : path;
}

} // namespace sorvik
