#include "numerics/numbers.hpp"

namespace {

using namespace matrixOp;

TEST(vectorKernels, workOnTheFirstEntriesAndNoOthers) {
    const double x[] = {1, 2, 3, 4, 5, 6}, y[] = {2, 4, 8, 16, 32, 64};
    numbers z = {7, 7, 7, 7, 7, 7};
    axy(5, 2.0, x, z.data());
    axpy(5, 3.0, y, z.data());
    EXPECT_THAT(z, ElementsAre(8, 16, 30, 56, 106, 7));
    axpyz(5, 2.0, x, y, z.data());
    scale(5, 0.5, z.data());
    EXPECT_THAT(z, ElementsAre(2, 4, 7, 12, 21, 7));
    apxy(5, 2.0, x, z.data());
    addConstant(5, -1.0, z.data());
    scale(3, z[1], z.data() + 1); // the factor is one of the entries
    EXPECT_THAT(z, ElementsAre(2, 9, 12, 15, 6, 7));
    // Two blocks of three, which the same three values serve.
    componentMultiply(2, 3, x, y, z.data());
    componentMultiplyAndAdd(2, 3, x, y, z.data());
    EXPECT_THAT(z, ElementsAre(4, 16, 48, 16, 40, 96));
    componentDivide(2, 3, x, y, z.data());
    componentDivideAndAdd(2, 3, x, y, z.data());
    EXPECT_THAT(z, ElementsAre(1, 1, 0.75, 4, 2.5, 1.5));
    zeros(2, z);
    EXPECT_THAT(z, ElementsAre(0, 0));
}

TEST(vectorKernels, sumInTheStatedOrder) {
    numbers counted;
    for (int n = 0; n < 40; ++n) {
        EXPECT_EQ(sum(n, counted.data()), n * (n + 1) / 2);
        EXPECT_EQ(dot(n, counted.data(), counted.data()), n * (n + 1) * (2 * n + 1) / 6);
        counted.push_back(n + 1);
    }
    // Terms eight apart meet first, so that these two cancel before they swallow the others.
    numbers x(18, 1.0);
    x[2] = 1e17;
    x[10] = -1e17;
    EXPECT_EQ(sum(18, x.data()), 16.0);
    EXPECT_EQ(dot(18, x.data(), numbers(18, 2.0).data()), 32.0);
}

TEST(vectorKernels, findTheExtremes) {
    const numbers arrays[] = {
        {3, -7, 7, 3}, {notANumber, 1, notANumber, -5}, {-HUGE_VAL}, {notANumber}, {}};
    const int places[][3] = {{2, 1, 1}, {1, 3, 3}, {0, 0, 0}, {-1, -1, -1}, {-1, -1, -1}};
    for (int k = 0; k < 5; ++k) {
        const int n = static_cast<int>(arrays[k].size());
        const double* x = arrays[k].data();
        double value = 0;
        EXPECT_EQ(max(n, x, value), places[k][0]);
        EXPECT_EQ(max(n, x), places[k][0] < 0 ? -HUGE_VAL : value);
        EXPECT_EQ(min(n, x, value), places[k][1]);
        EXPECT_EQ(min(n, x), places[k][1] < 0 ? HUGE_VAL : value);
        EXPECT_EQ(absmax(n, x, value), places[k][2]);
        EXPECT_EQ(value, places[k][2] < 0 ? 0 : std::fabs(x[places[k][2]]));
        EXPECT_EQ(absmax(n, x), value);
        EXPECT_EQ(matrixOp::isnan(n, x), k == 1 || k == 3);
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
    numbers norms(4, 100.0);
    l2Norm1D(3, X, norms.data());
    EXPECT_THAT(norms, ElementsAre(3, 2, 8, 100));
    l2Norm2D(3, X, norms.data());
    EXPECT_THAT(norms, ElementsAre(5, std::sqrt(5.0), 10, 100));
    l2Norm(3, X, norms.data());
    EXPECT_THAT(norms, ElementsAre(13, 3, 10, 100));
    scalarProd(2, 3, X, X + 3, norms.data());
    EXPECT_THAT(norms, ElementsAre(36, -4, 48, 100));
}

TEST(crossProduct, followsTheRightHandInBothLayouts) {
    const double a[] = {1, 0, 0, 1, 2, 3}, b[] = {0, 1, 0, 4, -5, 6}; // (1, 0, 0) and (1, 2, 3)
    numbers c(a, a + 6), blocksA(6), blocksB(6), M(9);
    crossProductAll(2, c.data(), b, c.data(), 1);
    EXPECT_THAT(c, ElementsAre(0, 0, 1, 27, 6, -13));
    crossMat(a + 3, M.data());
    MV(3, 3, M.data(), b + 3, c.data());
    EXPECT_THAT(c, ElementsAre(27, 6, -13, 27, 6, -13));
    transposeTo(a, blocksA.data(), 2, 3);
    transposeTo(b, blocksB.data(), 2, 3);
    crossProductAll(2, blocksA.data(), blocksB.data(), c.data(), 2);
    EXPECT_THAT(c, ElementsAre(0, 27, 0, 6, 1, -13));
    crossProductAllAdd(2, blocksA.data(), blocksB.data(), c.data(), 2);
    crossProductAdd(blocksB.data() + 1, blocksA.data() + 1, c.data() + 1, 2);
    EXPECT_THAT(c, ElementsAre(0, 27, 0, 6, 2, -13));
}

TEST(projectToDim, keepsTheComponentsOfTheDimensions) {
    const std::vector<int> cases[][2] = {
        {{1, 2, 3}, {1}}, {{1, 2, 3}, {1, 3}}, {{7}, {7, 7, 7}}, {{1, 2, 3}, {1, 2, 3}}};
    for (int dim = 1; dim <= 4; ++dim) {
        std::vector<int> v = cases[dim - 1][0];
        projectToDim(dim, v);
        EXPECT_EQ(v, cases[dim - 1][1]) << dim;
    }
}

/// Calls check(m, n) for sizes on both sides of the numbers of rows that are worked on together.
template <class Check>
void forSizes(Check check) {
    for (const int m : {1, 2, 3, 4, 5, 7, 8, 9, 19}) {
        for (const int n : {1, 2, 3, 4, 5, 7, 8, 9, 19}) {
            SCOPED_TRACE(testing::Message() << m << " x " << n);
            check(m, n);
        }
    }
}

numbers product(int m, int n, int k, const numbers& A, const numbers& B) {
    numbers C(static_cast<std::size_t>(m * k));
    MM(m, n, k, A.data(), B.data(), C.data());
    return C;
}

TEST(MM, sumsEveryEntryFromLeftToRight) {
    forSizes([](int m, int k) {
        const int n = 6, jumpA = n + 1, jumpB = n + 2, jumpC = k + 3;
        const numbers A = randomNumbers(m * jumpA, 1), B = randomNumbers(k * jumpB, 2);
        numbers C(static_cast<std::size_t>(m * jumpC), 50.0);
        MMjump(m, n, k, jumpA, jumpB, jumpC, A.data(), B.data(), C.data());
        for (int i = 0; i < m * jumpC; ++i) {
            double expected = i % jumpC < k ? 0.0 : 50.0;
            for (int l = 0; l < n && i % jumpC < k; ++l) {
                expected += A.data()[i / jumpC * jumpA + l] * B.data()[i % jumpC * jumpB + l];
            }
            ASSERT_EQ(C.data()[i], expected) << "entry " << i;
        }
    });
}

TEST(MM, multipliesTheOldEntriesByZero) {
    const double two[] = {2, 2, 2, 2};
    numbers C = {notANumber, 5, HUGE_VAL, -4};
    MM(1, 1, 4, two, two, C.data());
    EXPECT_THAT(C, ElementsAre(testing::IsNan(), 4, testing::IsNan(), 4));
    MV(1, 0, two, two, &C[1]); // does nothing
    EXPECT_EQ(C[1], 4);
    MM(1, 0, 4, two, two, C.data());
    EXPECT_THAT(C, ElementsAre(testing::IsNan(), 0, testing::IsNan(), 0));
}

TEST(matrixVector, agreesWithTheMatrixProduct) {
    forSizes([](int m, int n) {
        const auto rows = static_cast<std::size_t>(m);
        const numbers A = randomNumbers(m * n, 1), x = randomNumbers(n, 2), y = randomNumbers(m, 3);
        const numbers expected = product(m, n, 1, A, x), points = randomNumbers(n * 3, 4);
        numbers plain(rows), sum(rows);
        MV(m, n, A.data(), x.data(), plain.data());
        EXPECT_EQ(plain, expected);
        MV(m, n, 3.0, A.data(), x.data(), sum.data());
        MVadd(m, n, A.data(), x.data(), sum.data());
        MVadd(m, n, 5.0, A.data(), x.data(), sum.data());
        for (std::size_t i = 0; i < rows; ++i) {
            ASSERT_EQ(sum[i], 3.0 * plain[i] + plain[i] + 5.0 * plain[i]);
        }
        numbers T(A.size()), outer(A.size()), byPoint(points.size()), moved(3 * rows);
        transposeTo(A.data(), T.data(), m, n);
        MTV(n, m, T.data(), x.data(), plain.data());
        EXPECT_EQ(plain, expected);
        OP(m, n, y.data(), x.data(), outer.data());
        EXPECT_EQ(outer, product(m, 1, n, y, x));
        transposeTo(points.data(), byPoint.data(), n, 3); // they are the columns of a matrix
        blockMV(m, n, 3, A.data(), points.data(), moved.data());
        EXPECT_EQ(moved, product(m, n, 3, A, byPoint));
    });
}

} // namespace
