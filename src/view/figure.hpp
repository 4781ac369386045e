#pragma once

#include <string>
#include <vector>

namespace sorvik {

/// A curve. `x` and `y` are of one length; the line is broken where a value is not finite.
struct figureLine {
    std::string label; ///< text of the legend
    std::vector<double> x;
    std::vector<double> y;
};

/// Curves over one axis.
struct figure {
    std::string title; ///< text, as the next two
    std::string xLabel;
    std::string yLabel;
    std::vector<figureLine> lines;
};

/// The figure as an inline SVG for pages, with axes, ticks at round numbers and a legend. Lines
/// differ in colour and in dashes. Texts are escaped. The element has the class "figure" and
/// carries as data-x0, data-x1, data-left and data-right the range of the axis and where it lies in
/// the picture, so that a script can mark a place. Long lines keep what shows: the highest and the
/// lowest value of each tenth of a millimetre or so.
std::string svgOf(const figure& wanted);

} // namespace sorvik
