#include "numerics/linearSolve.hpp"

#include "base/processEnd.hpp"
#include "numerics/vectorKernels.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>

namespace {

std::string shape(const mMatrix& M) {
    return std::to_string(M.rows) + " x " + std::to_string(M.cols);
}

void checkSquare(const mMatrix& A) {
    if (A.rows != A.cols) {
        sorvik::endWithError("A matrix to eliminate must be square, found " + shape(A) + ".");
    }
}

void checkRows(const mMatrix& A, const mMatrix& b) {
    if (b.rows != A.rows) {
        sorvik::endWithError("A matrix of " + shape(A) + " needs a right-hand side of " +
                             std::to_string(A.rows) + " rows, found " + shape(b) + ".");
    }
}

void checkShapes(const mMatrix& A, const mMatrix& x, const mMatrix& b) {
    checkSquare(A);
    checkRows(A, b);
    if (x.rows != b.rows || x.cols != b.cols) {
        sorvik::endWithError("A right-hand side of " + shape(b) +
                             " needs a solution of that size, found " + shape(x) + ".");
    }
}

void failSingular(const mMatrix& A) {
    sorvik::endWithError("A matrix of " + shape(A) +
                         " is singular or has entries that are not finite.");
}

/// The largest magnitude in each row, and then in each column of the matrix with its rows divided
/// by those: the units that pivots are measured by.
struct entrySizes {
    std::vector<double> row;
    std::vector<double> column;
};

entrySizes sizesOf(const mMatrix& A) {
    entrySizes sizes;
    matrixOp::zeros(A.cols, sizes.column);
    for (int i = 0; i < A.rows; ++i) {
        const double largest = matrixOp::absmax(A.cols, A.v(i, 0));
        sizes.row.push_back(largest);
        for (int j = 0; largest > 0.0 && j < A.cols; ++j) {
            double& size = sizes.column[static_cast<std::size_t>(j)];
            size = std::max(size, std::fabs(A(i, j)) / largest);
        }
    }
    return sizes;
}

void swapRows(int i, int j, mMatrix& A, mMatrix* b) {
    A.swap_row(i, j, i);
    if (b != nullptr) {
        b->swap_row(i, j, 0);
    }
}

/// Clears column i below the pivot in row i.
void clearBelow(int i, mMatrix& A, mMatrix* b) {
    for (int row = i + 1; row < A.rows; ++row) {
        const double factor = A(row, i) / A(i, i);
        A(row, i) = 0.0;
        A.subtractScaledRow(row, i, factor, i + 1);
        if (b != nullptr) {
            b->subtractScaledRow(row, i, factor, 0);
        }
    }
}

} // namespace

bool matrixOp::redUpTri(mMatrix& A, mMatrix* b) {
    checkSquare(A);
    if (b != nullptr) {
        checkRows(A, *b);
    }
    entrySizes sizes = sizesOf(A);
    const double rounding = A.cols * std::numeric_limits<double>::epsilon();
    for (int i = 0; i < A.rows; ++i) {
        int row = i;
        double pivot = 0.0;
        A.pivotI(row, pivot);
        const auto at = static_cast<std::size_t>(i);
        std::swap(sizes.row[at], sizes.row[static_cast<std::size_t>(row)]);
        if (!(std::fabs(pivot) > rounding * sizes.row[at] * sizes.column[at])) {
            return false;
        }
        swapRows(i, row, A, b);
        clearBelow(i, A, b);
    }
    return true;
}

void matrixOp::bckSub(mMatrix& U, mMatrix* x, mMatrix* b) {
    checkShapes(U, *x, *b);
    for (int i = U.rows - 1; i >= 0; --i) {
        double* row = x->v(i, 0);
        axy(x->cols, 1.0, b->v(i, 0), row); // a copy, also onto itself
        for (int j = i + 1; j < U.cols; ++j) {
            x->subtractScaledRow(i, j, U(i, j), 0);
        }
        for (int k = 0; k < x->cols; ++k) {
            row[k] /= U(i, i);
        }
    }
}

void matrixOp::upTriangleToIdentity(mMatrix& U, mMatrix* b) {
    bckSub(U, b, b);
    for (int i = 0; i < U.rows; ++i) {
        std::fill_n(U.v(i, 0), U.cols, 0.0);
        U(i, i) = 1.0;
    }
}

void matrixOp::solveAxb(mMatrix& A, mMatrix* x, mMatrix* b) {
    checkShapes(A, *x, *b);
    if (!redUpTri(A, b)) {
        failSingular(A);
    }
    bckSub(A, x, b);
}

void matrixOp::invert(std::vector<double>& A, const int& n) {
    if (n < 1) {
        return; // uncovered: a size below 1, which changes nothing
    }
    mMatrix matrix(n, n, A);
    const auto size = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
    std::vector<double> inverse(size);
    for (std::size_t i = 0; i < size; i += static_cast<std::size_t>(n) + 1) {
        inverse[i] = 1.0;
    }
    mMatrix right(n, n, inverse);
    if (!redUpTri(matrix, &right)) {
        failSingular(matrix);
    }
    bckSub(matrix, &right, &right);
    std::copy(inverse.begin(), inverse.end(), A.begin());
}
