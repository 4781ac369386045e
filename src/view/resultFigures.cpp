#include "view/resultFigures.hpp"

#include "base/numberText.hpp"
#include "view/evenly.hpp"
#include "view/figure.hpp"
#include "view/page.hpp"

#include <algorithm>
#include <array>

namespace sorvik {
namespace {

constexpr std::size_t bodiesDrawn = 40;    // a page of some megabytes
constexpr std::size_t directionsDrawn = 6; // as many as there are colours
constexpr std::array<const char*, 6> motionNames = {"Surge", "Sway",  "Heave",
                                                    "Roll",  "Pitch", "Yaw"};

/// A diagonal of a matrix over frequency.
struct diagonal {
    const char* title;
    const char* quantity;
    const char* unit; ///< of translations and of rotations
    const char* unitOfRotation;
    const std::vector<double>& values;
};

figure emptyFigure(const resultDof& dof, const std::string& quantity, const std::string& unit) {
    figure made;
    made.title = motionNames[static_cast<std::size_t>(std::clamp(dof.number, 1, 6) - 1)];
    made.xLabel = "frequency [rad/s]";
    made.yLabel = quantity + " [" + unit + "]";
    return made;
}

figureLine curve(const nemohResults& results, const std::vector<double>& values, std::size_t zone,
                 std::size_t force) {
    const auto first = values.begin() + static_cast<std::ptrdiff_t>(results.first(zone, force));
    return {
        "", results.omegas, {first, first + static_cast<std::ptrdiff_t>(results.omegas.size())}};
}

/// The figures under their heading, or nothing.
std::string group(const std::string& title, const std::string& figures) {
    return figures.empty()
               ? ""
               : "<h3>" + title + "</h3>\n<div class=\"figures\">\n" + figures + "</div>\n";
}

std::string diagonalHtml(const nemohResults& results, int body, const diagonal& wanted) {
    const auto& forces = results.forces;
    std::string figures;
    if (wanted.values.empty()) {
        return figures;
    }
    for (std::size_t motion = 0; motion < results.motions.size(); ++motion) {
        const resultDof& dof = results.motions[motion];
        const auto force = std::find(forces.begin(), forces.end(), dof);
        if (dof.body == body && force != forces.end()) {
            figure made = emptyFigure(dof, wanted.quantity,
                                      dof.isRotation() ? wanted.unitOfRotation : wanted.unit);
            made.lines.push_back(curve(results, wanted.values, motion,
                                       static_cast<std::size_t>(force - forces.begin())));
            figures += svgOf(made);
        }
    }
    return group(wanted.title, figures);
}

std::string excitationHtml(const nemohResults& results, int body) {
    std::string figures;
    if (results.amplitudes.empty()) {
        return figures;
    }
    for (std::size_t force = 0; force < results.forces.size(); ++force) {
        const resultDof& dof = results.forces[force];
        if (dof.body != body) {
            continue;
        }
        figure made = emptyFigure(dof, dof.isRotation() ? "moment amplitude" : "force amplitude",
                                  dof.isRotation() ? "N m/m" : "N/m");
        for (const std::size_t i : chooseEvenly(results.angles.size(), directionsDrawn)) {
            made.lines.push_back(curve(results, results.amplitudes, i, force));
            made.lines.back().label = numberText(results.angles[i]) + "°";
        }
        figures += svgOf(made);
    }
    return group("Excitation by a wave of 1 m amplitude", figures);
}

/// What is left out, and what a direction means.
std::string remarks(const nemohResults& results, std::size_t bodies) {
    std::string text = "Directions are those in which waves travel: 0° along x, 90° along y.";
    if (results.angles.size() > directionsDrawn) {
        text += " Excitation is drawn for " + std::to_string(directionsDrawn) + " of " +
                std::to_string(results.angles.size()) + " directions.";
    }
    if (bodies > bodiesDrawn) {
        text += " Curves are drawn for the first " + std::to_string(bodiesDrawn) + " of " +
                std::to_string(bodies) + " bodies.";
    }
    return "<p>" + text + "</p>\n";
}

} // namespace

std::string resultFiguresHtml(const nemohResults& results, const std::vector<std::string>& meshes) {
    const diagonal diagonals[] = {
        {"Added mass", "added mass", "kg", "kg m²", results.addedMass},
        {"Radiation damping", "damping", "kg/s", "kg m²/s", results.damping}};
    std::string html;
    for (std::size_t i = 0; i < std::min(meshes.size(), bodiesDrawn); ++i) {
        const int body = static_cast<int>(i) + 1;
        std::string figures;
        for (const diagonal& each : diagonals) {
            figures += diagonalHtml(results, body, each);
        }
        figures += excitationHtml(results, body);
        if (!figures.empty()) {
            html += "<h2>Body " + std::to_string(body) + ": " + escapeHtml(meshes[i]) + "</h2>\n" +
                    figures;
        }
    }
    return html.empty() ? html : remarks(results, meshes.size()) + html;
}

} // namespace sorvik
