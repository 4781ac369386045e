#include "numerics/leastSquares.hpp"

#include "numerics/vectorKernels.hpp"

double matrixOp::leastSquaresTrend(int n, const double* x, const double* y) {
    // Asked of the entries: the mean of equal ones need not round to their value.
    if (!(max(n, x) > min(n, x))) {
        return 0.0;
    }
    // About the means: raw sums of squares would cancel for abscissae far from 0.
    const double meanX = sum(n, x) / n;
    const double meanY = sum(n, y) / n;
    double covariance = 0.0;
    double variance = 0.0;
    for (int i = 0; i < n; ++i) {
        const double dx = x[i] - meanX;
        covariance += dx * (y[i] - meanY);
        variance += dx * dx;
    }
    return covariance / variance;
}

void matrixOp::leastSquaresP1(int n, const double* x, const double* y, double& slope,
                              double& intercept) {
    if (n < 1) {
        return; // uncovered: a size below 1, which changes nothing
    }
    slope = leastSquaresTrend(n, x, y);
    intercept = sum(n, y) / n - slope * (sum(n, x) / n);
}
