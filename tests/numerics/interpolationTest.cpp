#include "numerics/numbers.hpp"

namespace {

using namespace matrixOp;

TEST(trapz, weighsTheEndsByHalf) {
    const double x[] = {0, 0.5, 1, 1.5, 2}, y[] = {8, 0, 8, 4, 2};
    const double integrals[] = {0, 4, 2, 4, 7, 8.5}, moments[] = {0, 0, 0, 2, 5.5, 8};
    for (int n = 0; n <= 5; ++n) {
        EXPECT_EQ(trapz(n, 0.5, y), integrals[n]) << n;
        EXPECT_EQ(trapz(n, x, y), n == 1 ? 0 : integrals[n]) << n;
        EXPECT_EQ(trapzMoment(n, 0.5, y), moments[n]) << n;
        EXPECT_EQ(trapzMoment(n, x, y), moments[n]) << n;
    }
    double h[3];
    trapzConvolute(3, 0.5, y, y + 2, h);
    EXPECT_THAT(h, ElementsAre(0, 8, 20));
}

TEST(leastSquares, fitsTheLine) {
    // x, y, slope and intercept: worked by hand, far from 0, and without a slope
    const numbers cases[][3] = {{{0, 1, 2, 3}, {1, 3, 2, 5}, {1.1, 1.1}},
                                {{1e9, 1e9 + 1, 1e9 + 3}, {5, 3, -1}, {-2, 2e9 + 5}},
                                {{0.1, 0.1, 0.1}, {1, 2, 4}, {0, 7 / 3.0}},
                                {{5}, {3}, {0, 3}}};
    for (const auto& [x, y, line] : cases) {
        double slope = 99, intercept = 99;
        leastSquaresP1(static_cast<int>(x.size()), x.data(), y.data(), slope, intercept);
        EXPECT_NEAR(slope, line[0], 1e-14);
        EXPECT_NEAR(intercept, line[1], 1e-15 * line[1]);
    }
}

TEST(interpolateLinear, runsStraightAndHoldsTheEnds) {
    const double x[] = {-1, 0, 2, 2, 3}; // with a jump at 2
    const double Y[] = {5, 50, 1, 10, 3, 30, 7, 70, 8, 80};
    const double at[] = {-9, -1, -0.25, 0, 1.5, 2, 2.5, 3, HUGE_VAL};
    const double expected[] = {5, 5, 2, 1, 2.5, 7, 7.5, 8, 8};
    int lower[9];
    double w[18], row[2], weighed[2];
    lerpFactors(5, 9, x, at, lower, w);
    for (std::ptrdiff_t p = 0; p < 9; ++p) {
        interpolateLinear(5, 2, at[p], x, Y, row);
        EXPECT_THAT(row, ElementsAre(expected[p], 10 * expected[p])) << at[p];
        MTV(2, 2, Y + std::ptrdiff_t{2} * lower[p], w + 2 * p, weighed);
        EXPECT_THAT(weighed, ElementsAreArray(row)) << at[p];
    }
    EXPECT_TRUE(std::isnan(interpolateLinear(5, notANumber, x, Y)));
    EXPECT_EQ(interpolateLinear(1, 9.0, x, Y), 5.0);
}

double chord(const numbers& a, const numbers& b) {
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

TEST(slerp, goesTheShortWayAtConstantSpeed) {
    const double pi = std::acos(-1.0);
    const numbers a = {2 / 3.0, -1 / 3.0, 2 / 3.0};
    for (const double angle : {0.0, 1e-15, 1e-9, 0.3, pi / 2, 3.0, pi - 1e-9, pi - 1e-13}) {
        const double along = std::cos(angle) / 3, across = std::sin(angle) / 3;
        const numbers b = {2 * along + across, -along - 2 * across, 2 * along - 2 * across};
        for (const double t : {0.0, 0.25, 0.5, 0.9, 1.0}) {
            SCOPED_TRACE(testing::Message() << "angle " << angle << " at " << t);
            numbers c = b, w(2);
            slerp(t, a.data(), c.data(), c.data());
            EXPECT_NEAR(dot(3, c.data(), c.data()), 1.0, 2e-15);
            EXPECT_NEAR(chord(a, c), 2 * std::sin(t * angle / 2), 1e-15);
            EXPECT_NEAR(chord(c, b), 2 * std::sin((1 - t) * angle / 2), 1e-15);
            slerpFactors(1, &t, a.data(), b.data(), w.data());
            for (std::size_t i = 0; i < 3; ++i) {
                EXPECT_NEAR(w[0] * a[i] + w[1] * b[i], c[i], 1e-15 / std::cos(angle / 2));
            }
        }
    }
}

TEST(slerp, takesAWayBetweenOppositeVectorsAndZero) {
    const double t[] = {0.25, 0.5}, opposite[] = {0, -1, 0}, a[] = {0, 1, 0, 0, 0, 0};
    numbers b = {0, -5, 0, 4, 0, 8}, w(4);
    slerpVector(2, t[1], a, b.data(), b.data());
    EXPECT_LE(chord(b, {0, 0, -3}), 1e-15); // y × x
    EXPECT_THAT(numbers(b.begin() + 3, b.end()), ElementsAre(2, 0, 4));
    slerpFactors(2, t, a, opposite, w.data());
    EXPECT_THAT(w, ElementsAre(1, 0, 0, 1));
}

} // namespace
