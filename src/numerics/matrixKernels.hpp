#pragma once

/// Products of dense row-major matrices and vectors.
namespace matrixOp {

/// C (m x k) = A (m x n) times the transpose of B (k x n). C is first multiplied by 0, so that a
/// NaN or an infinity in it stays; for n below 1 no more than that is done.
void MM(const int& m, const int& n, const int& k, const double* A, const double* B, double* C);

/// MM for parts of larger matrices: the rows of A begin `jumpA` entries apart, those of B and C
/// `jumpB` and `jumpC`.
void MMjump(int m, int n, int k, int jumpA, int jumpB, int jumpC, const double* A, const double* B,
            double* C);

/// y (m) = A (m x n) times x (n), and a times that product.
void MV(int m, int n, const double* A, const double* x, double* y);
void MV(int m, int n, const double& a, const double* A, const double* x, double* y);

/// The same, added to y. Each product is summed before it is added.
void MVadd(int m, int n, const double* A, const double* x, double* y);
void MVadd(int m, int n, const double& a, const double* A, const double* x, double* y);

/// y (n) = transpose of A (m x n) times x (m).
void MTV(int m, int n, const double* A, const double* x, double* y);

/// A (m x n) times each of `points` vectors in blocks: x holds n blocks and y gets m blocks of
/// `points` values. Turns a point set with a 3 x 3 matrix, for one.
void blockMV(int m, int n, int points, const double* A, const double* x, double* y);

/// M (m x n): M[i*n + j] = a[i] * b[j].
void OP(const int& m, const int& n, const double* a, const double* b, double* M);

/// B (n x m) = transpose of A (m x n).
void transposeTo(const double* A, double* B, const int& m, const int& n);

} // namespace matrixOp
