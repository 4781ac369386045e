#include "check/hullCheck.hpp"

#include "base/files.hpp"
#include "base/platform.hpp"
#include "check/hullExamination.hpp"
#include "check/hullFindings.hpp"
#include "check/hullSurface.hpp"
#include "check/quietly.hpp"
#include "mesh/stlFormat.hpp"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <sstream>
#include <utility>

namespace sorvik {
namespace {

void requirePositive(double value, const std::string& option) {
    if (!(value > 0) || !std::isfinite(value)) {
        throw cannotCheck(option + " is " + std::to_string(value) +
                          ". Give a number greater than 0.");
    }
}

void requireFinite(const point3& values, const std::string& option) {
    for (const double value : values) {
        if (!std::isfinite(value)) {
            throw cannotCheck(option + " is not finite. Give numbers in m.");
        }
    }
}

void requireUsable(const hullOptions& options) {
    requireFinite(options.origin, "--origin");
    requireFinite(options.cog, "--cog");
    requireFinite({options.level, 0, 0}, "--level");
    requireFinite({options.depth, 0, 0}, "--depth");
    requirePositive(options.density, "--density");
    requirePositive(options.gravity, "--gravity");
    requirePositive(options.mass.value_or(1), "--mass");
    requirePositive(options.w1.value_or(1), "--w1");
}

std::vector<double> listOf(const point3& p) {
    return {p.begin(), p.end()};
}

void addMeshFacts(const examinedHull& hull, report& result) {
    const auto count = [](std::size_t number) { return static_cast<long long>(number); };
    result.addFact("format", "Format", hull.file.format);
    result.addFact("ending", "", hull.file.ending);
    result.addFact("announced", "", hull.file.announced);
    result.addFact("read", "", hull.file.read);
    result.addFact("panels", "Panels", count(hull.mesh.faces.size()));
    result.addFact("wettedPanels", "Panels of the cut", count(hull.mesh.wetFaces.size()));
    result.addFact("nodes", "Nodes", count(hull.topology.nodes));
    result.addFact("box.min", "Box from", listOf(hull.low), "m");
    result.addFact("box.max", "to", listOf(hull.high), "m");
    result.addFact("area", "Area", hull.mesh.surfaceArea(), "m2");
}

void addSizeFacts(const panelSizes& sizes, const hullOptions& options, report& result) {
    result.addFact("longestEdge", "Longest wetted edge", sizes.longestEdge, "m");
    result.addFact("smallestArea", "Smallest wetted panel", sizes.smallestArea, "m2");
    result.addFact("cut.area", "", sizes.area, "m2");
    result.addFact("cut.volume", "", sizes.volume, "m3");
    result.addFact("worstAspect", "Worst aspect ratio", sizes.worstAspect);
    if (options.w1 && sizes.longestEdge > 0) {
        const double length = waveLength(*options.w1, options.gravity, options.depth);
        result.addFact("panelsPerWave", "Panels per wave at --w1", length / sizes.longestEdge);
    }
}

/// Reads, moves and cuts a mesh as the constructor does, but never more facets than a file holds.
bodyMesh readMesh(const std::string& file, const hullOptions& options) {
    const std::optional<std::string> held = shortenedStl(file);
    if (!held) {
        return bodyMesh(file, listOf(options.origin), {0, 0, 0}, options.level);
    }
    bodyMesh mesh;
    mesh.meshFile = file;
    std::istringstream in(*held);
    stl::readBinary(in, file, {mesh.faces, mesh.nFaces});
    mesh.place(listOf(options.origin), {0, 0, 0}, options.level);
    return mesh;
}

/// Takes out the panel that the reader makes of the line that ends a Nemoh mesh, and its image, and
/// cuts the mesh again; leaves meshes of other formats. `mesh` is as it was read. All corners of
/// these panels lie at the mesh's zero.
void removeNemohEnd(const meshFileFacts& file, const hullOptions& options, bodyMesh& mesh) {
    if (file.format != "Nemoh" || mesh.faces.empty()) {
        return;
    }
    const v3<float> zero = {-static_cast<float>(options.origin[0]),
                            -static_cast<float>(options.origin[1]),
                            -static_cast<float>(options.origin[2])};
    const auto isZero = [&](const v3<float>& p) {
        return p.x == zero.x && p.y == zero.y && p.z == zero.z;
    };
    auto& faces = mesh.faces;
    const auto removeAt = [&](std::size_t i) {
        if (isZero(faces[i].vertexA) && isZero(faces[i].vertexB) && isZero(faces[i].vertexC)) {
            faces.erase(faces.begin() + static_cast<std::ptrdiff_t>(i));
        }
    };
    const std::size_t half = faces.size() / 2;
    removeAt(faces.size() - 1);
    if (file.isMirroredY && half > 0) {
        removeAt(half - 1);
    }
    mesh.nFaces = static_cast<int>(faces.size());
    quietly([&] { mesh.updateWetSurface(options.level); });
}

} // namespace

void requireMeshFile(const std::string& file) {
    if (!std::filesystem::is_regular_file(platform::pathOf(file)) || !files::canOpen(file)) {
        throw cannotCheck("Cannot read the mesh " + file +
                          ". Check the name; it is a file that you may read.");
    }
}

hullFile readHull(const std::string& file, const hullOptions& options) {
    hullFile read;
    if (file.size() < 4) {
        read.failure = "The name " + file + " has no ending of a mesh.";
    } else {
        const quietOutcome outcome = quietly([&] { read.mesh = readMesh(file, options); });
        read.failure = outcome.hasEnded ? outcome.message() : "";
        read.text = outcome.text;
    }
    const auto panels = static_cast<long long>(read.mesh.faces.size());
    read.facts = inspectMeshFile(file, panels, read.result);
    removeNemohEnd(read.facts, options, read.mesh);
    return read;
}

void addHydrostaticFacts(const hydrostatics& h, report& result) {
    result.addFact("wettedArea", "Wetted area", h.wettedArea, "m2");
    result.addFact("volume.x", "", h.volume[0], "m3");
    result.addFact("volume.y", "", h.volume[1], "m3");
    result.addFact("volume.z", "Volume", h.volume[2], "m3");
    result.addFact("displacement", "Displacement", h.displacement, "kg");
    result.addFact("draught", "Draught", h.draught, "m");
    result.addFact("buoyancy", "Centre of buoyancy", listOf(h.buoyancy), "m");
    result.addFact("waterplane.area", "Waterplane area", h.waterplane, "m2");
    result.addFact("waterplane.x", "", h.waterplaneX, "m");
    result.addFact("waterplane.y", "", h.waterplaneY, "m");
    result.addFact("waterplane.Ixx", "", h.Ixx, "m4");
    result.addFact("waterplane.Iyy", "", h.Iyy, "m4");
    result.addFact("waterplane.Ixy", "", h.Ixy, "m4");
    result.addFact("K33", "Stiffness in heave", h.stiffness[14], "N/m");
    result.addFact("K44", "in roll", h.stiffness[21], "N m");
    result.addFact("K55", "in pitch", h.stiffness[28], "N m");
    result.addFact("stiffness", "", std::vector<double>(h.stiffness.begin(), h.stiffness.end()));
    result.addFact("GMt", "GM, transverse", h.GMt, "m");
    result.addFact("GMl", "GM, longitudinal", h.GMl, "m");
}

void examineHull(const meshFileFacts& file, const hullOptions& options, hullReport& checked) {
    report& result = checked.result;
    const bodyMesh& mesh = checked.mesh;
    checked.values = computeHydrostatics(mesh.faces, options);
    checked.topology = topologyBelow(mesh.faces, options.level);
    const auto [low, high] = boxAround(mesh.faces);
    const examinedHull hull = {mesh, file, options, checked.values, checked.topology, low, high};
    const panelSizes sizes = sizesOf(mesh.wetFaces, options.level);
    addMeshFacts(hull, result);
    addHydrostaticFacts(checked.values, result);
    addSizeFacts(sizes, options, result);
    if (options.onlyRecords) {
        return;
    }
    addEdgeFindings(hull, result);
    addPanelFindings(hull, sizes, result);
    addShapeFindings(hull, sizes, result);
}

hullReport checkHull(const std::string& file, const hullOptions& options) {
    requireMeshFile(file);
    requireUsable(options);
    hullFile read = readHull(file, options);
    hullReport checked;
    checked.result = std::move(read.result);
    checked.mesh = std::move(read.mesh);
    checked.hasPanels = !checked.mesh.faces.empty();
    if (checked.hasPanels) {
        examineHull(read.facts, options, checked);
        return checked;
    }
    report& result = checked.result;
    result.addFact("format", "Format", read.facts.format);
    if (result.findings.empty()) {
        result.add("unread-file",
                   read.failure.empty() ? "The file gives no panels." : read.failure);
    }
    return checked;
}

} // namespace sorvik
