#include "numerics/pointKernels.hpp"

#include "numerics/vectorKernels.hpp"

#include <cmath>
#include <cstddef>

namespace {

template <int components>
void norms(std::ptrdiff_t n, const double* X, double* out) {
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        double sum = X[i] * X[i];
        for (int c = 1; c < components; ++c) {
            const double x = X[c * n + i];
            sum += x * x;
        }
        out[i] = std::sqrt(sum);
    }
}

/// Calls store(entry of c, component of a × b) for the three components.
template <class Store>
void crossInto(std::ptrdiff_t stride, const double* a, const double* b, double* c, Store store) {
    const double x = a[stride] * b[2 * stride] - a[2 * stride] * b[stride];
    const double y = a[2 * stride] * b[0] - a[0] * b[2 * stride];
    const double z = a[0] * b[stride] - a[stride] * b[0];
    store(c[0], x);
    store(c[stride], y);
    store(c[2 * stride], z);
}

template <class Store>
void crossAllInto(int n, std::ptrdiff_t stride, const double* a, const double* b, double* c,
                  Store store) {
    const std::ptrdiff_t next = stride == 1 ? 3 : 1;
    for (std::ptrdiff_t at = 0; at < n * next; at += next) {
        crossInto(stride, a + at, b + at, c + at, store);
    }
}

void overwrite(double& entry, double value) {
    entry = value;
}

void add(double& entry, double value) {
    entry += value;
}

template <class T>
void project(int dim, std::vector<T>& v) {
    if (v.size() == 3 && dim == 1) {
        v.resize(1);
    } else if (v.size() == 3 && dim == 2) {
        v.erase(v.begin() + 1);
    } else if (v.size() == 1 && dim > 0) {
        v.assign(static_cast<std::size_t>(dim), T(v.front()));
    }
}

} // namespace

void (*matrixOp::l2Norm)(const int&, const double*, double*) = matrixOp::l2Norm3D;

void matrixOp::l2Norm1D(const int& n, const double* X, double* out) {
    norms<1>(n, X, out);
}

void matrixOp::l2Norm2D(const int& n, const double* X, double* out) {
    norms<2>(n, X, out);
}

void matrixOp::l2Norm3D(const int& n, const double* X, double* out) {
    norms<3>(n, X, out);
}

void matrixOp::scalarProd(int m, int n, const double* a, const double* b, double* out) {
    if (m < 1) {
        return; // uncovered: a size below 1, which changes nothing
    }
    componentMultiply(n, a, b, out);
    for (std::ptrdiff_t c = 1; c < m; ++c) {
        componentMultiplyAndAdd(n, a + c * n, b + c * n, out);
    }
}

void matrixOp::crossMat(const double* a, double* M) {
    const double x = a[0];
    const double y = a[1];
    const double z = a[2];
    M[0] = M[4] = M[8] = 0.0;
    M[1] = -z;
    M[2] = y;
    M[3] = z;
    M[5] = -x;
    M[6] = -y;
    M[7] = x;
}

void matrixOp::crossProduct(const double* a, const double* b, double* c, const int& stride) {
    crossInto(stride, a, b, c, overwrite);
}

void matrixOp::crossProductAdd(const double* a, const double* b, double* c, const int& stride) {
    crossInto(stride, a, b, c, add);
}

void matrixOp::crossProductAll(int n, const double* a, const double* b, double* c,
                               const int& stride) {
    crossAllInto(n, stride, a, b, c, overwrite);
}

void matrixOp::crossProductAllAdd(int n, const double* a, const double* b, double* c,
                                  const int& stride) {
    crossAllInto(n, stride, a, b, c, add);
}

void matrixOp::projectToDim(const int& dim, std::vector<double>& v) {
    project(dim, v);
}

void matrixOp::projectToDim(const int& dim, std::vector<int>& v) {
    project(dim, v);
}

// uncovered: an overload that no task calls
void matrixOp::projectToDim(const int& dim, std::vector<std::string>& v) {
    project(dim, v);
}
