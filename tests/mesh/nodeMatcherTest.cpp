#include "mesh/nodeMatcher.hpp"
#include "support/meshes.hpp"

#include <cmath>
#include <limits>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

namespace {

/// A coordinate at, next to, or about a tolerance from one of a few places.
float nearPlace(std::mt19937& random, std::vector<float> const& places) {
    const float place = places[random() % places.size()];
    const float offset = 4e-6F * static_cast<float>(static_cast<int>(random() % 9) - 4);
    const float candidates[] = {place, std::nextafter(place, 2 * place), place + offset};
    return candidates[random() % 3];
}

TEST(nodeMatcher, findsWhatAPlainScanFinds) {
    const float infinity = std::numeric_limits<float>::infinity();
    std::vector<std::vector<float>> clouds = {
        {0},
        {0, -0.0F, 1.5258789e-5F, 3.0517578e-5F, -3.0517578e-5F, 1e-30F},
        {1, 1.0000305F, 127.99999F, 128, 255.99998F, 256},
        {1e4F, 1e7F, 1e9F, 1e12F, 1e20F, 3e38F, -3e38F},
        {0, 1, infinity, -infinity, std::numeric_limits<float>::quiet_NaN()},
    };
    std::mt19937 random(17);
    // Many places, for more nodes than the matcher has room for at first.
    clouds.emplace_back(3000);
    std::iota(clouds.back().begin(), clouds.back().end(), -1500.0F);
    for (std::size_t cloud = 0; cloud < clouds.size(); ++cloud) {
        for (int round = 0; round < 20; ++round) {
            nodeMatcher matcher;
            std::vector<v3<float>> nodes;
            std::vector<int> corners;
            for (std::size_t panel = 150 + clouds[cloud].size() / 10; panel > 0; --panel) {
                v3<float> points[3];
                for (v3<float>& p : points) {
                    p.x = nearPlace(random, clouds[cloud]);
                    p.y = round % 2 == 0 ? 0.5F : nearPlace(random, clouds[cloud]);
                    p.z = round % 4 < 2 ? -2 : nearPlace(random, clouds[cloud]);
                }
                matcher.addPanel(points[0], points[1], points[2]);
                scanForNodes(nodes, corners, points);
            }
            ASSERT_EQ(matcher.corners(), corners) << "cloud " << cloud << ", round " << round;
        }
    }
}

} // namespace
