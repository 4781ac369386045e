#pragma once

/// Kernels on plain arrays of doubles, for inner loops: nothing is checked, nothing is allocated
/// unless a member says so.
///
/// - As a rule sizes come first, then scalars, inputs and outputs. With a size below 1 nothing is
///   done: outputs stay, and a returned sum is 0.
/// - Matrices are dense and row-major: element (i, j) of an m x n matrix is at i*n + j.
/// - Vectors over N points are interleaved (x, y, z of each point) or in blocks (all x, all y,
///   all z).
/// - Outputs are written, or added to where the name says so. An output of the element-wise members
///   may be one of their inputs; elsewhere it overlaps no input unless the member allows it.
/// - A scalar is read once, before the first output is written.
/// - Every sum runs from left to right, but for `dot` and `sum`, which state their order.
#include "numerics/integration.hpp"
#include "numerics/interpolation.hpp"
#include "numerics/leastSquares.hpp"
#include "numerics/linearSolve.hpp"
#include "numerics/matrixKernels.hpp"
#include "numerics/newtonRaphson.hpp"
#include "numerics/pointKernels.hpp"
#include "numerics/vectorKernels.hpp"
