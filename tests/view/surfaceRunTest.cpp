#include "view/surfaceRun.hpp"
#include "base/numberText.hpp"
#include "check/finding.hpp"
#include "support/program.hpp"
#include "view/spectrumEstimate.hpp"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <numeric>

using namespace sorvik;

namespace {

struct surfaceRunTest : testing::Test {
    temporaryFolder folder;

    surfaceRun read(const std::string& table, const std::string& domain,
                    const surfaceLimits& limits = {}) const {
        writeFile(folder.path("waveElevation.dat"), table);
        if (!domain.empty()) {
            writeFile(folder.path("waveDomain.dat"), domain);
        }
        return readSurfaceRun(folder.path(), limits);
    }
};

/// Instants every half second; the elevation at node n of instant i is 100 i + n.
std::string table(int instants, int nodes) {
    std::string text;
    for (int i = 0; i < instants; ++i) {
        text += numberText(0.5 * i);
        for (int n = 0; n < nodes; ++n) {
            text += '\t' + std::to_string(100 * i + n);
        }
        text += '\n';
    }
    return text;
}

TEST_F(surfaceRunTest, keepsEverySoManyInstantsAndNodes) {
    surfaceLimits limits;
    limits.frames = 2;
    limits.nodes = 8; // of 5 times 4
    limits.probes = {1, -1, 0.9, 3.4};
    const surfaceRun run = read(table(5, 20), "4\t6\t4\t3\n", limits);
    EXPECT_EQ(run.everyInstant, 3U);
    EXPECT_EQ(run.everyNode, 2U);
    EXPECT_THAT(run.x, testing::ElementsAre(-2, 0, 2));
    EXPECT_THAT(run.y, testing::ElementsAre(-3, 1));
    EXPECT_THAT(run.frameTimes, testing::ElementsAre(0, 1.5));
    EXPECT_THAT(run.frames,
                testing::ElementsAre(0, 2, 4, 10, 12, 14, 300, 302, 304, 310, 312, 314));
    ASSERT_EQ(run.probes.size(), 2U);
    EXPECT_THAT(run.probes[0].elevations, testing::ElementsAre(8, 108, 208, 308, 408));
    EXPECT_THAT(run.probes[1].elevations, testing::ElementsAre(18, 118, 218, 318, 418));
    EXPECT_EQ(run.probes[1].y, 3);
    for (const double outside : {2.6, -1e300, std::nan("")}) {
        limits.probes = {outside, 0};
        EXPECT_THROW(read(table(5, 20), "", limits), cannotCheck) << outside;
    }
}

TEST_F(surfaceRunTest, keepsTheFirstProbesOfARunWithoutGrid) {
    surfaceLimits limits;
    limits.series = 2;
    const surfaceRun run = read("0 1 2 3 \r\n0.5 4 5 6\t\r\n\r\n", "", limits);
    EXPECT_FALSE(run.isGrid());
    EXPECT_EQ(run.nodesOfRun, 3U);
    ASSERT_EQ(run.probes.size(), 2U);
    EXPECT_THAT(run.probes[1].elevations, testing::ElementsAre(2, 5));
}

TEST_F(surfaceRunTest, namesTheLineOfADamagedFile) {
    const std::string longNumber = "0 " + std::string(2000, '0');
    struct {
        const char* table;
        const char* domain;
        const char* says;
    } const cases[] = {
        {"", "", "dat, line 1: found no elevations"},
        {"0\n1\n", "", "dat, line 1: found no elevations"},
        {"0 1 2\n1 1\n", "", "line 2: found 1 elevations, expected 2"},
        {"0 1 2\n1 1 2 3\n", "", "line 2: found more than 2 elevations"},
        {"0 1 2\n1 1 \t\n2 3 4\n", "", "line 2: found 1 elevations, expected 2"},
        {"0 1\n1 nan\n", "", "line 2: found text in column 2 that is not a finite number"},
        {"0 1\n1 1e99\n", "", "line 2: found text in column 2 that is not a finite number"},
        {"0 1\n1e99 1\n", "", "line 2: found text in column 1 that is not a finite number"},
        {"0 1\n\n1 1\n", "", "line 2: found an empty line"},
        {"1 1\n0 1\n", "", "line 2: found the time 0 s after 1 s"},
        {"0 1\r1 1\r", "", "line 1: found"},
        {longNumber.c_str(), "", "line 1: found text in column 2 that"},
        {"0 1\n", "2 2 1 1\n", "line 1: found 1 elevations, expected 4, a node each"},
        {"0 1 2 3 4\n", "2 2 0 1\n", "waveDomain.dat, line 1: found \"2 2 0 1\", expected two"},
        {"0 1 2 3 4\n", "2 1e99 1 1\n",
         "waveDomain.dat, line 1: found \"2 1e99 1 1\", expected two"},
        {"0 1 2 3 4\n", "2 2 1\n", "waveDomain.dat, line 1: found \"2 2 1\", expected two"},
        {"0 1 2 3 4\n", "2 2 1 1 1\n", "waveDomain.dat, line 1: found \"2 2 1 1 1\", expected two"},
        {"0 1\n", "2 2 2000000000 2000000000\n", "line 1: found a grid of 4000000004000000001"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.says);
        EXPECT_THAT([&] { read(c.table, c.domain); },
                    testing::ThrowsMessage<cannotCheck>(testing::HasSubstr(c.says)));
    }
    EXPECT_THROW(readSurfaceRun(folder.path("none"), {}), cannotCheck);
    std::error_code ignored;
    std::filesystem::remove(folder.path("waveElevation.dat"));
    std::filesystem::create_symlink("/dev/zero", folder.path("waveElevation.dat"), ignored);
    EXPECT_THROW(readSurfaceRun(folder.path(), {}), cannotCheck) << "endless";
}

TEST(spectrumEstimate, hasTheVarianceAndThePeakOfASinusoid) {
    const double frequency = 0.11;
    const double step = 0.25;
    for (const int count : {241, 5000}) {
        SCOPED_TRACE(count);
        std::vector<float> elevations;
        elevations.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            elevations.push_back(
                3 + 2 * std::sin(static_cast<float>(6.283185307 * frequency * step * i)));
        }
        const spectrumEstimate spectrum = estimateSpectrum(elevations, step);
        const std::vector<double>& density = spectrum.density;
        const double sum = std::accumulate(density.begin(), density.end(), 0.0);
        EXPECT_NEAR(sum * spectrum.step, 2, 0.05);
        const auto peak = std::max_element(density.begin(), density.end()) - density.begin();
        EXPECT_NEAR(static_cast<double>(peak) * spectrum.step, frequency, spectrum.step);
        EXPECT_NEAR(static_cast<double>(density.size() - 1) * spectrum.step, 0.5 / step, 1e-9);
    }
    EXPECT_TRUE(estimateSpectrum(std::vector<float>(100, 1), step).density.empty());
    EXPECT_TRUE(estimateSpectrum({1, 2, 3}, step).density.empty());
}

TEST(evenStep, allowsForSixDigitsOnly) {
    std::vector<double> times;
    times.reserve(43200);
    for (int i = 0; i < 43200; ++i) {
        times.push_back(leadingNumber(numberText(0.25 * i).c_str())); // 10000.2 for 10000.25
    }
    EXPECT_NEAR(evenStep(times), 0.25, 1e-5);
    times[20] += 0.1;
    EXPECT_EQ(evenStep(times), 0);
}

} // namespace
