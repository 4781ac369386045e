#include "numerics/numbers.hpp"
#include "support/program.hpp"

namespace {

using namespace matrixOp;

TEST(linearSolve, leavesResidualsOfRoundingSize) {
    for (int n = 1; n <= 50; ++n) {
        const numbers A = randomNumbers(n * n, 1), B = randomNumbers(n, 2);
        numbers inverse = A, reduced = A, right = B, X = B, byInverse = B, residual = B, again = B;
        invert(inverse, n);
        MV(n, n, inverse.data(), B.data(), byInverse.data());
        mMatrix matrix(n, n, reduced), b(n, 1, right), x(n, 1, X);
        solveAxb(matrix, &x, &b);
        const double largest = absmax(n * n, A.data()) * absmax(n * n, inverse.data());
        for (const numbers& solution : {X, byInverse}) {
            MV(n, n, -1.0, A.data(), solution.data(), residual.data());
            axpy(n, 1.0, B.data(), residual.data());
            EXPECT_LE(absmax(n, residual.data()), 1e-12 * largest) << n;
        }
        upTriangleToIdentity(matrix, &b);
        EXPECT_EQ(right, X);
        MV(n, n, reduced.data(), B.data(), again.data());
        EXPECT_EQ(again, B);
    }
}

TEST(linearSolve, distinguishesSingularMatricesFromOddUnits) {
    // The regular ones need an exchange, or have equations or unknowns in very small or large
    // units.
    numbers pairs[][2] = {{{1, 2, 0, 0}, {0, 1, 1, 0}},
                          {{0.1, 0.7, 0.7, 4.9}, {1e-20, -1e-20, 1, 1}},
                          {{1, notANumber, 3, 4}, {1, 1e20, 1, -1e20}},
                          {{1, 2, HUGE_VAL, 4}, {1, 1e20, 1e-20, -1}}};
    for (auto& [singular, regular] : pairs) {
        mMatrix first(2, 2, singular), second(2, 2, regular);
        EXPECT_FALSE(redUpTri(first, nullptr)) << singular[1];
        EXPECT_TRUE(redUpTri(second, nullptr)) << regular[1];
    }
}

TEST(linearSolve, endsTheProcessWithAMessage) {
    numbers A = {1, 2, 2, 4}, six(6, 1.0), five(5);
    mMatrix square(2, 2, A), wide(2, 3, six), tall(3, 2, six), narrow(2, 1, six);
    EXPECT_END_SAYING(invert(A, 2), 1, "FATAL ERROR: A matrix of 2 x 2 is singular");
    EXPECT_END_SAYING(solveAxb(square, &wide, &wide), 1, "2 x 2 is singular");
    EXPECT_END_SAYING(redUpTri(wide, nullptr), 1, "square, found 2 x 3.\n");
    EXPECT_END_SAYING(redUpTri(square, &tall), 1, "of 2 rows, found 3 x 2.\n");
    EXPECT_END_SAYING(solveAxb(square, &narrow, &wide), 1, "found 2 x 1.\n");
    EXPECT_END_SAYING(wide.checkSize(five, 0), 1, "size : 2 x 3 to vector of size 5\n");
    EXPECT_END_SAYING(mMatrix(50000, 50000, six, 2), 1,
                      "FATAL ERROR: Wrong size of double vector X.\n cannot assign");
}

/// The upper left part of a matrix with rows of four.
struct cornerBlock : mMatrix {
    using mMatrix::mMatrix;
    double* v(int i, int j) override { return data + std::ptrdiff_t{4} * i + j; }
    const double* v(int i, int j) const override { return data + std::ptrdiff_t{4} * i + j; }
};

TEST(mMatrix, letsADerivedClassPlaceItsRows) {
    numbers storage = {9, 1, 2, 3, 50, 4, 5, 6, 50, 0, 0};
    cornerBlock M(2, 3, storage, 1);
    M(0, 0) = -30;
    EXPECT_EQ(outputOf([&] { mMatrix::print(M); }), "\t-30\t2\t3\n\t4\t5\t6\n");
    M.transpose();
    M.swap_row(0, 1, 3); // no such column
    EXPECT_THAT(storage, ElementsAre(9, -30, 4, 3, 50, 2, 5, 6, 50, 3, 6));
    M.rows = 2;
    M(0, 0) = 0;
    EXPECT_TRUE(redUpTri(M, nullptr));
    EXPECT_THAT(storage, ElementsAre(9, 2, 5, 3, 50, 0, 4, 6, 50, 3, 6));
}

TEST(newtonRaphsonSolve, findsRootsOrSaysSo) {
    const double magnitude[] = {1e-12, 1e7};
    numbers x = {2e-12, 3e7};
    EXPECT_TRUE(newtonRaphsonSolve(2, x.data(), magnitude, x.data(), [](auto u, auto r) {
        r[0] = std::log(u[0] * u[1] / 6e-5);
        r[1] = std::log(u[1] / 6e7);
    }));
    EXPECT_NEAR(x[0], 1e-12, 1e-25);
    EXPECT_NEAR(x[1], 6e7, 1e-6);

    const residualFunction rootless[] = {[](auto u, auto r) { *r = *u * *u + 1; },
                                         [](auto, auto r) { *r = 1; },
                                         [](auto u, auto r) { *r = std::log(*u); }};
    for (const auto& residual : rootless) {
        double none = -0.3;
        EXPECT_FALSE(newtonRaphsonSolve(1, &none, nullptr, &none, residual));
    }
}

} // namespace
