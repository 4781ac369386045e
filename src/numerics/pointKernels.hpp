#pragma once

#include <string>
#include <vector>

/// Vectors over points: norms, scalar and cross products, number of dimensions.
namespace matrixOp {

/// Euclidean norms of n vectors in blocks of n: out[i] = sqrt(X[i]² + X[n+i]² + X[2n+i]²), with
/// one, two or three components. `out` may be the first block of X.
void l2Norm1D(const int& n, const double* X, double* out);
void l2Norm2D(const int& n, const double* X, double* out);
void l2Norm3D(const int& n, const double* X, double* out);

/// The norm for the run's number of dimensions; that of three until it is set.
extern void (*l2Norm)(const int& n, const double* X, double* out);

/// Scalar products of n pairs of vectors of m components, both in blocks of n:
/// out[i] = sum over c of a[c*n + i] * b[c*n + i].
void scalarProd(int m, int n, const double* a, const double* b, double* out);

/// The skew matrix (3 x 3) of a: a × v = M v.
void crossMat(const double* a, double* M);

/// c = a × b, and c += a × b, of vectors whose components lie `stride` apart in all three arrays.
/// c may be a or b.
void crossProduct(const double* a, const double* b, double* c, const int& stride);
void crossProductAdd(const double* a, const double* b, double* c, const int& stride);

/// The same for n vectors: interleaved for a stride of 1, otherwise in blocks `stride` long, where
/// stride >= n and vector i begins at entry i.
void crossProductAll(int n, const double* a, const double* b, double* c, const int& stride);
void crossProductAllAdd(int n, const double* a, const double* b, double* c, const int& stride);

/// Adapts a vector of three components to `dim` dimensions: the first for 1, the first and the
/// third (x and z) for 2, all otherwise. One component becomes `dim` copies; other sizes stay.
void projectToDim(const int& dim, std::vector<double>& v);
void projectToDim(const int& dim, std::vector<int>& v);
void projectToDim(const int& dim, std::vector<std::string>& v);

} // namespace matrixOp
