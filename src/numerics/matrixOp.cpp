#include "numerics/matrixOp.hpp"

#include <cmath>
#include <cstddef>

void (*matrixOp::l2Norm)(int const&, const double*, double*) = matrixOp::l2Norm3D;

namespace {

template <int components>
void norms(int n, const double* X, double* out) {
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        double sum = X[i] * X[i];
        for (int c = 1; c < components; ++c) {
            const double x = X[static_cast<std::ptrdiff_t>(c) * n + i];
            sum += x * x;
        }
        out[i] = std::sqrt(sum);
    }
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

void matrixOp::scale(int n, double const& a, double* x) {
    for (int i = 0; i < n; ++i) {
        x[i] = a * x[i];
    }
}

double matrixOp::trapz(int n, double dx, const double* y) {
    if (n < 1) {
        return 0.0;
    }
    if (n == 1) {
        return y[0] * dx;
    }
    double sum = y[0] / 2;
    for (int i = 1; i < n - 1; ++i) {
        sum += y[i];
    }
    return (sum + y[n - 1] / 2) * dx;
}

void matrixOp::MM(int const& m, int const& n, int const& k, const double* A, const double* B,
                  double* C) {
    for (std::ptrdiff_t i = 0; i < m; ++i) {
        for (std::ptrdiff_t j = 0; j < k; ++j) {
            double& c = C[i * k + j];
            c *= 0.0;
            for (std::ptrdiff_t l = 0; l < n; ++l) {
                c += A[i * n + l] * B[j * n + l];
            }
        }
    }
}

void matrixOp::MV(int m, int n, const double* A, const double* x, double* y) {
    for (std::ptrdiff_t i = 0; i < m; ++i) {
        double sum = 0.0;
        for (std::ptrdiff_t j = 0; j < n; ++j) {
            sum += A[i * n + j] * x[j];
        }
        y[i] = sum;
    }
}

void matrixOp::projectToDim(int const& dim, std::vector<double>& v) {
    project(dim, v);
}
void matrixOp::projectToDim(int const& dim, std::vector<int>& v) {
    project(dim, v);
}
void matrixOp::projectToDim(int const& dim, std::vector<std::string>& v) {
    project(dim, v);
}

void matrixOp::l2Norm1D(int const& n, const double* X, double* out) {
    norms<1>(n, X, out);
}
void matrixOp::l2Norm2D(int const& n, const double* X, double* out) {
    norms<2>(n, X, out);
}
void matrixOp::l2Norm3D(int const& n, const double* X, double* out) {
    norms<3>(n, X, out);
}
