#include "numerics/matrixKernels.hpp"

#include "numerics/vectorKernels.hpp"

#include <cstddef>
#include <utility>

// Several sums grow side by side here, so that one addition need not wait for the one before it and
// entries are used more than once while they are at hand. Each sum still runs from left to right.

namespace {

using offset = std::ptrdiff_t;

template <int n>
using upTo = std::make_integer_sequence<int, n>;

template <class Finish, int... row>
void rowSums(offset i, offset n, const double* A, const double* x, Finish finish,
             std::integer_sequence<int, row...> /*rows*/) {
    const double* first = A + i * n;
    double sum[sizeof...(row)] = {};
    for (offset j = 0; j < n; ++j) {
        const double factor = x[j];
        ((sum[row] += first[row * n + j] * factor), ...);
    }
    (finish(i + row, sum[row]), ...);
}

/// Calls finish(i, row i of A times x) for all m rows.
template <class Finish>
void forRowSums(int m, int n, const double* A, const double* x, Finish finish) {
    if (n < 1) {
        return;
    }
    offset i = 0;
    for (; i + 8 <= m; i += 8) {
        rowSums(i, n, A, x, finish, upTo<8>());
    }
    for (; i < m; ++i) {
        rowSums(i, n, A, x, finish, upTo<1>());
    }
}

/// Two matrices and their product, by rows that begin the given numbers of entries apart.
struct product {
    offset n;
    const double* A;
    const double* B;
    double* C;
    offset jumpA;
    offset jumpB;
    offset jumpC;
};

/// The entries of C in `rows` rows from i and `cols` columns from j.
template <int rows, int cols, int... entry>
void tile(const product& p, offset i, offset j, std::integer_sequence<int, entry...> /*entries*/) {
    const double* A = p.A + i * p.jumpA;
    const double* B = p.B + j * p.jumpB;
    double* C = p.C + i * p.jumpC + j;
    double sum[sizeof...(entry)] = {(C[entry / cols * p.jumpC + entry % cols] * 0.0)...};
    for (offset l = 0; l < p.n; ++l) {
        ((sum[entry] += A[entry / cols * p.jumpA + l] * B[entry % cols * p.jumpB + l]), ...);
    }
    ((C[entry / cols * p.jumpC + entry % cols] = sum[entry]), ...);
}

template <int rows>
void tileRows(const product& p, offset i, offset k) {
    offset j = 0;
    for (; j + 4 <= k; j += 4) {
        tile<rows, 4>(p, i, j, upTo<rows * 4>());
    }
    for (; j < k; ++j) {
        tile<rows, 1>(p, i, j, upTo<rows>());
    }
}

} // namespace

void matrixOp::MM(const int& m, const int& n, const int& k, const double* A, const double* B,
                  double* C) {
    MMjump(m, n, k, n, n, k, A, B, C);
}

void matrixOp::MMjump(int m, int n, int k, int jumpA, int jumpB, int jumpC, const double* A,
                      const double* B, double* C) {
    const product p{n, A, B, C, jumpA, jumpB, jumpC};
    offset i = 0;
    for (; i + 4 <= m; i += 4) {
        tileRows<4>(p, i, k);
    }
    for (; i < m; ++i) {
        tileRows<1>(p, i, k);
    }
}

void matrixOp::MV(int m, int n, const double* A, const double* x, double* y) {
    forRowSums(m, n, A, x, [=](offset i, double sum) { y[i] = sum; });
}

void matrixOp::MV(int m, int n, const double& a, const double* A, const double* x, double* y) {
    forRowSums(m, n, A, x, [=, factor = a](offset i, double sum) { y[i] = factor * sum; });
}

void matrixOp::MVadd(int m, int n, const double* A, const double* x, double* y) {
    forRowSums(m, n, A, x, [=](offset i, double sum) { y[i] += sum; });
}

void matrixOp::MVadd(int m, int n, const double& a, const double* A, const double* x, double* y) {
    forRowSums(m, n, A, x, [=, factor = a](offset i, double sum) { y[i] += factor * sum; });
}

void matrixOp::MTV(int m, int n, const double* A, const double* x, double* y) {
    // One row of A after the other: the transposed product is the block product of a row vector.
    blockMV(1, m, n, x, A, y);
}

void matrixOp::blockMV(int m, int n, int points, const double* A, const double* x, double* y) {
    if (n < 1) {
        return; // uncovered: a size below 1, which changes nothing
    }
    for (offset i = 0; i < m; ++i) {
        axy(points, A[i * n], x, y + i * points);
        for (offset j = 1; j < n; ++j) {
            axpy(points, A[i * n + j], x + j * points, y + i * points);
        }
    }
}

void matrixOp::OP(const int& m, const int& n, const double* a, const double* b, double* M) {
    for (offset i = 0; i < m; ++i) {
        axy(n, a[i], b, M + i * n);
    }
}

void matrixOp::transposeTo(const double* A, double* B, const int& m, const int& n) {
    for (offset i = 0; i < m; ++i) {
        for (offset j = 0; j < n; ++j) {
            B[j * m + i] = A[i * n + j];
        }
    }
}
