#pragma once

#include <vector>

/// Element-wise kernels, sums and extremes of arrays of n doubles.
namespace matrixOp {

/// x[i] = a * x[i].
void scale(int n, const double& a, double* x);

/// y[i] += a * x[i].
void axpy(int n, const double& a, const double* x, double* y);

/// y[i] = a * x[i].
void axy(int n, const double& a, const double* x, double* y);

/// y[i] = a + x[i].
void apxy(int n, const double& a, const double* x, double* y);

/// z[i] = a * x[i] + y[i].
void axpyz(int n, const double& a, const double* x, const double* y, double* z);

/// x[i] += a.
void addConstant(int n, const double& a, double* x);

/// Makes `x` a vector of n zeros.
void zeros(int n, std::vector<double>& x);

/// Element-wise products and quotients, written: z[i] = x[i] * y[i] and z[i] = x[i] / y[i].
///
/// With two sizes x and z hold m blocks of n values, and y the n values that serve every block:
/// z[i*n + j] = x[i*n + j] * y[j]. Then y and z must not overlap.
void componentMultiply(int n, const double* x, const double* y, double* z);
void componentMultiply(int m, int n, const double* x, const double* y, double* z);
void componentDivide(int n, const double* x, const double* y, double* z);
void componentDivide(int m, int n, const double* x, const double* y, double* z);

/// The same, added to z.
void componentMultiplyAndAdd(int n, const double* x, const double* y, double* z);
void componentMultiplyAndAdd(int m, int n, const double* x, const double* y, double* z);
void componentDivideAndAdd(int n, const double* x, const double* y, double* z);
void componentDivideAndAdd(int m, int n, const double* x, const double* y, double* z);

/// Sum of x[i] * y[i], and of x[i]; 0 for n below 1.
///
/// Eight partial sums, each of every eighth term, keep the adders busy. They are joined as
/// ((0+1)+(2+3)) + ((4+5)+(6+7)), and the last n modulo 8 terms follow from left to right.
double dot(int n, const double* x, const double* y);
double sum(int n, const double* x);

/// Largest and smallest entry, and largest magnitude. NaN is ignored; without another entry, or for
/// n below 1, the result is -infinity, +infinity and 0.
double max(int n, const double* x);
double min(int n, const double* x);
double absmax(int n, const double* x);

/// Index of the first entry with that value, which is stored in `value`; -1 if there is none, and
/// `value` is unchanged.
int max(int n, const double* x, double& value);
int min(int n, const double* x, double& value);
int absmax(int n, const double* x, double& value);

/// True if an entry is NaN.
bool isnan(int n, const double* x);

/// Limited slopes up to this magnitude count as flat.
constexpr double flatSlope = 1e-17;

/// Generalised minmod limiter (Kurganov and Tadmor): r is the smallest in magnitude of c*a, c*b and
/// (a + b)/2 where the slopes a and b have one sign, otherwise 0.
///
/// c = 1 gives the plain minmod, c = 2 the monotonised central limiter. Returns whether |r| exceeds
/// `flatSlope`, false also for NaN.
bool minmod(const double& a, const double& b, double& r, const double& c);

} // namespace matrixOp
