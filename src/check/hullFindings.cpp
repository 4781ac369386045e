#include "check/hullFindings.hpp"

#include "base/numberText.hpp"
#include "check/hullSurface.hpp"
#include "mesh/waterline.hpp"
#include "waves/waveTrain.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace sorvik {
namespace {

/// Corners of the symmetry plane, and open edges of a half hull, lie within this of their plane
/// [m].
constexpr double planeTolerance = 1e-4;
/// Nemoh refuses smaller panels [m²].
constexpr double smallestForNemoh = 1e-7;

using places = std::vector<location>;

void addIfAny(report& result, std::string_view name, const std::string& message, places where) {
    if (!where.empty()) {
        result.add(name, message, std::move(where));
    }
}

location placeOf(const std::vector<triangle>& panels, const panelEdge& edge) {
    const corners3 t = cornersOf(panels[edge.panel]);
    const point3& a = t[edge.corner];
    const point3& b = t[(edge.corner + 1) % 3];
    return location::ofPanel(edge.panel, {(a[0] + b[0]) / 2, (a[1] + b[1]) / 2, (a[2] + b[2]) / 2});
}

places placesOf(const examinedHull& hull, const std::vector<panelEdge>& edges) {
    places where;
    for (const panelEdge& edge : edges) {
        where.push_back(placeOf(hull.mesh.faces, edge));
    }
    return where;
}

/// A vertical plane through two points.
struct verticalPlane {
    point3 at;
    double nx;
    double ny;

    double distance(const point3& p) const {
        return std::abs((p[0] - at[0]) * nx + (p[1] - at[1]) * ny);
    }
    bool holds(const corners3& t) const {
        return std::all_of(t.begin(), t.end(),
                           [&](const point3& p) { return distance(p) <= planeTolerance; });
    }
};

/// Whether the open edges lie in one vertical plane that holds no panel: half a hull has its hole
/// there, whereas a hole in a flat side has panels beside it.
bool isHalfHull(const examinedHull& hull) {
    const auto& edges = hull.topology.openEdges;
    const auto& faces = hull.mesh.faces;
    const auto startOf = [&](const panelEdge& edge) {
        return cornersOf(faces[edge.panel])[edge.corner];
    };
    const auto level = [](const point3& a, const point3& b) {
        return std::hypot(a[0] - b[0], a[1] - b[1]);
    };
    const point3 first = startOf(edges.front());
    point3 last = first;
    for (const panelEdge& edge : edges) {
        const point3 p = startOf(edge);
        last = level(first, p) > level(first, last) ? p : last;
    }
    const double span = level(first, last);
    if (!(span > planeTolerance)) {
        return false;
    }
    const verticalPlane plane = {first, (first[1] - last[1]) / span, (last[0] - first[0]) / span};
    const auto isInPlane = [&](const panelEdge& edge) {
        const corners3 t = cornersOf(faces[edge.panel]);
        return plane.distance(t[edge.corner]) <= planeTolerance &&
               plane.distance(t[(edge.corner + 1) % 3]) <= planeTolerance;
    };
    return std::all_of(edges.begin(), edges.end(), isInPlane) &&
           std::none_of(faces.begin(), faces.end(),
                        [&](const triangle& panel) { return plane.holds(cornersOf(panel)); });
}

void addOpenEdges(const examinedHull& hull, report& result) {
    const auto& edges = hull.topology.openEdges;
    if (edges.empty()) {
        return;
    }
    const bool isMirrored = hull.file.isMirroredX || hull.file.isMirroredY;
    const bool isHalf = !isMirrored && isHalfHull(hull);
    result.add(isHalf ? "half-hull" : "open-edges",
               isHalf ? "All open edges below the level lie in one vertical plane."
                      : "Edges below the level belong to one panel only.",
               placesOf(hull, edges));
}

void addSymmetryPlane(const examinedHull& hull, report& result) {
    places where;
    const auto& faces = hull.mesh.faces;
    for (std::size_t i = 0; i < faces.size(); ++i) {
        const corners3 t = cornersOf(faces[i]);
        const auto isIn = [&](std::size_t axis) {
            return std::all_of(t.begin(), t.end(), [&](const point3& p) {
                return std::abs(p[axis] + hull.options.origin[axis]) <= planeTolerance;
            });
        };
        if ((hull.file.isMirroredX && isIn(0)) || (hull.file.isMirroredY && isIn(1))) {
            where.push_back(location::ofPanel(i, centreOf(t)));
        }
    }
    addIfAny(result, "panel-in-symmetry-plane",
             "Panels and their images lie in the plane of symmetry of the file.", std::move(where));
}

/// Places by kind, gathered in one pass over the panels.
struct panelPlaces {
    places notFinite;
    places withoutArea;
    places tiny;
    places dropped;
    places nearLevel;
    places lid;
    double droppedArea = 0; ///< m²
    double lidArea = 0;     ///< m²
    bool isWithoutAreaWet = false;
};

double wetAreaOf(const corners3& t, double level) {
    const clippedTriangle clipped = clipBelow(t, level);
    double area = 0;
    for (int i = 0; i < clipped.count; ++i) {
        area += norm(areaVector(clipped.parts[static_cast<std::size_t>(i)]));
    }
    return area;
}

/// Whether the cut drops a panel that crosses the level.
bool isDropped(const corners3& t, double level) {
    const auto isWet = [&](const point3& p) { return p[2] <= level; };
    const auto wet = std::count_if(t.begin(), t.end(), isWet);
    return wet > 0 && wet < 3 && std::any_of(t.begin(), t.end(), [&](const point3& p) {
               return isWet(p) && isSliver(static_cast<float>(level - p[2]));
           });
}

void sortPanel(const corners3& t, std::size_t index, double level, panelPlaces& found) {
    const location place = location::ofPanel(index, centreOf(t));
    if (!isFinite(t)) {
        found.notFinite.push_back(place);
        return;
    }
    const double area = norm(areaVector(t));
    const bool isWet =
        std::all_of(t.begin(), t.end(), [&](const point3& p) { return p[2] <= level; });
    if (area < noArea) {
        found.withoutArea.push_back(place);
        found.isWithoutAreaWet = found.isWithoutAreaWet || isWet;
        return;
    }
    if (isWet && area < smallestForNemoh) {
        found.tiny.push_back(place);
    }
    if (isLid(t, level)) {
        found.lid.push_back(place);
        found.lidArea += area;
    } else if (const double lost = isDropped(t, level) ? wetAreaOf(t, level) : 0; lost > noArea) {
        found.dropped.push_back(place);
        found.droppedArea += lost;
    }
    for (const point3& p : t) {
        if (p[2] > level && p[2] - level < sliverDepth) {
            found.nearLevel.push_back(location::ofPanel(index, p));
        }
    }
}

void addCutPanels(const examinedHull& hull, panelPlaces& found, report& result) {
    places withoutArea;
    for (std::size_t i = 0; i < hull.mesh.splitFaces.size(); ++i) {
        const corners3 t = cornersOf(hull.mesh.splitFaces[i]);
        const double area = norm(areaVector(t));
        location place;
        place.hasPoint = true;
        place.point = centreOf(t);
        if (!(area >= noArea)) {
            withoutArea.push_back(place);
        } else if (area < smallestForNemoh) {
            found.tiny.push_back(place);
        }
    }
    addIfAny(result, "cut-panel-without-area", "The cut at the level leaves panels without area.",
             std::move(withoutArea));
}

void addVolumes(const examinedHull& hull, report& result) {
    const point3& V = hull.values.volume;
    const auto [low, high] = std::minmax_element(V.begin(), V.end());
    if (*high < 0) {
        result.add("inward-normals", "The volume below the level is " + numberText(V[2]) +
                                         " m3: the normals point into the hull.");
    }
    const double largest = std::max(std::abs(*low), std::abs(*high));
    if (*high - *low > 1e-3 * largest) {
        result.add("unequal-volumes", "The volume below the level is " + numberText(V[0]) + ", " +
                                          numberText(V[1]) + " and " + numberText(V[2]) +
                                          " m3 from the x, y and z components of the normals.");
    }
}

void addPlaceInWater(const examinedHull& hull, report& result) {
    const double level = hull.options.level;
    const std::string heights = numberText(hull.low[2]) + " to " + numberText(hull.high[2]) +
                                " m, the level " + numberText(level) + " m";
    if (!(hull.low[2] < level)) {
        result.add("dry", "The hull lies at heights of " + heights + ".");
    } else if (hull.high[2] < level - planeTolerance) {
        result.add("submerged", "The hull lies at heights of " + heights + ".");
    }
    const point3 size = difference(hull.high, hull.low);
    const double longest = *std::max_element(size.begin(), size.end());
    if (longest > 1000) {
        result.add("millimetres", "The hull is " + numberText(longest) + " m long.");
    }
}

} // namespace

panelSizes sizesOf(const std::vector<triangle*>& panels, double level) {
    panelSizes sizes;
    sizes.smallestArea = panels.empty() ? 0 : HUGE_VAL;
    for (const triangle* panel : panels) {
        const corners3 t = cornersOf(*panel);
        const double edge = longestEdge(t);
        const double area = norm(areaVector(t));
        sizes.longestEdge = std::max(sizes.longestEdge, edge);
        sizes.smallestArea = std::min(sizes.smallestArea, area);
        if (area >= noArea) {
            sizes.worstAspect = std::max(sizes.worstAspect, edge * edge / (2 * area));
        }
        if (isFinite(t) && !isLid(t, level)) {
            sizes.area += area;
            sizes.volume += areaVector(t)[2] * (centreOf(t)[2] - level);
        }
    }
    return sizes;
}

double waveLength(double omega, double gravity, double depth) {
    const double pi = std::acos(-1.0);
    const double k = depth > 0 ? waveTrain::dispersionRelationFrom_w(omega, gravity, depth)
                               : omega * omega / gravity;
    return 2 * pi / k;
}

void addEdgeFindings(const examinedHull& hull, report& result) {
    addOpenEdges(hull, result);
    addIfAny(result, "turned-edges",
             "Two panels run through each of these edges in the same direction.",
             placesOf(hull, hull.topology.turnedEdges));
    addIfAny(result, "branched-edges", "More than two panels meet in each of these edges.",
             placesOf(hull, hull.topology.branchedEdges));
    places doubled;
    for (const auto& [panel, first] : hull.topology.coincident) {
        doubled.push_back(location::ofPanel(panel, centreOf(cornersOf(hull.mesh.faces[panel]))));
    }
    addIfAny(result, "coincident-panels", "Panels have the corners of an earlier panel.",
             std::move(doubled));
    addSymmetryPlane(hull, result);
}

void addPanelFindings(const examinedHull& hull, const panelSizes& sizes, report& result) {
    panelPlaces found;
    const auto& faces = hull.mesh.faces;
    for (std::size_t i = 0; i < faces.size(); ++i) {
        sortPanel(cornersOf(faces[i]), i, hull.options.level, found);
    }
    addCutPanels(hull, found, result);
    addIfAny(result, "not-finite", "Panels have corners that are infinite or not a number.",
             std::move(found.notFinite));
    if (!found.withoutArea.empty()) {
        finding& added =
            result.add("panel-without-area", "Panels have no area.", std::move(found.withoutArea));
        added.level = found.isWithoutAreaWet ? severity::error : severity::warning;
    }
    addIfAny(result, "tiny-panel", "Wetted panels are smaller than 1e-7 m2.",
             std::move(found.tiny));
    addIfAny(result, "dropped-panels",
             "The cut drops panels with " + numberText(found.droppedArea) +
                 " m2 below the level. Its volume is " + numberText(sizes.volume) +
                 " m3, that of the hull " + numberText(hull.values.volume[2]) + " m3.",
             std::move(found.dropped));
    addIfAny(result, "nodes-near-level", "Corners lie above the level by less than 1e-4 m.",
             std::move(found.nearLevel));
    addIfAny(result, "lid", numberText(found.lidArea) + " m2 of panels lie in the water plane.",
             std::move(found.lid));
}

void addShapeFindings(const examinedHull& hull, const panelSizes& sizes, report& result) {
    addPlaceInWater(hull, result);
    addVolumes(hull, result);
    const hullOptions& options = hull.options;
    const double displaced = hull.values.displacement;
    if (options.mass && std::abs(*options.mass - displaced) > 0.01 * std::abs(displaced)) {
        result.add("mass-differs", "The mass is " + numberText(*options.mass) +
                                       " kg, the displaced mass " + numberText(displaced) + " kg.");
    }
    const double length =
        options.w1 ? waveLength(*options.w1, options.gravity, options.depth) : HUGE_VAL;
    if (sizes.longestEdge > length / 8) {
        finding& added =
            result.add("long-edges", "The longest wetted edge is " + numberText(sizes.longestEdge) +
                                         " m, the shortest wave " + numberText(length) + " m at " +
                                         numberText(*options.w1) + " rad/s.");
        added.level = sizes.longestEdge > length / 3 ? severity::error : severity::warning;
    }
}

} // namespace sorvik
