#include "check/resultCurves.hpp"

#include "base/numberText.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace sorvik {
namespace {

constexpr double asymmetryBound = 0.05;
constexpr double damagingShare = 0.05; ///< of the largest damping, below 0
constexpr double ownShare = 1e-3;      ///< of the largest damping of the motion
constexpr double rounding = 1e-6;      ///< of the largest value of the kind
// A spike stands out of the range of its curve, of the roughness that the curve has elsewhere, and
// of the noise of the kind.
constexpr double spikeOfRange = 0.2;
constexpr double spikeOfRoughness = 5;
constexpr double spikeOfKind = 1e-3;

/// One of the matrices over all frequencies.
struct matrixCurves {
    const nemohResults& results;
    const std::vector<double>& values;
    char letter;                      ///< A or B
    std::array<double, 2> scale = {}; ///< the largest value of translations and of rotations

    matrixCurves(const nemohResults& from, const std::vector<double>& of, char name)
        : results(from), values(of), letter(name) {
        const auto& dofs = results.motions;
        for (std::size_t i = 0; i < dofs.size(); ++i) {
            for (std::size_t j = 0; j < dofs.size(); ++j) {
                if (dofs[i].isRotation() == dofs[j].isRotation()) {
                    double& largest = scale[dofs[i].isRotation() ? 1 : 0];
                    for (std::size_t f = 0; f < results.omegas.size(); ++f) {
                        largest = std::max(largest, std::abs(curve(i, j)[f]));
                    }
                }
            }
        }
    }

    const double* curve(std::size_t i, std::size_t j) const { return &values[results.first(i, j)]; }
    double scaleOf(std::size_t i) const { return scale[results.motions[i].isRotation() ? 1 : 0]; }

    /// Such as "B33 at 0.5 rad/s", with the bodies where there are several.
    location place(std::size_t i, std::size_t j, std::size_t f) const {
        const resultDof& a = results.forces[j];
        const resultDof& b = results.motions[i];
        std::string text =
            std::string(1, letter) + std::to_string(a.number) + std::to_string(b.number);
        if (results.motions.back().body > 1) {
            text += " of bodies " + std::to_string(a.body) + " and " + std::to_string(b.body);
        }
        return location::ofKey(text + " at " + numberText(results.omegas[f]) + " rad/s");
    }
};

void checkSymmetry(const matrixCurves& matrix, const char* name, const std::string& what,
                   report& result) {
    double worst = 0;
    std::vector<location> where;
    const std::size_t dofs = matrix.results.motions.size();
    for (std::size_t i = 0; i < dofs; ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const double scale = std::sqrt(matrix.scaleOf(i) * matrix.scaleOf(j));
            for (std::size_t f = 0; f < matrix.results.omegas.size() && scale > 0; ++f) {
                const double share =
                    std::abs(matrix.curve(i, j)[f] - matrix.curve(j, i)[f]) / scale;
                worst = std::max(worst, share);
                if (share > asymmetryBound) {
                    where.push_back(matrix.place(i, j, f));
                }
            }
        }
    }
    result.addFact(std::string("asymmetry.") + name, "Asymmetry of " + what, 100 * worst, "%");
    if (!where.empty()) {
        result.add("unsymmetric",
                   "The matrix of " + what + " differs from its transpose by up to " +
                       percentText(worst, 2) + " of its largest term.",
                   std::move(where));
    }
}

void checkDamping(const matrixCurves& damping, report& result) {
    double worst = 0;
    std::vector<location> where;
    const std::size_t freqs = damping.results.omegas.size();
    for (std::size_t i = 0; i < damping.results.motions.size(); ++i) {
        const double* values = damping.curve(i, i);
        double largest = 0;
        for (std::size_t f = 0; f < freqs; ++f) {
            largest = std::max(largest, std::abs(values[f]));
        }
        const double bound = std::max(ownShare * largest, rounding * damping.scaleOf(i));
        for (std::size_t f = 0; f < freqs; ++f) {
            if (values[f] < -bound) {
                worst = std::max(worst, -values[f] / damping.scaleOf(i));
                where.push_back(damping.place(i, i, f));
            }
        }
    }
    if (!where.empty()) {
        finding& added = result.add("negative-damping",
                                    "Damping on the diagonal is negative, down to " +
                                        percentText(worst, 2) + " of the largest damping.",
                                    std::move(where));
        added.level = worst > damagingShare ? severity::error : severity::warning;
    }
}

/// How far each value lies from the cubic through two neighbours on either side; 0 at the ends.
std::vector<double> residuals(const double* v, std::size_t count) {
    std::vector<double> all(count, 0.0);
    for (std::size_t k = 2; k + 2 < count; ++k) {
        all[k] = std::abs(v[k] - (4 * (v[k - 1] + v[k + 1]) - v[k - 2] - v[k + 2]) / 6);
    }
    return all;
}

void appendSpikes(const matrixCurves& matrix, std::size_t dof, std::vector<location>& where) {
    const std::size_t count = matrix.results.omegas.size();
    constexpr std::size_t fewest = 9; // a spike raises the residuals of five frequencies
    if (count < fewest) {
        return;
    }
    const double* v = matrix.curve(dof, dof);
    const auto [low, high] = std::minmax_element(v, v + count);
    const std::vector<double> r = residuals(v, count);
    std::vector<double> inner(r.begin() + 2, r.end() - 2);
    const auto quartile = inner.begin() + static_cast<std::ptrdiff_t>(inner.size() / 4);
    std::nth_element(inner.begin(), quartile, inner.end());
    const double bound = std::max({spikeOfRange * (*high - *low), spikeOfRoughness * *quartile,
                                   spikeOfKind * matrix.scaleOf(dof)});
    for (std::size_t k = 2; k + 2 < count; ++k) {
        if (r[k] > bound && r[k] >= r[k - 1] && r[k] > r[k + 1]) {
            where.push_back(matrix.place(dof, dof, k));
        }
    }
}

} // namespace

void checkCurves(const nemohResults& results, report& result) {
    // Other forces than motions leave no diagonal.
    if (results.addedMass.empty() || !(results.motions == results.forces)) {
        return;
    }
    const matrixCurves addedMass(results, results.addedMass, 'A');
    const matrixCurves damping(results, results.damping, 'B');
    checkSymmetry(addedMass, "addedMass", "added mass", result);
    checkSymmetry(damping, "damping", "damping", result);
    checkDamping(damping, result);
    std::vector<location> spikes;
    for (std::size_t i = 0; i < results.motions.size(); ++i) {
        appendSpikes(addedMass, i, spikes);
        appendSpikes(damping, i, spikes);
    }
    if (!spikes.empty()) {
        result.add("spike", "Values stand out from those at the neighbouring frequencies.",
                   std::move(spikes));
    }
}

} // namespace sorvik
