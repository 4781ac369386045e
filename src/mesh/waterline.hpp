#pragma once

namespace sorvik {

/// Depth below the cut [m] that the submerged corners of a cut panel must exceed: thinner slivers
/// would give panels without a usable normal or area.
constexpr double sliverDepth = 0.0001;

/// Whether a submerged corner makes the cut drop its panel.
inline bool isSliver(float depth) {
    return !(static_cast<double>(depth) > sliverDepth);
}

} // namespace sorvik
