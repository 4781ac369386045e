#include "waves/elevationTable.hpp"
#include "base/textWriter.hpp"
#include "support/program.hpp"
#include "support/randomSea.hpp"
#include "waves/elevationBound.hpp"
#include "waves/elevationChunks.hpp"
#include "waves/elevationKernel.hpp"
#include "waves/elevationValues.hpp"
#include "waves/regularWave.hpp"
#include "waves/waveFactory.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <sstream>
#include <tuple>

using namespace sorvik;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
using values = std::vector<double>;

std::string textOf(decltype(&writeElevationTable) write, waveModel& sea, const values& x,
                   const values& y, const timeInstants& instants) {
    std::ostringstream out;
    outputOf([&] { write(sea, x, y, instants, out); }); // keeps the progress bar off the console
    return out.str();
}

/// Writes the numbers that `computeElevations` gives.
void writeValues(waveModel& sea, const values& x, const values& y, const timeInstants& instants,
                 std::ostream& out) {
    values all(x.size() * static_cast<std::size_t>(instants.count()));
    computeElevations(sea, x, y, instants, all.data());
    textWriter writer(out);
    const double* value = all.data();
    for (std::int64_t i = 0; i < instants.count(); ++i) {
        writer << instants[i];
        for (std::size_t j = 0; j < x.size(); ++j) {
            writer << '\t' << *value++;
        }
        writer << '\n';
    }
}

void expectPlainLoop(waveModel& sea, const values& x, const values& y,
                     const timeInstants& instants) {
    const std::string plain = textOf(writePlainTable, sea, x, y, instants);
    EXPECT_EQ(textOf(writeElevationTable, sea, x, y, instants), plain);
    EXPECT_EQ(textOf(writeValues, sea, x, y, instants), plain);
}

/// The largest distance of the chunks' elevations from those of the model.
double largestError(randomTable& t, const std::vector<planeWave>& waves, std::size_t tableBytes) {
    elevationChunks chunks(waves, t.x, t.y, t.instants, tableBytes);
    double largest = 0;
    values eta(t.x.size());
    for (std::int64_t i = 0; i < t.instants.count(); ++i) {
        if (i % chunks.length() == 0) {
            chunks.compute(i);
        }
        t.sea.setTime(t.instants[i]);
        t.sea.eta(static_cast<int>(eta.size()), t.x.data(), t.y.data(), eta.data());
        const double ramp = t.sea.rampFactorAt(t.instants[i]);
        for (std::size_t j = 0; j < eta.size(); ++j) {
            const double chunked = ramp * chunks.row(i % chunks.length())[j];
            largest = std::max(largest, std::fabs(chunked - eta[j]));
        }
    }
    return largest;
}

TEST(elevationTable, isThePlainLoopByteForByteWithinTheBound) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        SCOPED_TRACE(seed);
        randomTable t(seed, seed % 8 == 0 ? 300 : 40);
        const std::vector<planeWave> waves = planeWavesOf(t.sea);
        const double bound = elevationBound(waves, t.x, t.y, t.instants);
        ASSERT_TRUE(elevationChunks::suit(waves, t.x.size(), bound));
        expectPlainLoop(t.sea, t.x, t.y, t.instants);
        if (seed % 2 == 1) {
            EXPECT_LT(largestError(t, waves, elevationChunks::usualTable), bound);
            EXPECT_LT(largestError(t, waves, 0), bound) << "with phasors computed for each chunk";
        }
    }
}

TEST(elevationChunks, keepsPhasorsThatFitIntoTheTable) {
    const std::vector<planeWave> waves(1000);
    const values grid(40'401, 0.0); // 201 x 201 nodes
    EXPECT_FALSE(probePhasors(waves, grid, grid, elevationChunks::usualTable).areKept());
    const values nine(9, 0.0); // two groups of eight
    const std::size_t bytes = waves.size() * 2 * 8 * 2 * sizeof(double);
    EXPECT_TRUE(probePhasors(waves, nine, nine, bytes).areKept());
    EXPECT_FALSE(probePhasors(waves, nine, nine, bytes - 1).areKept());
}

TEST(elevationKernel, givesTheSameBytesWithAllVectors) {
    constexpr std::size_t count = 37, strips = 3, stripSize = count * elevationKernel::width;
    std::mt19937 random(5);
    values numbers((strips + 1) * stripSize), expected;
    std::generate(numbers.begin(), numbers.end(), [&] { return std::ldexp(random(), -31) - 1; });
    for (const elevationKernel::variant& one : elevationKernel::variants()) {
        values tiles(strips * elevationKernel::tileSize, notANumber);
        one.run(count, strips, numbers.data() + stripSize, numbers.data(), tiles.data());
        expected = expected.empty() ? tiles : expected; // the tables use the first one
        EXPECT_EQ(tiles, expected) << one.name;
    }
}

TEST(elevationTable, isThePlainLoopInOddCases) {
    // amplitude, omega, places, and instants where they are not 0, 0.5, and 1
    const std::tuple<const char*, double, double, values, values> cases[] = {
        {"no amplitude", 0.0, 1.0, {0, 1}, {}},
        {"an amplitude that is no number", notANumber, 1.0, {0, 1}, {}},
        {"an infinite amplitude", infinity, 1.0, {0, 1}, {}},
        {"tiny and huge numbers", 3e-9, 1.0, {0, 1}, {1, 2, 3}},
        {"beyond six digits", 3e7, 1.0, {0, 1}, {1, 2, 3}},
        {"angles without an accurate bit", 1.0, 1e3, {0, 1e14}, {1, 1e20}},
        {"a probe nowhere", 1.0, 1.0, {0, notANumber, -infinity, 3}, {}},
        {"no probe", 1.0, 1.0, {}, {}},
        {"an instant that is no number", 1.0, 1.0, {0, 1}, {1, notANumber, 2}},
        {"an infinite instant", 1.0, 1.0, {0, 1}, {1, infinity, 2}},
        {"before the start", 1.0, 1.0, {0, 1}, {-3, -2, -1}},
    };
    for (const auto& [what, amplitude, omega, x, listed] : cases) {
        SCOPED_TRACE(what);
        testSea sea(5.0);
        sea.add(0.5, {}, {}, {});
        sea.add(0.1, {amplitude}, {omega}, {2.0});
        expectPlainLoop(sea, x, x, listed.empty() ? timeInstants(0, 0.5, 3) : timeInstants(listed));
    }
}

/// A tide that rises by the water depth during the ramp, with waves that its surface does not show.
struct risingTide : regularWave {
    using regularWave::regularWave;
    void setTime(const double& t) override { rise = depth() * rampFactorAt(t); }
    void eta(int n, const double* x, const double* y, double* elevation) const override {
        std::transform(x, x + n, y, elevation, [&](double a, double b) { return rise + a - b; });
    }
    double rise = 0;
};

TEST(elevationTable, asksRegisteredModelsButSumsTheTrainsOfOurOwn) {
    reader config = configOf("environment.wave = {\namplitude = 1\nfrequency = 1\nphase = 0\n"
                             "depth = 40\nrampTime = 2\n}\n");
    waveFactory::getRegistry()["tide"] = waveMaker<risingTide>::create;
    std::unique_ptr<waveModel> sea;
    for (const std::string type : {"regular", "JONSWAP", "custom", "tide"}) {
        config.inputs.set("environment.wave.type", type);
        outputOf([&] { sea.reset(waveFactory::create(config)); });
        EXPECT_EQ(sea->isSumOfTrains(), type != "tide") << type;
    }
    waveFactory::getRegistry().erase("tide");
    EXPECT_EQ(textOf(writeElevationTable, *sea, {0, 2}, {0, 1}, timeInstants(0, 1, 3)),
              "0\t0\t1\n1\t20\t21\n2\t40\t41\n");
    EXPECT_EQ((values{sea->gravity(), sea->density(), sea->rampTime()}), (values{9.81, 1000, 2}));
}

TEST(elevationTable, signsTheZerosOfTheRestingSea) {
    testSea sea;
    sea.add(0.0, {1}, {1}, {0});
    const double halfTurn = std::acos(-1.0); // 9.81 m of it are half a wave length of 1 rad/s
    EXPECT_EQ(textOf(writeElevationTable, sea, {0, 9.81 * halfTurn}, {0, 0}, timeInstants(0, 1, 2)),
              "0\t0\t-0\n1\t0.540302\t-0.540302\n");
    sea.add(0.0, {1}, {1}, {halfTurn}); // cancels all but rounding errors, which have signs
    const values x = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    expectPlainLoop(sea, x, x, timeInstants(0, 1, 1));
}

} // namespace
