#include "numerics/vectorKernels.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace {

template <class Term>
double sumOf(std::ptrdiff_t n, Term term) {
    double part[8] = {};
    std::ptrdiff_t i = 0;
    for (; i + 8 <= n; i += 8) {
        part[0] += term(i);
        part[1] += term(i + 1);
        part[2] += term(i + 2);
        part[3] += term(i + 3);
        part[4] += term(i + 4);
        part[5] += term(i + 5);
        part[6] += term(i + 6);
        part[7] += term(i + 7);
    }
    double total =
        ((part[0] + part[1]) + (part[2] + part[3])) + ((part[4] + part[5]) + (part[6] + part[7]));
    for (; i < n; ++i) {
        total += term(i);
    }
    return total;
}

template <class Value>
int firstWith(double wanted, int n, double& value, Value valueAt) {
    for (int i = 0; i < n; ++i) {
        if (valueAt(i) == wanted) {
            value = wanted;
            return i;
        }
    }
    return -1;
}

/// Calls kernel(x block, z block) for each of m blocks of n values.
template <class Kernel>
void forBlocks(int m, int n, const double* x, double* z, Kernel kernel) {
    for (std::ptrdiff_t i = 0; i < m; ++i) {
        kernel(x + i * n, z + i * n);
    }
}

} // namespace

void matrixOp::scale(int n, const double& a, double* x) {
    axy(n, a, x, x);
}

void matrixOp::axpy(int n, const double& a, const double* x, double* y) {
    axpyz(n, a, x, y, y);
}

void matrixOp::axy(int n, const double& a, const double* x, double* y) {
    const double factor = a;
    for (int i = 0; i < n; ++i) {
        y[i] = factor * x[i];
    }
}

void matrixOp::apxy(int n, const double& a, const double* x, double* y) {
    const double constant = a;
    for (int i = 0; i < n; ++i) {
        y[i] = constant + x[i];
    }
}

void matrixOp::axpyz(int n, const double& a, const double* x, const double* y, double* z) {
    const double factor = a;
    for (int i = 0; i < n; ++i) {
        z[i] = factor * x[i] + y[i];
    }
}

void matrixOp::addConstant(int n, const double& a, double* x) {
    apxy(n, a, x, x);
}

void matrixOp::zeros(int n, std::vector<double>& x) {
    if (n > 0) {
        x.assign(static_cast<std::size_t>(n), 0.0);
    }
}

void matrixOp::componentMultiply(int n, const double* x, const double* y, double* z) {
    for (int i = 0; i < n; ++i) {
        z[i] = x[i] * y[i];
    }
}

void matrixOp::componentDivide(int n, const double* x, const double* y, double* z) {
    for (int i = 0; i < n; ++i) {
        z[i] = x[i] / y[i];
    }
}

void matrixOp::componentMultiplyAndAdd(int n, const double* x, const double* y, double* z) {
    for (int i = 0; i < n; ++i) {
        z[i] += x[i] * y[i];
    }
}

void matrixOp::componentDivideAndAdd(int n, const double* x, const double* y, double* z) {
    for (int i = 0; i < n; ++i) {
        z[i] += x[i] / y[i];
    }
}

void matrixOp::componentMultiply(int m, int n, const double* x, const double* y, double* z) {
    forBlocks(m, n, x, z, [=](auto* from, auto* to) { componentMultiply(n, from, y, to); });
}

void matrixOp::componentDivide(int m, int n, const double* x, const double* y, double* z) {
    forBlocks(m, n, x, z, [=](auto* from, auto* to) { componentDivide(n, from, y, to); });
}

void matrixOp::componentMultiplyAndAdd(int m, int n, const double* x, const double* y, double* z) {
    forBlocks(m, n, x, z, [=](auto* from, auto* to) { componentMultiplyAndAdd(n, from, y, to); });
}

void matrixOp::componentDivideAndAdd(int m, int n, const double* x, const double* y, double* z) {
    forBlocks(m, n, x, z, [=](auto* from, auto* to) { componentDivideAndAdd(n, from, y, to); });
}

double matrixOp::dot(int n, const double* x, const double* y) {
    return sumOf(n, [=](std::ptrdiff_t i) { return x[i] * y[i]; });
}

double matrixOp::sum(int n, const double* x) {
    return sumOf(n, [=](std::ptrdiff_t i) { return x[i]; });
}

double matrixOp::max(int n, const double* x) {
    double largest = -std::numeric_limits<double>::infinity();
    for (int i = 0; i < n; ++i) {
        largest = x[i] > largest ? x[i] : largest;
    }
    return largest;
}

double matrixOp::min(int n, const double* x) {
    double smallest = std::numeric_limits<double>::infinity();
    for (int i = 0; i < n; ++i) {
        smallest = x[i] < smallest ? x[i] : smallest;
    }
    return smallest;
}

double matrixOp::absmax(int n, const double* x) {
    double largest = 0.0;
    for (int i = 0; i < n; ++i) {
        const double magnitude = std::fabs(x[i]);
        largest = magnitude > largest ? magnitude : largest;
    }
    return largest;
}

int matrixOp::max(int n, const double* x, double& value) {
    return firstWith(max(n, x), n, value, [=](int i) { return x[i]; });
}

int matrixOp::min(int n, const double* x, double& value) {
    return firstWith(min(n, x), n, value, [=](int i) { return x[i]; });
}

int matrixOp::absmax(int n, const double* x, double& value) {
    return firstWith(absmax(n, x), n, value, [=](int i) { return std::fabs(x[i]); });
}

bool matrixOp::isnan(int n, const double* x) {
    return std::any_of(x, x + std::max(n, 0), [](double entry) { return std::isnan(entry); });
}

bool matrixOp::minmod(const double& a, const double& b, double& r, const double& c) {
    const double central = a / 2 + b / 2;
    const double outer = c * std::fmin(std::fabs(a), std::fabs(b));
    const bool opposed = (a <= 0 && b >= 0) || (a >= 0 && b <= 0);
    r = opposed ? 0.0 : std::copysign(std::min(std::fabs(central), outer), central);
    return std::fabs(r) > flatSlope;
}
