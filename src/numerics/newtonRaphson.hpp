#pragma once

#include <functional>

namespace matrixOp {

/// Residuals (n doubles) of a system of n equations at the unknowns x (n doubles).
using residualFunction = std::function<void(const double* x, double* residual)>;

/// A step of this share of an unknown's magnitude, or less, in every unknown ends the iteration.
constexpr double newtonTolerance = 1e-10;
constexpr int maxNewtonSteps = 50;

/// Solves residual(x) = 0 for n unknowns by Newton-Raphson iteration from `start`, with full steps
/// and a Jacobian by forward differences.
///
/// `magnitude` holds a typical size of each unknown, which serves where the unknown itself is
/// smaller: differences step by sqrt(2.2e-16) of the larger of the two, and the tolerance is a
/// share of it. nullptr means 1 for all. `x` may be `start`.
///
/// Returns true once the last step was within the tolerance, or all residuals are exactly 0. False
/// after `maxNewtonSteps`, with a singular Jacobian, or with residuals that are not finite; `x` is
/// then the last iterate. True for n below 1. Takes n*n + 5n doubles of memory.
bool newtonRaphsonSolve(int n, const double* start, const double* magnitude, double* x,
                        const residualFunction& residual);

} // namespace matrixOp
