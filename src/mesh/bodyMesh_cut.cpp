#include "mesh/bodyMesh.hpp"

#include "mesh/waterline.hpp"

#include <iostream>

// The panels' corners are compared with the cut height in double; the new corners on cut edges are
// formed in float, like all panel geometry.

namespace {

using sorvik::isSliver;

float depthBelow(double cut, const v3<float>& corner) {
    return static_cast<float>(cut - static_cast<double>(corner.z));
}

bool isSubmerged(double cut, const v3<float>& corner) {
    return cut >= static_cast<double>(corner.z);
}

/// The point where the edge from the corner `from`, `depth` below the cut, to the corner `to` above
/// it meets the cut.
v3<float> cutPoint(const v3<float>& from, const v3<float>& to, float depth) {
    const float t = depth / (to.z - from.z);
    return (1.0F - t) * from + t * to;
}

/// The corners of a panel from its `first` one (0, 1, 2) on, in cyclic order.
struct cornersFrom {
    const v3<float>& at;
    const v3<float>& next;
    const v3<float>& previous;

    cornersFrom(const triangle& p, int first)
        : at(corner(p, first)), next(corner(p, first + 1)), previous(corner(p, first + 2)) {}

    static const v3<float>& corner(const triangle& p, int i) {
        return i % 3 == 0 ? p.vertexA : i % 3 == 1 ? p.vertexB : p.vertexC;
    }
};

/// Appends the wet part of a panel with one submerged corner; false where it is dropped.
bool appendTip(std::vector<triangle>& target, const triangle& panel, int submerged, double cut) {
    const cornersFrom c(panel, submerged);
    const float depth = depthBelow(cut, c.at);
    if (isSliver(depth)) {
        return false;
    }
    target.emplace_back(panel.normal, c.at, cutPoint(c.at, c.next, depth),
                        cutPoint(c.at, c.previous, depth));
    return true;
}

/// Appends the wet part of a panel with one dry corner, a quadrilateral, as two panels; false where
/// it is dropped.
bool appendQuadrilateral(std::vector<triangle>& target, const triangle& panel, int dry,
                         double cut) {
    const cornersFrom c(panel, dry);
    const float depthPrevious = depthBelow(cut, c.previous);
    const float depthNext = depthBelow(cut, c.next);
    if (isSliver(depthPrevious) || isSliver(depthNext)) {
        return false;
    }
    const v3<float> onNext = cutPoint(c.next, c.at, depthNext);
    const v3<float> onPrevious = cutPoint(c.previous, c.at, depthPrevious);
    target.emplace_back(panel.normal, c.next, c.previous, onPrevious);
    target.emplace_back(panel.normal, c.next, onPrevious, onNext);
    return true;
}

} // namespace

void bodyMesh::updateWetSurface(const double& level) {
    const double cut = (static_cast<double>(origin.z) + level) - position[2];
    splitFaces.clear();
    wetFaces.clear();
    dryFaces.clear();
    int dry = 0;
    int split = 0;
    for (triangle& panel : faces) {
        const bool wet[] = {isSubmerged(cut, panel.vertexA), isSubmerged(cut, panel.vertexB),
                            isSubmerged(cut, panel.vertexC)};
        const int submerged = wet[0] + wet[1] + wet[2];
        if (submerged == 3) {
            wetFaces.push_back(&panel);
        } else if (submerged == 0) {
            ++dry;
        } else {
            const bool alone = submerged == 1;
            const int corner = wet[0] == alone ? 0 : wet[1] == alone ? 1 : 2;
            split += alone ? appendTip(splitFaces, panel, corner, cut)
                           : appendQuadrilateral(splitFaces, panel, corner, cut);
        }
    }
    for (triangle& panel : splitFaces) {
        wetFaces.push_back(&panel);
    }
    std::cout << "Set submergence level with:" << wetFaces.size() << " wet faces, " << dry
              << " dry faces, and " << split << " split faces close to waterline" << std::endl;
}
