#include "numerics/numbers.hpp"
#include "support/program.hpp"

namespace {

/// Largest magnitude in A x - b.
double residual(int n, const numbers& A, const numbers& x, numbers b) {
    matrixOp::MVadd(n, n, -1.0, A.data(), x.data(), b.data());
    return matrixOp::absmax(n, b.data());
}

TEST(linearSolve, leavesResidualsOfRoundingSize) {
    for (int n = 1; n <= 50; ++n) {
        const numbers A = randomNumbers(n * n, 1), B = randomNumbers(n, 2);
        numbers inverse = A, reduced = A, right = B, X(B.size()), again = B;
        matrixOp::invert(inverse, n);
        matrixOp::MV(n, n, inverse.data(), B.data(), X.data());
        const double largest = matrixOp::absmax(n * n, A.data());
        const double tolerance = 1e-12 * largest * matrixOp::absmax(n * n, inverse.data());
        EXPECT_LE(residual(n, A, X, B), tolerance) << n;
        mMatrix matrix(n, n, reduced), b(n, 1, right), x(n, 1, X);
        matrixOp::solveAxb(matrix, &x, &b);
        EXPECT_LE(residual(n, A, X, B), tolerance) << n;
        EXPECT_LE(residual(n, reduced, X, right), tolerance) << n;
        matrixOp::upTriangleToIdentity(matrix, &b);
        EXPECT_EQ(right, X);
        matrixOp::MV(n, n, reduced.data(), B.data(), again.data());
        EXPECT_EQ(again, B);
    }
}

TEST(linearSolve, distinguishesSingularMatricesFromOddUnits) {
    const numbers singular[] = {
        {1, 2, 0, 0}, {0.1, 0.7, 0.7, 4.9}, {1, notANumber, 3, 4}, {1, 2, HUGE_VAL, 4}};
    // The others need an exchange, or have equations or unknowns in very small or large units.
    const numbers regular[] = {
        {0, 1, 1, 0}, {1e-20, -1e-20, 1, 1}, {1, 1e20, 1, -1e20}, {1, 1e20, 1e-20, -1}};
    for (int i = 0; i < 4; ++i) {
        numbers A = singular[i], B = regular[i];
        mMatrix first(2, 2, A), second(2, 2, B);
        EXPECT_FALSE(matrixOp::redUpTri(first, nullptr)) << i;
        EXPECT_TRUE(matrixOp::redUpTri(second, nullptr)) << i;
    }
}

TEST(linearSolve, endsTheProcessWithAMessage) {
    numbers A = {1, 2, 2, 4}, six(6, 1.0), five(5);
    mMatrix square(2, 2, A), wide(2, 3, six), tall(3, 2, six), narrow(2, 1, six);
    EXPECT_END_SAYING(matrixOp::invert(A, 2), 1, "FATAL ERROR: A matrix of 2 x 2 is singular");
    EXPECT_END_SAYING(matrixOp::solveAxb(square, &wide, &wide), 1, "2 x 2 is singular");
    EXPECT_END_SAYING(matrixOp::redUpTri(wide, nullptr), 1, "square, found 2 x 3.\n");
    EXPECT_END_SAYING(matrixOp::redUpTri(square, &tall), 1, "of 2 rows, found 3 x 2.\n");
    EXPECT_END_SAYING(matrixOp::solveAxb(square, &narrow, &wide), 1, "found 2 x 1.\n");
    EXPECT_END_SAYING(wide.checkSize(five, 0), 1, "size : 2 x 3 to vector of size 5\n");
    EXPECT_END_SAYING(mMatrix(50000, 50000, six, 2), 1,
                      "FATAL ERROR: Wrong size of double vector X.\n cannot assign");
}

TEST(mMatrix, viewsItsStorageRowByRow) {
    numbers storage = {9, 1, 2, 3, 4, 5, 6};
    mMatrix M(2, 3, storage, 1);
    M(0, 0) = -30;
    EXPECT_EQ(outputOf([&] { mMatrix::print(M); }), "\t-30\t2\t3\n\t4\t5\t6\n");
    M.transpose();
    M.swap_row(0, 1, 3); // no such column
    EXPECT_THAT(storage, ElementsAre(9, -30, 4, 2, 5, 3, 6));
    int row = 0;
    double pivot = 0;
    M.pivotI(row, pivot);
    EXPECT_TRUE(row == 0 && pivot == -30) << row << ' ' << pivot;
    const mMatrix fresh;
    EXPECT_TRUE(fresh.rows == 0 && fresh.cols == 0 && fresh.data == nullptr);
}

/// The upper left part of a matrix with rows of four.
struct corner : mMatrix {
    using mMatrix::mMatrix;
    double* v(int i, int j) override { return data + std::ptrdiff_t{4} * i + j; }
    const double* v(int i, int j) const override { return data + std::ptrdiff_t{4} * i + j; }
};

TEST(mMatrix, letsADerivedClassPlaceItsRows) {
    numbers storage = {0, 2, 50, 50, 4, 0, 50, 50};
    corner A(2, 2, storage.data());
    EXPECT_TRUE(matrixOp::redUpTri(A, nullptr));
    EXPECT_THAT(storage, ElementsAre(4, 0, 50, 50, 0, 2, 50, 50));
}

TEST(newtonRaphsonSolve, findsRootsOrSaysSo) {
    const double magnitude[] = {1e-12, 1e7};
    numbers x = {2e-12, 3e7};
    EXPECT_TRUE(matrixOp::newtonRaphsonSolve(2, x.data(), magnitude, x.data(), [](auto u, auto r) {
        r[0] = std::log(u[0] * u[1] / 6e-5);
        r[1] = std::log(u[1] / 6e7);
    }));
    EXPECT_NEAR(x[0], 1e-12, 1e-25);
    EXPECT_NEAR(x[1], 6e7, 1e-6);

    const matrixOp::residualFunction rootless[] = {[](auto u, auto r) { *r = *u * *u + 1; },
                                                   [](auto, auto r) { *r = 1; },
                                                   [](auto u, auto r) { *r = std::log(*u); }};
    for (const auto& residual : rootless) {
        double none = -0.3;
        EXPECT_FALSE(matrixOp::newtonRaphsonSolve(1, &none, nullptr, &none, residual));
    }
}

} // namespace
