#include "check/irregularFrequency.hpp"

#include "base/numberText.hpp"

#include <cmath>

namespace sorvik {
namespace {

constexpr double besselZero = 2.404825557695773; // the first one of J0

/// The waterplane as a shape of its area and moments, and its wave number [rad/m].
struct planeShape {
    double waveNumber;
    std::string text;
};

planeShape shapeOf(const hydrostatics& h) {
    const double pi = std::acos(-1.0);
    const double area = h.waterplane;
    const double product = h.Iyy - h.Ixx;
    // About the principal axes, whatever the heading of the hull.
    const double radius = std::hypot(product / 2, h.Ixy);
    const double mean = (h.Ixx + h.Iyy) / 2;
    const double length = std::sqrt(12 * (mean + radius) / area);
    const double width = std::sqrt(12 * (mean - radius) / area);
    const double fullness = area / (length * width); // 1 for a rectangle, pi / 3 for an ellipse
    if (fullness > 0.97 && fullness < 1.02) {
        return {pi * std::hypot(1 / length, 1 / width),
                "a rectangle of " + numberText(length) + " m x " + numberText(width) + " m"};
    }
    if (fullness >= 1.02 && fullness < 1.08) {
        const double a = length / std::sqrt(3.0);
        const double b = width / std::sqrt(3.0);
        return {besselZero * std::sqrt((1 / (a * a) + 1 / (b * b)) / 2),
                "an ellipse of " + numberText(2 * a) + " m x " + numberText(2 * b) + " m"};
    }
    return {besselZero * std::sqrt(pi / area),
            "any shape of " + numberText(area) + " m2, lower bound"};
}

} // namespace

irregularFrequency firstIrregularFrequency(const hydrostatics& h, double gravity) {
    if (!(h.waterplane > 1e-6 * h.wettedArea) || !(h.draught > 0) || !(h.Ixx > 0) || !(h.Iyy > 0)) {
        return {};
    }
    const planeShape shape = shapeOf(h);
    const double k = shape.waveNumber;
    return {std::sqrt(gravity * k / std::tanh(k * h.draught)),
            "omega2 = g k coth(k T) for " + shape.text +
                " (John, 1950; Journee and Massie, Offshore Hydromechanics, 2001)"};
}

} // namespace sorvik
