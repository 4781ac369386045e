#include "numerics/numbers.hpp"

#include <numeric>

namespace {

using namespace matrixOp;

TEST(vectorKernels, workOnTheFirstEntriesAndNoOthers) {
    const double x[] = {1, 2, 3, 4, 5, 6}, y[] = {2, 4, 8, 16, 32, 64};
    numbers z(6, 7.0);
    axy(5, 2.0, x, z.data());
    axpy(5, 3.0, y, z.data());
    axpyz(5, 2.0, x, z.data(), z.data());
    scale(5, 0.5, z.data());
    apxy(5, 2.0, z.data(), z.data());
    addConstant(5, -1.0, z.data());
    scale(3, z[1], z.data() + 1); // the factor is one of the entries
    EXPECT_THAT(z, ElementsAre(6, 121, 209, 363, 59, 7));
    // Two blocks of three, which the same three values serve.
    componentMultiply(2, 3, x, y, z.data());
    componentDivideAndAdd(2, 3, x, y, z.data());
    componentDivide(2, 3, z.data(), y, z.data());
    componentMultiplyAndAdd(2, 3, x, y, z.data());
    EXPECT_THAT(z, ElementsAre(3.25, 10.125, 27.046875, 13, 25.3125, 54.09375));
}

TEST(vectorKernels, sumInTheStatedOrder) {
    numbers counted;
    for (int n = 0; n < 40; ++n) {
        EXPECT_EQ(sum(n, counted.data()), n * (n + 1) / 2);
        EXPECT_EQ(dot(n, counted.data(), counted.data()), n * (n + 1) * (2 * n + 1) / 6);
        counted.push_back(n + 1);
    }
    // Terms eight apart meet first, so that two cancel before they swallow the others.
    counted[2] = -(counted[10] = 1e17);
    EXPECT_EQ(sum(18, counted.data()), 171 - 3 - 11);
}

TEST(vectorKernels, findTheExtremes) {
    const double none = -HUGE_VAL;
    // entries; places and values of the largest, smallest and largest in magnitude; NaN or not
    const numbers cases[][2] = {{{3, -7, 7, 3}, {2, 1, 1, 7, -7, 7, 0}},
                                {{notANumber, 1, notANumber, -5}, {1, 3, 3, 1, -5, 5, 1}},
                                {{-HUGE_VAL}, {0, 0, 0, -HUGE_VAL, -HUGE_VAL, HUGE_VAL, 0}},
                                {{notANumber}, {-1, -1, -1, none, -none, 0, 1}},
                                {{}, {-1, -1, -1, none, -none, 0, 0}}};
    for (const auto& [entries, expected] : cases) {
        const int n = static_cast<int>(entries.size());
        const double* x = entries.data();
        double v[] = {none, -none, 0}; // stay where nothing is found
        EXPECT_THAT(expected, ElementsAre(max(n, x, v[0]), min(n, x, v[1]), absmax(n, x, v[2]),
                                          max(n, x), min(n, x), absmax(n, x), isnan(n, x)));
        EXPECT_THAT(v, ElementsAreArray(expected.data() + 3, 3));
    }
}

TEST(minmod, limitsTheSlope) {
    double r = 99;
    EXPECT_TRUE(minmod(3, 4, r, 2) && r == 3.5) << r;
    EXPECT_TRUE(minmod(-4, -1, r, 2) && r == -2) << r;
    EXPECT_TRUE(!minmod(-1, 4, r, 1) && r == 0) << r;
    EXPECT_TRUE(!minmod(1e-17, 1, r, 1) && r == 1e-17) << r;
    EXPECT_TRUE(minmod(2e-17, 1, r, 1) && r == 2e-17) << r;
}

TEST(pointKernels, takeBlocks) {
    const double X[] = {-3, 2, 8, 4, -1, 6, 12, 2, 0}; // (-3, 4, 12), (2, -1, 2), (8, 6, 0)
    numbers found(13, 100.0);
    scalarProd(2, 3, X, X + 3, &found[9]);
    l2Norm(3, X, &found[6]);
    l2Norm2D(3, X, &found[3]);
    l2Norm1D(3, X, &found[0]);
    EXPECT_THAT(found, ElementsAre(3, 2, 8, 5, std::sqrt(5.0), 10, 13, 3, 10, 36, -4, 48, 100));
}

TEST(crossProduct, followsTheRightHandInBothLayouts) {
    const double a[] = {1, 0, 0, 1, 2, 3}, b[] = {0, 1, 0, 4, -5, 6}; // (1, 0, 0) and (1, 2, 3)
    numbers c(a, a + 6), blocksA(6), blocksB(6), M(9, 50.0);
    crossProductAll(2, c.data(), b, c.data(), 1);
    crossMat(a + 3, M.data());
    MVadd(3, 3, M.data(), b + 3, &c[3]);
    EXPECT_THAT(c, ElementsAre(0, 0, 1, 2 * 27, 2 * 6, 2 * -13));
    transposeTo(a, blocksA.data(), 2, 3);
    transposeTo(b, blocksB.data(), 2, 3);
    crossProductAll(2, blocksA.data(), blocksB.data(), c.data(), 2);
    crossProductAllAdd(2, blocksA.data(), blocksB.data(), c.data(), 2);
    crossProductAdd(&blocksB[1], &blocksA[1], &c[1], 2);
    EXPECT_THAT(c, ElementsAre(0, 27, 0, 6, 2, -13));
}

TEST(projectToDim, keepsTheComponentsOfTheDimensions) {
    std::vector<int> cases[][2] = {
        {{1, 2, 3}, {1}}, {{1, 2, 3}, {1, 3}}, {{7}, {7, 7, 7}}, {{1, 2, 3}, {1, 2, 3}}};
    int dim = 0;
    for (auto& [v, expected] : cases) {
        projectToDim(++dim, v);
        EXPECT_EQ(v, expected);
    }
}

numbers product(int m, int n, int k, const numbers& A, const numbers& B) {
    numbers C = randomNumbers(m * k, 1);
    MM(m, n, k, A.data(), B.data(), C.data());
    return C;
}

TEST(matrixProducts, sumEveryEntryFromLeftToRight) {
    // On both sides of the numbers of rows and columns that are worked on together.
    for (int size = 0; size < 19 * 9; ++size) {
        const int m = 1 + size % 19, n = 1 + size % 7, k = 1 + size / 19, jump = k + 3;
        SCOPED_TRACE(testing::Message() << m << " x " << n << " x " << k);
        const numbers A = randomNumbers(m * (n + 1), 1), B = randomNumbers(jump * (n + 2), 2);
        const numbers x = randomNumbers(n, 3);
        numbers C(static_cast<std::size_t>(m * jump), 50.0), byPoint = B;
        MMjump(m, n, k, n + 1, n + 2, jump, A.data(), B.data(), C.data());
        for (int i = 0; i < m * jump; ++i) {
            const std::ptrdiff_t row = i / jump, column = i % jump;
            const double *a = A.data() + row * (n + 1), *b = B.data() + column * (n + 2);
            ASSERT_EQ(C.data()[i], i % jump < k ? std::inner_product(a, a + n, b, 0.0) : 50.0);
        }
        transposeTo(B.data(), byPoint.data(), k, n);
        numbers blocks = randomNumbers(m * k, 4), y = randomNumbers(m, 5);
        blockMV(m, n, k, A.data(), byPoint.data(), blocks.data());
        EXPECT_EQ(blocks, product(m, n, k, A, B));
        numbers Ax = product(m, n, 1, A, x), outer = randomNumbers(m * n, 6);
        OP(m, n, Ax.data(), x.data(), outer.data());
        EXPECT_EQ(outer, product(m, 1, n, Ax, x));
        transposeTo(A.data(), outer.data(), m, n);
        MTV(n, m, outer.data(), x.data(), y.data());
        EXPECT_EQ(y, Ax);
        MV(m, n, A.data(), x.data(), y.data());
        EXPECT_EQ(y, Ax);
        MV(m, n, 3.0, A.data(), x.data(), y.data());
        MVadd(m, n, A.data(), x.data(), y.data());
        MVadd(m, n, 5.0, A.data(), x.data(), y.data());
        for (double& expected : Ax) {
            expected = 3.0 * expected + expected + 5.0 * expected;
        }
        EXPECT_EQ(y, Ax);
    }
}

TEST(matrixProducts, multiplyTheOldEntriesByZero) {
    numbers C = {notANumber, 5, HUGE_VAL, -4};
    MV(1, 0, C.data(), C.data(), &C[1]); // does nothing
    EXPECT_EQ(C[1], 5);
    MM(1, 0, 4, C.data(), C.data(), C.data());
    EXPECT_THAT(C, ElementsAre(testing::IsNan(), 0, testing::IsNan(), 0));
}

} // namespace
