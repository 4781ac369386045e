#pragma once

/// Straight lines through n points (x, y) by least squares.
namespace matrixOp {

/// Slope of the line that minimises the sum of the squared distances in y (Gauss):
/// sum of (x - mean x) * (y - mean y) over sum of (x - mean x)².
///
/// 0 where no slope is defined: all x equal, or n below 2.
double leastSquaresTrend(int n, const double* x, const double* y);

/// The whole line y = slope * x + intercept, where intercept = mean y - slope * mean x.
void leastSquaresP1(int n, const double* x, const double* y, double& slope, double& intercept);

} // namespace matrixOp
