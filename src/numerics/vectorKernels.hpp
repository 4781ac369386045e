#pragma once

#include <string>
#include <vector>

/// Kernels on plain arrays of doubles. Matrices are row-major; lengths below 1 do nothing.
namespace matrixOp {

/// x[i] = a * x[i] for i < n.
void scale(int n, double const& a, double* x);

/// Trapezoidal integral of n values at the uniform step dx; y[0] * dx for n = 1, 0 for n < 1.
double trapz(int n, double dx, const double* y);

/// C (m x k) = A (m x n) times the transpose of B (k x n). C is first multiplied by 0, so that a
/// NaN or an infinity in it stays.
void MM(int const& m, int const& n, int const& k, const double* A, const double* B, double* C);

/// y (m) = A (m x n) times x (n).
void MV(int m, int n, const double* A, const double* x, double* y);

/// Adapts a vector of three components to `dim` dimensions: the first for 1, the first and the
/// third for 2, all otherwise. One component becomes `dim` copies; other sizes stay.
void projectToDim(int const& dim, std::vector<double>& v);
void projectToDim(int const& dim, std::vector<int>& v);
void projectToDim(int const& dim, std::vector<std::string>& v);

/// Euclidean norms of n vectors whose components lie in blocks: out[i] = |(X[i], X[n+i], X[2n+i])|.
void l2Norm1D(int const& n, const double* X, double* out);
void l2Norm2D(int const& n, const double* X, double* out);
void l2Norm3D(int const& n, const double* X, double* out);

/// The norm of the run's number of dimensions; that of three until it is set.
extern void (*l2Norm)(int const& n, const double* X, double* out);

} // namespace matrixOp
