#include "numerics/matrixOp.hpp"
#include "support/program.hpp"
#include "waves/waveConfig.hpp"

TEST(globals, takesTheInputOnceAndRefusesASecondOne) {
    const reader second = configOf("environment.waterDensity = 1\nenvironment.airDensity = 7\n");
    globals::set(configOf("environment.gravity = -9.80665\nenvironment.waterLevel = 2\n"));
    EXPECT_EQ(globals::m_g, (std::vector<double>{0, 0, -9.80665}));
    EXPECT_EQ(globals::m_dimMap, (std::vector<double>{1, 0, 0, 0, 1, 0, 0, 0, 1}));
    EXPECT_EQ(outputOf([&] { globals::set(second); }),
              "Warning: You are attempting to redefine your static global definitions. Are you "
              "sure thats a good idea?... well, you can't!\n");
    EXPECT_EQ(globals::m_rhoWater, 1000.0);
    EXPECT_EQ(globals::m_stillWaterLevel, 2.0);
}

TEST(globals, mapsTwoDimensionsToTheVerticalPlane) {
    configOf("");
    globals::set(2, {0, 0, -9.81}, 1000, 1, 0);
    EXPECT_EQ(globals::m_g, (std::vector<double>{0, -9.81}));
    EXPECT_EQ(globals::m_dimMap, (std::vector<double>{1, 0, 0, 0, 0, 1}));
    EXPECT_EQ(matrixOp::l2Norm, matrixOp::l2Norm2D);
}
