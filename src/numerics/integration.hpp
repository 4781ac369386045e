#pragma once

/// Integrals by the composite trapezoidal rule: the integrand runs straight between the abscissae.
/// For n below 1 all are 0.
namespace matrixOp {

/// Integral of n values y at the uniform step dx; y[0] * dx for n = 1.
double trapz(int n, double dx, const double* y);

/// Integral of n values y at the abscissae x, in any order and spacing: the sum of
/// (x[i+1] - x[i]) * (y[i] + y[i+1]) / 2. 0 for n = 1.
double trapz(int n, const double* x, const double* y);

/// First moment, the integral of x y(x) dx, by the rule applied to the products x[i] * y[i].
/// With a step the abscissae are x[i] = i * dx. The moment about another point c is less by c times
/// the integral.
double trapzMoment(int n, double dx, const double* y);
double trapzMoment(int n, const double* x, const double* y);

/// Convolution (Duhamel's integral) at the last of n instants t = i * dt: the integral over tau
/// from 0 to T = (n-1)*dt of f(tau) g(T - tau), by the rule applied to f[i] * g[n-1-i].
/// 0 for n = 1.
double trapzConvolute(int n, double dt, const double* f, const double* g);

/// The same at each of the n instants, h[i] for T = i * dt, in n²/2 multiplications.
void trapzConvolute(int n, double dt, const double* f, const double* g, double* h);

} // namespace matrixOp
