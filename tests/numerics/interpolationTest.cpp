#include "numerics/numbers.hpp"

namespace {

const double pi = std::acos(-1.0);

TEST(trapz, weighsTheEndsByHalf) {
    const numbers y[] = {{}, {4}, {1, 4}, {1, 2, 3}, {0, 0, 8, 0, 2}};
    const double integrals[] = {0, 2, 1.25, 2, 4.5}, moments[] = {0, 0, 0.5, 1.25, 5};
    for (int k = 0; k < 5; ++k) {
        const int n = static_cast<int>(y[k].size());
        EXPECT_EQ(matrixOp::trapz(n, 0.5, y[k].data()), integrals[k]) << n;
        EXPECT_EQ(matrixOp::trapzMoment(n, 0.5, y[k].data()), moments[k]) << n;
    }
    const double x[] = {-1, 0.5, 0.75, 3}, line[] = {6, 0, -1, -10}; // y = 2 - 4x
    EXPECT_DOUBLE_EQ(matrixOp::trapz(4, x, line), -8);
    EXPECT_DOUBLE_EQ(matrixOp::trapzMoment(4, x, numbers(4, 1.0).data()), 4);
}

TEST(trapzConvolute, agreesWithAClosedForm) {
    numbers decay, h(201);
    for (int i = 0; i < 201; ++i) {
        decay.push_back(std::exp(-0.01 * i));
    }
    matrixOp::trapzConvolute(201, 0.01, decay.data(), decay.data(), h.data());
    for (int i = 0; i < 201; ++i) {
        ASSERT_NEAR(h.data()[i], 0.01 * i * decay.data()[i], 1e-13) << i;
    }
    EXPECT_EQ(matrixOp::trapzConvolute(201, 0.01, decay.data(), decay.data()), h.back());
}

TEST(leastSquares, fitsTheLine) {
    // x, y, slope and intercept: worked by hand, far from 0, and without a slope
    const numbers cases[][3] = {{{0, 1, 2, 3}, {1, 3, 2, 5}, {1.1, 1.1}},
                                {{1e9, 1e9 + 1, 1e9 + 3}, {5, 3, -1}, {-2, 2e9 + 5}},
                                {{0.1, 0.1, 0.1}, {1, 2, 4}, {0, 7 / 3.0}},
                                {{5}, {3}, {0, 3}}};
    for (const auto& [x, y, line] : cases) {
        const int n = static_cast<int>(x.size());
        double slope = 99, intercept = 99;
        matrixOp::leastSquaresP1(n, x.data(), y.data(), slope, intercept);
        EXPECT_NEAR(slope, line[0], 1e-14);
        EXPECT_NEAR(intercept, line[1], 1e-15 * line[1]);
        EXPECT_EQ(matrixOp::leastSquaresTrend(n, x.data(), y.data()), slope);
    }
}

TEST(interpolateLinear, runsStraightAndHoldsTheEnds) {
    const double x[] = {-1, 0, 2, 2, 3}; // with a jump at 2
    const double Y[] = {5, 50, 1, 10, 3, 30, 7, 70, 8, 80};
    const double at[] = {-9, -1, -0.25, 0, 1.5, 2, 2.5, 3, HUGE_VAL};
    const double expected[] = {5, 5, 2, 1, 2.5, 7, 7.5, 8, 8};
    int lower[9];
    double w[18], row[2];
    matrixOp::lerpFactors(5, 9, x, at, lower, w);
    for (std::ptrdiff_t p = 0; p < 9; ++p) {
        matrixOp::interpolateLinear(5, 2, at[p], x, Y, row);
        EXPECT_THAT(row, ElementsAre(expected[p], 10 * expected[p])) << at[p];
        const double* pair = Y + std::ptrdiff_t{2} * lower[p];
        EXPECT_EQ(w[2 * p] * pair[0] + w[2 * p + 1] * pair[2], expected[p]) << at[p];
    }
    EXPECT_TRUE(std::isnan(matrixOp::interpolateLinear(5, notANumber, x, Y)));
    EXPECT_EQ(matrixOp::interpolateLinear(1, 9.0, x, Y), 5.0);
}

double chord(const numbers& a, const numbers& b) {
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

TEST(slerp, goesTheShortWayAtConstantSpeed) {
    const numbers a = {2 / 3.0, -1 / 3.0, 2 / 3.0};
    for (const double angle : {0.0, 1e-15, 1e-9, 0.3, pi / 2, 3.0, pi - 1e-9, pi - 1e-13}) {
        const double along = std::cos(angle) / 3, across = std::sin(angle) / 3;
        const numbers b = {2 * along + across, -along - 2 * across, 2 * along - 2 * across};
        for (const double t : {0.0, 0.25, 0.5, 0.9, 1.0}) {
            SCOPED_TRACE(testing::Message() << "angle " << angle << " at " << t);
            numbers c = b;
            matrixOp::slerp(t, a.data(), c.data(), c.data());
            EXPECT_NEAR(chord(c, {0, 0, 0}), 1.0, 1e-15);
            EXPECT_NEAR(chord(a, c), 2 * std::sin(t * angle / 2), 1e-15);
            EXPECT_NEAR(chord(c, b), 2 * std::sin((1 - t) * angle / 2), 1e-15);
            double w[2];
            matrixOp::slerpFactors(1, &t, a.data(), b.data(), w);
            for (std::size_t i = 0; i < 3; ++i) {
                EXPECT_NEAR(w[0] * a[i] + w[1] * b[i], c[i], 1e-15 / std::cos(angle / 2));
            }
        }
    }
}

TEST(slerp, turnsOppositeVectorsTheDocumentedWay) {
    const double a[] = {0, 1, 0}, b[] = {0, -1, 0}, t[] = {0.25, 0.5};
    numbers c = {0, 0, 1}, w(4);
    matrixOp::slerp(0.5, a, b, c.data());
    EXPECT_LE(chord(c, {0, 0, -1}), 1e-15); // y × x
    matrixOp::slerpFactors(2, t, a, b, w.data());
    EXPECT_THAT(w, ElementsAre(1, 0, 0, 1));
}

TEST(slerpVector, interpolatesDirectionAndLength) {
    const numbers a = {0, 0, 0, 1, 0, 0};
    numbers b = {4, 0, 8, 0, 0, 5};
    matrixOp::slerpVector(2, 0.5, a.data(), b.data(), b.data());
    EXPECT_THAT(numbers(b.begin(), b.begin() + 3), ElementsAre(2, 0, 4));
    EXPECT_LE(chord({b[3], b[4], b[5]}, {std::sqrt(4.5), 0, std::sqrt(4.5)}), 1e-15);
}

} // namespace
