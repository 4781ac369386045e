#include "numerics/integration.hpp"

namespace {

/// Trapezoidal sum of integrand(i), i < n, for a step of 1. 0 for n below 2.
template <class Integrand>
double unitSteps(int n, Integrand integrand) {
    if (n < 2) {
        return 0.0;
    }
    double sum = integrand(0) / 2;
    for (int i = 1; i < n - 1; ++i) {
        sum += integrand(i);
    }
    return sum + integrand(n - 1) / 2;
}

/// The same over the abscissae x.
template <class Integrand>
double anySteps(int n, const double* x, Integrand integrand) {
    double sum = 0.0;
    for (int i = 1; i < n; ++i) {
        sum += (x[i] - x[i - 1]) * (integrand(i - 1) + integrand(i)) / 2;
    }
    return sum;
}

} // namespace

double matrixOp::trapz(int n, double dx, const double* y) {
    return n == 1 ? y[0] * dx : unitSteps(n, [=](int i) { return y[i]; }) * dx;
}

double matrixOp::trapz(int n, const double* x, const double* y) {
    return anySteps(n, x, [=](int i) { return y[i]; });
}

double matrixOp::trapzMoment(int n, double dx, const double* y) {
    return unitSteps(n, [=](int i) { return i * y[i]; }) * dx * dx;
}

double matrixOp::trapzMoment(int n, const double* x, const double* y) {
    return anySteps(n, x, [=](int i) { return x[i] * y[i]; });
}

double matrixOp::trapzConvolute(int n, double dt, const double* f, const double* g) {
    return unitSteps(n, [=](int i) { return f[i] * g[n - 1 - i]; }) * dt;
}

void matrixOp::trapzConvolute(int n, double dt, const double* f, const double* g, double* h) {
    for (int i = 0; i < n; ++i) {
        h[i] = trapzConvolute(i + 1, dt, f, g);
    }
}
