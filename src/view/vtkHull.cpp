#include "view/vtkHull.hpp"

#include "base/platform.hpp"
#include "check/hullSurface.hpp"
#include "mesh/nodeMatcher.hpp"
#include "view/vtkFile.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace sorvik {
namespace {

/// Of the second file.
const char* const wetSuffix = "-wet";

/// By the order of the corners, as the hydrostatics take it: normals in files may be wrong.
std::array<float, 3> normalOf(const triangle& panel) {
    const point3 a = areaVector(cornersOf(panel));
    const double area = norm(a);
    if (!(area >= noArea) || !std::isfinite(area)) {
        return {};
    }
    return {static_cast<float>(a[0] / area), static_cast<float>(a[1] / area),
            static_cast<float>(a[2] / area)};
}

std::uint8_t wetnessOf(const triangle& panel, double level) {
    const corners3 t = cornersOf(panel);
    const auto submerged =
        std::count_if(t.begin(), t.end(), [&](const point3& p) { return p[2] <= level; });
    return submerged == 0 ? 0 : submerged == 3 ? 1 : 2;
}

using panelList = std::vector<const triangle*>;

panelList listOf(const std::vector<triangle>& panels) {
    panelList list;
    list.reserve(panels.size());
    for (const triangle& panel : panels) {
        list.push_back(&panel);
    }
    return list;
}

/// The list must outlive them, as must what the next functions are given.
std::vector<vtkArray> shapeArrays(const panelList& panels) {
    const auto normalAt = [&panels](std::size_t i) { return normalOf(*panels[i]); };
    const auto areaAt = [&panels](std::size_t i) { return std::array{panels[i]->area}; };
    return {makeVtkArray("Normals", panels.size(), normalAt),
            makeVtkArray("area", panels.size(), areaAt)};
}

/// For each kind of finding that has panels, which of them have it.
std::vector<vtkArray> findingArrays(const hullReport& hull) {
    const std::size_t count = hull.mesh.faces.size();
    std::map<std::string, std::vector<std::uint8_t>> marks;
    for (const finding& found : hull.result.findings) {
        for (const location& place : found.where) {
            const auto panel = static_cast<std::size_t>(std::max(place.panel, 0));
            if (panel > 0 && panel <= count) {
                auto& ofKind = marks[found.name];
                ofKind.resize(count);
                ofKind[panel - 1] = 1;
            }
        }
    }
    std::vector<vtkArray> arrays;
    arrays.reserve(marks.size());
    for (auto& [name, ofKind] : marks) {
        arrays.push_back(makeVtkArray(name, count, [ofKind = std::move(ofKind)](std::size_t i) {
            return std::array{ofKind[i]};
        }));
    }
    return arrays;
}

std::vector<vtkArray> hullArrays(const hullReport& hull, const panelList& panels, double level) {
    const auto numberAt = [](std::size_t i) {
        return std::array{static_cast<std::int32_t>(i) + 1};
    };
    const auto wetAt = [&panels, level](std::size_t i) {
        return std::array{wetnessOf(*panels[i], level)};
    };
    std::vector<vtkArray> arrays = shapeArrays(panels);
    arrays.push_back(makeVtkArray("panel", panels.size(), numberAt));
    arrays.push_back(makeVtkArray("wet", panels.size(), wetAt));
    for (vtkArray& marks : findingArrays(hull)) {
        arrays.push_back(std::move(marks));
    }
    return arrays;
}

/// Points and triangles.
std::vector<vtkElement> surfaceElements(const nodeMatcher& matcher) {
    const auto& nodes = matcher.nodes();
    const auto& corners = matcher.corners();
    const auto pointAt = [&nodes](std::size_t i) {
        const v3<float>& p = nodes[i].place;
        return std::array{p.x, p.y, p.z};
    };
    const auto cornerAt = [&corners](std::size_t i) {
        return std::array{static_cast<std::int64_t>(corners[i]) - 1};
    };
    const auto endAt = [](std::size_t i) {
        return std::array{3 * static_cast<std::int64_t>(i + 1)};
    };
    return {{"Points", {}, {makeVtkArray("Points", nodes.size(), pointAt)}},
            {"Polys",
             {},
             {makeVtkArray("connectivity", corners.size(), cornerAt),
              makeVtkArray("offsets", corners.size() / 3, endAt)}}};
}

bool writeSurface(const std::string& path, const panelList& panels,
                  std::vector<vtkArray> cellData) {
    nodeMatcher matcher(panels.size());
    for (const triangle* panel : panels) {
        matcher.addPanel(panel->vertexA, panel->vertexB, panel->vertexC);
    }
    vtkDataSet data = {"PolyData",
                       {},
                       {{"NumberOfPoints", std::to_string(matcher.nodes().size())},
                        {"NumberOfVerts", "0"},
                        {"NumberOfLines", "0"},
                        {"NumberOfStrips", "0"},
                        {"NumberOfPolys", std::to_string(panels.size())}},
                       surfaceElements(matcher)};
    data.elements.push_back({"CellData", {{"Normals", "Normals"}}, std::move(cellData)});
    return replaceNoLink(path, [&](std::ostream& out) { writeVtk(out, data); });
}

} // namespace

std::string writeVtkHull(const std::string& folder, const std::string& stem, const hullReport& hull,
                         double level) {
    if (!files::makeFolder(folder)) {
        return folder;
    }
    const std::string whole = folder + "/" + stem + ".vtp";
    const std::string wetted = folder + "/" + stem + wetSuffix + ".vtp";
    const panelList panels = listOf(hull.mesh.faces);
    const panelList wetPanels(hull.mesh.wetFaces.begin(), hull.mesh.wetFaces.end());
    return !writeSurface(whole, panels, hullArrays(hull, panels, level)) ? whole
           : !writeSurface(wetted, wetPanels, shapeArrays(wetPanels))    ? wetted
                                                                         : "";
}

std::vector<std::string> vtkStems(const std::vector<std::string>& meshFiles) {
    const auto inSmallLetters = [](std::string name) {
        for (char& c : name) {
            c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        }
        return name;
    };
    std::set<std::string> taken;
    std::vector<std::string> stems;
    for (const std::string& file : meshFiles) {
        const std::string name = platform::nameOf(platform::pathOf(file).stem());
        std::string stem = name;
        const auto isTaken = [&](const char* suffix) {
            return taken.count(inSmallLetters(stem) + suffix) > 0;
        };
        for (int i = 2; isTaken("") || isTaken(wetSuffix); ++i) {
            stem = name + "-" + std::to_string(i);
        }
        taken.insert(inSmallLetters(stem));
        taken.insert(inSmallLetters(stem) + wetSuffix);
        stems.push_back(stem);
    }
    return stems;
}

} // namespace sorvik
