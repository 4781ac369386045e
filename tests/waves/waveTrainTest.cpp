#include "waves/waveTrain.hpp"

#include "support/program.hpp"
#include "waves/angles.hpp"

#include <algorithm>
#include <cmath>
#include <sstream>

using sorvik::pi;

namespace {

constexpr double g = 9.81;
constexpr double rho = 1025;

TEST(dispersion, isSolvedWhereTheBedIsFeltAndDeepBeyond) {
    for (double h = 1; h < 2e4; h *= 1.78) {
        for (double omega = 0.01; omega < 60; omega *= 1.13) {
            const double k = waveTrain::dispersionRelationFrom_w(omega, g, h);
            const double k0 = omega * omega / g;
            const double off = k0 * h > 2 * pi ? k - k0 : g * k * std::tanh(k * h) - omega * omega;
            ASSERT_LE(std::fabs(off), 1e-12) << omega << ' ' << h;
        }
    }
}

TEST(dispersion, warnsAndFallsBackToDeepWater) {
    // So shallow that the residual's last bit is above the tolerance, with any library's tanh.
    EXPECT_EQ(
        outputOf([] { EXPECT_EQ(waveTrain::dispersionRelationFrom_w(100, g, 0.000846), 1e4 / g); }),
        "Warning, could not find solution for dispersion relation!\n"
        "w=100 rad/s, but k=1282.27 rad/m was found with error 1.81899e-12\n"
        "Deep water assumption is used instead, i.e. k= 1019.37\n");
}

constexpr double beta = 0.7; // rad
const double amplitudes[] = {1.5, 0.7, 0.2};
const double omegas[] = {0.6, 1.3, 2.5};
const double phases[] = {0.4, -1.0, 2.0};

/// Phi = sum of a g / omega cosh k(z+h) / cosh kh sin(ks - omega t + phase).
double potential(const double (&point)[3], double t, double h) {
    const double s = point[0] * std::cos(beta) + point[1] * std::sin(beta);
    double sum = 0;
    for (int i = 0; i < 3; ++i) {
        const double k = waveTrain::dispersionRelationFrom_w(omegas[i], g, h);
        const double factor = std::cosh(k * (point[2] + h)) / std::cosh(k * h);
        sum += amplitudes[i] * g / omegas[i] * factor * std::sin(k * s - omegas[i] * t + phases[i]);
    }
    return sum;
}

TEST(waveTrain, movesAsThePotentialSays) {
    constexpr double d = 1e-4, t = 5.3, tolerance = 1e-5;
    for (const double h : {4.0, 12.0, 500.0}) {
        waveTrain train(beta, rho, g, h);
        train.setFrom_w(3, amplitudes, omegas, phases);
        train.setTime(t);
        double m[6] = {10, 20, 30, 40, 50, 60}; // the outputs accumulate
        train.kinematics(12, -7, -3, m[0], m[1], m[2], m[3], m[4], m[5]);
        const auto Phi = [&](int axis, double offset, double time) {
            double point[] = {12, -7, -3};
            point[axis] += offset;
            return potential(point, time, h);
        };
        for (int axis = 0; axis < 3; ++axis) {
            SCOPED_TRACE(testing::Message() << "h = " << h << ", axis " << axis);
            const auto velocity = [&](double time) {
                return (Phi(axis, d, time) - Phi(axis, -d, time)) / (2 * d);
            };
            const double acceleration = (velocity(t + d) - velocity(t - d)) / (2 * d);
            EXPECT_NEAR(m[axis] - 10 - 10 * axis, velocity(t), tolerance);
            EXPECT_NEAR(m[3 + axis] - 40 - 10 * axis, acceleration, tolerance);
        }
        // Bernoulli, linearised: p = -rho dPhi/dt; the elevation is its head at z = 0.
        const double p = -rho * (Phi(0, 0, t + d) - Phi(0, 0, t - d)) / (2 * d);
        EXPECT_NEAR(train.totalPressure(12, -7, -20, -3), p + rho * g * 20, rho * tolerance);
        EXPECT_NEAR(train.dynamicPressure(12, -7, 0), rho * g * train.eta(12, -7), 1e-8);
    }
}

TEST(waveTrain, appendsAndInfluencesDownToItsLongestWave) {
    const double k[] = {2 * pi / 50, 2 * pi / 80};
    for (const double h : {30.0, 1000.0}) {
        waveTrain train(0, rho, g, h);
        train.setFrom_k(2, amplitudes, k, phases);
        train.setFrom_k(1, amplitudes, k, phases);
        EXPECT_EQ(train.components().size(), 3U);
        EXPECT_EQ(train.componentCount(), 1);
        EXPECT_DOUBLE_EQ(train.influenceDepth(), std::min(h, 80.0));
    }
    const double limit = 4.71238898038469;
    EXPECT_FALSE(waveComponent2D(g, 1.0, 1, limit, 1, 0).isDeep());
    EXPECT_TRUE(waveComponent2D(g, 1.0, 1, std::nextafter(limit, 5), 1, 0).isDeep());
}

TEST(waveTrain, writesAllComponentsButReadsOne) {
    const double k[] = {0.25, 4};
    waveTrain train(pi / 8, rho, g, 1e9);
    train.setFrom_k(2, amplitudes, k, phases);
    std::stringstream text;
    text << train;
    EXPECT_EQ(text.str(), "22.5\t2\t1.5\t0.25\t1.56605\t0.4\t0.7\t4\t6.26418\t-1\n");
    std::string next;
    text >> train >> next;
    EXPECT_EQ(next, "0.7");
    ASSERT_EQ(train.components().size(), 2U);
    EXPECT_EQ(train.components().front().amplitude(), 0);
    std::istringstream withoutEnd("22.5\t1\t1\t0.5\t2\t0");
    EXPECT_TRUE(withoutEnd >> train);
    EXPECT_DOUBLE_EQ(train.directionDegrees(), 22.5);
}

} // namespace
