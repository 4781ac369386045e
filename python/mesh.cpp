#include "arrays.hpp"
#include "base/rewrite.hpp"
#include "check/hullExamination.hpp"
#include "guard.hpp"
#include "mesh/meshFormats.hpp"
#include "mesh/nodeMatcher.hpp"
#include "reports.hpp"

#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

#include <cmath>
#include <cstddef>
#include <filesystem>
#include <utility>

namespace sorvik::python {
namespace {

// The views of panels count on this.
static_assert(sizeof(v3<float>) == 3 * sizeof(float));
static_assert(offsetof(triangle, vertexC) - offsetof(triangle, vertexA) == 2 * sizeof(v3<float>));

using matrix3 = std::array<std::array<double, 3>, 3>;

/// A mesh with what its file held.
class hullMesh {
public:
    hullMesh(const std::filesystem::path& path, const point3& origin, double level);

    const bodyMesh& body() const { return body_; }
    double level() const { return level_; }
    void cut(double level);
    void translate(const point3& distance);
    void rotate(const matrix3& turn);
    void write(const std::filesystem::path& path, bool wet) const;
    report check(hullOptions options) const;
    hydrostatics computeAt(const hydrostaticOptions& options) const {
        return computeHydrostatics(body_.faces, options);
    }

private:
    bodyMesh body_;
    double level_;
    point3 origin_;
    meshFileFacts file_;
    report fileReport_;
};

hullMesh::hullMesh(const std::filesystem::path& path, const point3& origin, double level)
    : level_(level), origin_(origin) {
    requireFinite(origin, "origin");
    requireFinite(level, "level");
    const std::string file = path.string();
    requireMeshFile(file);
    hullOptions options;
    options.origin = origin;
    options.level = level;
    hullFile read = readHull(file, options);
    showIfVerbose(read.text);
    if (!read.failure.empty()) {
        throw libraryError(read.failure);
    }
    body_ = std::move(read.mesh);
    file_ = std::move(read.facts);
    fileReport_ = std::move(read.result);
    if (body_.faces.empty()) {
        throw libraryError("The file " + file + " gives no panels.");
    }
}

void hullMesh::cut(double level) {
    requireFinite(level, "level");
    run([&] { body_.updateWetSurface(level); });
    level_ = level;
}

void hullMesh::translate(const point3& distance) {
    requireFinite(distance, "distance");
    for (triangle& panel : body_.faces) {
        panel.shift({-static_cast<float>(distance[0]), -static_cast<float>(distance[1]),
                     -static_cast<float>(distance[2])});
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        origin_[axis] -= distance[axis];
    }
    cut(level_);
}

/// A ValueError unless `turn` is a rotation.
void requireRotation(const matrix3& turn) {
    constexpr double tolerance = 1e-6;
    const auto [a, b, c] = turn;
    const auto dot = [](const point3& p, const point3& q) {
        return p[0] * q[0] + p[1] * q[1] + p[2] * q[2];
    };
    const point3 cross = {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2],
                          a[0] * b[1] - a[1] * b[0]};
    for (const double error :
         {dot(a, a) - 1, dot(b, b) - 1, dot(a, b), dot(cross, c) - 1, dot(c, c) - 1}) {
        if (!(std::fabs(error) < tolerance)) {
            throw py::value_error("matrix is no rotation: expected rows of length 1 at right "
                                  "angles, with the determinant 1");
        }
    }
}

void hullMesh::rotate(const matrix3& turn) {
    requireRotation(turn);
    const std::array<double, 9> rows = {turn[0][0], turn[0][1], turn[0][2], turn[1][0], turn[1][1],
                                        turn[1][2], turn[2][0], turn[2][1], turn[2][2]};
    for (triangle& panel : body_.faces) {
        panel.rotate(rows.data());
    }
    cut(level_);
}

void hullMesh::write(const std::filesystem::path& path, bool wet) const {
    const std::string file = path.string();
    int format = -1;
    if (file.size() >= 4) {
        run([&] { format = bodyMesh::chooseFrmt(file); });
    }
    if (format < 0) {
        throw py::value_error("path is " + file +
                              ", expected a name that ends with .stl, .gdf, .dat or .nem");
    }
    const meshFormat& chosen = meshFormats()[static_cast<std::size_t>(format)];
    const panelView panels = wet || chosen.isAlwaysWet ? panelView(body_.wetFaces)
                                                       : panelView(body_.faces, body_.nFaces);
    bool isWritten = false;
    run([&] {
        isWritten =
            rewrite(body_.meshFile, file, [&](std::ostream& out) { chosen.write(out, panels); });
    });
    if (!isWritten) {
        throw libraryError("Cannot write " + file +
                           ". Give a file in a folder that can be written.");
    }
}

report hullMesh::check(hullOptions options) const {
    options.origin = origin_;
    hullReport checked;
    checked.result = fileReport_;
    checked.hasPanels = true;
    checked.mesh.faces = body_.faces;
    checked.mesh.nFaces = body_.nFaces;
    quietly([&] { checked.mesh.updateWetSurface(options.level); });
    examineHull(file_, options, checked);
    return checked.result;
}

// ---- Arrays ----

const triangle& firstOf(const hullMesh& mesh) {
    return mesh.body().faces.front(); // there are panels
}

py::ssize_t countOf(const hullMesh& mesh) {
    return static_cast<py::ssize_t>(mesh.body().faces.size());
}

constexpr py::ssize_t panelStride = sizeof(triangle);
constexpr py::ssize_t floatStride = sizeof(float);

py::array panelsOf(const py::object& self) {
    const auto& mesh = self.cast<const hullMesh&>();
    return viewOf(&firstOf(mesh).vertexA.x, {countOf(mesh), 3, 3}, self,
                  {panelStride, 3 * floatStride, floatStride});
}

py::array normalsOf(const py::object& self) {
    const auto& mesh = self.cast<const hullMesh&>();
    return viewOf(&firstOf(mesh).normal.x, {countOf(mesh), 3}, self, {panelStride, floatStride});
}

py::array areasOf(const py::object& self) {
    const auto& mesh = self.cast<const hullMesh&>();
    return viewOf(&firstOf(mesh).area, {countOf(mesh)}, self, {panelStride});
}

py::array wetOf(const hullMesh& mesh) {
    std::vector<float> corners;
    corners.reserve(9 * mesh.body().wetFaces.size());
    for (const triangle* panel : mesh.body().wetFaces) {
        for (const v3<float>& p : {panel->vertexA, panel->vertexB, panel->vertexC}) {
            corners.insert(corners.end(), {p.x, p.y, p.z});
        }
    }
    const auto count = static_cast<py::ssize_t>(corners.size() / 9);
    return arrayOf(std::move(corners), {count, 3, 3});
}

nodeMatcher mergedOf(const hullMesh& mesh) {
    nodeMatcher matcher(mesh.body().faces.size());
    for (const triangle& panel : mesh.body().faces) {
        matcher.addPanel(panel.vertexA, panel.vertexB, panel.vertexC);
    }
    return matcher;
}

py::array nodesOf(const hullMesh& mesh) {
    std::vector<float> places;
    const nodeMatcher merged = mergedOf(mesh);
    for (const auto& node : merged.nodes()) {
        places.insert(places.end(), {node.place.x, node.place.y, node.place.z});
    }
    const auto count = static_cast<py::ssize_t>(places.size() / 3);
    return arrayOf(std::move(places), {count, 3});
}

py::array facesOf(const hullMesh& mesh) {
    std::vector<int> corners = mergedOf(mesh).corners();
    for (int& corner : corners) {
        --corner; // indices begin with 0 in Python
    }
    return arrayOf(std::move(corners), {countOf(mesh), 3});
}

// ---- Dictionaries ----

/// What both functions take, checked.
hydrostaticOptions waterOf(const hullMesh& mesh, const std::optional<double>& level,
                           const point3& cog, const std::optional<double>& mass, double density,
                           double gravity) {
    requireFinite(level.value_or(0), "level");
    requireFinite(cog, "cog");
    requirePositive(mass, "mass");
    requirePositive(density, "density");
    requirePositive(gravity, "gravity");
    return {level.value_or(mesh.level()), cog, mass, density, gravity};
}

py::dict hydrostaticsOf(const hullMesh& mesh, const std::optional<double>& level, const point3& cog,
                        const std::optional<double>& mass, double density, double gravity) {
    report result;
    addHydrostaticFacts(mesh.computeAt(waterOf(mesh, level, cog, mass, density, gravity)), result);
    return factsDict(result);
}

py::dict checkMeshOf(const hullMesh& mesh, const std::optional<double>& level, const point3& cog,
                     const std::optional<double>& mass, double density, double gravity,
                     double depth, const std::optional<double>& w1) {
    requireFinite(depth, "depth");
    requirePositive(w1, "w1");
    hullOptions options;
    static_cast<hydrostaticOptions&>(options) = waterOf(mesh, level, cog, mass, density, gravity);
    options.depth = depth;
    options.w1 = w1;
    return dictOf(mesh.check(options));
}

// ---- Python ----

constexpr const char* meshText =
    R"(The panels of a hull, read from STL, WAMIT GDF or Nemoh's format.

Mesh(path, origin=(0, 0, 0), level=0) moves the mesh so that its point `origin` [m] becomes
(0, 0, 0) and cuts it at the height `level` [m]. Lengths are in m, z points up. A file that cannot
be read, or that gives no panels, is a sorvik.Error; `check` shows what a file lacks otherwise. The
line that ends the panels of a Nemoh mesh, which sorvikPre reads as one more panel, is left out, and
so are the facets that sorvikPre adds to a binary STL file that is cut off.

Methods hold the interpreter's lock: the console that they silence belongs to the process.

>>> hull = sorvik.Mesh("1-hull/barge.stl", level=-0.1)
>>> hull.panels.shape, hull.panels.dtype, hull.wet().shape
((104, 3, 3), dtype('float32'), (76, 3, 3))
)";

constexpr const char* panelsText =
    R"(Corners of the panels [m]: n x 3 x 3 float32, by panel, corner and axis.

A view, which keeps the mesh and follows `translate` and `rotate`; it cannot be written.
)";

constexpr const char* nodesText =
    R"(Corners closer than 1e-5 m merged, as in a Nemoh mesh [m]: m x 3 float32, anew at each call.

>>> hull = sorvik.Mesh("1-hull/barge.stl")
>>> bool((abs(hull.nodes[hull.faces] - hull.panels) < 1e-5).all())
True
)";

constexpr const char* hydrostaticsText =
    R"(Hydrostatics of the part below `level` [m], cut exactly, as a dictionary.

The default is the level of the mesh. `cog` is the centre of gravity [m], `mass` [kg] the displaced
one if it is None, `density` of the water [kg/m3], `gravity` [m/s2]. The names are those of
`sorvikCheck hull --json`: wettedArea [m2], volume.x, .y, .z [m3], displacement [kg], draught [m],
buoyancy (x, y, z [m]), waterplane.area [m2], .x, .y [m], .Ixx, .Iyy, .Ixy [m4], K33 [N/m], K44, K55
[N m], stiffness (6 x 6 by rows), GMt, GMl [m].

>>> hydrostatics = sorvik.Mesh("1-hull/barge.stl").hydrostatics(cog=(0, 0, -0.5), density=1000)
>>> round(hydrostatics["displacement"]), round(hydrostatics["GMt"], 3)
(48000, 0.639)
)";

constexpr const char* meshCheckText =
    R"(What `sorvikCheck hull` finds, as {"facts": {...}, "findings": [...]} with the names of its JSON.

Arguments as for `hydrostatics`, and the `depth` of the water [m], 0 for deep water, and the highest
wave frequency `w1` [rad/s]. The mesh is the one in memory; what is said of the file holds for the
time when it was read.

>>> [finding["name"] for finding in sorvik.Mesh("1-hull/barge.stl").check()["findings"]]
[]
)";

void addArrays(py::class_<hullMesh>& mesh) {
    mesh.def_property_readonly("panels", panelsOf, panelsText)
        .def_property_readonly("normals", normalsOf,
                               "Unit normals, outwards: n x 3 float32, a view as `panels`. Not "
                               "finite for a panel without area.")
        .def_property_readonly("areas", areasOf, "Areas [m2]: n float64, a view as `panels`.")
        .def_property_readonly("nodes", nodesOf, nodesText)
        .def_property_readonly("faces", facesOf,
                               "The nodes of the panels: n x 3 indices into `nodes`, from 0.")
        .def("wet", wetOf,
             "The panels below the level [m], the pieces of those that it cuts last: w x 3 x 3 "
             "float32, a copy.")
        .def_property_readonly("level", &hullMesh::level, "Height of the cut [m].");
}

} // namespace

void addMesh(py::module_& module) {
    using namespace py::literals;
    py::class_<hullMesh> mesh(module, "Mesh", meshText);
    mesh.def(py::init<const std::filesystem::path&, const point3&, double>(), "path"_a,
             "origin"_a = point3{}, "level"_a = 0.0);
    addArrays(mesh);
    mesh.def("__len__", countOf)
        .def("cut", &hullMesh::cut, "level"_a, "Cuts the panels anew, at the height `level` [m].")
        .def("translate", &hullMesh::translate, "distance"_a,
             "Moves the panels by (x, y, z) [m] and cuts them anew at `level`.")
        .def("rotate", &hullMesh::rotate, "matrix"_a,
             "Turns the panels about (0, 0, 0) by a 3 x 3 matrix R, x' = R x, and cuts them anew.")
        .def("write", &hullMesh::write, "path"_a, "wet"_a = false,
             "Writes all panels, or those below the level, by the ending of the name: .stl, .gdf, "
             ".dat or .nem. Nemoh meshes always hold those below the level.")
        .def("hydrostatics", hydrostaticsOf, hydrostaticsText, "level"_a = py::none(),
             "cog"_a = point3{}, "mass"_a = py::none(), "density"_a = 1025.0, "gravity"_a = 9.81)
        .def("check", checkMeshOf, meshCheckText, "level"_a = py::none(), "cog"_a = point3{},
             "mass"_a = py::none(), "density"_a = 1025.0, "gravity"_a = 9.81, "depth"_a = 0.0,
             "w1"_a = py::none());
}

} // namespace sorvik::python
