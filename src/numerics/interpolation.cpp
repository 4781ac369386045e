#include "numerics/interpolation.hpp"

#include "numerics/pointKernels.hpp"
#include "numerics/vectorKernels.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace {

/// Index of the last abscissa of 0 to n-2 that is not above `at`; 0 below all. n >= 2.
int lowerIndex(int n, double at, const double* x) {
    return static_cast<int>(std::upper_bound(x + 1, x + n - 1, at) - x) - 1;
}

/// Share of the way from `from` to `to`, held at the ends.
double heldShare(double at, double from, double to) {
    if (at >= to) {
        return 1.0;
    }
    return at <= from ? 0.0 : (at - from) / (to - from);
}

double lerp(double t, double a, double b) {
    return (1.0 - t) * a + t * b;
}

double length(const double* a) {
    return std::hypot(a[0], a[1], a[2]);
}

void removeComponent(const double* direction, double* v) {
    matrixOp::axpy(3, -matrixOp::dot(3, direction, v), direction, v);
}

enum class course { equal, opposite, between };

/// The arc from the unit vector a: the vector at the angle s along it is cos(s) a + sin(s) tangent.
struct arc {
    course kind;
    double angle;
    double tangent[3];
};

arc arcBetween(const double* a, const double* b) {
    arc way{course::between, 0.0, {b[0], b[1], b[2]}};
    // Twice: what rounding leaves of a direction weighs much in a short rest.
    removeComponent(a, way.tangent);
    removeComponent(a, way.tangent);
    const double cosine = matrixOp::dot(3, a, b);
    const double sine = length(way.tangent);
    way.angle = std::atan2(sine, cosine);
    if (sine <= matrixOp::parallelTolerance) {
        way.kind = cosine > 0.0 ? course::equal : course::opposite;
        double axis[3] = {};
        const auto smaller = [](double p, double q) { return std::fabs(p) < std::fabs(q); };
        axis[std::min_element(a, a + 3, smaller) - a] = 1.0;
        matrixOp::crossProduct(a, axis, way.tangent, 1);
    }
    matrixOp::scale(3, 1.0 / length(way.tangent), way.tangent);
    return way;
}

void lerpVector(double t, const double* a, const double* b, double* c) {
    for (int i = 0; i < 3; ++i) {
        c[i] = lerp(t, a[i], b[i]);
    }
}

} // namespace

void matrixOp::interpolateLinear(int n, int m, const double& at, const double* x, const double* Y,
                                 double* y) {
    if (n < 2) {
        std::copy_n(Y, n == 1 ? m : 0, y);
        return;
    }
    const int lower = lowerIndex(n, at, x);
    const double t = heldShare(at, x[lower], x[lower + 1]);
    const double* row = Y + static_cast<std::ptrdiff_t>(lower) * m;
    for (int j = 0; j < m; ++j) {
        y[j] = lerp(t, row[j], row[m + j]);
    }
}

double matrixOp::interpolateLinear(int n, const double& at, const double* x, const double* y) {
    double value = std::numeric_limits<double>::quiet_NaN();
    interpolateLinear(n, 1, at, x, y, &value);
    return value;
}

void matrixOp::lerpFactors(int n, int m, const double* x, const double* at, int* lower, double* w) {
    if (n < 2) {
        return; // uncovered: a size below 1, which changes nothing
    }
    for (int p = 0; p < m; ++p) {
        lower[p] = lowerIndex(n, at[p], x);
        const double t = heldShare(at[p], x[lower[p]], x[lower[p] + 1]);
        *w++ = 1.0 - t;
        *w++ = t;
    }
}

void matrixOp::slerp(const double& t, const double* a, const double* b, double* c) {
    const arc way = arcBetween(a, b);
    if (way.kind == course::equal) {
        lerpVector(t, a, b, c);
        return;
    }
    const double cosine = std::cos(t * way.angle);
    const double sine = std::sin(t * way.angle);
    for (int i = 0; i < 3; ++i) {
        c[i] = cosine * a[i] + sine * way.tangent[i];
    }
}

void matrixOp::slerpFactors(int m, const double* t, const double* a, const double* b, double* w) {
    const arc way = arcBetween(a, b);
    for (int p = 0; p < m; ++p) {
        double second = t[p];
        double first = 1.0 - second;
        if (way.kind == course::between) {
            first = std::sin(first * way.angle) / std::sin(way.angle);
            second = std::sin(second * way.angle) / std::sin(way.angle);
        } else if (way.kind == course::opposite) {
            second = second < 0.5 ? 0.0 : 1.0;
            first = 1.0 - second;
        }
        *w++ = first;
        *w++ = second;
    }
}

void matrixOp::slerpVector(int n, const double& t, const double* a, const double* b, double* c) {
    const double share = t;
    for (; n > 0; --n, a += 3, b += 3, c += 3) {
        const double lengthA = length(a);
        const double lengthB = length(b);
        if (std::fmin(lengthA, lengthB) >= std::numeric_limits<double>::min()) {
            double from[3];
            double to[3];
            axy(3, 1.0 / lengthA, a, from);
            axy(3, 1.0 / lengthB, b, to);
            slerp(share, from, to, c);
            scale(3, lerp(share, lengthA, lengthB), c);
        } else {
            lerpVector(share, a, b, c);
        }
    }
}
