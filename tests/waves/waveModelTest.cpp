#include "waves/waveModel.hpp"

#include "support/program.hpp"
#include "waves/angles.hpp"
#include "waves/customWave.hpp"
#include "waves/waveConfig.hpp"

#include <cmath>
#include <vector>

namespace {

constexpr double g = 9.81;
using values = std::vector<double>;

TEST(waveModel, rampsUpFromRest) {
    const double cases[][3] = {// ramp time and instant [s], factor
                               {10, 0, 0},   {10, 5, 0.5}, {10, 10, 1}, {10, 99, 1},
                               {10, -10, 1}, {0, 0, 0},    {0, 1e-9, 1}};
    for (const auto& [rampTime, t, factor] : cases) {
        const std::string input = "environment.wave.rampTime = " + std::to_string(rampTime) + "\n";
        EXPECT_DOUBLE_EQ(waveModel(configOf(input)).rampFactorAt(t), factor) << input << t;
    }
}

TEST(waveModel, isHydrostaticInStillWater) {
    const freshGlobals fresh;
    globals::set(3, {0, 0, -g}, 1025, 1.2, 3);
    const waveModel model(configOf("environment.ground.level = -40\n"));
    fluidState state(3);
    state.positions = {0, 0, 0, 0, 0, 0, 3, 3 + 1e-9, -7};
    state.velocity.assign(9, 5);
    model.evaluate(state);
    EXPECT_TRUE(state.hasKinematics && state.hasDensity);
    EXPECT_EQ(state.density, (values{1025, 1.2, 1025}));
    EXPECT_EQ(state.depthBelowSurface[2], 10);
    EXPECT_EQ(state.velocity, values(9));
    values p(3);
    model.pressure(3, state.positions.data(), p.data());
    EXPECT_EQ(p, (values{0, 0, 1025 * g * 10}));
}

/// A crest of 2 m at x = 0 over 1000 m, the wave 60 m long.
class crest : public customWave {
public:
    crest() {
        values omega = {std::sqrt(g * k)};
        values phase = {0};
        addWaveTrain(0, {2}, omega, phase, true);
        finishTrains();
        setTime(2 * pi / omega[0]);
    }
    const double k = 2 * pi / 60;
};

TEST(waveModel, stretchesTheMotionToTheSurface) {
    const freshGlobals fresh;
    const crest sea;
    // Under the crest, above it, at the stretching depth of one wave length, over the trough.
    const values at = {0, 0, 0, 30, 0, 0, 0, 0, 1.999999, 2.1, -60, -1};
    values u(12, 1), a(12, 1), density(4), depth(4);
    sea.evaluate(4, at.data(), u.data(), a.data(), density.data(), depth.data());
    EXPECT_EQ(density, (values{1000, 1, 1000, 1}));
    const double top = 2 * std::sqrt(g * sea.k);
    EXPECT_NEAR(u[0], top, 1e-6);
    EXPECT_EQ(u[1], 0);
    EXPECT_NEAR(u[2], top * std::exp(-2 * pi), 1e-9);
    EXPECT_NEAR(a[8], -2 * g * sea.k, 1e-6);
    EXPECT_NEAR(depth[3], -1, 1e-9);

    sea.evaluateRho(4, at.data(), u.data(), a.data(), density.data());
    EXPECT_EQ(density, (values{1, 1, 1000, 1000})) << "the surface is not asked";
    EXPECT_EQ(u, values(12));
}

TEST(waveModel, isWithoutPressureAtAndAboveTheSurface) {
    const freshGlobals fresh;
    const crest sea;
    const values at = {0, 0, 0, 30, 0, 0, 0, 0, 2, 2.1, -900, -2.0000001};
    values p(4, 7);
    sea.pressure(4, at.data(), p.data());
    EXPECT_NEAR(p[0], 0, 1e-6);
    EXPECT_EQ(p[1], 0);
    EXPECT_NEAR(p[2], 1000 * g * 900, 1e-6);
    EXPECT_NEAR(p[3], 0, 0.01);
    double eta = std::nan("");
    sea.eta(1, at.data(), at.data(), &eta);
    EXPECT_TRUE(std::isnan(eta)) << "what the caller had there stays";
}

TEST(uniformPhaseDistribution, takesTwoOutputsOfTheGeneratorEach) {
    // The first outputs of MT19937 with its reference seed.
    constexpr double word = 4294967296.0;
    double phases[2];
    waveModel::uniformPhaseDistribution(5489, 2, phases);
    EXPECT_DOUBLE_EQ(phases[0], 2 * pi * (581869302 + 3499211612 / word) / word);
    EXPECT_DOUBLE_EQ(phases[1], 2 * pi * (3586334585 + 3890346734 / word) / word);
    double again[2];
    const int seed = waveModel::uniformPhaseDistribution(-1, 2, phases);
    EXPECT_EQ(waveModel::uniformPhaseDistribution(seed, 2, again), seed);
    EXPECT_EQ(phases[1], again[1]);
    EXPECT_NE(waveModel::uniformPhaseDistribution(-1, 2, again), seed);
}

} // namespace
