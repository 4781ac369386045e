#include "numerics/newtonRaphson.hpp"

#include "numerics/linearSolve.hpp"
#include "numerics/vectorKernels.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace {

/// The sizes that steps in the unknowns are measured by.
void sizesOf(int n, const double* x, const double* magnitude, double* sizes) {
    for (int i = 0; i < n; ++i) {
        sizes[i] = std::max(magnitude == nullptr ? 1.0 : magnitude[i], std::fabs(x[i]));
    }
}

/// Fills J(i, j) = d residual i / d x[j] around `x`, where the residuals are `base`. Shifts x on
/// the way and puts it back.
void differentiate(const matrixOp::residualFunction& residual, const double* sizes,
                   const std::vector<double>& base, double* x, std::vector<double>& shifted,
                   mMatrix& J) {
    const double share = std::sqrt(std::numeric_limits<double>::epsilon());
    for (int j = 0; j < J.cols; ++j) {
        const double here = x[j];
        x[j] = here + share * sizes[j];
        const double step = x[j] - here; // as it was rounded
        residual(x, shifted.data());
        x[j] = here;
        for (int i = 0; i < J.rows; ++i) {
            const auto at = static_cast<std::size_t>(i);
            J(i, j) = (shifted[at] - base[at]) / step;
        }
    }
}

} // namespace

bool matrixOp::newtonRaphsonSolve(int n, const double* start, const double* magnitude, double* x,
                                  const residualFunction& residual) {
    if (n < 1) {
        return true; // uncovered: the start value is the solution
    }
    const auto size = static_cast<std::size_t>(n);
    std::vector<double> jacobian(size * size);
    std::vector<double> step(size);
    std::vector<double> shifted(size);
    std::vector<double> sizes(size);
    mMatrix J(n, n, jacobian);
    mMatrix b(n, 1, step);
    std::copy_n(start, n, x);
    for (int steps = 0; steps < maxNewtonSteps; ++steps) {
        residual(x, step.data());
        if (absmax(n, step.data()) == 0.0 && !isnan(n, step.data())) {
            return true; // uncovered: the start value is the solution
        }
        sizesOf(n, x, magnitude, sizes.data());
        differentiate(residual, sizes.data(), step, x, shifted, J);
        if (!redUpTri(J, &b)) {
            return false;
        }
        bckSub(J, &b, &b);
        axpy(n, -1.0, step.data(), x);
        componentDivide(n, step.data(), sizes.data(), step.data());
        if (absmax(n, step.data()) <= newtonTolerance && !isnan(n, step.data())) {
            return true;
        }
    }
    return false;
}
