#include "waves/waveModel.hpp"

#include "numerics/matrixOp.hpp"
#include "support/program.hpp"
#include "support/randomSea.hpp"
#include "waves/Jonswap.hpp"
#include "waves/angles.hpp"
#include "waves/customWave.hpp"
#include "waves/globals.hpp"
#include "waves/numericTable.hpp"
#include "waves/timeInstants.hpp"

#include <cmath>
#include <memory>

using namespace sorvik;

namespace {

constexpr double gravity = 9.81;
using values = std::vector<double>;

TEST(waveModel, isHydrostaticInStillWater) {
    const reader config = configOf("environment.ground.level = -40\n");
    globals::set(3, {0, 0, -gravity}, 1025, 1.2, 3);
    const waveModel model(config);
    EXPECT_EQ(model.stretchingDepth(), 43);
    fluidState state(3);
    EXPECT_EQ(state.positions.size(), 9U);
    EXPECT_EQ(std::pair(state.velocity, state.acceleration), std::pair(values(9), values(9)));
    state.positions = {0, 0, 0, 0, 0, 0, 3, 3 + 1e-9, -7};
    state.velocity.assign(9, 5);
    model.evaluate(state);
    EXPECT_TRUE(state.hasKinematics && state.hasDensity);
    EXPECT_EQ(state.density, (values{1025, 1.2, 1025}));
    EXPECT_THAT(state.depthBelowSurface, testing::ElementsAre(0, testing::Le(0), 10));
    EXPECT_EQ(state.velocity, values(9));
    model.pressure(3, state.positions.data(), state.density.data());
    EXPECT_EQ(state.density, (values{0, 0, 1025 * gravity * 10}));
}

TEST(waveModel, stretchesTheMotionToTheSurface) {
    // A crest at x = 0, 2 m over the water level of 5 m, at half its ramp; omega is 1 rad/s.
    const reader config =
        configOf("environment.wave = {\namplitude = 4\nfrequency = 1\nphase = 0\n"
                 "useRadians = 1\ndepth = 1000\nrampTime = 12.566370614359172\n}\n");
    globals::set(3, {0, 0, -gravity}, 1000, 1, 5);
    std::unique_ptr<waveModel> sea;
    outputOf([&] { sea = std::make_unique<customWave>(config); });
    sea->setTime(2 * pi);
    // Under the crest, above it, at the stretching depth of one wave length, over the trough.
    values at = {0, 0, 0, pi * gravity, 0, 0, 0, 0, 6.999999, 7.1, 5 - 2 * pi * gravity, 4};
    values u(12, 1), a(12, 1), density(4), depth(4);
    sea->evaluate(4, at.data(), u.data(), a.data(), density.data(), depth.data());
    EXPECT_EQ(density, (values{1000, 1, 1000, 1}));
    EXPECT_NEAR(u[0], 2, 1e-6);
    EXPECT_EQ(u[1], 0);
    EXPECT_NEAR(u[2], 2 * std::exp(-2 * pi), 1e-9);
    EXPECT_NEAR(a[8], -2, 1e-6);
    EXPECT_NEAR(depth[3], -1, 1e-9);

    sea->evaluateRho(4, at.data(), u.data(), a.data(), density.data());
    EXPECT_EQ(density, (values{1, 1, 1000, 1000})) << "the surface is not asked";
    EXPECT_EQ(u, values(12));

    at[10] = -895;
    at[11] = 2.9999999; // just under the trough
    sea->pressure(4, at.data(), u.data());
    EXPECT_EQ(u[1], 0);
    u.resize(4);
    EXPECT_THAT(
        u, testing::Pointwise(testing::DoubleNear(0.02), values{0, 0, 1000 * gravity * 900, 0}));
    double eta = std::nan("");
    sea->eta(1, at.data(), at.data(), &eta);
    EXPECT_TRUE(std::isnan(eta)) << "what the caller had there stays";
}

TEST(uniformPhaseDistribution, takesTwoOutputsOfTheGeneratorEach) {
    // The third and fourth output of MT19937 with its reference seed.
    constexpr double word = 4294967296.0;
    double phases[2], again[2];
    waveModel::uniformPhaseDistribution(5489, 2, phases);
    EXPECT_DOUBLE_EQ(phases[1], 2 * pi * (3586334585 + 3890346734 / word) / word);
    const int seed = waveModel::uniformPhaseDistribution(-1, 2, phases);
    EXPECT_EQ(waveModel::uniformPhaseDistribution(seed, 2, again), seed);
    EXPECT_EQ(phases[1], again[1]);
    EXPECT_NE(waveModel::uniformPhaseDistribution(-1, 2, again), seed);
}

/// The axis map that a process starts with.
struct firstMap : testing::Environment {
    inline static values found;
    void SetUp() override { found = globals::m_dimMap; }
};
const auto* const beforeAllTests = testing::AddGlobalTestEnvironment(new firstMap);

TEST(globals, takesTheInputOnceAndRefusesASecondOne) {
    EXPECT_EQ(firstMap::found, values(9));
    const reader second = configOf("environment.waterDensity = 1\nenvironment.airDensity = 7\n");
    globals::set(configOf("environment.gravity = -9.80665\nenvironment.waterLevel = 2\n"));
    EXPECT_EQ(globals::m_g, (values{0, 0, -9.80665}));
    EXPECT_EQ(globals::m_dimMap, (values{1, 0, 0, 0, 1, 0, 0, 0, 1}));
    EXPECT_EQ(outputOf([&] { globals::set(second); }),
              "Warning: You are attempting to redefine your static global definitions. Are you "
              "sure thats a good idea?... well, you can't!\n");
    EXPECT_EQ(globals::m_rhoWater, 1000.0);
    EXPECT_EQ(globals::m_stillWaterLevel, 2.0);
}

TEST(globals, projectsGravityToItsDimensions) {
    const reader config = configOf("");
    globals::set(2, {0, 0, -9.81}, 1000, 1, 0);
    EXPECT_EQ(globals::m_g, (values{0, -9.81}));
    EXPECT_EQ(globals::m_dimMap, (values{1, 0, 0, 0, 0, 1}));
    EXPECT_EQ(matrixOp::l2Norm, matrixOp::l2Norm2D);
    globals::m_isSet = false;
    globals::set(3, {}, 1000, 1, 0);
    EXPECT_EQ(waveModel(config).gravity(), 0);
    EXPECT_EQ(Jonswap().setS(1), 0);
    globals::m_isSet = false;
    globals::set(config);
    EXPECT_EQ(globals::m_g, values(3));
}

std::unique_ptr<Jonswap> jonswapOf(const std::string& keys) {
    std::unique_ptr<Jonswap> sea;
    const reader config = configOf("environment.wave = {\n" + keys + "}\n");
    outputOf([&] { sea = std::make_unique<Jonswap>(config); });
    return sea;
}

TEST(Jonswap, followsTheSpectrum) {
    const std::string keys = "f0 = 0.05\nf1 = 0.5\ncomponents = 10\ngamma = 3.3\n";
    const auto sea = jonswapOf(keys + "alpha = 0.01\nsigma1 = 0.05\n");
    // At the peak r = 1, and where |omega / omegaP - 1| = sigma, r = exp(-1/2).
    const double peak = 0.2 * pi;
    for (const double ratio : {1.0, 0.95, 1.09}) {
        const double form = 2 * pi * 0.01 * gravity * gravity * std::pow(ratio * peak, -5) *
                            std::exp(-1.25 / std::pow(ratio, 4)) *
                            std::pow(3.3, ratio == 1 ? 1 : std::exp(-0.5));
        EXPECT_NEAR(sea->setS(ratio * peak), form, 1e-10) << ratio;
    }
    const auto scaled = jonswapOf(keys + "Hs = 2\n");
    EXPECT_NEAR(matrixOp::trapz(10, 0.1 * pi, scaled->spectralDensity().data()), 0.25, 1e-15);
    for (const auto* one : {&sea, &scaled}) {
        EXPECT_NEAR((*one)->spectralDensity()[1], (*one)->setS(peak), 1e-14);
    }
}

TEST(Jonswap, hasAHundredComponentsUnlessTold) {
    const auto sea = jonswapOf("");
    const auto& list = sea->trains().front().components();
    ASSERT_EQ(list.size(), 100U);
    EXPECT_NEAR(list.front().angularFrequency(), 0.01 * 2 * pi, 1e-12);
    EXPECT_NEAR(list.back().angularFrequency(), 10 * 2 * pi, 1e-12);
}

TEST(timeInstants, areCountedBeforeTheyAreComputed) {
    const timeInstants many = readInstants(configOf(
        "simulation.time.start = 1\nsimulation.time.end = 1e7\nsimulation.print.dt = 1e-3"));
    EXPECT_EQ(many.count(), 9999999001);
    EXPECT_EQ(many[3], 3 * 1e-3 + 1);
    EXPECT_EQ(readInstants(configOf("")).count(), 2001);
}

TEST(numericTable, isNoneWhereReadingFails) {
    values table;
    EXPECT_EQ(readNumericTable("/proc/self/mem", table), 0) << "opens, but cannot be read";
}

} // namespace
