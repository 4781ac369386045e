#pragma once

#include "base/processEnd.hpp"

#include <cmath>
#include <cstddef>
#include <vector>

/// A vector of three components that lie one after the other in memory. Every operation rounds to
/// T.
template <class T>
struct v3 {
    T x = T(0); ///< first component
    T y = T(0); ///< second component
    T z = T(0); ///< third component

    /// Outer product of this vector with `b`, row-major 3 x 3: M[3i + j] = this_i * b_j, formed in
    /// T and widened. It is added to M if `add`, else overwrites it. A size of M other than 9 ends
    /// the process with status -1.
    void OP(const v3& b, std::vector<double>& M, bool add) const;
};

/// The sum by component.
template <class T>
v3<T> operator+(const v3<T>& a, const v3<T>& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

/// The difference by component.
template <class T>
v3<T> operator-(const v3<T>& a, const v3<T>& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

/// The product of each component with `s`.
template <class T>
v3<T> operator*(T s, const v3<T>& a) {
    return {s * a.x, s * a.y, s * a.z};
}

/// The quotient of each component and `s`.
template <class T>
v3<T> operator/(const v3<T>& a, T s) {
    return {a.x / s, a.y / s, a.z / s};
}

/// The cross product of a and b.
template <class T>
v3<T> cross(const v3<T>& a, const v3<T>& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// The Euclidean length of a.
template <class T>
T length(const v3<T>& a) {
    return std::sqrt(a.x * a.x + a.y * a.y + a.z * a.z);
}

template <class T>
void v3<T>::OP(const v3& b, std::vector<double>& M, bool add) const {
    if (M.size() != 9) {
        sorvik::endWithLine("Fatal error. Size of v3 open product target is not 9. Exit. ", -1);
    }
    const T left[] = {x, y, z};
    const T right[] = {b.x, b.y, b.z};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            const auto product = static_cast<double>(left[i] * right[j]);
            M[3 * i + j] = add ? M[3 * i + j] + product : product;
        }
    }
}
