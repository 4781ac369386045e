#pragma once

#include "numerics/mMatrix.hpp"

#include <vector>

/// Systems of linear equations by Gaussian elimination with row pivoting.
///
/// A matrix is singular if a pivot is lost in rounding, whatever the units of equations and
/// unknowns: if its magnitude is at most n * 2.2e-16 once every row, and then every column, is
/// divided by its largest entry. A matrix with entries that are not finite is singular too.
///
/// A right-hand side `b` has n rows and as many columns as there are systems to solve. Matrices
/// that do not fit together end the process with a message and status 1.
namespace matrixOp {

/// Brings A (n x n) to upper triangular form and does the same to the rows of `b`, if there is one.
///
/// Returns false for a singular matrix, with A and `b` left half-way. Takes 2n doubles of memory.
bool redUpTri(mMatrix& A, mMatrix* b);

/// Back substitution: the solution x of U x = b, where U (n x n) is upper triangular with a
/// diagonal free of zeros. What lies below the diagonal is not read. x may be b.
void bckSub(mMatrix& U, mMatrix* x, mMatrix* b);

/// Turns an upper triangular matrix, its diagonal free of zeros, into the identity by row
/// operations and does the same to the rows of `b`, which becomes the inverse of U times b.
void upTriangleToIdentity(mMatrix& U, mMatrix* b);

/// Solves A x = b. A and `b` are left in the upper triangular form; x may be b.
///
/// A singular matrix ends the process with a message and status 1.
void solveAxb(mMatrix& A, mMatrix* x, mMatrix* b);

/// Inverts the n x n matrix in the first n*n entries of A in place, with n*n doubles of memory
/// more.
///
/// A singular matrix, or a vector that is too short, ends the process with a message and status 1.
void invert(std::vector<double>& A, const int& n);

} // namespace matrixOp
